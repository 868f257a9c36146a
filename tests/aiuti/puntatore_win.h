#pragma once

#include "ui/controls/trascinamento.h"

#include <windows.h>

// The pointer as the user sees it over the grid: the system's arrow, its "no", or our own of a
// dragged row.
[[nodiscard]] inline Puntatore puntatoreVisto() {
    const HCURSOR adesso = GetCursor();
    if (adesso == LoadCursorW(nullptr, IDC_ARROW)) {
        return Puntatore::Predefinito;
    }
    return adesso == LoadCursorW(nullptr, IDC_NO) ? Puntatore::Vietato : Puntatore::Trascina;
}
