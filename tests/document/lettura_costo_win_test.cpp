#include "support/xml_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"

#include <windows.h>

#include <cstdio>

#include <gtest/gtest.h>

namespace {

// What this process took of the processors so far, in milliseconds: others on the machine do not
// count.
double consumato() {
    FILETIME inizio{};
    FILETIME fine{};
    FILETIME sistema{};
    FILETIME programma{};
    GetProcessTimes(GetCurrentProcess(), &inizio, &fine, &sistema, &programma);
    const auto ms = [](const FILETIME& t) {
        return (static_cast<double>(t.dwHighDateTime) * 4294967296.0 + t.dwLowDateTime) / 10000;
    };
    return ms(sistema) + ms(programma);
}

template <class Azione>
double costo(Azione azione) {
    const double prima = consumato();
    azione();
    return consumato() - prima;
}

// Reads every text of the items of a document, and drops it.
std::size_t percorri(const NodoXml& nodo, int livello) {
    std::size_t quanti = 0;
    for (NodoXml figlio = nodo.primoFiglio(); figlio; figlio = figlio.fratello()) {
        static_cast<void>(figlio.nome());
        quanti += livello < 2 ? percorri(figlio, livello + 1) : figlio.testo().vista().size();
    }
    return quanti;
}

// Reading a feed of that many items with that description may cost little more than the parser
// takes for it.
void attendiPocoPiuDelParser(int elementi, const std::string& descrizione) {
    std::string canale;
    for (int i = 0; i < elementi; ++i) {
        const std::string numero = std::to_string(i);
        canale += "<item><title>Notizia " + numero + "</title><link>http://a.example/" + numero +
                  "</link><description><![CDATA[" + descrizione +
                  "]]></description><author>a@a.example</author><pubDate>ieri</pubDate><guid>" +
                  numero + "</guid></item>";
    }
    const CartellaProva cartella;
    const auto percorso = cartella.scrivi(L"a.xml", rssCon(canale));
    double parser = 0;
    double nostro = 0;
    // By turns, so that both find the heap in the same state.
    for (int i = 0; i < 2; ++i) {
        std::size_t caratteri = 0;
        parser += costo([&] {
            const DocumentoXml documento;
            ASSERT_TRUE(documento.carica(percorso));
            caratteri = percorri(documento.elementi(L"channel").front(), 1);
        });
        EXPECT_GT(caratteri, descrizione.size() * static_cast<std::size_t>(elementi));
        FeedDiProva d;
        nostro += costo([&] { d.leggi(percorso); });
        EXPECT_EQ(d.items.conteggio(), elementi);
    }
    std::printf("%.0f ms, the parser %.0f\n", nostro, parser);
    EXPECT_LT(nostro, 1.6 * parser);
}

} // namespace

// A heap that keeps thousands of texts between what the parser frees and allocates is slow to
// search.
TEST(LetturaCosto, TestiLunghiTuttiUguali) {
    attendiPocoPiuDelParser(6000, std::string(3400, 'x'));
}

TEST(LetturaCosto, MoltiTestiBreviConDegliAcapo) {
    std::string testo;
    for (int i = 0; i < 4; ++i) {
        testo += std::string(80, 'x') + '\n';
    }
    attendiPocoPiuDelParser(20000, testo);
}
