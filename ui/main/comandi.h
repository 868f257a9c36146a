#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// The commands of the main window: their numbers, and the menus that name them.

enum Comando : std::uint16_t {
    nessunComando = 0,
    mnNuovo = 40001,
    mnApri,
    mnsalva,
    mnSalvaCon,
    mnrecenti,
    mnChiudi,
    mnaddFeed,
    mnEditFeed,
    mnDelFeed,
    mnAggiorna,
    // Entry 0 is the placeholder, entries 1 to 10 the files.
    mnrec = 40100,
};
inline constexpr std::uint16_t ultimoRecente = mnrec + 10;

inline constexpr std::wstring_view nessunaVoce = L"nessuna voce in elenco";

// An entry of a menu; a separator has the caption "-" and no command.
struct VoceMenu {
    Comando comando;
    std::wstring_view didascalia;
};

// A top menu.
struct MenuPrincipale {
    std::wstring_view didascalia;
    std::span<const VoceMenu> voci;
};

[[nodiscard]] std::span<const MenuPrincipale> menuPrincipali() noexcept;

// The menu mnContenuto, which is the grid's context menu too.
[[nodiscard]] const MenuPrincipale& mnContenuto() noexcept;
