#include "support/utilita/koUtilitaPercorsi.h"

#include <gtest/gtest.h>

TEST(KoUtilitaPercorsi, UnPercorsoSiDivideInCartellaENome) {
    EXPECT_EQ(koUtilitaPercorsi::DeterminaSoloFileName(L"C:\\a b\\c.d.xml"), L"c.d.xml");
    EXPECT_EQ(koUtilitaPercorsi::EstraiPath(L"C:\\a b\\c.d.xml"), L"C:\\a b\\");
    EXPECT_EQ(koUtilitaPercorsi::DeterminaSoloFileName(L"C:/a/b"), L"b");
    EXPECT_EQ(koUtilitaPercorsi::EstraiPath(L"C:b"), L"C:");
    EXPECT_EQ(koUtilitaPercorsi::DeterminaSoloFileName(L"b"), L"b");
    EXPECT_EQ(koUtilitaPercorsi::EstraiPath(L"b"), L"");
    EXPECT_EQ(koUtilitaPercorsi::DeterminaSoloFileName(L"C:\\a\\"), L"");
    EXPECT_EQ(koUtilitaPercorsi::DeterminaSoloFileName(L""), L"");
    EXPECT_EQ(koUtilitaPercorsi::EstraiPath(L""), L"");
    EXPECT_EQ(koUtilitaPercorsi::EstraiPath(std::wstring(1000, L'x') + L"\\y").size(), 1001U);
}

TEST(KoUtilitaPercorsi, LEstensioneELUltimaDelNomeConIlPunto) {
    EXPECT_EQ(koUtilitaPercorsi::EstraiEstensione(L"C:\\a\\b.tar.gz"), L".gz");
    EXPECT_EQ(koUtilitaPercorsi::EstraiEstensione(L"C:\\a.b\\c"), L"");
    EXPECT_EQ(koUtilitaPercorsi::EstraiEstensione(L"nome."), L".");
    EXPECT_EQ(koUtilitaPercorsi::EstraiEstensione(L""), L"");
    EXPECT_EQ(koUtilitaPercorsi::EstraiEstensione(std::wstring(1000, L'.')), L".");
}

TEST(KoUtilitaPercorsi, AggiungiSepDirRifilaEAggiungeLaBarraAncheNellaVariabile) {
    std::wstring percorso = L"  C:\\temp  ";
    EXPECT_EQ(koUtilitaPercorsi::AggiungiSepDir(percorso), L"C:\\temp\\");
    EXPECT_EQ(percorso, L"C:\\temp\\");
}

TEST(KoUtilitaPercorsi, AggiungiSepDirLasciaLaBarraCheCe) {
    std::wstring percorso = L"C:\\temp\\";
    EXPECT_EQ(koUtilitaPercorsi::AggiungiSepDir(percorso), L"C:\\temp\\");
    EXPECT_EQ(percorso, L"C:\\temp\\");
}

TEST(KoUtilitaPercorsi, AggiungiSepDirLasciaVuotoUnPercorsoDiSpazi) {
    for (const auto* testo : {L"", L"    "}) {
        std::wstring percorso = testo;
        EXPECT_EQ(koUtilitaPercorsi::AggiungiSepDir(percorso), L"");
        EXPECT_EQ(percorso, L"");
    }
}

TEST(KoUtilitaPercorsi, AggiungiSepDirConosceSoloGliSpaziELaBarraRovescia) {
    std::wstring percorso = L"C:/temp/";
    EXPECT_EQ(koUtilitaPercorsi::AggiungiSepDir(percorso), L"C:/temp/\\");
    percorso = L"\tC:\\a\t";
    EXPECT_EQ(koUtilitaPercorsi::AggiungiSepDir(percorso), L"\tC:\\a\t\\");
    percorso = L"\t";
    EXPECT_EQ(koUtilitaPercorsi::AggiungiSepDir(percorso), L"\t\\");
}
