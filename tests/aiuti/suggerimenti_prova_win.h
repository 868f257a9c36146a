#pragma once

#include <windows.h>

#include <chrono>
#include <string_view>
#include <vector>

// The tooltips that are up.
[[nodiscard]] std::vector<HWND> suggerimentiInVista();

// Moves the pointer to a point of a window and rests it there: whether this tooltip comes up in
// time.
[[nodiscard]] bool suggerisce(HWND finestra, POINT punto, std::wstring_view testo,
                              std::chrono::milliseconds scadenza = std::chrono::seconds(5));
