#pragma once

#include <windows.h>

#include <string>

class Messaggi;

// The help file of the program: its own path with ".hlp" for ".exe", or with ".htm" where there is
// no such file.
[[nodiscard]] std::wstring fileGuida();

// Opens it, for the window given. A failure is reported.
void apriGuida(Messaggi& messaggi, HWND proprietaria);
