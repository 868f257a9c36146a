#include "support/testo.h"

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

TEST(Testo, CaratteriFuoriDalPianoBase) {
    std::wstring testo;
    aggiungiCarattere(testo, U'\U0001F600');
    aggiungiCarattere(testo, U'a');
    std::size_t posizione = 0;
    EXPECT_EQ(leggiCarattere(testo, posizione), U'\U0001F600');
    EXPECT_EQ(leggiCarattere(testo, posizione), U'a');
    EXPECT_EQ(posizione, testo.size());
    posizione = 0;
    EXPECT_EQ(leggiCarattere(std::wstring(1, static_cast<wchar_t>(0xD800)), posizione),
              char32_t{0xD800});
}

TEST(Testo, ACapoSempreCrLf) {
    EXPECT_EQ(aCapoCrLf(L"a\nb\r\nc"), L"a\r\nb\r\nc");
    EXPECT_EQ(aCapoCrLf(L"a\rb"), L"a\rb");
    EXPECT_EQ(aCapoCrLf(L"\n\n"), L"\r\n\r\n");
    EXPECT_EQ(aCapoCrLf(L"\r\r\n"), L"\r\r\n");
    EXPECT_EQ(aCapoCrLf(L""), L"");
}

TEST(Testo, InUtf8) {
    EXPECT_EQ(comeUtf8(L""), "");
    EXPECT_EQ(comeUtf8(std::wstring_view(L"a\0z", 3)), std::string("a\0z", 3));
    std::wstring tutti;
    for (const char32_t c : {0x7F, 0x80, 0x7FF, 0x800, 0xFFFF, 0x10000, 0x10FFFF}) {
        aggiungiCarattere(tutti, c);
    }
    EXPECT_EQ(comeUtf8(tutti), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80"
                               "\xF4\x8F\xBF\xBF");
    const auto alto = static_cast<wchar_t>(0xD83D);
    EXPECT_EQ(comeUtf8(std::wstring{alto, L'a'}), "\xEF\xBF\xBD"
                                                  "a");
}
