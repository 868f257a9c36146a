#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <string>

// A program that a test has started.
struct Processo {
    ManigliaOggetto maniglia;
    DWORD id = 0;
};

// Starts a command line, in that folder if one is given; fails the test when that does not succeed.
[[nodiscard]] Processo avviaProcesso(std::wstring comando, const wchar_t* inCartella = nullptr);

// Its exit code once it has ended; fails the test when that takes more than a minute.
[[nodiscard]] DWORD codiceFinale(const Processo& processo);
