#pragma once

#include "tests/aiuti/pixel_win.h"

#include <windows.h>

#include <string>
#include <vector>

// How a window looks inside: every window in it with its place, and the pixels.
struct Aspetto {
    // "class number left,top,right,bottom font height ..." of each, in their order.
    std::vector<std::string> parti;
    Immagine immagine;
};

[[nodiscard]] Aspetto aspettoDi(HWND finestra);

// Fails the test where they differ.
void confronta(const Aspetto& uno, const Aspetto& altro);

// The window is on a monitor of that resolution from here on, its outside scaled from one size at
// 96 dpi: what Windows sends to it.
void portaSuMonitor(HWND finestra, int dpi, SIZE misura);
