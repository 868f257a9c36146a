#include "ui/controls/contrasto.h"

#include <algorithm>
#include <cmath>

namespace {

double luminanza(std::uint32_t colore) noexcept {
    const auto lineare = [colore](unsigned bit) {
        const double c = (colore >> bit & 0xFFU) / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineare(0) + 0.7152 * lineare(8) + 0.0722 * lineare(16);
}

} // namespace

double contrasto(std::uint32_t a, std::uint32_t b) noexcept {
    const auto [buio, chiaro] = std::minmax({luminanza(a), luminanza(b)});
    return (chiaro + 0.05) / (buio + 0.05);
}

bool siLegge(std::uint32_t testo, std::uint32_t sfondo) noexcept {
    return contrasto(testo, sfondo) >= 4.45;
}
