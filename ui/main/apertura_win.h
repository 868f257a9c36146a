#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>

// The files that come to the program from outside: the shell starts it with one, or one is dropped
// on its window.

// The first of the dropped files, empty when there is none; the drop is done with.
[[nodiscard]] std::wstring primoLasciato(HDROP lasciati);

// The document that a command line names: its only argument, as a full path, when that is a file;
// else empty. A file whose path is too long for the system to open counts.
[[nodiscard]] std::wstring documentoNominato(const std::wstring& rigaDiComando);
