#include "document/tabellaElementi.h"

#include "tests/aiuti/sollevato.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr auto titolo = CampoElemento::Titolo;

TabellaElementi conTitoli(const std::vector<std::wstring>& titoli) {
    TabellaElementi tabella;
    for (const auto& t : titoli) {
        tabella(titolo, tabella.aggiungi()) = t;
    }
    return tabella;
}

std::vector<std::wstring> titoliDi(const TabellaElementi& tabella) {
    std::vector<std::wstring> titoli;
    for (int i = 0; i <= tabella.limiteSuperiore(); ++i) {
        titoli.push_back(tabella(titolo, i));
    }
    return titoli;
}

using Titoli = std::vector<std::wstring>;

} // namespace

TEST(TabellaElementi, VuotaHaUnElementoEConteggioZero) {
    const TabellaElementi tabella;
    EXPECT_EQ(tabella.limiteSuperiore(), 0);
    EXPECT_EQ(tabella.conteggio(), 0);
    for (int campo = 0; campo < numeroCampi; ++campo) {
        EXPECT_EQ(tabella(static_cast<CampoElemento>(campo), 0), L"");
    }
}

TEST(TabellaElementi, IlPrimoAggiuntoOccupaIlPostoVuoto) {
    TabellaElementi tabella;
    EXPECT_EQ(tabella.aggiungi(), 0);
    EXPECT_EQ(tabella.conteggio(), 1);
    EXPECT_EQ(tabella.limiteSuperiore(), 0);
    EXPECT_EQ(tabella.aggiungi(), 1);
    EXPECT_EQ(tabella.conteggio(), 2);
    EXPECT_EQ(tabella.limiteSuperiore(), 1);
}

TEST(TabellaElementi, IlPrimoAggiuntoNasceVuotoQualunqueCosaCiFosse) {
    TabellaElementi tabella;
    tabella(titolo, 0) = L"mai contato";
    tabella(CampoElemento::Guid, 0) = L"guid";
    EXPECT_EQ(tabella.aggiungi(), 0);
    for (int campo = 0; campo < numeroCampi; ++campo) {
        EXPECT_EQ(tabella(static_cast<CampoElemento>(campo), 0), L"");
    }
}

TEST(TabellaElementi, OgniCampoPerConto) {
    TabellaElementi tabella;
    tabella.dimensiona(2);
    EXPECT_EQ(tabella.conteggio(), 2);
    for (int e = 0; e < 2; ++e) {
        for (int c = 0; c < numeroCampi; ++c) {
            tabella(static_cast<CampoElemento>(c), e) = std::to_wstring(e * 10 + c);
        }
    }
    EXPECT_EQ(std::as_const(tabella)(CampoElemento::Guid, 1), L"15");
    EXPECT_EQ(std::as_const(tabella)(CampoElemento::Link, 0), L"1");
}

TEST(TabellaElementi, OltreIlLimiteErrore9) {
    TabellaElementi tabella = conTitoli({L"a", L"b"});
    EXPECT_EQ(sollevatoDa([&] { return tabella(titolo, 2); }).numero, 9);
    EXPECT_EQ(sollevatoDa([&] { return std::as_const(tabella)(titolo, -1); }).numero, 9);
    EXPECT_EQ(sollevatoDa([&] { return tabella.rimuovi(2), 0; }).numero, 9);
    EXPECT_EQ(sollevatoDa([&] { return tabella.sposta(0, 2), 0; }).numero, 9);
    EXPECT_EQ(sollevatoDa([&] { return tabella.sposta(-1, 0), 0; }).numero, 9);
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"a", L"b"}));
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
    tabella.dimensiona(32767);
    EXPECT_EQ(tabella.conteggio(), 32767);
    tabella(titolo, 32766) = L"ultimo";
    EXPECT_EQ(sollevatoDa([&] { return tabella.aggiungi(); }).numero, 6);
    EXPECT_EQ(tabella.limiteSuperiore(), 32766);
    EXPECT_EQ(sollevatoDa([&] { return tabella.dimensiona(32768), 0; }).numero, 6);
    EXPECT_EQ(sollevatoDa([&] { return tabella.dimensiona(0), 0; }).numero, 6);
    EXPECT_EQ(tabella(titolo, 32766), L"ultimo");
}

TEST(TabellaElementi, CrescereTogliereESpostareNonCopianoITesti) {
    const std::wstring lungo(1000, L'x');
    TabellaElementi tabella = conTitoli({L"a", lungo, L"c"});
    const wchar_t* const dove = tabella(titolo, 1).data();
    for (int i = 0; i < 100; ++i) {
        tabella.aggiungi();
    }
    tabella.rimuovi(0);
    tabella.sposta(0, 50);
    EXPECT_EQ(tabella(titolo, 50).data(), dove);
    const TabellaElementi altra = std::move(tabella);
    EXPECT_EQ(altra(titolo, 50).data(), dove);
}

TEST(TabellaElementi, LaCopiaStaPerConto) {
    TabellaElementi tabella = conTitoli({L"a", L"b"});
    TabellaElementi copia = tabella;
    copia(titolo, 0) = L"x";
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"a", L"b"}));
    tabella = copia;
    EXPECT_EQ(titoliDi(tabella), (Titoli{L"x", L"b"}));
    EXPECT_EQ(tabella.conteggio(), 2);
    tabella.svuota();
    EXPECT_EQ(tabella.conteggio(), 0);
    EXPECT_EQ(titoliDi(copia), (Titoli{L"x", L"b"}));
}
