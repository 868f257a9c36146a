#pragma once

#include "support/errori/trappola.h"

#include <windows.h>

// Base of the windows made from dialog templates: catches its object when the dialog is made, sends
// it the messages, and lets no exception out to Windows.
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

protected:
    // WM_INITDIALOG. True leaves the focus to Windows (the first control).
    virtual bool inizializza() = 0;
    // Any other message; what it returns is the dialog procedure's.
    virtual INT_PTR messaggio(UINT msg, WPARAM wParam, LPARAM lParam) = 0;

    [[nodiscard]] HWND controllo(int id) const noexcept { return GetDlgItem(hwnd_, id); }
    void chiudi(INT_PTR esito) noexcept;

private:
    static INT_PTR CALLBACK procedura(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) noexcept;

    struct Nascita;

    HWND hwnd_ = nullptr;
    bool modale_ = false;
};
