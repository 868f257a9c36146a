#include "support/immagini/ingrandimento.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t rosso = 0xFFFF0000;
constexpr std::uint32_t blu = 0xFF0000FF;
constexpr std::uint32_t niente = 0x00FFFFFF;

using Punti = std::vector<std::uint32_t>;

} // namespace

TEST(Ingrandimento, ConLoStessoLatoNonCambiaNulla) {
    constexpr std::array<std::uint32_t, 8> punti{rosso,      blu, 0x80102030, 0x01FEDCBA,
                                                 0xFF000000, blu, rosso,      0xFFFFFFFF};
    EXPECT_EQ(ingrandite({2, 2, punti}, 2), Punti(punti.begin(), punti.end()));
}

TEST(Ingrandimento, FraDuePixelIlColorePassaDallUnoAllAltro) {
    constexpr std::array<std::uint32_t, 4> punti{rosso, blu, rosso, blu};
    const Punti riga{rosso, 0xFFBF0040, 0xFF4000BF, blu};
    Punti attesi;
    for (int i = 0; i < 4; ++i) {
        attesi.insert(attesi.end(), riga.begin(), riga.end());
    }
    EXPECT_EQ(ingrandite({1, 2, punti}, 4), attesi);
}

TEST(Ingrandimento, NessunaFiguraEntraNellaVicina) {
    constexpr std::array<std::uint32_t, 2> punti{rosso, blu};
    const Punti riga{rosso, rosso, rosso, blu, blu, blu};
    Punti attesi;
    for (int i = 0; i < 3; ++i) {
        attesi.insert(attesi.end(), riga.begin(), riga.end());
    }
    EXPECT_EQ(ingrandite({2, 1, punti}, 3), attesi);
}

TEST(Ingrandimento, CioCheNonSiVedeNonTingeGliOrli) {
    constexpr std::array<std::uint32_t, 4> punti{rosso, niente, rosso, niente};
    const Punti nuovi = ingrandite({1, 2, punti}, 4);
    for (std::size_t i = 0; i < nuovi.size(); i += 4) {
        EXPECT_EQ(nuovi[i], rosso);
        EXPECT_EQ(nuovi[i + 1], 0xBFFF0000);
        EXPECT_EQ(nuovi[i + 2], 0x40FF0000);
        EXPECT_EQ(nuovi[i + 3] >> 24, 0U);
    }
}
