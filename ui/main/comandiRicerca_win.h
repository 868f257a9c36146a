#pragma once

#include "document/documento.h"
#include "document/ricerca.h"
#include "ui/main/comandi.h"

#include <windows.h>

#include <array>
#include <optional>
#include <string>

#include <commdlg.h>

class FinestraPrincipale;

// The search among the items: the system's own find dialog, and what goes on without it.
class ComandiRicerca {
public:
    // Both outlive it.
    ComandiRicerca(FinestraPrincipale& finestra, const Documento& documento) noexcept
        : finestra_(finestra), documento_(documento) {}
    ComandiRicerca(const ComandiRicerca&) = delete;
    ComandiRicerca& operator=(const ComandiRicerca&) = delete;
    ~ComandiRicerca() = default;

    // Shows the dialog, or brings it to the front.
    void mnTrova();
    // Selects the next item from the current one, -1 for none, and says in the status bar what is
    // not to be seen in the grid. As long as nothing was looked for, shows the dialog.
    void prosegui(int elemento, Direzione verso);

    // The dialog's keys, before a message is dispatched. True when it was the dialog's.
    [[nodiscard]] bool anticipa(MSG& messaggio) noexcept;
    // What a message of the dialog to its owner asks to be run, be it no command; nothing for any
    // other message.
    [[nodiscard]] std::optional<Comando> richiesta(UINT codice, LPARAM l);
    // While a box is shown over the main window the dialog rests too.
    void abilita(bool abilitato) const noexcept;

private:
    // As much as the dialog takes, the end included.
    static constexpr std::size_t massimo = 512;

    // Says this in the status bar; nothing takes away what was said here before, if it still shows.
    void di(std::wstring testo);

    FinestraPrincipale& finestra_;
    const Documento& documento_;
    Criterio criterio_;
    // What the dialog works in as long as it is open.
    FINDREPLACEW dati_{};
    std::array<wchar_t, massimo> testo_{};
    HWND dialogo_ = nullptr;
    std::wstring detto_;
};
