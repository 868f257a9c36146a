#include "ui/controls/trascinamento.h"

#include <gtest/gtest.h>

TEST(Trascinamento, IlRilascioSuUnAltroElementoSposta) {
    Trascinamento t;
    t.premi(0);
    EXPECT_TRUE(t.attivo());
    EXPECT_EQ(t.puntatore(), Puntatore::Trascina);
    t.segui(1);
    t.segui(2);
    const auto esito = t.rilascia(2);
    EXPECT_TRUE(esito.sposta);
    EXPECT_EQ(esito.da, 0);
    EXPECT_EQ(esito.a, 2);
    EXPECT_FALSE(t.attivo());
    EXPECT_EQ(t.puntatore(), Puntatore::Predefinito);
}

TEST(Trascinamento, IlRilascioSuSeStessoSelezionaSoltanto) {
    Trascinamento t;
    t.premi(3);
    t.segui(5);
    t.segui(3);
    const auto esito = t.rilascia(3);
    EXPECT_FALSE(esito.sposta);
    EXPECT_EQ(esito.a, 3);
}

TEST(Trascinamento, SuUnaRigaSenzaElementoIlPuntatoreVietaENullaSiSposta) {
    Trascinamento t;
    t.premi(3);
    t.segui(-1);
    EXPECT_EQ(t.puntatore(), Puntatore::Vietato);
    t.segui(4);
    EXPECT_EQ(t.puntatore(), Puntatore::Trascina);
    t.segui(-1);
    const auto esito = t.rilascia(-1);
    EXPECT_FALSE(esito.sposta);
    EXPECT_EQ(esito.a, -1);
    EXPECT_EQ(t.puntatore(), Puntatore::Predefinito);
}

TEST(Trascinamento, UnaPressioneSuUnaRigaSenzaElementoNonTrascinaNulla) {
    Trascinamento t;
    t.premi(-1);
    EXPECT_EQ(t.puntatore(), Puntatore::Vietato);
    t.segui(2);
    const auto esito = t.rilascia(2);
    EXPECT_FALSE(esito.sposta);
    EXPECT_EQ(esito.a, -1);
    EXPECT_FALSE(t.attivo());
}

TEST(Trascinamento, AbbandonatoNonSpostaPiu) {
    Trascinamento t;
    t.premi(1);
    t.segui(2);
    t.abbandona();
    EXPECT_FALSE(t.attivo());
    EXPECT_EQ(t.puntatore(), Puntatore::Predefinito);
    t.segui(3);
    EXPECT_EQ(t.puntatore(), Puntatore::Predefinito);
    const auto esito = t.rilascia(3);
    EXPECT_FALSE(esito.sposta);
    EXPECT_EQ(esito.a, -1);
}

TEST(Trascinamento, IlRilascioUsaLaRigaCorrenteDiQuelMomento) {
    Trascinamento t;
    t.premi(1);
    t.segui(2);
    const auto esito = t.rilascia(4);
    EXPECT_TRUE(esito.sposta);
    EXPECT_EQ(esito.a, 4);
    // Whatever the pointer showed last.
    t.premi(1);
    t.segui(-1);
    EXPECT_TRUE(t.rilascia(4).sposta);
    t.premi(1);
    const auto nulla = t.rilascia(-1);
    EXPECT_FALSE(nulla.sposta);
    EXPECT_EQ(nulla.a, -1);
}

namespace {

// 400 by 300 pixels, a header of 20, 100 twips = 7 pixels.
constexpr AreaRighe area{400, 20, 300, 7, 7};

} // namespace

TEST(AreaRighe, NessunTrascinamentoDaiBordiEDallIntestazione) {
    EXPECT_TRUE(iniziaTrascinamento(area, 200, 150));
    EXPECT_FALSE(iniziaTrascinamento(area, 6, 150));
    EXPECT_TRUE(iniziaTrascinamento(area, 7, 150));
    EXPECT_TRUE(iniziaTrascinamento(area, 392, 150));
    EXPECT_FALSE(iniziaTrascinamento(area, 393, 150));
    EXPECT_TRUE(iniziaTrascinamento(area, 200, 292));
    EXPECT_FALSE(iniziaTrascinamento(area, 200, 293));
    EXPECT_FALSE(iniziaTrascinamento(area, 200, 19));
    EXPECT_TRUE(iniziaTrascinamento(area, 200, 20));
    EXPECT_FALSE(iniziaTrascinamento(area, -1, 150));
    EXPECT_FALSE(iniziaTrascinamento(area, 200, 400));
}

TEST(AreaRighe, VicinoAiBordiSiScorreDiUnaRiga) {
    EXPECT_EQ(passoScorrimento(area, 150, 100), 0);
    EXPECT_EQ(passoScorrimento(area, 27, 100), 0);
    EXPECT_EQ(passoScorrimento(area, 26, 100), -1);
    EXPECT_EQ(passoScorrimento(area, -50, 100), -1);
    EXPECT_EQ(passoScorrimento(area, 292, 100), 0);
    EXPECT_EQ(passoScorrimento(area, 293, 100), 1);
    EXPECT_EQ(passoScorrimento(area, 900, 100), 1);
}

TEST(AreaRighe, UnClicVicinoAUnBordoNonScorre) {
    EXPECT_EQ(passoScorrimento(area, 22, 25), 0);
    EXPECT_EQ(passoScorrimento(area, 18, 25), 0);
    EXPECT_EQ(passoScorrimento(area, 17, 25), -1);
    EXPECT_EQ(passoScorrimento(area, 295, 292), 0);
}
