#include "ui/controls/dialogo_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/guardia_win.h"
#include "support/windows/tastiTenuti_win.h"

// What goes through WM_INITDIALOG: the object, and the way back for what it raises there.
struct Dialogo::Nascita {
    Dialogo* dialogo;
    Rinvio errore;
};

Dialogo::~Dialogo() {
    if (hwnd_ != nullptr) {
        SetWindowLongPtrW(hwnd_, DWLP_USER, 0);
        DestroyWindow(hwnd_);
    }
}

INT_PTR Dialogo::mostraModale(int modello, HWND proprietaria) {
    Nascita nascita{this, {}};
    const SenzaRipetizioni guardia;
    const Alzata modale(modale_);
    const INT_PTR esito =
        DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(modello), proprietaria,
                        procedura, reinterpret_cast<LPARAM>(&nascita));
    const DWORD codice = GetLastError();
    nascita.errore.rilancia();
    if (esito == -1) {
        sollevaWin32(codice);
    }
    return esito;
}

void Dialogo::crea(int modello, HWND genitore) {
    Nascita nascita{this, {}};
    const HWND creata = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(modello),
                                           genitore, procedura, reinterpret_cast<LPARAM>(&nascita));
    const DWORD codice = GetLastError();
    nascita.errore.rilancia();
    if (creata == nullptr) {
        sollevaWin32(codice);
    }
}

void Dialogo::chiudi(INT_PTR esito) noexcept {
    if (modale_) {
        EndDialog(hwnd_, esito);
    } else {
        DestroyWindow(hwnd_);
    }
}

INT_PTR CALLBACK Dialogo::procedura(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) noexcept {
    if (msg == WM_INITDIALOG) {
        auto* const nascita = reinterpret_cast<Nascita*>(lParam);
        Dialogo* const nato = nascita->dialogo;
        nato->hwnd_ = hwnd;
        SetWindowLongPtrW(hwnd, DWLP_USER, reinterpret_cast<LONG_PTR>(nato));
        const bool fuocoASistema =
            alConfine(nascita->errore, false, [&] { return nato->inizializza(); });
        if (nascita->errore) {
            nato->chiudi(-1);
            return FALSE;
        }
        if (const HWND proprietaria = GetWindow(hwnd, GW_OWNER);
            nato->modale_ && proprietaria != nullptr) {
            // A box shown meanwhile may have enabled the owner again when it closed.
            EnableWindow(proprietaria, FALSE);
        }
        return fuocoASistema ? TRUE : FALSE;
    }
    // Messages before WM_INITDIALOG (WM_SETFONT, for one) find no object yet.
    auto* const dialogo = reinterpret_cast<Dialogo*>(GetWindowLongPtrW(hwnd, DWLP_USER));
    if (dialogo == nullptr) {
        return FALSE;
    }
    if (msg == WM_NCDESTROY) {
        SetWindowLongPtrW(hwnd, DWLP_USER, 0);
        dialogo->hwnd_ = nullptr;
        return FALSE;
    }
    return alConfine(*dialogo, INT_PTR{FALSE},
                     [&] { return dialogo->messaggio(msg, wParam, lParam); });
}
