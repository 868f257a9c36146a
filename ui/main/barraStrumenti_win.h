#pragma once

#include "support/windows/dpi_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <commctrl.h>

using ListaImmagini = Maniglia<HIMAGELIST, ImageList_Destroy>;

// The toolbar `Toolbar1`: its buttons come from the table of commands, its pictures from the image
// list `MiaLista` in the size that suits the screen.
class BarraStrumenti {
public:
    // Makes it as a child window that sends its commands to `padre`. Raises the failure to
    // make it.
    void crea(HWND padre, int id, Risoluzione verticale);

    // Follows the parent's width; gives its own height in pixels.
    int disponi() const noexcept;

    // Answers TTN_GETDISPINFO for a button.
    static void suggerimento(NMTTDISPINFOW& richiesta) noexcept;

private:
    ListaImmagini MiaLista_;
    HWND barra_ = nullptr;
};
