#pragma once

#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

// A function of the system's dialogs. Their library is loaded with the first one: with what it
// needs itself it would take a good part of the program's start. It stays, since a dialog may leave
// threads of the shell behind. Raises the run-time error of the failure.
template <class Funzione>
[[nodiscard]] Funzione comdlg32(const char* nome) {
    const HMODULE libreria = LoadLibraryExW(L"comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (libreria == nullptr) {
        sollevaWin32();
    }
    const auto trovata = funzione<Funzione>(libreria, nome);
    if (trovata == nullptr) {
        sollevaWin32();
    }
    return trovata;
}
