#include "ui/controls/puntatori_win.h"

#include "tests/aiuti/pixel_win.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace {

constexpr COLORREF bianco = RGB(255, 255, 255);
constexpr COLORREF nero = RGB(0, 0, 0);

int quanti(const Immagine& immagine, COLORREF colore) {
    return static_cast<int>(std::ranges::count(immagine.punti, colore));
}

} // namespace

TEST(Puntatori, QuelloDelTrascinamentoSiVedeSuOgniSfondo) {
    const Puntatori puntatori(dpiDi(nullptr));
    puntatori.mostra(Puntatore::Trascina);
    const Immagine suBianco = puntatore(bianco);
    const Immagine suNero = puntatore(nero);
    const int punti = static_cast<int>(suBianco.punti.size());
    // Black lines to be seen on white, a white inside to be seen on black, and room around them.
    EXPECT_GT(quanti(suBianco, nero), punti / 20);
    EXPECT_GT(quanti(suNero, bianco), punti / 20);
    EXPECT_GT(suBianco.diversi(suNero), punti / 3);
    // Its point is where it points.
    EXPECT_EQ(suBianco.colore(0, 0), nero);
    const COLORREF rosso = RGB(255, 0, 0);
    EXPECT_EQ(quanti(puntatore(rosso), nero), quanti(suBianco, nero));
}

TEST(Puntatori, GliAltriSonoDelSistema) {
    const Puntatori puntatori(dpiDi(nullptr));
    puntatori.mostra(Puntatore::Vietato);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_NO));
    puntatori.mostra(Puntatore::Predefinito);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}
