#include "ui/main/comandi.h"

#include <array>

namespace {

constexpr VoceMenu separatore{nessunComando, L"-"};

constexpr std::array mnFile{
    VoceMenu{mnNuovo, L"&Nuovo"},
    VoceMenu{mnApri, L"&Apri"},
    separatore,
    VoceMenu{mnsalva, L"&Salva"},
    VoceMenu{mnSalvaCon, L"Sa&lva con nome..."},
    separatore,
    VoceMenu{mnrecenti, L"&File recenti"},
    separatore,
    VoceMenu{mnChiudi, L"&Chiudi"},
};

constexpr std::array contenuto{
    VoceMenu{mnAggiorna, L"&Aggiorna Lista"},
};

constexpr std::array principali{
    MenuPrincipale{L"&File", mnFile},
    MenuPrincipale{L"&Contenuto", contenuto},
};

} // namespace

std::span<const MenuPrincipale> menuPrincipali() noexcept {
    return principali;
}

const MenuPrincipale& mnContenuto() noexcept {
    return principali[1];
}
