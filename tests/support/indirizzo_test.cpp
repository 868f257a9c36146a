#include "support/indirizzo.h"

#include <gtest/gtest.h>

TEST(Indirizzo, DiscoReteEPrefissoLungo) {
    EXPECT_EQ(indirizzoFile(L"C:\\feed\\a.xml"), L"file:///C:/feed/a.xml");
    EXPECT_EQ(indirizzoFile(L"\\\\server\\dati\\a b.xml"), L"file://server/dati/a%20b.xml");
    EXPECT_EQ(indirizzoFile(L"\\\\?\\C:\\feed\\a.xml"), L"file:///C:/feed/a.xml");
    EXPECT_EQ(indirizzoFile(L"\\\\?\\UNC\\server\\dati\\a.xml"), L"file://server/dati/a.xml");
}

TEST(Indirizzo, SfuggeCioCheUnIndirizzoLeggerebbeAltrimenti) {
    EXPECT_EQ(indirizzoFile(L"C:\\a%20b#c.xml"), L"file:///C:/a%2520b%23c.xml");
    EXPECT_EQ(indirizzoFile(L"C:\\{a}[b]^`.xml"), L"file:///C:/%7Ba%7D%5Bb%5D%5E%60.xml");
}

TEST(Indirizzo, LasciaAccentiECommerciali) {
    EXPECT_EQ(indirizzoFile(L"C:\\città\\l'è & co;+=,@!$().xml"),
              L"file:///C:/città/l'è%20&%20co;+=,@!$().xml");
}
