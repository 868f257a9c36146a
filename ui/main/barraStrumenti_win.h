#pragma once

#include "support/windows/dpi_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <commctrl.h>

using ListaImmagini = Maniglia<HIMAGELIST, ImageList_Destroy>;

// The toolbar `Toolbar1`: its buttons come from the table of commands, its pictures from the image
// list `MiaLista` in the size that suits the resolution.
class BarraStrumenti {
public:
    // Makes it as a child window that sends its commands to `padre`. Raises the failure to
    // make it.
    void crea(HWND padre, int id, Risoluzione verticale);

    // Pictures for another resolution. Raises the failure to make them.
    void figure(Risoluzione verticale);

    // The window of its tooltips.
    [[nodiscard]] HWND suggerimenti() const noexcept {
        return reinterpret_cast<HWND>(SendMessageW(barra_, TB_GETTOOLTIPS, 0, 0));
    }

    // Follows the parent's width; gives its own height in pixels.
    int disponi() const noexcept;

    // Answers TTN_GETDISPINFO for a button.
    static void suggerimento(NMTTDISPINFOW& richiesta) noexcept;

private:
    ListaImmagini MiaLista_;
    HWND barra_ = nullptr;
};
