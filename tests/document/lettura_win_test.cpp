#include "datetime/ClsUTC.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/tabella_prova.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;

class Lettura : public testing::Test {
protected:
    // Reads a file with these bytes.
    Sollevato leggi(std::string_view contenuto) {
        percorso = cartella.scrivi(L"prova.xml", contenuto);
        return d.provaLeggi(percorso);
    }
    Sollevato leggiCanale(std::string_view contenuto) { return leggi(rssCon(contenuto)); }

    // A text that the reader stamped: the time of now.
    void attendiAdesso(std::wstring_view testo) const {
        const ClsUTC utc;
        const auto adesso = utc.adessoLocale().secondi();
        // The offset west of Greenwich is no number to read back; tests run in Rome.
        const auto letta = utc.ToDate(testo).secondi();
        EXPECT_LE(letta, adesso);
        EXPECT_GE(letta, adesso - 60);
    }

    CartellaProva cartella;
    std::wstring percorso;
    FeedDiProva d;
};

} // namespace

TEST_F(Lettura, SetteTestiImmagineEdElementi) {
    const auto e = leggiCanale(
        "<title>T</title><link>L</link><description>D</description><language>it</language>"
        "<copyright>C</copyright><lastBuildDate>B</lastBuildDate><webMaster>W</webMaster>"
        "<image><title>IT</title><url>IU</url><link>IL</link><width>1</width><height>2</height>"
        "</image><item><title>a</title><link>b</link><description>c</description>"
        "<author>d</author><pubDate>e</pubDate><guid>f</guid></item><item><title>2</title></item>");
    EXPECT_EQ(e.numero, 0);
    EXPECT_EQ(d.title, L"T");
    EXPECT_EQ(d.link, L"L");
    EXPECT_EQ(d.description, L"D");
    EXPECT_EQ(d.language, L"it");
    EXPECT_EQ(d.copyright, L"C");
    EXPECT_EQ(d.lastBuildDate, L"B");
    EXPECT_EQ(d.webMaster, L"W");
    EXPECT_EQ(d.image.sTitle(), L"IT");
    EXPECT_EQ(d.image.sUrl(), L"IU");
    EXPECT_EQ(d.image.sLink(), L"IL");
    EXPECT_EQ(d.image.nWidth(), 1);
    EXPECT_EQ(d.image.nHeight(), 2);
    EXPECT_TRUE(d.image.Modificato());
    EXPECT_EQ(d.items.conteggio(), 2);
    EXPECT_EQ(d.items(Titolo, 0), L"a");
    EXPECT_EQ(d.items(Link, 0), L"b");
    EXPECT_EQ(d.items(Descrizione, 0), L"c");
    EXPECT_EQ(d.items(Autore, 0), L"d");
    EXPECT_EQ(d.items(Data, 0), L"e");
    EXPECT_EQ(d.items(Guid, 0), L"f");
    EXPECT_EQ(d.items(Titolo, 1), L"2");
}

TEST_F(Lettura, GliElementiDiUnDocumentoStannoInUnaSolaMemoria) {
    ASSERT_EQ(
        leggi(rssCon("<item><title>a</title></item><item/><item><link>b</link></item>")).numero, 0);
    const ElementoCondiviso primo = d.items.elemento(0);
    for (const int i : {1, 2}) {
        EXPECT_FALSE(primo.owner_before(d.items.elemento(i)));
        EXPECT_FALSE(d.items.elemento(i).owner_before(primo));
    }
    // It outlives the table.
    const ElementoCondiviso ultimo = d.items.elemento(2);
    d.items.svuota();
    EXPECT_EQ((*ultimo)[Link], L"b");
}

TEST_F(Lettura, SenzaUnSoloRssConUnSoloCanaleIlFormatoNonEValido) {
    for (const auto* const testo :
         {"<rss/>", "<rss><channel/><channel/></rss>", "<rdf><channel/></rdf>",
          "<feed xmlns='http://www.w3.org/2005/Atom'><title>x</title></feed>",
          "<html><body><p>x</p></body></html>", "<RSS><channel/></RSS>", "<rss><Channel/></rss>",
          "<rss><x><channel/></x></rss>", "<rss><channel><rss/></channel></rss>",
          "<a><rss><channel/></rss><rss/></a>",
          "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><channel/></rdf:RDF>",
          "<x:rss xmlns:x='u'><channel/></x:rss>", "<rss><x:channel xmlns:x='u'/></rss>"}) {
        const auto e = leggi(testo);
        EXPECT_EQ(e.numero, 18344) << testo;
        std::wstring su = percorso;
        CharUpperBuffW(su.data(), static_cast<DWORD>(su.size()));
        EXPECT_EQ(inUtf8(e.descrizione), inUtf8(su + testi::diErrore(18344)));
    }
}

TEST_F(Lettura, UnRssSottoUnAltraRadiceSiLegge) {
    EXPECT_EQ(leggi("<a><b><rss><channel><title>x</title></channel></rss></b></a>").numero, 0);
    EXPECT_EQ(d.title, L"x");
}

TEST_F(Lettura, CioCheNonSiCaricaLasciaTuttoVuoto) {
    for (const std::string& testo :
         {std::string(), std::string("<rss><channel>"), std::string("\0\1\2\xFF", 4),
          std::string("ciao"), rssCon("<title>\xFF\xFE</title>"),
          std::string("<?xml version='1.0' encoding='x-nessuna'?><rss><channel/></rss>"),
          std::string("<!DOCTYPE html><html><p>x<br></html>"), rssCon("<title>&euro;</title>"),
          rssCon(std::string("<title>a\0b</title>", 18))}) {
        d.title = L"prima";
        d.webMaster = L"prima";
        d.image.nWidth(3);
        dimensiona(d.items, 3);
        const auto e = leggi(testo);
        EXPECT_EQ(e.numero, 18343) << testo;
        EXPECT_TRUE(e.descrizione.ends_with(L"\\PROVA.XML" + testi::diErrore(18343)))
            << inUtf8(e.descrizione);
        for (const auto* const campo : d.canale()) {
            EXPECT_EQ(*campo, L"");
        }
        EXPECT_EQ(d.image.nWidth(), 0);
        EXPECT_FALSE(d.image.Modificato());
        EXPECT_EQ(d.items.conteggio(), 0);
        EXPECT_EQ(d.items.limiteSuperiore(), 0);
    }
}

TEST_F(Lettura, DueImmaginiNonSonoSupportateEIlCanaleRestaLetto) {
    const auto e = leggiCanale("<image/><title>T</title><image/><item/>");
    EXPECT_EQ(e.numero, 18345);
    EXPECT_TRUE(e.descrizione.ends_with(L"\\PROVA.XML" + testi::diErrore(18345)));
    EXPECT_EQ(d.title, L"T");
    EXPECT_EQ(d.items.conteggio(), 0);
    EXPECT_FALSE(d.image.Modificato());
}

TEST_F(Lettura, ImmagineAssenteOVuotaNonEModificata) {
    EXPECT_EQ(leggiCanale("<title>T</title>").numero, 0);
    EXPECT_FALSE(d.image.Modificato());
    d.image.nWidth(5);
    EXPECT_EQ(leggiCanale("<image><title/><width>0</width><height>x</height></image>").numero, 0);
    EXPECT_FALSE(d.image.Modificato());
    EXPECT_EQ(d.image.nWidth(), 0);
}

TEST_F(Lettura, MisureComeNumeroIniziale) {
    const auto larghezza = [&](const std::string& testo) {
        EXPECT_EQ(leggiCanale("<image><width>" + testo + "</width></image>").numero, 0) << testo;
        return d.image.nWidth();
    };
    EXPECT_EQ(larghezza("120px"), 120);
    EXPECT_EQ(larghezza("px"), 0);
    EXPECT_EQ(larghezza("-7"), -7);
    EXPECT_EQ(larghezza("+7"), 7);
    EXPECT_EQ(larghezza("1 2 0"), 120);
    EXPECT_EQ(larghezza("2.5"), 2);
    EXPECT_EQ(larghezza("1,9"), 1);
    EXPECT_EQ(larghezza("2147483647"), 2147483647);
}

TEST_F(Lettura, UnaMisuraOltre32BitEOverflow) {
    EXPECT_EQ(leggiCanale("<title>T</title><image><title>I</title><width>2147483648</width>"
                          "</image><item/>")
                  .numero,
              6);
    EXPECT_EQ(d.title, L"T");
    EXPECT_EQ(d.image.sTitle(), L"I");
    EXPECT_EQ(d.items.conteggio(), 0);
    EXPECT_EQ(leggiCanale("<image><height>-1e300</height></image>").numero, 6);
}

TEST_F(Lettura, LeDateMancantiSonoAdesso) {
    EXPECT_EQ(leggiCanale("<item/><item><pubDate/></item><item><pubDate>  </pubDate></item>"
                          "<item><pubDate>ieri</pubDate></item>")
                  .numero,
              0);
    attendiAdesso(d.lastBuildDate);
    attendiAdesso(d.items(Data, 0));
    attendiAdesso(d.items(Data, 1));
    attendiAdesso(d.items(Data, 2));
    EXPECT_EQ(d.items(Data, 3), L"ieri");
}

TEST_F(Lettura, UnLastBuildDateVuotoRestaVuoto) {
    EXPECT_EQ(leggiCanale("<lastBuildDate></lastBuildDate>").numero, 0);
    EXPECT_EQ(d.lastBuildDate, L"");
}

TEST_F(Lettura, DescrizioneDalPrimoNodoFiglio) {
    const auto descrizione = [&](const std::string& contenuto) {
        EXPECT_EQ(leggiCanale("<item><description>" + contenuto + "</description></item>").numero,
                  0);
        return inUtf8(d.items(Descrizione, 0));
    };
    EXPECT_EQ(descrizione("<![CDATA[a < b]]>"), "a < b");
    EXPECT_EQ(descrizione("<![CDATA[  a\nb  ]]>"), "  a\r\nb  ");
    EXPECT_EQ(descrizione(""), "");
    EXPECT_EQ(descrizione("a &lt; b"), "a < b");
    EXPECT_EQ(descrizione("<![CDATA[a]]>b"), "a");
    EXPECT_EQ(descrizione("<b>x</b>y"), "x");
    EXPECT_EQ(descrizione("<!--commento-->testo"), "commento");
    EXPECT_EQ(descrizione("<![CDATA[]]>"), "");
}

TEST_F(Lettura, INomiSonoEsatti) {
    EXPECT_EQ(leggi("<rss xmlns:a='u'><channel><a:title>no</a:title><a:link>no</a:link><a:item/>"
                    "<a:image/><a:channel><title>no</title></a:channel><x><title>no</title></x>"
                    "<Link>no</Link><title>T</title><item><Title>no</Title><PUBDATE>no</PUBDATE>"
                    "<a:title>no</a:title><x><guid>no</guid></x><category>no</category>"
                    "<enclosure/>testo<!--c--></item></channel></rss>")
                  .numero,
              0);
    EXPECT_EQ(d.title, L"T");
    EXPECT_EQ(d.link, L"");
    EXPECT_EQ(d.items.conteggio(), 1);
    EXPECT_EQ(d.items(Titolo, 0), L"");
    EXPECT_EQ(d.items(Guid, 0), L"");
    attendiAdesso(d.items(Data, 0));
    EXPECT_FALSE(d.image.Modificato());
}

TEST_F(Lettura, NelCanaleVinceIlPrimoNellElementoLUltimo) {
    EXPECT_EQ(leggiCanale("<title>1</title><title>2</title><image><url>1</url><url>2</url></image>"
                          "<item><title>1</title><title>2</title><description>1</description>"
                          "<description/></item>")
                  .numero,
              0);
    EXPECT_EQ(d.title, L"1");
    EXPECT_EQ(d.image.sUrl(), L"1");
    EXPECT_EQ(d.items(Titolo, 0), L"2");
    EXPECT_EQ(d.items(Descrizione, 0), L"");
}

TEST_F(Lettura, IlTestoEQuelloDeiDiscendenti) {
    EXPECT_EQ(leggiCanale("<title>a<b>c<i>d</i></b><![CDATA[<e>]]></title>").numero, 0);
    EXPECT_EQ(d.title, L"acd<e>");
}

TEST_F(Lettura, AcapoCrLfOvunqueTranneNelLinkDellElemento) {
    const std::string t = "a\nb&#13;\nc&#13;d";
    const auto con = [&](std::initializer_list<const char*> nomi) {
        std::string testo;
        for (const std::string nome : nomi) {
            testo.append("<" + nome + ">").append(t).append("</" + nome + ">");
        }
        return testo;
    };
    EXPECT_EQ(leggiCanale(con({"title", "link", "description", "language", "copyright",
                               "lastBuildDate", "webMaster"}) +
                          "<image>" + con({"title", "url", "link"}) + "</image><item>" +
                          con({"title", "link", "description", "author", "pubDate", "guid"}) +
                          "</item>")
                  .numero,
              0);
    const std::wstring conCrLf = L"a\r\nb\r\nc\rd";
    for (const auto* const campo : d.canale()) {
        EXPECT_EQ(*campo, conCrLf);
    }
    EXPECT_EQ(d.image.sTitle(), conCrLf);
    EXPECT_EQ(d.image.sUrl(), conCrLf);
    EXPECT_EQ(d.image.sLink(), conCrLf);
    for (const auto campo : {Titolo, Descrizione, Autore, Data, Guid}) {
        EXPECT_EQ(d.items(campo, 0), conCrLf) << static_cast<int>(campo);
    }
    EXPECT_EQ(d.items(Link, 0), L"a\nb\r\nc\rd");
}

// Each alone: no field of an image waits for another.
TEST_F(Lettura, OgniCampoDellImmagineSiLeggeDaSolo) {
    const auto solo = [&](const std::string& campo) {
        EXPECT_EQ(leggiCanale("<image>" + campo + "</image>").numero, 0) << campo;
        EXPECT_TRUE(d.image.Modificato()) << campo;
        return inUtf8(d.image.sTitle() + L'|' + d.image.sUrl() + L'|' + d.image.sLink() + L'|' +
                      std::to_wstring(d.image.nWidth()) + L'|' +
                      std::to_wstring(d.image.nHeight()));
    };
    EXPECT_EQ(solo("<title>t</title>"), "t|||0|0");
    EXPECT_EQ(solo("<url>u</url>"), "|u||0|0");
    EXPECT_EQ(solo("<link>l</link>"), "||l|0|0");
    EXPECT_EQ(solo("<width>1</width>"), "|||1|0");
    EXPECT_EQ(solo("<height>2</height>"), "|||0|2");
}

// Where two outputs are one variable, the later field is what it holds in the end.
TEST_F(Lettura, ICampiDelCanaleSiRiempionoNelLoroOrdine) {
    EXPECT_EQ(leggiCanale("<webMaster>6</webMaster><lastBuildDate>5</lastBuildDate>"
                          "<copyright>4</copyright><language>3</language>"
                          "<description>2</description><link>1</link><title>0</title>")
                  .numero,
              0);
    for (std::size_t primo = 0; primo < 7; ++primo) {
        for (std::size_t secondo = primo + 1; secondo < 7; ++secondo) {
            FeedDiProva altro;
            auto campi = altro.canale();
            campi[secondo] = campi[primo];
            clsFeedRss().LeggiDocumentoRSS(percorso, *campi[0], *campi[1], *campi[2], *campi[3],
                                           *campi[4], *campi[5], *campi[6], altro.image,
                                           altro.items);
            EXPECT_EQ(*campi[secondo], std::to_wstring(secondo)) << primo;
        }
    }
}

TEST_F(Lettura, IMessaggiHannoIlPercorsoTuttoInMaiuscolo) {
    const auto descrizione = [&](std::string_view contenuto) {
        const auto file = cartella.scrivi(L"città è ñandú €.xml", contenuto);
        const auto e = d.provaLeggi(file);
        return inUtf8(e.descrizione.substr(file.rfind(L'\\')));
    };
    const auto attesa = [](std::int32_t numero) {
        return inUtf8(L"\\CITTÀ È ÑANDÚ €.XML" + testi::diErrore(numero));
    };
    EXPECT_EQ(descrizione("<rss>"), attesa(18343));
    EXPECT_EQ(descrizione("<rss/>"), attesa(18344));
    EXPECT_EQ(descrizione(rssCon("<image/><image/>")), attesa(18345));
}

TEST_F(Lettura, ElementiSenzaTitoloDelCanale) {
    EXPECT_EQ(leggiCanale("<item><title>a</title></item>").numero, 0);
    EXPECT_EQ(d.title, L"");
    EXPECT_EQ(d.items.conteggio(), 1);
}

TEST_F(Lettura, SenzaElementiLaTabellaEVuota) {
    dimensiona(d.items, 4);
    EXPECT_EQ(leggiCanale("<title>a</title>").numero, 0);
    EXPECT_EQ(d.items.conteggio(), 0);
    EXPECT_EQ(d.items.limiteSuperiore(), 0);
    EXPECT_EQ(d.items(Data, 0), L"");
}

TEST_F(Lettura, TrentaduemilaSettecentosessantasetteElementiENonUnoDiPiu) {
    std::string molti;
    for (int i = 0; i < 32767; ++i) {
        molti += "<item><guid>" + std::to_string(i) + "</guid></item>";
    }
    EXPECT_EQ(leggiCanale(molti).numero, 0);
    EXPECT_EQ(d.items.conteggio(), 32767);
    EXPECT_EQ(d.items(Guid, 32766), L"32766");
    EXPECT_EQ(leggiCanale("<title>T</title>" + molti + "<item/>").numero, 6);
    EXPECT_EQ(d.title, L"T");
    EXPECT_EQ(d.items.conteggio(), 0);
}

TEST_F(Lettura, LeCodificheDelParser) {
    EXPECT_EQ(leggi("<?xml version='1.0' encoding='ISO-8859-1'?><rss><channel><title>\xE8</title>"
                    "</channel></rss>")
                  .numero,
              0);
    EXPECT_EQ(d.title, L"è");
    EXPECT_EQ(leggi("\xEF\xBB\xBF" + rssCon("<title>\xC3\xA8\xF0\x9F\x98\x80</title>")).numero, 0);
    EXPECT_EQ(inUtf8(d.title), "\xC3\xA8\xF0\x9F\x98\x80");
    std::string utf16 = "\xFF\xFE";
    for (const char c : std::string("<rss><channel><title>x</title></channel></rss>")) {
        utf16 += c;
        utf16 += '\0';
    }
    EXPECT_EQ(leggi(utf16).numero, 0);
    EXPECT_EQ(d.title, L"x");
}

TEST_F(Lettura, UnElementoDi9MegabyteEDiecimilaLivelli) {
    constexpr std::size_t lunghezza = 9000000;
    EXPECT_EQ(leggiCanale("<title>" + std::string().append(lunghezza, 'x') + "</title>").numero, 0);
    EXPECT_EQ(d.title.size(), lunghezza);
    std::string livelli;
    for (int i = 0; i < 10000; ++i) {
        livelli += "<a>";
    }
    for (int i = 0; i < 10000; ++i) {
        livelli += "</a>";
    }
    const auto e = leggiCanale("<title>T</title>" + livelli);
    EXPECT_TRUE(e.numero == 0 || e.numero == 18343) << e.numero;
    EXPECT_EQ(d.title, e.numero == 0 ? L"T" : L"");
}
