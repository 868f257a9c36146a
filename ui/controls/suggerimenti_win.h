#pragma once

#include <windows.h>

// Tooltips of the controls in one window, which has to outlive this object.
class Suggerimenti {
public:
    // The text of a control's tooltip from now on; none while it is empty. A label needs SS_NOTIFY.
    // Wider than `larghezza` pixels, unless 0, it goes on in another line.
    void testo(HWND controllo, const wchar_t* testo, int larghezza = 0);

private:
    // Belongs to the controls' top-level window.
    HWND finestra_ = nullptr;
};
