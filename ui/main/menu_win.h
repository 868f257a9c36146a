#pragma once

#include "support/windows/maniglie_win.h"
#include "ui/main/comandi.h"

#include <span>
#include <string>

[[nodiscard]] Acceleratori creaAcceleratori(std::span<const Scorciatoia> scorciatoie);

// The main window's menu bar, made from the table of commands.
[[nodiscard]] ManigliaMenu creaBarraMenu();

// Rebuilds the submenu of recent files: the disabled placeholder alone, or the files.
void mostraRecenti(HMENU barra, std::span<const std::wstring> voci);

// The menu mnContenuto as a context menu, on its own.
[[nodiscard]] ManigliaMenu creaMenuContenuto();
