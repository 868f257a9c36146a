#include "support/windows/gdi_win.h"

#include "tests/aiuti/maniglieGui_win.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF rosso = RGB(255, 0, 0);
constexpr COLORREF verde = RGB(0, 255, 0);

// A bitmap of 7 by 5 pixels, red, with a green one at (6, 4).
ManigliaBitmap bandiera() {
    const DcFinestra schermo(nullptr);
    ManigliaBitmap bitmap(CreateCompatibleBitmap(schermo.get(), 7, 5));
    const DcBitmap dc(schermo.get(), bitmap.get());
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 7; ++x) {
            SetPixel(dc.get(), x, y, x == 6 && y == 4 ? verde : rosso);
        }
    }
    return bitmap;
}

Carattere carattere(int altezza) {
    LOGFONTW font{};
    font.lfHeight = altezza;
    return Carattere(CreateFontIndirectW(&font));
}

} // namespace

TEST(GdiWin, FinitaLaSelezioneTornaLOggettoDiPrima) {
    const DcMemoria dc(CreateCompatibleDC(nullptr));
    const Carattere primo = carattere(10);
    const Carattere secondo = carattere(20);
    const Selezione fuori(dc.get(), primo.get());
    {
        const Selezione dentro(dc.get(), secondo.get());
        EXPECT_EQ(GetCurrentObject(dc.get(), OBJ_FONT), secondo.get());
    }
    EXPECT_EQ(GetCurrentObject(dc.get(), OBJ_FONT), primo.get());
}

TEST(GdiWin, DaUnaBitmapSiCopiaEPoiENuovamenteLibera) {
    const ManigliaBitmap origine = bandiera();
    const DcFinestra schermo(nullptr);
    const ManigliaBitmap copia(CreateCompatibleBitmap(schermo.get(), 7, 5));
    const DcBitmap verso(schermo.get(), copia.get());
    {
        const DcBitmap da(verso.get(), origine.get());
        ASSERT_TRUE(BitBlt(verso.get(), 0, 0, 7, 5, da.get(), 0, 0, SRCCOPY));
    }
    EXPECT_EQ(GetPixel(verso.get(), 5, 4), rosso);
    EXPECT_EQ(GetPixel(verso.get(), 6, 4), verde);
    // A bitmap is in one device context at a time.
    const DcMemoria altro(CreateCompatibleDC(nullptr));
    const Selezione selezione(altro.get(), origine.get());
    EXPECT_EQ(GetCurrentObject(altro.get(), OBJ_BITMAP), origine.get());
}

TEST(GdiWin, NullaRestaDopo) {
    const auto giro = [] {
        const DcFinestra schermo(nullptr);
        const DcFinestra scrivania(GetDesktopWindow(), DCX_CACHE | DCX_CLIPCHILDREN);
        EXPECT_TRUE(schermo);
        EXPECT_TRUE(scrivania);
        EXPECT_NE(schermo.get(), scrivania.get());
        const ManigliaBitmap bitmap = bandiera();
        const DcBitmap dc(schermo.get(), bitmap.get());
        EXPECT_NE(dc.get(), nullptr);
    };
    giro();
    const ManiglieGui prima = ManiglieGui::adesso();
    for (int i = 0; i < 50; ++i) {
        giro();
    }
    EXPECT_EQ(ManiglieGui::adesso(), prima);
}

TEST(GdiWin, UnaFinestraCheNonCENonHaContesto) {
    const auto nessuna = reinterpret_cast<HWND>(INT_PTR{0x7FFFFFFE});
    EXPECT_FALSE(DcFinestra(nessuna));
    EXPECT_FALSE(DcFinestra(nessuna, DCX_CACHE));
}

TEST(GdiWin, IDatiSonoQuelliDellOggetto) {
    const Carattere font = carattere(-17);
    const auto scritti = datiDi<LOGFONTW>(font.get());
    ASSERT_TRUE(scritti);
    EXPECT_EQ(scritti->lfHeight, -17);
    const auto misure = datiDi<BITMAP>(bandiera().get());
    ASSERT_TRUE(misure);
    EXPECT_EQ(misure->bmWidth, 7);
    EXPECT_EQ(misure->bmHeight, 5);
    EXPECT_FALSE(datiDi<BITMAP>(nullptr));
}
