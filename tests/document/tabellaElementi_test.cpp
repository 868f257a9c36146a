#include "document/tabellaElementi.h"

#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/tabella_prova.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr auto titolo = CampoElemento::Titolo;

using Titoli = std::vector<std::wstring>;

ElementoCondiviso intitolato(std::wstring_view testo) {
    return conTesto(*elementoVuoto(), titolo, testo);
}

TabellaElementi conTitoli(const Titoli& titoli) {
    TabellaElementi tabella;
    for (const auto& t : titoli) {
        tabella.inserisci(tabella.conteggio(), intitolato(t));
    }
    return tabella;
}

Titoli titoliDi(const TabellaElementi& tabella) {
    Titoli titoli;
    for (int i = 0; i <= tabella.limiteSuperiore(); ++i) {
        titoli.emplace_back(tabella(titolo, i));
    }
    return titoli;
}

} // namespace

TEST(TabellaElementi, VuotaHaUnElementoEConteggioZero) {
    const TabellaElementi tabella;
    EXPECT_EQ(tabella.limiteSuperiore(), 0);
    EXPECT_EQ(tabella.conteggio(), 0);
    for (int campo = 0; campo < numeroCampi; ++campo) {
        EXPECT_EQ(tabella(static_cast<CampoElemento>(campo), 0), L"");
    }
}

TEST(TabellaElementi, IlPrimoOccupaIlPostoVuotoEGliAltriFannoPosto) {
    TabellaElementi tabella;
    tabella.inserisci(0, intitolato(L"b"));
    EXPECT_EQ(tabella.conteggio(), 1);
    EXPECT_EQ(tabella.limiteSuperiore(), 0);
    tabella.inserisci(1, intitolato(L"d"));
    tabella.inserisci(0, intitolato(L"a"));
    tabella.inserisci(2, intitolato(L"c"));
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(tabella.conteggio(), 4);
}

TEST(TabellaElementi, OgniCampoPerConto) {
    TabellaElementi tabella;
    tabella.riempi({creaElemento({L"0", L"1", L"2", L"3", L"4", L"5"}),
                    creaElemento({L"10", L"11", L"12", L"13", L"14", L"15"})});
    EXPECT_EQ(tabella.conteggio(), 2);
    EXPECT_EQ(tabella(CampoElemento::Guid, 1), L"15");
    EXPECT_EQ(tabella(CampoElemento::Link, 0), L"1");
    tabella.sostituisci(0, intitolato(L"z"));
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"z", L"10"}));
    tabella.riempi({});
    EXPECT_EQ(titoliDi(tabella), (Titoli{L""}));
    EXPECT_EQ(tabella.conteggio(), 0);
}

TEST(TabellaElementi, OltreIlLimiteErrore9) {
    TabellaElementi tabella = conTitoli({L"a", L"b"});
    EXPECT_EQ(erroreDi([&] { static_cast<void>(tabella(titolo, 2)); }), 9);
    EXPECT_EQ(erroreDi([&] { static_cast<void>(tabella(titolo, -1)); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.inserisci(3, intitolato(L"x")); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.inserisci(-1, intitolato(L"x")); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.sostituisci(2, intitolato(L"x")); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.rimuovi(2); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.sposta(0, 2); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.sposta(-1, 0); }), 9);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"a", L"b"}));
}

TEST(TabellaElementi, LElementoVuotoDellaTabellaVuotaNonSiToccaENonSiToglie) {
    TabellaElementi tabella;
    EXPECT_EQ(erroreDi([&] { tabella.sostituisci(0, intitolato(L"x")); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.rimuovi(0); }), 9);
    EXPECT_EQ(erroreDi([&] { tabella.sposta(0, 0); }), 9);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L""}));
    EXPECT_EQ(tabella.conteggio(), 0);
}

TEST(TabellaElementi, RimuoviFinoAllaTabellaVuota) {
    TabellaElementi tabella = conTitoli({L"a", L"b", L"c"});
    tabella.rimuovi(1);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"a", L"c"}));
    EXPECT_EQ(tabella.conteggio(), 2);
    tabella.rimuovi(0);
    tabella.rimuovi(0);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L""}));
    EXPECT_EQ(tabella.conteggio(), 0);
}

TEST(TabellaElementi, SpostaTieneLOrdineDegliAltri) {
    TabellaElementi tabella = conTitoli({L"a", L"b", L"c", L"d"});
    tabella.sposta(0, 2);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"b", L"c", L"a", L"d"}));
    tabella.sposta(3, 0);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"d", L"b", L"c", L"a"}));
    tabella.sposta(1, 1);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"d", L"b", L"c", L"a"}));
    EXPECT_EQ(tabella.conteggio(), 4);
}

TEST(TabellaElementi, NonPiuDi32767) {
    TabellaElementi tabella;
    dimensiona(tabella, 32766);
    EXPECT_FALSE(tabella.piena());
    tabella.inserisci(32766, intitolato(L"ultimo"));
    EXPECT_EQ(tabella.conteggio(), 32767);
    EXPECT_TRUE(tabella.piena());
    EXPECT_EQ(erroreDi([&] { tabella.inserisci(0, intitolato(L"x")); }), 6);
    EXPECT_EQ(erroreDi([&] { dimensiona(tabella, 32768); }), 6);
    EXPECT_EQ(tabella.limiteSuperiore(), 32766);
    EXPECT_EQ(tabella(titolo, 32766), L"ultimo");
}

TEST(TabellaElementi, NessunLavoroENessunaCopiaToccanoITesti) {
    TabellaElementi tabella = conTitoli({L"a", L"b", L"c"});
    const Elemento* const dove = tabella.elemento(1).get();
    for (int i = 0; i < 100; ++i) {
        tabella.inserisci(tabella.conteggio(), elementoVuoto());
    }
    tabella.rimuovi(0);
    tabella.sposta(0, 50);
    EXPECT_EQ(tabella.elemento(50).get(), dove);
    const TabellaElementi copia = tabella;
    EXPECT_EQ(copia.elemento(50).get(), dove);
    const TabellaElementi altra = std::move(tabella);
    EXPECT_EQ(altra.elemento(50).get(), dove);
}

TEST(TabellaElementi, LaCopiaStaPerConto) {
    TabellaElementi tabella = conTitoli({L"a", L"b"});
    TabellaElementi copia = tabella;
    copia.sostituisci(0, intitolato(L"x"));
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"a", L"b"}));
    tabella = copia;
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"x", L"b"}));
    EXPECT_EQ(tabella.conteggio(), 2);
    tabella.svuota();
    EXPECT_EQ(tabella.conteggio(), 0);
    EXPECT_EQ(titoliDi(copia), (Titoli{L"x", L"b"}));
}
