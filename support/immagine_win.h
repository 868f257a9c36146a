#pragma once

#include "support/com_win.h"

#include <windows.h>

#include <ocidl.h>

#include <string>

// Loads a picture file by Windows' own picture loading. Raises 53 when there is no such file, 481
// when it cannot be read as a picture.
[[nodiscard]] ComPtr<IPicture> caricaImmagine(const std::wstring& percorso);
