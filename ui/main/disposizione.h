#pragma once

#include <optional>

// Where the main window's controls stand for its present size. All measures are twips.

struct Riquadro {
    double sinistra;
    double alto;
    double larghezza;
    double altezza;
};

// What the layout starts from.
struct MisureFinestra {
    double larghezzaInterna;
    double altezzaInterna;
    double altezzaStato;
    // Left edge of txtLogo in the frame, and the present widths of txtTitolo and txtLogo.
    double sinistraLogo;
    double larghezzaTitolo;
    double larghezzaLogo;
    // Top of txtLarghezza in the frame, height of cmdGetSize.
    double altoLarghezza;
    double altezzaGetSize;
    // Top and height of fraDati; the frame's width in use until now.
    double altoDati;
    double altezzaDati;
    double larghezzaDati;
    // The command strip at the right edge.
    double larghezzaPicCmd;
};

// Where each goes; nothing where the window is too small and the control stays as it is.
struct Disposizione {
    std::optional<Riquadro> fraDati;
    // The width that txtLogo, txtUrl and txtLinkImg share.
    std::optional<double> larghezzaImmagine;
    // In the frame's coordinates.
    std::optional<Riquadro> cmdGetSize;
    std::optional<Riquadro> griglia;
    std::optional<Riquadro> picCmd;
};

// The design's distance from an edge.
inline constexpr double margineTwips = 50;

// Twips as whole pixels, for one direction's twips per pixel.
[[nodiscard]] constexpr int aPixel(double twips, double twipsPerPixel) noexcept {
    return static_cast<int>(twips / twipsPerPixel);
}

[[nodiscard]] Disposizione DisponiControlli(const MisureFinestra& misure) noexcept;
