#include "ui/main/strisciaComandi_win.h"

#include "res/risorse.h"
#include "support/windows/errori_win.h"
#include "ui/main/comandi.h"

#include <string>

namespace {

constexpr const wchar_t* classe = L"OstrellePicCmd";

} // namespace

void StrisciaComandi::crea(HWND padre) {
    WNDCLASSEXW descrizione{};
    descrizione.lpszClassName = classe;
    descrizione.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    registra(descrizione);
    // The window text is its accessible name: it shows nowhere.
    Finestra::crea(classe, L"Comandi", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT,
                   RECT{}, padre, reinterpret_cast<HMENU>(UINT_PTR{IDC_PICCMD}));

    for (const RigaComando& riga : comandi()) {
        if (riga.striscia.id == 0) {
            continue;
        }
        const HWND pulsante =
            CreateWindowExW(0, L"BUTTON", std::wstring(riga.striscia.didascalia).c_str(),
                            WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0, 0, hwnd(),
                            reinterpret_cast<HMENU>(UINT_PTR{riga.striscia.id}),
                            GetModuleHandleW(nullptr), nullptr);
        if (pulsante == nullptr) {
            sollevaWin32();
        }
        pulsanti_.push_back(pulsante);
    }
}

void StrisciaComandi::adatta(HFONT carattere, int altezzaPulsante) noexcept {
    altezzaPulsante_ = altezzaPulsante;
    for (const HWND pulsante : pulsanti_) {
        SendMessageW(pulsante, WM_SETFONT, reinterpret_cast<WPARAM>(carattere), FALSE);
    }
}

void StrisciaComandi::disponi() noexcept {
    RECT r{};
    GetClientRect(hwnd(), &r);
    int alto = 0;
    for (const HWND pulsante : pulsanti_) {
        SetWindowPos(pulsante, nullptr, 0, alto, r.right, altezzaPulsante_,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        alto += altezzaPulsante_;
    }
}

LRESULT StrisciaComandi::messaggio(UINT codice, WPARAM w, LPARAM l) {
    if (codice == WM_COMMAND) {
        return SendMessageW(GetParent(hwnd()), codice, w, l);
    }
    if (codice == WM_SIZE) {
        disponi();
        return 0;
    }
    return predefinito(codice, w, l);
}
