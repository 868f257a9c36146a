#include "support/caratteri/codifica.h"

#include <gtest/gtest.h>

TEST(Codifica, CaratteriFuoriDalPianoBase) {
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

TEST(Codifica, InUtf8) {
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
