#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

// Tooltips of the controls in one window, which has to outlive this object.
class Suggerimenti {
public:
    // The text of a control's tooltip from now on; none while it is empty. A label needs SS_NOTIFY.
    // Wider than `larghezza` pixels, unless 0, it goes on in another line.
    void testo(HWND controllo, const wchar_t* testo, int larghezza = 0);

    // Their font is that of the controls' resolution from here on. Raises its failure.
    void adatta();

private:
    // Belongs to the controls' top-level window.
    HWND finestra_ = nullptr;
    Carattere carattere_;
};
