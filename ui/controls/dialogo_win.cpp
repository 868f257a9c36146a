#include "ui/controls/dialogo_win.h"

#include "support/errori/guardia.h"
#include "support/windows/dpi_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/guardia_win.h"
#include "support/windows/tastiTenuti_win.h"

#include <utility>

namespace {

// Windows would lay a dialog out anew by itself, Wine would not: neither does.
void senzaDpiDiWindows(HWND dialogo) noexcept {
    constexpr int niente = 1; // DDC_DISABLE_ALL
    if (const auto imposta = funzione<BOOL(WINAPI*)(HWND, int, int)>(
            GetModuleHandleW(L"user32.dll"), "SetDialogDpiChangeBehavior")) {
        imposta(dialogo, niente, niente);
    }
}

bool figlio(HWND dialogo) noexcept {
    return (GetWindowLongPtrW(dialogo, GWL_STYLE) & WS_CHILD) != 0;
}

// Makes the inside so large; the middle stays where it is.
void dimensiona(HWND dialogo, SIZE interno) noexcept {
    RECT fuori{};
    RECT dentro{};
    GetWindowRect(dialogo, &fuori);
    GetClientRect(dialogo, &dentro);
    const LONG x = interno.cx - dentro.right;
    const LONG y = interno.cy - dentro.bottom;
    SetWindowPos(dialogo, nullptr, fuori.left - x / 2, fuori.top - y / 2,
                 fuori.right - fuori.left + x, fuori.bottom - fuori.top + y,
                 SWP_NOZORDER | SWP_NOACTIVATE | (figlio(dialogo) ? SWP_NOMOVE : 0));
}

} // namespace

// What goes through WM_INITDIALOG: the object, the template, and the way back for what it raises
// there.
struct Dialogo::Nascita {
    Dialogo* dialogo;
    int modello;
    Rinvio errore;
};

Dialogo::~Dialogo() {
    if (hwnd_ != nullptr) {
        SetWindowLongPtrW(hwnd_, DWLP_USER, 0);
        DestroyWindow(hwnd_);
    }
}

INT_PTR Dialogo::mostraModale(int modello, HWND proprietaria) {
    Nascita nascita{this, modello, {}};
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
    Nascita nascita{this, modello, {}};
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

void Dialogo::prepara(int modello) {
    const ModelloDialogo& fatto = modello_.emplace(modello);
    carattere_ = {};
    senzaDpiDiWindows(hwnd_);
    if (!figlio(hwnd_)) {
        const HWND proprietaria = GetWindow(hwnd_, GW_OWNER);
        tieniDpi(hwnd_, dpiDi(proprietaria != nullptr ? proprietaria : hwnd_));
    }
    if (!fatto.fattoPer(hwnd_, dpiDi(hwnd_))) {
        static_cast<void>(disponi());
    }
}

Carattere Dialogo::disponi() {
    const Alzata disponendo(disponendo_);
    if (!modello_) {
        return {};
    }
    auto [carattere, interno] = modello_->disponi(hwnd_, dpiDi(hwnd_));
    dimensiona(hwnd_, interno);
    return std::exchange(carattere_, std::move(carattere));
}

Carattere Dialogo::adatta() {
    Carattere prima = disponi();
    adattato();
    RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return prima;
}

void Dialogo::cambiaDpi(Dpi dpi, const RECT& posto) {
    tieniDpi(hwnd_, dpi);
    const auto posa = [&] {
        SetWindowPos(hwnd_, nullptr, posto.left, posto.top, posto.right - posto.left,
                     posto.bottom - posto.top, SWP_NOZORDER | SWP_NOACTIVATE);
    };
    {
        const Alzata disponendo(disponendo_);
        posa();
    }
    const Carattere prima = adatta();
    if (IsZoomed(hwnd_) != FALSE) {
        posa();
    }
}

INT_PTR CALLBACK Dialogo::procedura(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) noexcept {
    if (msg == WM_INITDIALOG) {
        auto* const nascita = reinterpret_cast<Nascita*>(lParam);
        Dialogo* const nato = nascita->dialogo;
        nato->hwnd_ = hwnd;
        SetWindowLongPtrW(hwnd, DWLP_USER, reinterpret_cast<LONG_PTR>(nato));
        const bool fuocoASistema = alConfine(nascita->errore, false, [&] {
            nato->prepara(nascita->modello);
            return nato->inizializza();
        });
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
    if (msg == WM_GETFONT && dialogo->carattere_) {
        SetWindowLongPtrW(hwnd, DWLP_MSGRESULT,
                          reinterpret_cast<LONG_PTR>(dialogo->carattere_.get()));
        return TRUE;
    }
    if (msg == WM_DPICHANGED && !figlio(hwnd)) {
        SetWindowLongPtrW(hwnd, DWLP_MSGRESULT, 0);
        return alConfine(*dialogo, INT_PTR{TRUE}, [&] {
            dialogo->cambiaDpi({{LOWORD(wParam)}, {HIWORD(wParam)}},
                               *reinterpret_cast<const RECT*>(lParam));
            return INT_PTR{TRUE};
        });
    }
    // Nor is it held to the least size of another resolution.
    if (dialogo->disponendo_ && (msg == WM_SIZE || msg == WM_GETMINMAXINFO)) {
        return FALSE;
    }
    if (msg == WM_NCDESTROY) {
        scordaDpi(hwnd);
        SetWindowLongPtrW(hwnd, DWLP_USER, 0);
        dialogo->hwnd_ = nullptr;
        return FALSE;
    }
    return alConfine(*dialogo, INT_PTR{FALSE},
                     [&] { return dialogo->messaggio(msg, wParam, lParam); });
}
