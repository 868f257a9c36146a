#pragma once

#include <windows.h>

#include <cmath>

inline constexpr double twipsPerPollice = 1440;

// The resolution in one direction. Twips become pixels in several ways; each place keeps its own.
struct Risoluzione {
    int dpi = 96;

    bool operator==(const Risoluzione&) const = default;

    [[nodiscard]] constexpr double twips(double pixel) const noexcept {
        return pixel * twipsPerPollice / dpi;
    }

    // Not rounded.
    [[nodiscard]] constexpr double pixelEsatti(double twips) const noexcept {
        return twips * dpi / twipsPerPollice;
    }
    // What begins in a pixel is cut off, but for the last digits that a number of pixels loses on
    // its way through twips.
    [[nodiscard]] constexpr int pixelTroncati(double twips) const noexcept {
        return static_cast<int>(pixelEsatti(twips) + 1e-6);
    }
    [[nodiscard]] int pixelPerEccesso(double twips) const noexcept {
        return static_cast<int>(std::ceil(pixelEsatti(twips)));
    }
    // The nearest number; halves go away from zero.
    [[nodiscard]] int pixelVicini(double twips) const noexcept {
        return static_cast<int>(std::lround(pixelEsatti(twips)));
    }

    // Pixels of a design made for 96 dpi; halves go away from zero.
    [[nodiscard]] int daProgetto(int pixel) const noexcept { return MulDiv(pixel, dpi, 96); }
};

struct Dpi {
    Risoluzione x;
    Risoluzione y;

    bool operator==(const Dpi&) const = default;
};

// What a window is drawn with: what the top-level window around it keeps, else what the system
// tells of it (null: of the screen); 96 when nothing tells.
[[nodiscard]] Dpi dpiDi(HWND finestra) noexcept;

// A top-level window keeps this resolution from here on, for itself and all inside it; it forgets
// it before it is gone.
void tieniDpi(HWND finestra, Dpi dpi) noexcept;
void scordaDpi(HWND finestra) noexcept;

// What GetSystemMetrics and SPI_GETNONCLIENTMETRICS tell, for a resolution; the screen's on systems
// that know no other. The latter raises its failure.
[[nodiscard]] int metrica(int quale, Risoluzione risoluzione) noexcept;
[[nodiscard]] NONCLIENTMETRICSW metriche(Risoluzione risoluzione);
