#pragma once

#include <cstdint>

// The pointer's kind while a row is dragged.
enum class Puntatore : std::uint8_t { Predefinito = 0, Vietato = 12, Trascina = 99 };

// The state of a row being dragged with the left button, without windows. Items are indexes into
// the table, -1 where a row has none.
class Trascinamento {
public:
    // What a release asks for: `da` goes to `a` when `sposta`; afterwards the row of item `a` is
    // selected, or the current row when `a` is -1.
    struct Esito {
        bool sposta = false;
        int da = -1;
        int a = -1;
    };

    // The button went down on the row of `elemento`, at a place that starts a drag.
    void premi(int elemento) noexcept;
    // The current row became that of `elemento`; nothing happens when no button is down.
    void segui(int elemento) noexcept;
    // The button went up with the row of `elemento` current.
    [[nodiscard]] Esito rilascia(int elemento) noexcept;
    // The drag is given up: nothing is dragged any more.
    void abbandona() noexcept;

    [[nodiscard]] bool attivo() const noexcept { return attivo_; }
    [[nodiscard]] Puntatore puntatore() const noexcept { return puntatore_; }

private:
    bool attivo_ = false;
    // The item being dragged, or -1.
    int trascinato_ = -1;
    Puntatore puntatore_ = Puntatore::Predefinito;
};

// The grid's area where rows are, and its margin, in pixels: x from 0 to `larghezza` - 1, y from
// `cima` (below the header) to `fondo` - 1. `margineX` and `margineY` are 100 twips.
struct AreaRighe {
    int larghezza = 0;
    int cima = 0;
    int fondo = 0;
    int margineX = 0;
    int margineY = 0;
};

// Whether a press at a point may start a drag: not on the header, and not within the margin of the
// left, right or bottom edge.
[[nodiscard]] bool iniziaTrascinamento(const AreaRighe& area, int x, int y) noexcept;

// The rows to scroll by (-1 up, 0, 1 down) for a move of the pointer to height `y`: one near or
// beyond an edge. A pointer that has hardly left the height of the press scrolls nothing, so that a
// click near an edge stays a click.
[[nodiscard]] int passoScorrimento(const AreaRighe& area, int y, int yPressione) noexcept;
