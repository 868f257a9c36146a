#include "support/utilita/koUtilita.h"

#include <gtest/gtest.h>

using Pezzi = std::vector<std::wstring>;

TEST(KoUtilitaTesti, NonHaStatoOltreAiMessaggi) {
    EXPECT_EQ(sizeof(koUtilita), sizeof(Messaggi*));
}

TEST(KoUtilitaTesti, KoReplaceSostituisceOgniOccorrenzaESoloQuelle) {
    EXPECT_EQ(koUtilita::koReplace(L"a-b-c", L"-", L"--"), L"a--b--c");
    EXPECT_EQ(koUtilita::koReplace(L"Aa", L"a", L""), L"A");
    EXPECT_EQ(koUtilita::koReplace(L"abc", L"", L"x"), L"abc");
    EXPECT_EQ(koUtilita::koReplace(L"", L"a", L"b"), L"");
    EXPECT_EQ(koUtilita::koReplace(std::wstring(1000, L'a'), L"a", L"bc").size(), 2000U);
}

TEST(KoUtilitaTesti, KoSplitDaAncheIPezziVuoti) {
    EXPECT_EQ(koUtilita::koSplit(L"a;;b;", L";"), (Pezzi{L"a", L"", L"b", L""}));
    EXPECT_EQ(koUtilita::koSplit(L"uno, due, tre", L", "), (Pezzi{L"uno", L"due", L"tre"}));
    EXPECT_EQ(koUtilita::koSplit(L"uno due"), (Pezzi{L"uno", L"due"}));
    EXPECT_EQ(koUtilita::koSplit(L"a;b", L""), (Pezzi{L"a;b"}));
    EXPECT_EQ(koUtilita::koSplit(L"", L";"), (Pezzi{L""}));
    EXPECT_EQ(koUtilita::koSplit(std::wstring(1000, L';'), L";").size(), 1001U);
}

TEST(KoUtilitaTesti, EspuraSpaziToglieGliSpaziENonITab) {
    EXPECT_EQ(koUtilita::EspuraSpazi(L"  a b\tc  d "), L"ab\tcd");
    EXPECT_EQ(koUtilita::EspuraSpazi(L"   "), L"");
    EXPECT_EQ(koUtilita::EspuraSpazi(L""), L"");
    EXPECT_EQ(koUtilita::EspuraSpazi(std::wstring(1000, L' ') + L"x"), L"x");
}

TEST(KoUtilitaTesti, KeyMaiuscoloCambiaSoloLeMinuscole) {
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'a'), L'A');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'è'), L'È');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'7'), L'7');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'\b'), L'\b');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'\0'), L'\0');
}
