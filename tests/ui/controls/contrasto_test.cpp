#include "ui/controls/contrasto.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t nero = 0x000000;
constexpr std::uint32_t bianco = 0xFFFFFF;

} // namespace

TEST(Contrasto, DaUnoAVentuno) {
    EXPECT_DOUBLE_EQ(contrasto(nero, bianco), 21);
    EXPECT_DOUBLE_EQ(contrasto(bianco, nero), 21);
    EXPECT_DOUBLE_EQ(contrasto(0x123456, 0x123456), 1);
}

TEST(Contrasto, OgniCanalePesaASuoModo) {
    // Red, green and blue on white.
    EXPECT_NEAR(contrasto(0x0000FF, bianco), 4.00, 0.005);
    EXPECT_NEAR(contrasto(0x00FF00, bianco), 1.37, 0.005);
    EXPECT_NEAR(contrasto(0xFF0000, bianco), 8.59, 0.005);
    // A dark grey, the one that is just not enough for text, and one near black.
    EXPECT_NEAR(contrasto(0x404040, bianco), 10.37, 0.005);
    EXPECT_NEAR(contrasto(0x777777, bianco), 4.48, 0.005);
    EXPECT_NEAR(contrasto(0x0A0A0A, nero), 1.06, 0.005);
}

TEST(Contrasto, SiLeggeDaQuattroEMezzo) {
    EXPECT_TRUE(siLegge(nero, bianco));
    EXPECT_TRUE(siLegge(bianco, 0x757575));
    EXPECT_FALSE(siLegge(bianco, 0x797979));
    // The system's selection, as it has long been.
    EXPECT_TRUE(siLegge(bianco, 0xD77800));
    EXPECT_FALSE(siLegge(bianco, 0xFF9933));
}
