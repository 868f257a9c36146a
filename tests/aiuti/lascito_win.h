#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Drops files on a window as the shell does, at a point of its client area; gives the block that
// the window frees. Returns before the window has taken it.
HGLOBAL lasciaFile(HWND finestra, const std::vector<std::wstring>& percorsi, POINT punto = {});
