#include "ui/controls/KOInputNumerico_win.h"

#include "support/utilita/koUtilitaNumeri.h"
#include "support/windows/dpi_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/guardia_win.h"

#include <commctrl.h>
#include <windowsx.h>

namespace {

constexpr int idTesto = 1;
constexpr int idPulsanti = 2;
constexpr int idEtichetta = 3;

HWND creaParte(DWORD stileEsteso, const wchar_t* classeParte, DWORD stile, HWND padre, int id) {
    const HWND parte = CreateWindowExW(stileEsteso, classeParte, L"", WS_CHILD | stile, 0, 0, 0, 0,
                                       padre, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                       GetModuleHandleW(nullptr), nullptr);
    if (parte == nullptr) {
        sollevaWin32();
    }
    return parte;
}

constexpr bool diSistema(std::uint32_t colore) noexcept {
    return (colore & 0x80000000U) != 0;
}

COLORREF aColorRef(std::uint32_t colore) noexcept {
    return diSistema(colore) ? GetSysColor(static_cast<int>(colore & 0xFFU)) : colore & 0xFFFFFFU;
}

bool premuto(int tasto) noexcept {
    return GetKeyState(tasto) < 0;
}

} // namespace

void KOInputNumerico::registraClasse() {
    WNDCLASSEXW descrizione{};
    descrizione.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    registraPropria<KOInputNumerico>(descrizione);
}

// The label comes first: what reads a screen takes the STATIC before a box as its name, seen or
// not, and the container's own stands outside. The other parts bear it as their window text.
void KOInputNumerico::creaParti() {
    etichetta_ = creaParte(0, WC_STATICW, 0, hwnd(), idEtichetta);
    txtnumero_ = creaParte(WS_EX_CLIENTEDGE, WC_EDITW, WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,
                           hwnd(), idTesto);
    UPNum_ = creaParte(0, UPDOWN_CLASSW, WS_VISIBLE, hwnd(), idPulsanti);
    // Only the direction of a click counts: always room on both sides, always by one.
    SendMessageW(UPNum_, UDM_SETRANGE32, 0, 2);
    SendMessageW(UPNum_, UDM_SETPOS32, 0, 1);
    UDACCEL passo{0, 1};
    SendMessageW(UPNum_, UDM_SETACCEL, 1, reinterpret_cast<LPARAM>(&passo));
    campo_ = CampoTesto(txtnumero_);
    Font(GetWindowFont(GetParent(hwnd())));
    Valore(0);
    aggiornaEtichetta();
}

void KOInputNumerico::aggiornaEtichetta() {
    const HWND prima = GetWindow(hwnd(), GW_HWNDPREV);
    if (prima == nullptr || (SendMessageW(prima, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) == 0) {
        return;
    }
    const std::wstring nome = testoFinestra(prima);
    if (nome != testoFinestra(etichetta_)) {
        for (const HWND parte : {etichetta_, UPNum_, hwnd()}) {
            SetWindowTextW(parte, nome.c_str());
        }
    }
}

void KOInputNumerico::disponi() noexcept {
    RECT interno{};
    RECT casella{};
    GetClientRect(hwnd(), &interno);
    GetWindowRect(txtnumero_, &casella);
    const int larghezzaPulsanti = metrica(SM_CXVSCROLL, dpiDi(hwnd()).x);
    int larghezza = casella.right - casella.left;
    if (interno.right - larghezzaPulsanti > 0) {
        larghezza = interno.right - larghezzaPulsanti;
    }
    SetWindowPos(txtnumero_, nullptr, 0, 0, larghezza, interno.bottom,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(UPNum_, nullptr, larghezza, 0, larghezzaPulsanti, interno.bottom,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void KOInputNumerico::selezionaTutto() noexcept {
    Edit_SetSel(txtnumero_, 0, -1);
}

double KOInputNumerico::Valore() const {
    return ValoreNumerico::leggi(campo_.testo(), formatoUtente());
}

void KOInputNumerico::Valore(double valore) {
    const Trattenuta trattenuta(*this);
    // In use, the new number is there to be typed over.
    if (assegna(valore) && GetFocus() == txtnumero_) {
        selezionaTutto();
    }
}

bool KOInputNumerico::assegna(double valore) {
    const bool cambiato = impostaTesto(regole_.scrivi(valore, formatoUtente()));
    notifica(L"Valore");
    return cambiato;
}

bool KOInputNumerico::impostaTesto(std::wstring_view testo) {
    if (!campo_.testo(testo)) {
        return false;
    }
    cambioValore();
    return true;
}

void KOInputNumerico::cambioValore() {
    if (eventi_ != nullptr) {
        eventi_->CambioValore(*this, Valore());
    }
}

void KOInputNumerico::notifica(std::wstring_view nome) {
    if (eventi_ != nullptr) {
        eventi_->ProprietaCambiata(*this, nome);
    }
}

void KOInputNumerico::MassimoSuperato(double vmassimo) {
    if (eventi_ != nullptr) {
        eventi_->MassimoSuperato(*this, vmassimo);
    }
}

void KOInputNumerico::MinimoSuperato(double vminimo) {
    if (eventi_ != nullptr) {
        eventi_->MinimoSuperato(*this, vminimo);
    }
}

void KOInputNumerico::onEccezione() noexcept {
    if (eventi_ != nullptr) {
        eventi_->onEccezione();
    } else {
        MessageBeep(MB_ICONHAND);
    }
}

void KOInputNumerico::lascia() {
    // A handler's message box takes the focus away once more.
    if (uscendo_ || hwnd() == nullptr) {
        return;
    }
    const Trattenuta trattenuta(*this);
    const Alzata uscendo(uscendo_);
    const auto valore = regole_.esci(campo_.testo(), formatoUtente(), *this);
    if (valore && hwnd() != nullptr) {
        // On demand the box stays in use: the caret stands where it stood.
        const auto [inizio, fine] = selezione();
        if (assegna(*valore) && GetFocus() == txtnumero_) {
            Edit_SetSel(txtnumero_, inizio, fine);
        }
    }
}

void KOInputNumerico::lasciaQuelloColFuoco() {
    if (auto* const controllo = da<KOInputNumerico>(GetParent(GetFocus()))) {
        controllo->lascia();
    }
}

void KOInputNumerico::scatta(Verso verso) {
    if (Locked()) {
        return;
    }
    const Trattenuta trattenuta(*this);
    Valore(regole_.scatta(campo_.testo(), verso, formatoUtente()));
    if (hwnd() != nullptr) {
        SetFocus(txtnumero_);
        selezionaTutto();
    }
}

// Fine wheels turn by less than a notch: what is left over counts on.
void KOInputNumerico::gira(int delta) {
    const Trattenuta trattenuta(*this);
    resto_ += delta;
    while (resto_ >= WHEEL_DELTA && hwnd() != nullptr) {
        resto_ -= WHEEL_DELTA;
        scatta(Verso::Su);
    }
    while (resto_ <= -WHEEL_DELTA && hwnd() != nullptr) {
        resto_ += WHEEL_DELTA;
        scatta(Verso::Giu);
    }
}

// The characters that these keys make are swallowed by the filter like any control character.
bool KOInputNumerico::tastoGiu(WPARAM tasto) {
    const bool controllo = premuto(VK_CONTROL);
    if (premuto(VK_MENU)) {
        return false;
    }
    switch (tasto) {
    case VK_UP:
    case VK_DOWN:
        scatta(tasto == VK_UP ? Verso::Su : Verso::Giu);
        return true;
    case L'C':
    case L'V':
    case L'X':
    case L'Z':
        break;
    default:
        return false;
    }
    if (!controllo) {
        return false;
    }
    const UINT comando = tasto == L'C'   ? WM_COPY
                         : tasto == L'V' ? WM_PASTE
                         : tasto == L'X' ? WM_CUT
                                         : WM_UNDO;
    SendMessageW(txtnumero_, comando, 0, 0);
    return true;
}

std::pair<DWORD, DWORD> KOInputNumerico::selezione() const noexcept {
    DWORD inizio = 0;
    DWORD fine = 0;
    SendMessageW(txtnumero_, EM_GETSEL, reinterpret_cast<WPARAM>(&inizio),
                 reinterpret_cast<LPARAM>(&fine));
    return {inizio, fine};
}

wchar_t KOInputNumerico::filtra(wchar_t tasto) const {
    const auto [inizio, fine] = selezione();
    return regole_.filtra(
        tasto, campo_.testo(), fine - inizio,
        {koUtilitaNumeri::GetSeparatoreDecimale(), koUtilitaNumeri::GetSeparatoreMigliaia()},
        formatoUtente());
}

LRESULT KOInputNumerico::colori(HDC dc) const noexcept {
    SetTextColor(dc, aColorRef(coloreTesto_));
    SetBkColor(dc, aColorRef(coloreSfondo_));
    // A system brush: nobody's to delete.
    return reinterpret_cast<LRESULT>(GetSysColorBrush(static_cast<int>(coloreSfondo_ & 0xFFU)));
}

LRESULT KOInputNumerico::messaggioDi(HWND finestra, UINT codice, WPARAM w, LPARAM l) {
    const Trattenuta trattenuta(*this);
    switch (codice) {
    case WM_CHAR:
        w = filtra(static_cast<wchar_t>(w));
        if (w == 0) {
            return 0;
        }
        break;
    case WM_KEYDOWN:
        if (tastoGiu(w)) {
            return 0;
        }
        break;
    case WM_MOUSEWHEEL:
        // Over a box that is not in use the wheel scrolls what it would scroll without it.
        if (GetFocus() == finestra) {
            gira(GET_WHEEL_DELTA_WPARAM(w));
            return 0;
        }
        break;
    default:
        break;
    }
    return DefSubclassProc(finestra, codice, w, l);
}

LRESULT KOInputNumerico::messaggio(UINT codice, WPARAM w, LPARAM l) {
    switch (codice) {
    case WM_NCCREATE:
        // Tab goes to the box inside.
        SetWindowLongPtrW(hwnd(), GWL_EXSTYLE,
                          GetWindowLongPtrW(hwnd(), GWL_EXSTYLE) | WS_EX_CONTROLPARENT);
        break;
    case WM_CREATE:
        creaParti();
        return 0;
    case WM_SIZE:
        disponi();
        return 0;
    case WM_SETFOCUS:
        SetFocus(txtnumero_);
        return 0;
    case WM_SETFONT:
        Font(reinterpret_cast<HFONT>(w));
        aggiornaEtichetta();
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(Font());
    case WM_ENABLE:
        Enabled(w != FALSE);
        return 0;
    case WM_SHOWWINDOW:
        aggiornaEtichetta();
        break;
    case WM_COMMAND:
        if (LOWORD(w) != idTesto) {
            break;
        }
        if (HIWORD(w) == EN_SETFOCUS) {
            // Keys and wheel are the box's while it has the focus; before, every message would be
            // looked at for nothing.
            if (!tasti_) {
                tasti_ = Sottoclasse(txtnumero_, *this);
            }
            aggiornaEtichetta();
            selezionaTutto();
        } else if (HIWORD(w) == EN_KILLFOCUS) {
            lascia();
        } else if (HIWORD(w) == EN_CHANGE && campo_.cambiato()) {
            cambioValore();
        }
        return 0;
    case WM_NOTIFY:
        if (const auto* const avviso = reinterpret_cast<const NMUPDOWN*>(l);
            avviso->hdr.idFrom == idPulsanti &&
            avviso->hdr.code == static_cast<UINT>(UDN_DELTAPOS)) {
            scatta(avviso->iDelta > 0 ? Verso::Su : Verso::Giu);
            // The button's own position stays in the middle.
            return TRUE;
        }
        break;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        return colori(reinterpret_cast<HDC>(w));
    default:
        break;
    }
    return predefinito(codice, w, l);
}
