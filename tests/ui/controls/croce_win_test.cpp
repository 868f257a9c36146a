#include "ui/controls/croce_win.h"

#include "support/windows/gdi_win.h"

#include <commctrl.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

TEST(Croce, CopreLeDiagonaliESfumaVersoINiente) {
    constexpr int lato = 17;
    const HWND pulsante = CreateWindowExW(0, WC_BUTTONW, L"", WS_POPUP, 0, 0, 30, 30, nullptr,
                                          nullptr, nullptr, nullptr);
    const ManigliaIcona croce = creaCroce(pulsante, lato, 2);
    DestroyWindow(pulsante);
    ICONINFO parti{};
    ASSERT_TRUE(GetIconInfo(croce.get(), &parti));
    std::vector<std::uint32_t> punti(std::size_t{lato} * lato);
    const LONG letti =
        GetBitmapBits(parti.hbmColor, static_cast<LONG>(4 * punti.size()), punti.data());
    DeleteObject(parti.hbmColor);
    DeleteObject(parti.hbmMask);
    ASSERT_EQ(letti, static_cast<LONG>(4 * punti.size()));
    const auto opaco = [&](int x, int y) {
        return punti[static_cast<std::size_t>(y) * std::size_t{lato} +
                     static_cast<std::size_t>(x)] >>
               24;
    };
    for (int i = 0; i < lato; ++i) {
        EXPECT_EQ(opaco(i, i), 255U) << i;
        EXPECT_EQ(opaco(lato - 1 - i, i), 255U) << i;
    }
    for (const auto [x, y] : {POINT{8, 0}, POINT{0, 8}, POINT{16, 8}, POINT{8, 16}, POINT{8, 4}}) {
        EXPECT_EQ(opaco(x, y), 0U) << x << ',' << y;
    }
    // Half the thickness and half a pixel, less the way to the diagonal.
    EXPECT_NEAR(opaco(4, 3), (1.5 - 0.7071) * 255, 1);
    EXPECT_NEAR(opaco(6, 4), (1.5 - 1.4142) * 255, 1);
}
