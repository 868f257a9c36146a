#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

// The cross of a button that closes something, in the colour in which that button writes now; its
// side and how thick it is in pixels.
[[nodiscard]] ManigliaIcona creaCroce(HWND pulsante, int lato, double spessore);
