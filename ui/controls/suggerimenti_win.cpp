#include "ui/controls/suggerimenti_win.h"

#include "support/windows/dpi_win.h"

#include <commctrl.h>

#include <string>
#include <utility>

void Suggerimenti::testo(HWND controllo, const wchar_t* testo, int larghezza) {
    const HWND padre = GetParent(controllo);
    if (finestra_ == nullptr) {
        finestra_ =
            CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                            0, 0, 0, padre, nullptr, GetModuleHandleW(nullptr), nullptr);
        adatta();
    }
    std::wstring modificabile(testo);
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    info.hwnd = padre;
    info.uId = reinterpret_cast<UINT_PTR>(controllo);
    info.lpszText = modificabile.data();
    SendMessageW(finestra_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
    if (!modificabile.empty()) {
        SendMessageW(finestra_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
        if (larghezza > 0) {
            SendMessageW(finestra_, TTM_SETMAXTIPWIDTH, 0, larghezza);
        }
    }
}

void Suggerimenti::adatta() {
    if (finestra_ == nullptr) {
        return;
    }
    const LOGFONTW font = metriche(dpiDi(GetWindow(finestra_, GW_OWNER)).y).lfStatusFont;
    Carattere nuovo(CreateFontIndirectW(&font));
    SendMessageW(finestra_, WM_SETFONT, reinterpret_cast<WPARAM>(nuovo.get()), FALSE);
    carattere_ = std::move(nuovo);
}
