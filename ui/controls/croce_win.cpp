#include "ui/controls/croce_win.h"

#include <commctrl.h>
#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

// The colour in which a button writes its text: a theme may have one of its own.
COLORREF coloreScritta(HWND pulsante) noexcept {
    COLORREF colore = GetSysColor(COLOR_BTNTEXT);
    if (const HTHEME tema = OpenThemeData(pulsante, WC_BUTTONW)) {
        COLORREF suo = 0;
        if (GetThemeColor(tema, BP_PUSHBUTTON, PBS_NORMAL, TMT_TEXTCOLOR, &suo) == S_OK) {
            colore = suo;
        }
        CloseThemeData(tema);
    }
    return colore;
}

} // namespace

ManigliaIcona creaCroce(HWND pulsante, int lato, double spessore) {
    const COLORREF colore = coloreScritta(pulsante);
    const std::uint32_t rgb = static_cast<std::uint32_t>(GetRValue(colore)) << 16 |
                              static_cast<std::uint32_t>(GetGValue(colore)) << 8 |
                              GetBValue(colore);
    // The edges are blended by how much of a pixel the cross covers.
    std::vector<std::uint32_t> punti;
    for (int y = 0; y < lato; ++y) {
        for (int x = 0; x < lato; ++x) {
            const int passi = std::min(std::abs(x - y), std::abs(x + y - lato + 1));
            const double coperto =
                std::clamp(0.5 + spessore / 2 - passi / std::sqrt(2.0), 0.0, 1.0);
            punti.push_back(static_cast<std::uint32_t>(std::lround(coperto * 255)) << 24 | rgb);
        }
    }
    // One bit a pixel, each line a whole number of words: what shows is said by the other picture.
    const std::vector<std::uint8_t> maschera(static_cast<std::size_t>((lato + 15) / 16 * 2 * lato));
    return ManigliaIcona(CreateIcon(GetModuleHandleW(nullptr), lato, lato, 1, 32, maschera.data(),
                                    reinterpret_cast<const BYTE*>(punti.data())));
}
