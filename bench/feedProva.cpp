#include "bench/feedProva.h"

#include <array>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 4> frasi{
    "Il consiglio si riunisce in sala grande; l'ordine del giorno si legge sul sito. ",
    "<b>Attenzione</b>: la strada resta chiusa fino a sera, si passa dal ponte vecchio.\n",
    "Chi vuole partecipare scriva alla redazione entro la fine del mese & aspetti conferma. ",
    "Le fotografie della serata sono nella <a "
    "href=\"https://giornale.example/foto\">raccolta</a>."};

std::string dueCifre(int numero) {
    return {static_cast<char>('0' + numero / 10), static_cast<char>('0' + numero % 10)};
}

std::string descrizione(int indice, std::size_t lunghezza) {
    std::string testo;
    std::size_t i = static_cast<std::size_t>(indice);
    const std::size_t fine = i + frasi.size();
    while (lunghezza > 0 ? testo.size() < lunghezza : i < fine) {
        testo += frasi[i++ % frasi.size()];
    }
    testo.resize(lunghezza > 0 ? lunghezza : testo.size());
    return testo;
}

void aggiungiElemento(std::string& feed, int indice, std::size_t lunghezza) {
    const std::string numero = std::to_string(indice);
    feed += "<item><title>Notizia numero " + numero + " dalla redazione del giornale</title>";
    feed += "<link>https://giornale.example/notizie/2005/" + numero + ".html</link>";
    feed += "<description><![CDATA[" + descrizione(indice, lunghezza);
    feed += "]]></description><author>redazione@giornale.example</author><pubDate>";
    feed += "Tue, " + dueCifre(1 + indice % 28) + " Nov 2005 " + dueCifre(indice % 24) + ":" +
            dueCifre(indice % 60) + ":00 +0100</pubDate><guid>giornale-" + numero +
            "</guid></item>\n";
}

} // namespace

std::string feedProva(int elementi, std::size_t lunghezza, bool varia) {
    std::string feed =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<rss version=\"2.0\"><channel>"
        "<title>Il giornale</title><link>https://giornale.example/</link>"
        "<description>Notizie di ogni giorno</description><language>it</language>"
        "<copyright>Il giornale</copyright>"
        "<lastBuildDate>Tue, 15 Nov 2005 10:00:00 +0100</lastBuildDate>"
        "<webMaster>web@giornale.example</webMaster>\n";
    for (int i = 0; i < elementi; ++i) {
        // A prime far from the length: neighbours differ much, all lengths come by.
        aggiungiElemento(feed, i,
                         varia ? lunghezza / 2 + static_cast<std::size_t>(i) * 7919 % lunghezza
                               : lunghezza);
    }
    feed += "</channel></rss>\n";
    return feed;
}
