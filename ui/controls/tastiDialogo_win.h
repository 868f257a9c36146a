#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <span>

// Keys that are commands of a dialog, in any of its controls: they pass by here before the modal
// loop of Windows hands them to the control with the focus. A box over the dialog has its keys to
// itself. Lives as long as the dialog's window, or longer.
class TastiDialogo {
public:
    TastiDialogo() noexcept = default;
    // The dialog hears of a key by WM_COMMAND. Raises the run-time error of the failure.
    TastiDialogo(HWND dialogo, std::span<const ACCEL> tasti);

private:
    static LRESULT CALLBACK filtra(int codice, WPARAM w, LPARAM l) noexcept;

    Acceleratori tasti_;
    Gancio gancio_;
};
