#pragma once

#include "support/errori/trappola.h"

#include "ui/controls/modello_win.h"

#include <windows.h>

#include <optional>

// Base of the windows made from dialog templates: catches its object when the dialog is made, sends
// it the messages, and lets no exception out to Windows. It is laid out here and not by Windows for
// the resolution of its owner, or the one that WM_DPICHANGED tells it; one that is a child goes
// with the window around it, which calls `adatta`.
class Dialogo : public Trappola {
public:
    Dialogo() = default;
    Dialogo(const Dialogo&) = delete;
    Dialogo& operator=(const Dialogo&) = delete;
    ~Dialogo() override;

    [[nodiscard]] HWND hwnd() const noexcept { return hwnd_; }

    // Shows the template as a modal dialog over `proprietaria` and waits until it was closed.
    // Gives what chiudi() was given. Raises the failure to make it, or what its making raised.
    INT_PTR mostraModale(int modello, HWND proprietaria);

    // Makes the template a child window (or an own window that is not modal). Raises as above.
    void crea(int modello, HWND genitore);

    // Fonts and sizes for the resolution of now. The font until now comes back: others may use it
    // still.
    [[nodiscard]] Carattere adatta();

protected:
    // WM_INITDIALOG. True leaves the focus to Windows (the first control).
    virtual bool inizializza() = 0;
    // Any other message; what it returns is the dialog procedure's. A size that the dialog gives
    // itself is told by `adattato` alone.
    virtual INT_PTR messaggio(UINT msg, WPARAM wParam, LPARAM lParam) = 0;
    // The controls stand as the template says, for another resolution: what differs from it
    // follows.
    virtual void adattato() {}

    [[nodiscard]] HWND controllo(int id) const noexcept { return GetDlgItem(hwnd_, id); }
    void chiudi(INT_PTR esito) noexcept;

private:
    static INT_PTR CALLBACK procedura(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) noexcept;

    struct Nascita;

    void prepara(int modello);
    // Gives the font until now.
    [[nodiscard]] Carattere disponi();
    void cambiaDpi(Dpi dpi, const RECT& posto);

    HWND hwnd_ = nullptr;
    std::optional<ModelloDialogo> modello_;
    // Of its own, once it differs from the one that the dialog was made with.
    Carattere carattere_;
    bool modale_ = false;
    bool disponendo_ = false;
};
