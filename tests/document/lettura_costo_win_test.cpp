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

} // namespace

// Texts of one length are what a heap takes worst when each leaves a hole of its size.
TEST(LetturaCosto, ElementiDiUnaSolaLunghezzaCostanoPocoPiuDelParser) {
    constexpr int elementi = 6000;
    std::string canale;
    for (int i = 0; i < elementi; ++i) {
        canale += "<item><title>Notizia</title><link>http://a.example/</link><description>"
                  "<![CDATA[" +
                  std::string(3400, 'x') +
                  "]]></description><author>a</author><pubDate>ieri</pubDate><guid>g</guid></item>";
    }
    const CartellaProva cartella;
    const auto percorso = cartella.scrivi(L"a.xml", rssCon(canale));
    // The heap as a first reading finds it, in turns.
    double parser = 0;
    double nostro = 0;
    for (int i = 0; i < 2; ++i) {
        std::size_t caratteri = 0;
        parser += costo([&] {
            const DocumentoXml documento;
            ASSERT_TRUE(documento.carica(percorso));
            caratteri = percorri(documento.elementi(L"channel").front(), 1);
        });
        EXPECT_GT(caratteri, std::size_t{3400} * elementi);
        FeedDiProva d;
        nostro += costo([&] { d.leggi(percorso); });
        EXPECT_EQ(d.items.conteggio(), elementi);
    }
    std::printf("%.0f ms, the parser %.0f\n", nostro, parser);
    EXPECT_LT(nostro, 1.6 * parser) << nostro << " ms, the parser " << parser;
}
