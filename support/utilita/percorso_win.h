#pragma once

#include <windows.h>

#include <string>

// What one of Windows' calls of the kind "buffer, its size in characters, gives the length or the
// size needed" writes; empty when it fails.
template <class Chiamata>
[[nodiscard]] std::wstring chiediTesto(Chiamata chiamata) {
    std::wstring testo(MAX_PATH, L'\0');
    for (;;) {
        const DWORD lunghezza = chiamata(testo.data(), static_cast<DWORD>(testo.size()));
        const bool scritto = lunghezza < testo.size();
        testo.resize(lunghezza);
        if (scritto) {
            return testo;
        }
    }
}

// A path from its drive on, "/" as "\", with the current folder before a relative one. Raises error
// 5 for an empty path, else the run-time error of the failure.
[[nodiscard]] std::wstring percorsoCompleto(const std::wstring& percorso);
