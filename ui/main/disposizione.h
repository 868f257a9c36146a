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
    // Left edge of txtLogo in the frame, and the present width of txtTitolo.
    double sinistraLogo;
    double larghezzaTitolo;
    // Top of txtLarghezza in the frame, height of cmdGetSize.
    double altoLarghezza;
    double altezzaGetSize;
    // Height of the grid until now.
    double altezzaGriglia;
    // Top and height of fraDati; the frame's width in use until now.
    double altoDati;
    double altezzaDati;
    double larghezzaDati;
    // The command strip at the right edge.
    double larghezzaPicCmd;
};

// Where each goes; nothing where the window is too small and the control stays as it is. Edges are
// the window's own, but for the top of cmdGetSize, which is the frame's.
struct Disposizione {
    std::optional<Riquadro> fraDati;
    // The width that txtLogo, txtUrl and txtLinkImg share.
    std::optional<double> larghezzaImmagine;
    std::optional<Riquadro> cmdGetSize;
    std::optional<Riquadro> griglia;
    std::optional<Riquadro> picCmd;
};

// The design's distance from an edge.
inline constexpr double margineTwips = 50;

[[nodiscard]] Disposizione DisponiControlli(const MisureFinestra& misure) noexcept;
