#include "support/windows/dpi_win.h"

#include "support/windows/maniglie_win.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

namespace {

// A length in twips as each way of rounding makes pixels of it.
struct Caso {
    int dpi;
    double twips;
    int troncati;
    int perEccesso;
    int vicini;
};

const std::vector<Caso> casi{
    {96, 30, 2, 2, 2},      {120, 30, 2, 3, 3},    {144, 30, 3, 3, 3},
    {192, 30, 4, 4, 4},     {96, 50, 3, 4, 3},     {120, 50, 4, 5, 4},
    {144, 50, 5, 5, 5},     {192, 50, 6, 7, 7},    {96, 60, 4, 4, 4},
    {120, 60, 5, 5, 5},     {144, 60, 6, 6, 6},    {192, 60, 8, 8, 8},
    {96, 100, 6, 7, 7},     {120, 100, 8, 9, 8},   {144, 100, 10, 10, 10},
    {192, 100, 13, 14, 13}, {96, 37.5, 2, 3, 3},   {120, 31, 2, 3, 3},
    {144, 34, 3, 4, 3},     {192, 26.25, 3, 4, 4}, {96, -37.5, -2, -2, -3},
    {120, 0, 0, 0, 0},      {144, 1, 0, 1, 0},     {192, 1440, 192, 192, 192},
};

} // namespace

TEST(Risoluzione, OgniArrotondamentoHaISuoiPixel) {
    for (const Caso& c : casi) {
        const Risoluzione r{c.dpi};
        EXPECT_EQ(r.pixelTroncati(c.twips), c.troncati) << c.dpi << ' ' << c.twips;
        EXPECT_EQ(r.pixelPerEccesso(c.twips), c.perEccesso) << c.dpi << ' ' << c.twips;
        EXPECT_EQ(r.pixelVicini(c.twips), c.vicini) << c.dpi << ' ' << c.twips;
    }
}

TEST(Risoluzione, IPixelEsattiNonSiArrotondano) {
    EXPECT_DOUBLE_EQ(Risoluzione{96}.pixelEsatti(39), 2.6);
    EXPECT_DOUBLE_EQ(Risoluzione{120}.pixelEsatti(39), 3.25);
    EXPECT_DOUBLE_EQ(Risoluzione{144}.pixelEsatti(39), 3.9);
    EXPECT_DOUBLE_EQ(Risoluzione{192}.pixelEsatti(39), 5.2);
}

TEST(Risoluzione, ITwipsDiUnPixel) {
    EXPECT_EQ(Risoluzione{96}.twips(7), 105);
    EXPECT_EQ(Risoluzione{120}.twips(7), 84);
    EXPECT_EQ(Risoluzione{144}.twips(7), 70);
    EXPECT_EQ(Risoluzione{192}.twips(7), 52.5);
}

TEST(Risoluzione, UnNumeroInteroDiPixelTornaDaiTwipsComEra) {
    for (const int dpi : {96, 120, 144, 168, 192, 216, 240, 288}) {
        const Risoluzione r{dpi};
        for (int pixel = 0; pixel < 4000; ++pixel) {
            ASSERT_EQ(r.pixelTroncati(r.twips(pixel)), pixel) << dpi;
        }
    }
}

TEST(Risoluzione, IlProgettoEA96) {
    for (const auto& [dpi, pulsante, striscia, pannello] :
         {std::array{96, 26, 124, 110}, std::array{120, 33, 155, 138},
          std::array{144, 39, 186, 165}, std::array{192, 52, 248, 220}}) {
        const Risoluzione r{dpi};
        EXPECT_EQ(r.daProgetto(26), pulsante) << dpi;
        EXPECT_EQ(r.daProgetto(124), striscia) << dpi;
        EXPECT_EQ(r.daProgetto(110), pannello) << dpi;
    }
    EXPECT_EQ(Risoluzione{120}.daProgetto(-26), -33);
}

TEST(DpiDi, SonoQuelliDelloSchermoEDelleSueFinestre) {
    const auto sistema =
        funzione<UINT(WINAPI*)()>(GetModuleHandleW(L"user32.dll"), "GetDpiForSystem");
    ASSERT_NE(sistema, nullptr);
    const int dpi = static_cast<int>(sistema());
    const Dpi schermo = dpiDi(nullptr);
    EXPECT_EQ(schermo, (Dpi{{dpi}, {dpi}}));
    EXPECT_EQ(dpiDi(GetDesktopWindow()), schermo);
}

TEST(DpiDi, UnaFinestraCheNonCEValeNovantasei) {
    EXPECT_EQ(dpiDi(reinterpret_cast<HWND>(INT_PTR{0x7FFFFFFE})), (Dpi{{96}, {96}}));
}

TEST(DpiDi, QuelliTenutiSonoDiTuttoCioCheStaNellaFinestra) {
    const auto crea = [](DWORD stile, HWND padre) {
        return CreateWindowExW(0, L"STATIC", L"", stile, 0, 0, 10, 10, padre, nullptr, nullptr,
                               nullptr);
    };
    const HWND finestra = crea(WS_POPUP, nullptr);
    const HWND posseduta = crea(WS_POPUP, finestra);
    const HWND nipote = crea(WS_CHILD, crea(WS_CHILD, finestra));
    const Dpi prima = dpiDi(finestra);
    constexpr Dpi tenuti{{144}, {216}};
    ASSERT_NE(prima, tenuti);
    tieniDpi(finestra, tenuti);
    EXPECT_EQ(dpiDi(finestra), tenuti);
    EXPECT_EQ(dpiDi(nipote), tenuti);
    EXPECT_EQ(dpiDi(posseduta), prima);
    tieniDpi(finestra, {{192}, {192}});
    EXPECT_EQ(dpiDi(nipote), (Dpi{{192}, {192}}));
    scordaDpi(finestra);
    EXPECT_EQ(dpiDi(nipote), prima);
    DestroyWindow(posseduta);
    DestroyWindow(finestra);
}

TEST(Metriche, CresconoConLaRisoluzione) {
    for (const int quale : {SM_CXVSCROLL, SM_CXICON, SM_CXCURSOR}) {
        EXPECT_EQ(metrica(quale, {192}), 2 * metrica(quale, {96})) << quale;
    }
    EXPECT_NEAR(metriche({192}).lfMessageFont.lfHeight, 2 * metriche({96}).lfMessageFont.lfHeight,
                1);
    EXPECT_NEAR(metriche({192}).lfStatusFont.lfHeight, 2 * metriche({96}).lfStatusFont.lfHeight, 1);
    const Risoluzione schermo = dpiDi(nullptr).y;
    EXPECT_EQ(metrica(SM_CXVSCROLL, schermo), GetSystemMetrics(SM_CXVSCROLL));
}
