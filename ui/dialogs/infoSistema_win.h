#pragma once

#include "support/servizi/messaggi.h"

#include <windows.h>

#include <string>

// The operating system's system-information program: where the registry says it is, and its start.

// Reads one registry value as text; false, with `valore` untouched, when the key or the value is
// missing or the value is longer than 1024 characters of the ANSI code page.
// A string is given as it is, without the one NUL at its end; one that names environment variables
// (REG_EXPAND_SZ) has their values in their places. A 32-bit number is given in decimal,
// but not always the number that is stored: its bytes are put one after the other in hexadecimal,
// each without its leading zero, so that 0x00000102 reads as 0x12 and gives "18". A value of size
// zero and one of any other type give the empty text.
[[nodiscard]] bool GetKeyValue(HKEY radice, const std::wstring& percorso, const std::wstring& nome,
                               std::wstring& valore);

// Starts the system-information program with a normal, focused window. Any failure is told in the
// same message box.
void StartSysInfo(Messaggi& messaggi);
