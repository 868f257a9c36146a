#include "support/utilita/koUtilitaNumeri.h"

#include <windows.h>

#include <gtest/gtest.h>

// In any other language there is nothing to say: the tests run in these two.
TEST(KoUtilitaNumeri, QuelliDellaLinguaDellUtente) {
    const LCID lingua = GetUserDefaultLCID();
    if (lingua == 0x0410) {
        EXPECT_EQ(koUtilitaNumeri::GetSeparatoreDecimale(), ',');
        EXPECT_EQ(koUtilitaNumeri::GetSeparatoreMigliaia(), '.');
    } else if (lingua == 0x0409) {
        EXPECT_EQ(koUtilitaNumeri::GetSeparatoreDecimale(), '.');
        EXPECT_EQ(koUtilitaNumeri::GetSeparatoreMigliaia(), ',');
    } else if (lingua == 0x040C) {
        EXPECT_EQ(koUtilitaNumeri::GetSeparatoreDecimale(), ',');
        EXPECT_EQ(koUtilitaNumeri::GetSeparatoreMigliaia(), 0);
    } else {
        FAIL() << "language " << lingua;
    }
}
