#pragma once

#include "support/errori/guardia.h"
#include "support/windows/errori_win.h"

#include <windows.h>

#include <utility>

// The hourglass while something long runs on the window's thread; the pointer comes back when the
// scope ends.
class Clessidra {
public:
    Clessidra() noexcept : prima_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    Clessidra(const Clessidra&) = delete;
    Clessidra& operator=(const Clessidra&) = delete;
    ~Clessidra() { SetCursor(prima_); }

private:
    HCURSOR prima_;
};

// The trap at the end of every handler: runs `azione`; when it fails, restores the pointer and,
// unless the user only cancelled a file dialog, lets `riporta` report the exception being handled.
// Gives whether the action came through.
template <class Azione, class Riporta>
bool protetto(Azione azione, Riporta riporta) {
    try {
        azione();
        return true;
    } catch (...) {
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
        if (erroreCorrente().numero() != errori::dialogoAnnullato) {
            riporta();
        }
        return false;
    }
}
