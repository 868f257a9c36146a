#pragma once

#include <windows.h>

#include <functional>

// The contrast that any text has at least with what is behind it.
inline constexpr double leggibile = 4.5;

// Runs `guarda` under each scheme of colours in turn. Those of a high contrast have no theme: the
// one of the controls in the window is off meanwhile.
void inOgniSchema(HWND finestra, const std::function<void()>& guarda);

// Fails the test for each text to be seen in a window that is hard to read: in labels, boxes,
// buttons, pickers, headers and status bars. Texts of controls that are disabled may be; so may
// pictures. Returns how many texts it found.
int verificaLeggibili(HWND finestra);

// The same for each item of its menu bar.
int verificaMenuLeggibile(HWND finestra);

// Whether the tooltip that is up can be read.
void verificaSuggerimentoLeggibile();
