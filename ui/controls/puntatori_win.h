#pragma once

#include "support/windows/maniglie_win.h"
#include "ui/controls/trascinamento.h"

#include <windows.h>

struct TrattiCursore {
    using Tipo = HCURSOR;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo cursore) noexcept { DestroyCursor(cursore); }
};
using Cursore = Maniglia<TrattiCursore>;

// The pointers of a drag: our own for a dragged row, the system's for the others.
class Puntatori {
public:
    Puntatori();

    // Shows the pointer of that kind until the next WM_SETCURSOR.
    void mostra(Puntatore tipo) const noexcept;

private:
    Cursore trascina_;
};
