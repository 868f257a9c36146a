#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

// Pixels from top to bottom, each line from left to right.
struct Immagine {
    std::ptrdiff_t larghezza = 0;
    std::vector<std::uint32_t> punti;

    bool operator==(const Immagine&) const = default;

    [[nodiscard]] std::ptrdiff_t altezza() const {
        return static_cast<std::ptrdiff_t>(punti.size()) / larghezza;
    }
    [[nodiscard]] COLORREF colore(std::ptrdiff_t x, std::ptrdiff_t y) const {
        const std::uint32_t p = punti[static_cast<std::size_t>(y * larghezza + x)];
        return RGB(p >> 16 & 0xFF, p >> 8 & 0xFF, p & 0xFF);
    }
    // How many pixels of a rectangle are not the background.
    [[nodiscard]] int inchiostro(const RECT& r, COLORREF sfondo = GetSysColor(COLOR_WINDOW)) const;
    [[nodiscard]] Immagine ritaglio(const RECT& r) const;
    // How many pixels are others in a picture of the same size; all of them in any other.
    [[nodiscard]] int diversi(const Immagine& altra) const;
    // The least rectangle that holds them, in a picture of the same size.
    [[nodiscard]] RECT doveDiversi(const Immagine& altra) const;
};

// What a painter leaves on a canvas of that size.
[[nodiscard]] Immagine dipinta(int larghezza, int altezza, const std::function<void(HDC)>& pittore);

// The pointer of now, drawn over a colour.
[[nodiscard]] Immagine puntatore(COLORREF sfondo);

// What a window shows inside, its children with it, after it has painted what it wants to.
[[nodiscard]] Immagine sulloSchermo(HWND finestra);
// The same with its frame, caption and menu.
[[nodiscard]] Immagine tuttaSulloSchermo(HWND finestra);
// How many pixels of it are not as a full repaint leaves them.
[[nodiscard]] int daRidipingere(HWND finestra);

// Colours of the system, for the life of the object.
class ColoriSistema {
public:
    using Coppia = std::pair<int, COLORREF>;

    explicit ColoriSistema(const std::vector<Coppia>& colori);
    ColoriSistema(int indice, COLORREF colore) : ColoriSistema({{indice, colore}}) {}
    ColoriSistema(const ColoriSistema&) = delete;
    ColoriSistema& operator=(const ColoriSistema&) = delete;
    ~ColoriSistema();

private:
    std::vector<int> indici_;
    std::vector<COLORREF> prima_;
};

// The system's own colours, and those of schemes with a high contrast: the black one of now, an
// older one whose selection is dark, and the white one.
[[nodiscard]] const std::vector<std::vector<ColoriSistema::Coppia>>& schemi();

// How well the whole edge of a row is told from the ground that the others have: the least contrast
// on any of its lines and columns, each taken as the four pixels at the edge; corners go with them.
[[nodiscard]] double distacco(const Immagine& riga, COLORREF sfondo = GetSysColor(COLOR_WINDOW));

// How well what is written in a picture can be read: the contrast that its clearest pixels, as many
// as the smallest letter has, have at least with the colour that most of it has.
[[nodiscard]] double leggibilita(const Immagine& immagine);
