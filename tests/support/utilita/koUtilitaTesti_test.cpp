#include "support/utilita/koUtilitaTesti.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;

using Pezzi = std::vector<std::wstring>;

TEST(KoUtilitaTesti, KoReplaceSostituisceOgniOccorrenzaESoloQuelle) {
    EXPECT_EQ(koUtilitaTesti::koReplace(L"a-b-c", L"-", L"--"), L"a--b--c");
    EXPECT_EQ(koUtilitaTesti::koReplace(L"Aa", L"a", L""), L"A");
    EXPECT_EQ(koUtilitaTesti::koReplace(L"abc", L"", L"x"), L"abc");
    EXPECT_EQ(koUtilitaTesti::koReplace(L"", L"a", L"b"), L"");
    EXPECT_EQ(koUtilitaTesti::koReplace(std::wstring(1000, L'a'), L"a", L"bc").size(), 2000U);
}

TEST(KoUtilitaTesti, KoSplitDaAncheIPezziVuoti) {
    EXPECT_EQ(koUtilitaTesti::koSplit(L"a;;b;", L";"), (Pezzi{L"a", L"", L"b", L""}));
    EXPECT_EQ(koUtilitaTesti::koSplit(L"uno, due, tre", L", "), (Pezzi{L"uno", L"due", L"tre"}));
    EXPECT_EQ(koUtilitaTesti::koSplit(L"uno due"), (Pezzi{L"uno", L"due"}));
    EXPECT_EQ(koUtilitaTesti::koSplit(L"a;b", L""), (Pezzi{L"a;b"}));
    EXPECT_EQ(koUtilitaTesti::koSplit(L"", L";"), (Pezzi{L""}));
    EXPECT_EQ(koUtilitaTesti::koSplit(std::wstring(1000, L';'), L";").size(), 1001U);
}

TEST(KoUtilitaTesti, StripTerminatorTagliaAlPrimoCarattereZero) {
    EXPECT_EQ(koUtilitaTesti::StripTerminator(L"abc\0def\0"sv), L"abc");
    EXPECT_EQ(koUtilitaTesti::StripTerminator(L"abc"), L"abc");
    EXPECT_EQ(koUtilitaTesti::StripTerminator(L"\0abc"sv), L"");
    EXPECT_EQ(koUtilitaTesti::StripTerminator(L""), L"");
    EXPECT_EQ(koUtilitaTesti::StripTerminator(L"  a  \0"sv), L"  a  ");
}

TEST(KoUtilitaTesti, EspuraSpaziToglieGliSpaziENonITab) {
    EXPECT_EQ(koUtilitaTesti::EspuraSpazi(L"  a b\tc  d "), L"ab\tcd");
    EXPECT_EQ(koUtilitaTesti::EspuraSpazi(L"   "), L"");
    EXPECT_EQ(koUtilitaTesti::EspuraSpazi(L""), L"");
    EXPECT_EQ(koUtilitaTesti::EspuraSpazi(std::wstring(1000, L' ') + L"x"), L"x");
}

TEST(KoUtilitaTesti, KeyMaiuscoloCambiaSoloLeMinuscole) {
    EXPECT_EQ(koUtilitaTesti::KeyMaiuscolo(L'a'), L'A');
    EXPECT_EQ(koUtilitaTesti::KeyMaiuscolo(L'è'), L'È');
    EXPECT_EQ(koUtilitaTesti::KeyMaiuscolo(L'7'), L'7');
    EXPECT_EQ(koUtilitaTesti::KeyMaiuscolo(L'\b'), L'\b');
    EXPECT_EQ(koUtilitaTesti::KeyMaiuscolo(L'\0'), L'\0');
}
