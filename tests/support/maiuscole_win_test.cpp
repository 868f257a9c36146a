#include "support/testo.h"

#include <windows.h>

#include <gtest/gtest.h>

// Our own tables must be those of the operating system, character by character.
TEST(MaiuscoleDiWindows, OgniCarattereDelPianoBase) {
    for (unsigned codice = 1; codice < 0x10000; ++codice) {
        const auto c = static_cast<wchar_t>(codice);
        wchar_t su = c;
        wchar_t giu = c;
        CharUpperBuffW(&su, 1);
        CharLowerBuffW(&giu, 1);
        ASSERT_EQ(maiuscola(c), su) << codice;
        ASSERT_EQ(minuscola(c), giu) << codice;
    }
}
