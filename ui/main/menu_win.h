#pragma once

#include "support/windows/maniglie_win.h"
#include "ui/main/comandi.h"

#include <span>
#include <string>

// The keys of all commands that work there.
[[nodiscard]] Acceleratori creaAcceleratori(Tasto::Dove dove);

// The main window's menu bar, made from the table of commands.
[[nodiscard]] ManigliaMenu creaBarraMenu();

// Rebuilds the submenu of recent files: the disabled placeholder alone, or the files.
void mostraRecenti(HMENU barra, std::span<const std::wstring> voci);

// A top menu, on its own.
[[nodiscard]] ManigliaMenu creaMenu(Menu menu);
