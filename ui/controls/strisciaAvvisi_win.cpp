#include "ui/controls/strisciaAvvisi_win.h"

#include "support/testi/testo.h"
#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"
#include "ui/controls/contrasto.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

constexpr const wchar_t* classe = L"OstrelleAvvisi";

// The strip's controls, in the order of Tab.
enum Controllo : std::uint16_t { testoAvviso = 101, primoPulsante, secondoPulsante, chiudiAvviso };
constexpr std::array pulsanti{primoPulsante, secondoPulsante, chiudiAvviso};
constexpr std::array pulsantiAzione{primoPulsante, secondoPulsante};

// It shows a cross; this is its name.
constexpr const wchar_t* didascaliaChiudi = L"Chiudi avviso";

// In pixels at 96 dpi: around each control, around the text of a button, its least width, the side
// of the cross and how thick it is.
constexpr int margine = 4;
constexpr int attornoY = 5;
constexpr int attornoX = 12;
constexpr int larghezzaMinima = 75;
constexpr int latoCroce = 9;
constexpr double spessoreCroce = 1.5;

// Indices of system colours.
struct Colori {
    int sfondo;
    int testo;
};

// Those of a notice, where they let it be read.
Colori colori() noexcept {
    return siLegge(GetSysColor(COLOR_INFOTEXT), GetSysColor(COLOR_INFOBK))
               ? Colori{COLOR_INFOBK, COLOR_INFOTEXT}
               : Colori{COLOR_WINDOW, COLOR_WINDOWTEXT};
}

} // namespace

void StrisciaAvvisi::prepara(HWND padre, HFONT carattere, Risoluzione dpi) {
    padre_ = padre;
    carattere_ = carattere;
    dpi_ = dpi;
    misura();
    if (hwnd() != nullptr) {
        for (HWND c = GetWindow(hwnd(), GW_CHILD); c != nullptr; c = GetWindow(c, GW_HWNDNEXT)) {
            SendMessageW(c, WM_SETFONT, reinterpret_cast<WPARAM>(carattere), FALSE);
        }
        suggerimenti_.adatta();
        aggiornaAspetto();
    }
    aggiorna();
}

void StrisciaAvvisi::avvisa(Avviso avviso) {
    coda_.metti(std::move(avviso));
    aggiorna();
}

void StrisciaAvvisi::ritira(std::wstring_view argomento) {
    coda_.ritira(argomento);
    aggiorna();
}

void StrisciaAvvisi::aggiorna() {
    if (coda_.numero() == mostrato_ || !IsWindow(padre_)) {
        return;
    }
    try {
        const bool altra = inVista() != (coda_.numero() != 0);
        if (hwnd() == nullptr) {
            WNDCLASSEXW descrizione{};
            descrizione.lpszClassName = classe;
            descrizione.style = CS_HREDRAW | CS_VREDRAW;
            registra(descrizione);
            crea(classe, L"", WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, WS_EX_CONTROLPARENT,
                 RECT{}, padre_);
        }
        rendiFuoco();
        mostrato_ = coda_.numero();
        if (inVista()) {
            riempi();
        } else {
            ShowWindow(hwnd(), SW_HIDE);
        }
        if (altra) {
            osservatore_.avvisiCambiati();
        }
        if (inVista()) {
            ShowWindow(hwnd(), SW_SHOWNA);
            NotifyWinEvent(EVENT_SYSTEM_ALERT, hwnd(), OBJID_CLIENT, CHILDID_SELF);
        }
    } catch (...) {
        osservatore_.onEccezione();
    }
}

void StrisciaAvvisi::creaControlli() {
    const auto crea = [this](const wchar_t* tipo, const wchar_t* testo, DWORD stile, Controllo id) {
        const HWND fatto = CreateWindowExW(0, tipo, testo, WS_CHILD | stile, 0, 0, 0, 0, hwnd(),
                                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                                           GetModuleHandleW(nullptr), nullptr);
        if (fatto == nullptr) {
            sollevaWin32();
        }
        SendMessageW(fatto, WM_SETFONT, reinterpret_cast<WPARAM>(carattere_), FALSE);
        return fatto;
    };
    crea(L"STATIC", L"", WS_VISIBLE | SS_ENDELLIPSIS | SS_NOTIFY, testoAvviso);
    for (std::size_t i = 0; i < pulsanti.size(); ++i) {
        const bool chiude = pulsanti[i] == chiudiAvviso;
        const HWND pulsante =
            crea(L"BUTTON", chiude ? didascaliaChiudi : L"",
                 WS_TABSTOP | BS_PUSHBUTTON | (chiude ? WS_VISIBLE | BS_ICON : 0), pulsanti[i]);
        sottoclassi_[i] = Sottoclasse(pulsante, *this);
    }
    suggerimenti_.testo(controllo(chiudiAvviso), didascaliaChiudi);
    aggiornaAspetto();
}

void StrisciaAvvisi::riempi() {
    const Avviso& avviso = coda_.primo();
    // Assistive programs take a mark of a mnemonic away from a name, whatever the label shows.
    const std::wstring nome = sostituisci(avviso.testo, L"&", L"&&");
    // The strip bears the text too: it is told with the button that gets the focus.
    SetWindowTextW(hwnd(), nome.c_str());
    SetWindowTextW(controllo(testoAvviso), nome.c_str());
    for (std::size_t i = 0; i < pulsantiAzione.size(); ++i) {
        const std::wstring& didascalia = avviso.pulsanti[i].didascalia;
        const HWND pulsante = controllo(pulsantiAzione[i]);
        SetWindowTextW(pulsante, didascalia.c_str());
        ShowWindow(pulsante, didascalia.empty() ? SW_HIDE : SW_SHOWNA);
    }
    disponiControlli();
}

void StrisciaAvvisi::premuto(int id) {
    if (!inVista()) {
        return;
    }
    if (id == chiudiAvviso) {
        chiudi();
        return;
    }
    const auto* const quale = std::ranges::find(pulsantiAzione, id);
    if (quale == pulsantiAzione.end()) {
        return;
    }
    const auto posto = static_cast<std::size_t>(quale - pulsantiAzione.begin());
    // A copy: it may take its own notice away.
    osservatore_.avvisoAzione(
        [this, numero = mostrato_, azione = coda_.primo().pulsanti.at(posto).azione] {
            if (!azione || azione()) {
                coda_.togli(numero);
                aggiorna();
            }
        });
}

void StrisciaAvvisi::chiudi() {
    osservatore_.avvisoAzione([this, numero = mostrato_, chiuso = coda_.primo().chiuso] {
        coda_.togli(numero);
        aggiorna();
        if (chiuso) {
            chiuso();
        }
    });
}

LRESULT StrisciaAvvisi::messaggio(UINT codice, WPARAM w, LPARAM l) {
    switch (codice) {
    case WM_CREATE:
        creaControlli();
        return 0;
    case WM_SIZE:
        disponiControlli();
        return 0;
    case WM_COMMAND:
        if (HIWORD(w) == BN_CLICKED) {
            premuto(LOWORD(w));
        }
        return 0;
    case WM_ERASEBKGND:
        dipingi(reinterpret_cast<HDC>(w));
        return 1;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: {
        const auto [sfondo, testo] = colori();
        SetTextColor(reinterpret_cast<HDC>(w), GetSysColor(testo));
        SetBkColor(reinterpret_cast<HDC>(w), GetSysColor(sfondo));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(sfondo));
    }
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
        aggiornaAspetto();
        return 0;
    case WM_DESTROY:
        sottoclassi_ = {};
        padre_ = nullptr;
        mostrato_ = 0;
        return 0;
    default:
        return predefinito(codice, w, l);
    }
}

LRESULT StrisciaAvvisi::messaggioDi(HWND pulsante, UINT codice, WPARAM w, LPARAM l) {
    switch (codice) {
    case WM_SETFOCUS: {
        const HWND da = reinterpret_cast<HWND>(w);
        if (IsChild(padre_, da) && !IsChild(hwnd(), da)) {
            prima_ = da;
        }
        break;
    }
    case WM_LBUTTONDOWN:
        premuto_ = mostrato_;
        break;
    case WM_LBUTTONDBLCLK:
        // The second half of a double click whose first half brought another notice.
        if (premuto_ != mostrato_) {
            return 0;
        }
        break;
    default:
        break;
    }
    return DefSubclassProc(pulsante, codice, w, l);
}

bool StrisciaAvvisi::anticipa(const MSG& messaggio) {
    if (!inVista() || messaggio.message != WM_KEYDOWN) {
        return false;
    }
    if (messaggio.wParam == VK_F6 && GetKeyState(VK_CONTROL) >= 0) {
        // A key held down goes there once.
        if ((HIWORD(messaggio.lParam) & KF_REPEAT) == 0) {
            if (haFuoco()) {
                rendiFuoco();
            } else {
                SetFocus(GetNextDlgTabItem(hwnd(), nullptr, FALSE));
            }
        }
        return true;
    }
    if (messaggio.wParam == VK_ESCAPE && haFuoco()) {
        chiudi();
        return true;
    }
    return false;
}

bool StrisciaAvvisi::haFuoco() const noexcept {
    return hwnd() != nullptr && IsChild(hwnd(), GetFocus());
}

void StrisciaAvvisi::rendiFuoco() const noexcept {
    if (haFuoco()) {
        SetFocus(IsChild(padre_, prima_) && IsWindowVisible(prima_) ? prima_ : padre_);
    }
}

void StrisciaAvvisi::disponi(const RECT& posto) noexcept {
    if (hwnd() != nullptr) {
        SetWindowPos(hwnd(), nullptr, posto.left, posto.top, posto.right, posto.bottom,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
}

SIZE StrisciaAvvisi::estensione(const std::wstring& testo) const noexcept {
    SIZE misura{};
    const DcFinestra dc(padre_);
    const Selezione carattere(dc.get(), carattere_);
    GetTextExtentPoint32W(dc.get(), testo.c_str(), static_cast<int>(testo.size()), &misura);
    return misura;
}

void StrisciaAvvisi::misura() noexcept {
    altezzaTesto_ = estensione(L"X").cy;
    // The line above it, then a button between two margins.
    altezza_ = scala(1) + altezzaTesto_ + 2 * scala(attornoY) + 2 * scala(margine);
}

void StrisciaAvvisi::disponiControlli() {
    if (!inVista()) {
        return;
    }
    constexpr UINT fermo = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
    RECT interno{};
    GetClientRect(hwnd(), &interno);
    const Avviso& avviso = coda_.primo();
    const int alto = scala(1) + scala(margine);
    const int altezzaPulsante = altezzaTesto_ + 2 * scala(attornoY);
    int destra = interno.right;
    const auto posa = [&](Controllo id, int larghezza) {
        destra -= larghezza + scala(margine);
        SetWindowPos(controllo(id), nullptr, destra, alto, larghezza, altezzaPulsante, fermo);
    };
    posa(chiudiAvviso, altezzaPulsante);
    for (std::size_t i = pulsantiAzione.size(); i-- > 0;) {
        if (const std::wstring& didascalia = avviso.pulsanti[i].didascalia; !didascalia.empty()) {
            posa(pulsantiAzione[i], std::max<int>(estensione(didascalia).cx + 2 * scala(attornoX),
                                                  scala(larghezzaMinima)));
        }
    }
    const int sinistra = 2 * scala(margine);
    const int larghezza = std::max(0, destra - scala(margine) - sinistra);
    SetWindowPos(controllo(testoAvviso), nullptr, sinistra, alto + scala(attornoY), larghezza,
                 altezzaTesto_, fermo);
    suggerimenti_.testo(controllo(testoAvviso),
                        estensione(avviso.testo).cx > larghezza ? avviso.testo.c_str() : L"",
                        interno.right);
}

void StrisciaAvvisi::dipingi(HDC dc) const noexcept {
    RECT r{};
    GetClientRect(hwnd(), &r);
    FillRect(dc, &r, GetSysColorBrush(colori().sfondo));
    r.bottom = scala(1);
    FillRect(dc, &r, GetSysColorBrush(COLOR_BTNSHADOW));
}

void StrisciaAvvisi::aggiornaAspetto() {
    if (hwnd() == nullptr) {
        return;
    }
    const HWND chiudi = controllo(chiudiAvviso);
    ManigliaIcona croce = creaCroce(chiudi, scala(latoCroce) | 1, spessoreCroce * dpi_.dpi / 96);
    SendMessageW(chiudi, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(croce.get()));
    croce_ = std::move(croce);
    disponiControlli();
    RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
