#include "ui/main/strisciaComandi_win.h"

#include "support/windows/errori_win.h"
#include "ui/main/comandi.h"

#include <algorithm>
#include <array>

namespace {

constexpr const wchar_t* classe = L"OstrellePicCmd";

struct Pulsante {
    Comando comando;
    const wchar_t* didascalia;
};

// From top to bottom: cmdAggiungi, cmdModifica, cmdCancella.
constexpr std::array pulsanti{
    Pulsante{mnaddFeed, L"Aggiungi Feed"},
    Pulsante{mnEditFeed, L"Modifica Feed"},
    Pulsante{mnDelFeed, L"Cancella Feed"},
};

} // namespace

void StrisciaComandi::crea(HWND padre, HFONT carattere) {
    WNDCLASSEXW descrizione{};
    descrizione.lpszClassName = classe;
    descrizione.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    descrizione.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    registra(descrizione);
    Finestra::crea(classe, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT,
                   RECT{}, padre);

    for (const Pulsante& p : pulsanti) {
        const HWND pulsante =
            CreateWindowExW(0, L"BUTTON", p.didascalia, WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0,
                            0, hwnd(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(p.comando)),
                            GetModuleHandleW(nullptr), nullptr);
        if (pulsante == nullptr) {
            sollevaWin32();
        }
        SendMessageW(pulsante, WM_SETFONT, reinterpret_cast<WPARAM>(carattere), FALSE);
    }
}

LRESULT StrisciaComandi::messaggio(UINT codice, WPARAM w, LPARAM l) {
    if (codice == WM_COMMAND) {
        return SendMessageW(GetParent(hwnd()), codice, w, l);
    }
    if (codice == WM_SIZE) {
        int alto = 0;
        for (const Pulsante& p : pulsanti) {
            SetWindowPos(GetDlgItem(hwnd(), p.comando), nullptr, 0, alto, LOWORD(l),
                         altezzaPulsante_, SWP_NOZORDER | SWP_NOACTIVATE);
            alto += altezzaPulsante_;
        }
        return 0;
    }
    return predefinito(codice, w, l);
}
