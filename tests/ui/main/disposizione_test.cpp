#include "ui/main/disposizione.h"

#include <optional>

#include <gtest/gtest.h>

namespace {

MisureFinestra misure(double larghezza, double altezza) {
    MisureFinestra m{};
    m.larghezzaInterna = larghezza;
    m.altezzaInterna = altezza;
    m.altezzaStato = 330;
    m.sinistraLogo = 7200;
    m.larghezzaTitolo = 4950;
    m.altoLarghezza = 1830;
    m.altezzaGetSize = 360;
    m.altezzaGriglia = 1500;
    m.altoDati = 600;
    m.altezzaDati = 2700;
    m.larghezzaDati = 9000;
    m.larghezzaPicCmd = 1800;
    return m;
}

// What the layout placed; fails the test where it placed nothing.
Riquadro posto(const std::optional<Riquadro>& riquadro) {
    if (!riquadro) {
        ADD_FAILURE() << "not placed";
        return {};
    }
    return *riquadro;
}

} // namespace

TEST(Disposizione, IlRiquadroDeiDatiSegueLaLarghezza) {
    const auto d = DisponiControlli(misure(15000, 9000));
    EXPECT_EQ(posto(d.fraDati).sinistra, 50);
    EXPECT_EQ(posto(d.fraDati).larghezza, 14900);
    EXPECT_FALSE(DisponiControlli(misure(100, 9000)).fraDati);
    EXPECT_TRUE(DisponiControlli(misure(101, 9000)).fraDati);
}

TEST(Disposizione, ICampiDellImmagineNonSuperanoIlTitolo) {
    EXPECT_EQ(DisponiControlli(misure(20000, 9000)).larghezzaImmagine, 4950);
    // 11000 - 100 in the frame, less 7200 and 100.
    EXPECT_EQ(DisponiControlli(misure(11000, 9000)).larghezzaImmagine, 3600);
}

TEST(Disposizione, SottoQuattrocentoICampiDellImmagineRestanoComeSono) {
    EXPECT_EQ(DisponiControlli(misure(7800, 9000)).larghezzaImmagine, 400);
    EXPECT_FALSE(DisponiControlli(misure(7799, 9000)).larghezzaImmagine);
}

TEST(Disposizione, LaGrigliaPrendeLAltezzaCheResta) {
    const auto d = DisponiControlli(misure(15000, 9000));
    EXPECT_EQ(posto(d.griglia).alto + posto(d.griglia).altezza + 330 + 100, 9000);
    EXPECT_GE(posto(d.griglia).alto, 600 + 2700);
}

TEST(Disposizione, SenzaAltezzaLaGrigliaTieneLaSuaMaSegueLaLarghezza) {
    // Just above, and just below.
    EXPECT_EQ(posto(DisponiControlli(misure(15000, 600 + 2700 + 50 + 330 + 101)).griglia).altezza,
              1);
    for (const double altezza : {0.0, 600.0 + 2700, 600.0 + 2700 + 50 + 330 + 100}) {
        const auto d = DisponiControlli(misure(15000, altezza));
        EXPECT_EQ(posto(d.griglia).altezza, 1500);
        EXPECT_EQ(posto(d.griglia).larghezza,
                  posto(DisponiControlli(misure(15000, 9000)).griglia).larghezza);
        EXPECT_EQ(posto(d.picCmd).altezza, 1500);
        EXPECT_EQ(posto(d.picCmd).sinistra,
                  posto(DisponiControlli(misure(15000, 9000)).picCmd).sinistra);
    }
}

TEST(Disposizione, LaStrisciaStaAlBordoDestroConLaStessaAltezza) {
    const auto d = DisponiControlli(misure(15000, 9000));
    EXPECT_EQ(posto(d.picCmd).alto, posto(d.griglia).alto);
    EXPECT_EQ(posto(d.picCmd).altezza, posto(d.griglia).altezza);
    EXPECT_EQ(posto(d.picCmd).sinistra + posto(d.picCmd).larghezza, 15000 - 150);
    EXPECT_LE(posto(d.griglia).sinistra + posto(d.griglia).larghezza, posto(d.picCmd).sinistra);
}

TEST(Disposizione, GetSizeEAllineatoAllaStrisciaEALarghezza) {
    const auto d = DisponiControlli(misure(15000, 9000));
    EXPECT_EQ(posto(d.cmdGetSize).larghezza, posto(d.picCmd).larghezza);
    EXPECT_EQ(posto(d.cmdGetSize).sinistra, posto(d.picCmd).sinistra);
    EXPECT_EQ(posto(d.cmdGetSize).alto, 1830);
    EXPECT_EQ(posto(d.cmdGetSize).altezza, 360);
}

TEST(Disposizione, ATutteLeMisureIlPulsanteELaStrisciaSonoInsieme) {
    for (double larghezza = 0; larghezza <= 30000; larghezza += 75) {
        for (double altezza = 0; altezza <= 15000; altezza += 750) {
            const auto d = DisponiControlli(misure(larghezza, altezza));
            ASSERT_EQ(d.cmdGetSize.has_value(), d.picCmd.has_value());
            ASSERT_EQ(d.griglia.has_value(), d.picCmd.has_value());
            if (d.picCmd) {
                const Riquadro griglia = posto(d.griglia);
                const double striscia = posto(d.picCmd).sinistra;
                ASSERT_EQ(posto(d.cmdGetSize).sinistra, striscia) << larghezza;
                ASSERT_GT(griglia.larghezza, 0);
                ASSERT_GT(griglia.altezza, 0);
                ASSERT_EQ(griglia.sinistra + griglia.larghezza + 50, striscia);
            }
            if (d.fraDati) {
                ASSERT_GT(d.fraDati->larghezza, 0);
            }
            if (d.larghezzaImmagine) {
                ASSERT_GE(*d.larghezzaImmagine, 400);
            }
        }
    }
    EXPECT_FALSE(DisponiControlli(misure(150 + 1800 + 100, 9000)).picCmd);
    EXPECT_TRUE(DisponiControlli(misure(150 + 1800 + 101, 9000)).picCmd);
}

TEST(Disposizione, UnaFinestraMinimaNonMuoveNulla) {
    const auto d = DisponiControlli(misure(0, 0));
    EXPECT_FALSE(d.fraDati);
    EXPECT_FALSE(d.griglia);
    EXPECT_FALSE(d.picCmd);
    EXPECT_FALSE(d.cmdGetSize);
}
