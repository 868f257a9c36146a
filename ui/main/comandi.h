#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// The commands of the main window: their numbers, and the one table from which menus, toolbar,
// buttons and keys take what they show and run.

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
    // From here on keys only: the selected item one place up or down, to the first place, to the
    // last.
    spostaSu,
    spostaGiu,
    spostaInCima,
    spostaInFondo,
    // The last change of the items taken back, or done again.
    annullaPasso,
    ripetiPasso,
    // Of items, between the grid and the clipboard.
    taglia,
    copia,
    incolla,
    // The find dialog, the next item of what was looked for, the one before.
    mnTrova,
    trovaAvanti,
    trovaIndietro,
    // Entry 0 is the placeholder, entries 1 to 10 the files.
    mnrec = 40100,
    ultimoRecente = mnrec + 10,
    // The buttons of PicCmd bear the numbers of what they run.
    cmdAggiungi = mnaddFeed,
    cmdModifica = mnEditFeed,
    cmdCancella = mnDelFeed,
};

inline constexpr std::wstring_view nessunaVoce = L"nessuna voce in elenco";

// The top menus, from left to right. `mnContenuto` is the grid's context menu too.
enum class Menu : std::uint8_t { Nessuno, mnFile, mnContenuto, mnHelp };

struct MenuPrincipale {
    Menu menu;
    std::wstring_view didascalia;
};
[[nodiscard]] std::span<const MenuPrincipale> menuPrincipali() noexcept;

// A key that runs a command: a virtual key code, 0 for none, and what is held with it.
struct Tasto {
    enum Modificatore : std::uint8_t { Nessuno = 0, Controllo = 1, Alt = 2, Maiuscole = 4 };
    // Wherever the focus is, or while the grid has it.
    enum Dove : std::uint8_t { Ovunque, Griglia };
    std::uint16_t codice = 0;
    Modificatore modificatore = Nessuno;
    Dove dove = Ovunque;

    // Both held.
    friend constexpr Modificatore operator|(Modificatore a, Modificatore b) noexcept {
        return static_cast<Modificatore>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
    }
    [[nodiscard]] constexpr bool con(Modificatore quale) const noexcept {
        return (static_cast<unsigned>(modificatore) & static_cast<unsigned>(quale)) != 0;
    }
};

// A button of the toolbar, with the place of its picture in the strip of pictures.
struct PulsanteBarra {
    std::wstring_view chiave;
    std::wstring_view suggerimento;
    int figura = 0;
};

// A button of the strip PicCmd.
struct PulsanteStriscia {
    std::uint16_t id = 0;
    std::wstring_view didascalia;
};

struct PartiComandi;

// A command; what it has not is left empty. One without a number is a separator of its menu.
struct RigaComando {
    Comando comando = nessunComando;
    Menu menu = Menu::Nessuno;
    std::wstring_view didascalia{};
    Tasto tasto{};
    Tasto altroTasto{};
    PulsanteBarra barra{};
    PulsanteStriscia striscia{};
    // Where there is no item, the user is told to select one, and nothing runs.
    bool vuoleElemento = false;
    // Runs it, on the item of that index; -1 where there is none.
    void (*esegui)(PartiComandi& parti, int elemento) = nullptr;
};

// In the order of the menus, which is that of the toolbar and of the strip.
[[nodiscard]] std::span<const RigaComando> comandi() noexcept;

// The row of a command; null for a number that has none.
[[nodiscard]] const RigaComando* rigaDel(int comando) noexcept;

// The command of a toolbar key, compared exactly; none for a key that is unknown.
[[nodiscard]] Comando comandoDaChiave(std::wstring_view chiave) noexcept;
