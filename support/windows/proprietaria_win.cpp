#include "support/windows/proprietaria_win.h"

HWND proprietariaDiModali() noexcept {
    HWND finestra = GetActiveWindow();
    // The owner of a modal dialog is disabled while it lasts.
    while (finestra != nullptr) {
        const HWND sua = GetWindow(finestra, GW_OWNER);
        if (sua == nullptr || IsWindowEnabled(sua) == FALSE) {
            break;
        }
        finestra = sua;
    }
    return finestra;
}
