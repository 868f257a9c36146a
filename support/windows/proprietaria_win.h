#pragma once

#include <windows.h>

// The window that a modal dialog of this thread belongs to, and that it disables: the active one;
// for a modeless dialog the window that it stands beside, whose owner would stay in use otherwise.
// Null when no window of this thread is active.
[[nodiscard]] HWND proprietariaDiModali() noexcept;
