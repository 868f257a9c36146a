#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <commctrl.h>

struct TrattiListaImmagini {
    using Tipo = HIMAGELIST;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo lista) noexcept { ImageList_Destroy(lista); }
};
using ListaImmagini = Maniglia<TrattiListaImmagini>;

// The toolbar `Toolbar1`: its buttons come from the table of commands, its pictures from the image
// list `MiaLista` in the size that suits the screen.
class BarraStrumenti {
public:
    // Makes it as a child window that sends its commands to `padre`. `dpi` is the screen's,
    // vertical. Raises the failure to make it.
    void crea(HWND padre, int id, int dpi);

    // Follows the parent's width; gives its own height in pixels.
    int disponi() const noexcept;

    // Answers TTN_GETDISPINFO for a button.
    static void suggerimento(NMTTDISPINFOW& richiesta) noexcept;

private:
    ListaImmagini MiaLista_;
    HWND barra_ = nullptr;
};
