#include "support/utilita/koUtilita.h"

#include <gtest/gtest.h>

TEST(KoUtilitaPercorsi, UnPercorsoSiDivideInCartellaENome) {
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"C:\\a b\\c.d.xml"), L"c.d.xml");
    EXPECT_EQ(koUtilita::EstraiPath(L"C:\\a b\\c.d.xml"), L"C:\\a b\\");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"C:/a/b"), L"b");
    EXPECT_EQ(koUtilita::EstraiPath(L"C:b"), L"C:");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"b"), L"b");
    EXPECT_EQ(koUtilita::EstraiPath(L"b"), L"");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"C:\\a\\"), L"");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L""), L"");
    EXPECT_EQ(koUtilita::EstraiPath(L""), L"");
    EXPECT_EQ(koUtilita::EstraiPath(std::wstring(1000, L'x') + L"\\y").size(), 1001U);
}

TEST(KoUtilitaPercorsi, LEstensioneELUltimaDelNomeConIlPunto) {
    EXPECT_EQ(koUtilita::EstraiEstensione(L"C:\\a\\b.tar.gz"), L".gz");
    EXPECT_EQ(koUtilita::EstraiEstensione(L"C:\\a.b\\c"), L"");
    EXPECT_EQ(koUtilita::EstraiEstensione(L"nome."), L".");
    EXPECT_EQ(koUtilita::EstraiEstensione(L""), L"");
    EXPECT_EQ(koUtilita::EstraiEstensione(std::wstring(1000, L'.')), L".");
}
