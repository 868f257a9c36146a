#include "support/utilita/koUtilita.h"

#include "support/programma/prodotto.h"

#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>

using namespace std::string_view_literals;

TEST(KoUtilita, AggiungiSepDirRifilaEAggiungeLaBarraAncheNellaVariabile) {
    std::wstring percorso = L"  C:\\temp  ";
    EXPECT_EQ(koUtilita::AggiungiSepDir(percorso), L"C:\\temp\\");
    EXPECT_EQ(percorso, L"C:\\temp\\");
}

TEST(KoUtilita, AggiungiSepDirLasciaLaBarraCheCe) {
    std::wstring percorso = L"C:\\temp\\";
    EXPECT_EQ(koUtilita::AggiungiSepDir(percorso), L"C:\\temp\\");
    EXPECT_EQ(percorso, L"C:\\temp\\");
}

TEST(KoUtilita, AggiungiSepDirLasciaVuotoUnPercorsoDiSpazi) {
    for (const auto* testo : {L"", L"    "}) {
        std::wstring percorso = testo;
        EXPECT_EQ(koUtilita::AggiungiSepDir(percorso), L"");
        EXPECT_EQ(percorso, L"");
    }
}

TEST(KoUtilita, AggiungiSepDirConosceSoloGliSpaziELaBarraRovescia) {
    std::wstring percorso = L"C:/temp/";
    EXPECT_EQ(koUtilita::AggiungiSepDir(percorso), L"C:/temp/\\");
    percorso = L"\tC:\\a\t";
    EXPECT_EQ(koUtilita::AggiungiSepDir(percorso), L"\tC:\\a\t\\");
    percorso = L"\t";
    EXPECT_EQ(koUtilita::AggiungiSepDir(percorso), L"\t\\");
}

TEST(KoUtilita, StripTerminatorTagliaAlPrimoCarattereZero) {
    EXPECT_EQ(koUtilita::StripTerminator(L"abc\0def\0"sv), L"abc");
    EXPECT_EQ(koUtilita::StripTerminator(L"abc"), L"abc");
    EXPECT_EQ(koUtilita::StripTerminator(L"\0abc"sv), L"");
    EXPECT_EQ(koUtilita::StripTerminator(L""), L"");
    EXPECT_EQ(koUtilita::StripTerminator(L"  a  \0"sv), L"  a  ");
}

TEST(Prodotto, NessunCreditoRompeUnCommento) {
    EXPECT_EQ(prodotto::creditoFeed.find(L"--"), std::wstring_view::npos);
    EXPECT_EQ(prodotto::creditoPagina.find(L"--"), std::wstring_view::npos);
    EXPECT_NE(prodotto::creditoFeed.back(), L'-');
    EXPECT_FALSE(prodotto::creditoPagina.empty());
}

TEST(Prodotto, IlSitoFinisceSenzaBarraInUnDominioRiservato) {
    EXPECT_TRUE(prodotto::sito.starts_with(L"https://"));
    EXPECT_TRUE(prodotto::sito.ends_with(L".example"));
    EXPECT_TRUE(prodotto::postaAutore.ends_with(L".example"));
}

TEST(Prodotto, LaVersioneHaTreNumeriEIlSeparatoreChiesto) {
    const std::wstring versione = prodotto::versione();
    EXPECT_EQ(std::ranges::count(versione, L'.'), 2);
    EXPECT_EQ(versione.find_first_not_of(L"0123456789."), std::wstring::npos);
    std::wstring conPiu = versione;
    std::ranges::replace(conPiu, L'.', L'+');
    EXPECT_EQ(prodotto::versione(L'+'), conPiu);
}
