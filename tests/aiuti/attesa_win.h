#pragma once

#include <windows.h>

// Polls until the condition holds; false when it never did before the deadline.
template <class Condizione>
[[nodiscard]] bool attendiChe(Condizione condizione, DWORD millisecondi = 30000) {
    const ULONGLONG scadenza = GetTickCount64() + millisecondi;
    while (!condizione()) {
        if (GetTickCount64() > scadenza) {
            return false;
        }
        Sleep(5);
    }
    return true;
}
