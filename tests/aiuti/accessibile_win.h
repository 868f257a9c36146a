#pragma once

#include <windows.h>

#include <string>

// The name that assistive programs give a window or control; in parentheses why there is none.
[[nodiscard]] std::wstring nomeAccessibile(HWND finestra);
