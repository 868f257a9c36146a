#include "support/testi/testo.h"

#include <gtest/gtest.h>

TEST(Testo, RifilaToglieSoloGliSpazi) {
    EXPECT_EQ(rifila(L"  a b  "), L"a b");
    EXPECT_EQ(rifila(L"   "), L"");
    EXPECT_EQ(rifila(L""), L"");
    EXPECT_EQ(rifila(L" \t "), L"\t");
    EXPECT_EQ(rifila(L"\r\n"), L"\r\n");
    EXPECT_EQ(rifila(L"\u00A0"), L"\u00A0");
    EXPECT_EQ(rifilaDestra(L"  a  "), L"  a");
}

TEST(Testo, SostituisciDaSinistra) {
    EXPECT_EQ(sostituisci(L"aaa", L"aa", L"b"), L"ba");
    EXPECT_EQ(sostituisci(L"a\tb\t", L"\t", L"    "), L"a    b    ");
    EXPECT_EQ(sostituisci(L"abc", L"", L"x"), L"abc");
}

TEST(Testo, DividiTieneIPezziVuoti) {
    EXPECT_EQ(dividi(L"a;;b", L';'), (std::vector<std::wstring_view>{L"a", L"", L"b"}));
    EXPECT_EQ(dividi(L"", L';').size(), 1U);
}

TEST(Testo, ACapoSempreCrLf) {
    EXPECT_EQ(aCapoCrLf(L"a\nb\r\nc"), L"a\r\nb\r\nc");
    EXPECT_EQ(aCapoCrLf(L"a\rb"), L"a\rb");
    EXPECT_EQ(aCapoCrLf(L"\n\n"), L"\r\n\r\n");
    EXPECT_EQ(aCapoCrLf(L"\r\r\n"), L"\r\r\n");
    EXPECT_EQ(aCapoCrLf(L""), L"");
}
