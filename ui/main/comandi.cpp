#include "ui/main/comandi.h"

#include <algorithm>
#include <array>

namespace {

// Separators have names too, mnbar1 to mnbar10 and bar7; nothing refers to them.
constexpr VoceMenu separatore{nessunComando, L"-"};

constexpr std::array mnFile{
    VoceMenu{mnNuovo, L"&Nuovo"},
    VoceMenu{mnApri, L"&Apri"},
    separatore,
    VoceMenu{mnsalva, L"&Salva"},
    VoceMenu{mnSalvaCon, L"Sa&lva con nome..."},
    separatore,
    VoceMenu{mnsalvahtm, L"&Esporta come pagina Web..."},
    separatore,
    VoceMenu{mnrecenti, L"&File recenti"},
    separatore,
    VoceMenu{mnChiudi, L"&Chiudi"},
};

constexpr std::array contenuto{
    VoceMenu{mnaddFeed, L"&Aggiungi Feed"},
    VoceMenu{mnEditFeed, L"&Modifica Feed"},
    VoceMenu{mnDelFeed, L"&Cancella Feed"},
    separatore,
    VoceMenu{mnvisualhtml, L"Visualizza come pagina web"},
    separatore,
    VoceMenu{mnAggiorna, L"&Aggiorna Lista"},
};

constexpr std::array mnHelp{
    VoceMenu{mnGuida, L"&Guida"},
    separatore,
    VoceMenu{mniaco, L"Q&uorvex sul Web"},
    VoceMenu{mnguidaonline, L"G&uide on-line"},
    VoceMenu{mnautore, L"&Scrivi all'autore"},
    separatore,
    VoceMenu{mnVerificaUpgrade, L"&Aggiornamento"},
    separatore,
    VoceMenu{mnBug, L"S&egnala Bug"},
    separatore,
    VoceMenu{mninfo, L"&Informazione sul prodotto..."},
};

constexpr std::array principali{
    MenuPrincipale{L"&File", mnFile},
    MenuPrincipale{L"&Contenuto", contenuto},
    MenuPrincipale{L"?", mnHelp},
};

constexpr std::array barra{
    PulsanteBarra{L"new", L"Crea un nuovo Feed RSS", mnNuovo},
    PulsanteBarra{L"open", L"Apre il Feed RSS per la modifica", mnApri},
    PulsanteBarra{L"save", L"Salva il Feed RSS", mnsalva},
    PulsanteBarra{L"email", L"Invia un email all'autore...", mnautore},
    PulsanteBarra{L"info", L"Informazioni sul prodotto...", mninfo},
};

// Virtual key codes, the same numbers wherever this is built.
constexpr std::uint16_t invio = 0x0D;
constexpr std::uint16_t fine = 0x23;
constexpr std::uint16_t home = 0x24;
constexpr std::uint16_t su = 0x26;
constexpr std::uint16_t giu = 0x28;
constexpr std::uint16_t ins = 0x2D;
constexpr std::uint16_t canc = 0x2E;
constexpr std::uint16_t f1 = 0x70;

constexpr std::array tasti{
    Scorciatoia{L'N', Scorciatoia::Controllo, mnNuovo},
    Scorciatoia{L'O', Scorciatoia::Controllo, mnApri},
    Scorciatoia{L'S', Scorciatoia::Controllo, mnsalva},
    Scorciatoia{f1, Scorciatoia::Nessuno, mnGuida},
};

constexpr std::array tastiGriglia{
    Scorciatoia{ins, Scorciatoia::Nessuno, mnaddFeed},
    Scorciatoia{invio, Scorciatoia::Nessuno, mnEditFeed},
    Scorciatoia{canc, Scorciatoia::Nessuno, mnDelFeed},
    Scorciatoia{su, Scorciatoia::Alt, spostaSu},
    Scorciatoia{giu, Scorciatoia::Alt, spostaGiu},
    Scorciatoia{home, Scorciatoia::Alt, spostaInCima},
    Scorciatoia{fine, Scorciatoia::Alt, spostaInFondo},
};

} // namespace

std::span<const MenuPrincipale> menuPrincipali() noexcept {
    return principali;
}

const MenuPrincipale& mnContenuto() noexcept {
    return principali[1];
}

std::span<const PulsanteBarra> pulsantiBarra() noexcept {
    return barra;
}

Comando comandoDaChiave(std::wstring_view chiave) noexcept {
    const auto* const trovato = std::ranges::find(barra, chiave, &PulsanteBarra::chiave);
    return trovato == barra.end() ? nessunComando : trovato->comando;
}

std::span<const Scorciatoia> scorciatoie() noexcept {
    return tasti;
}

std::span<const Scorciatoia> scorciatoieGriglia() noexcept {
    return tastiGriglia;
}
