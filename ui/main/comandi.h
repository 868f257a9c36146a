#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// The commands of the main window: their numbers, and the one table from which menus, toolbar,
// context menu and keys take what they show and run.

enum Comando : std::uint16_t {
    nessunComando = 0,
    mnNuovo = 40001,
    mnApri,
    mnsalva,
    mnSalvaCon,
    mnsalvahtm,
    mnrecenti,
    mnChiudi,
    mnaddFeed,
    mnEditFeed,
    mnDelFeed,
    mnvisualhtml,
    mnAggiorna,
    mnGuida,
    mniaco,
    mnguidaonline,
    mnautore,
    mnVerificaUpgrade,
    mnBug,
    mninfo,
    // Keys only: the selected item one place up or down, to the first place, to the last.
    spostaSu,
    spostaGiu,
    spostaInCima,
    spostaInFondo,
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

// A button of the toolbar, with the place of its picture in the strip.
struct PulsanteBarra {
    std::wstring_view chiave;
    std::wstring_view suggerimento;
    Comando comando;
};

[[nodiscard]] std::span<const PulsanteBarra> pulsantiBarra() noexcept;

// The command of a toolbar key, compared exactly; none for a key that is unknown.
[[nodiscard]] Comando comandoDaChiave(std::wstring_view chiave) noexcept;

// A key that runs a command.
struct Scorciatoia {
    enum Modificatore : std::uint8_t { Nessuno, Controllo, Alt };
    // A virtual key code.
    std::uint16_t tasto;
    Modificatore modificatore;
    Comando comando;
};

// Wherever the focus is.
[[nodiscard]] std::span<const Scorciatoia> scorciatoie() noexcept;
// While the grid has it.
[[nodiscard]] std::span<const Scorciatoia> scorciatoieGriglia() noexcept;
