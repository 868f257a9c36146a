#include "ui/controls/puntatori_win.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace {

// An arrow over two lines of text in a frame: '#' black, 'o' white, anything else transparent.
constexpr std::array<std::string_view, 24> disegno{
    "#                       ", //
    "##                      ", //
    "#o#                     ", //
    "#oo#                    ", //
    "#ooo#                   ", //
    "#oooo#                  ", //
    "#ooooo#                 ", //
    "#oooooo#                ", //
    "#ooooooo#               ", //
    "#oooooooo#              ", //
    "#ooooooooo#             ", //
    "#oooooo#####            ", //
    "#ooo#oo#################", //
    "#oo# #oo#oooooooooooooo#", //
    "#o#  #oo#oo##########oo#", //
    "##    #oo#ooooooooooooo#", //
    "#     #oo#o######oooooo#", //
    "       ###ooooooooooooo#", //
    "      #################o", //
    "                        ", //
    "                        ", //
    "                        ", //
    "                        ", //
    "                        ", //
};

// The drawing is for pointers of 32 pixels.
constexpr int latoDisegno = 32;

char punto(int x, int y, int larghezza, int altezza) noexcept {
    const auto colonna = static_cast<std::size_t>(x * latoDisegno / larghezza);
    const auto riga = static_cast<std::size_t>(y * latoDisegno / altezza);
    return riga < disegno.size() && colonna < disegno[riga].size() ? disegno[riga][colonna] : ' ';
}

Cursore creaTrascina(Dpi dpi) {
    const int larghezza = metrica(SM_CXCURSOR, dpi.x);
    const int altezza = metrica(SM_CYCURSOR, dpi.y);
    // One bit a pixel, each line a whole number of words.
    const auto passo = static_cast<std::size_t>((larghezza + 15) / 16) * 2;
    std::vector<std::uint8_t> e(passo * static_cast<std::size_t>(altezza), 0xFF);
    std::vector<std::uint8_t> oEsclusivo(e.size(), 0);
    for (int y = 0; y < altezza; ++y) {
        for (int x = 0; x < larghezza; ++x) {
            const char c = punto(x, y, larghezza, altezza);
            const auto byte = static_cast<std::size_t>(y) * passo + static_cast<std::size_t>(x / 8);
            const auto bit = static_cast<std::uint8_t>(0x80U >> (x % 8));
            if (c == '#' || c == 'o') {
                e[byte] = static_cast<std::uint8_t>(e[byte] & ~bit);
            }
            if (c == 'o') {
                oEsclusivo[byte] = static_cast<std::uint8_t>(oEsclusivo[byte] | bit);
            }
        }
    }
    return Cursore(CreateCursor(GetModuleHandleW(nullptr), 0, 0, larghezza, altezza, e.data(),
                                oEsclusivo.data()));
}

} // namespace

Puntatori::Puntatori(Dpi dpi) : trascina_(creaTrascina(dpi)) {}

void Puntatori::mostra(Puntatore tipo) const noexcept {
    switch (tipo) {
    case Puntatore::Trascina:
        SetCursor(trascina_.get());
        return;
    case Puntatore::Vietato:
        SetCursor(LoadCursorW(nullptr, IDC_NO));
        return;
    case Puntatore::Predefinito:
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
        return;
    }
}
