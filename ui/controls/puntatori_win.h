#pragma once

#include "support/windows/dpi_win.h"
#include "support/windows/maniglie_win.h"
#include "ui/controls/trascinamento.h"

#include <windows.h>

// The pointers of a drag: our own for a dragged row, the system's for the others.
class Puntatori {
public:
    // Without a picture of our own.
    Puntatori() noexcept = default;
    explicit Puntatori(Dpi dpi);

    // Shows the pointer of that kind until the next WM_SETCURSOR.
    void mostra(Puntatore tipo) const noexcept;

private:
    Cursore trascina_;
};
