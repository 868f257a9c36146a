#include "support/utilita/koUtilitaFinestre.h"

#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <ole2.h>
#include <olectl.h>

#include <algorithm>

namespace {

void verificaFinestra(HWND hWnd) {
    if (!IsWindow(hWnd)) {
        solleva(errori::chiamataNonValida);
    }
}

RECT rettangolo(HWND hWnd) {
    RECT r{};
    if (!GetWindowRect(hWnd, &r)) {
        sollevaWin32();
    }
    return r;
}

RECT areaDiLavoro(HWND hWnd) {
    MONITORINFO schermo{};
    schermo.cbSize = sizeof(schermo);
    if (!GetMonitorInfoW(MonitorFromWindow(hWnd, MONITOR_DEFAULTTONEAREST), &schermo)) {
        sollevaWin32();
    }
    return schermo.rcWork;
}

void centra(HWND hWnd, const RECT& dentro, const RECT* limiti) {
    const RECT r = rettangolo(hWnd);
    const LONG larghezza = r.right - r.left;
    const LONG altezza = r.bottom - r.top;
    LONG x = dentro.left + (dentro.right - dentro.left - larghezza) / 2;
    LONG y = dentro.top + (dentro.bottom - dentro.top - altezza) / 2;
    if (limiti != nullptr) {
        // Where it does not fit, its title stays in sight.
        x = std::max(std::min(x, limiti->right - larghezza), limiti->left);
        y = std::max(std::min(y, limiti->bottom - altezza), limiti->top);
    }
    if (!SetWindowPos(hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE)) {
        sollevaWin32();
    }
}

// One of red, green and blue at row `y` of `altezza`.
BYTE tinta(BYTE base, int passoA, int passoB, LONG y, LONG altezza) noexcept {
    const LONG ultima = std::max<LONG>(altezza - 1, 1);
    const LONG passo = passoA + (passoB - passoA) * y / ultima;
    return static_cast<BYTE>(std::clamp<LONG>(base + passo, 0, 255));
}

} // namespace

bool koUtilitaFinestre::ShowFinestraConTitolo(const std::wstring& titolo) {
    const HWND finestra = titolo.empty() ? nullptr : FindWindowW(nullptr, titolo.c_str());
    if (finestra == nullptr) {
        return false;
    }
    ShowWindow(finestra, IsIconic(finestra) ? SW_RESTORE : SW_SHOW);
    SetForegroundWindow(finestra);
    return true;
}

void koUtilitaFinestre::CentraFormFiglio(HWND figlio, HWND padre) {
    verificaFinestra(figlio);
    verificaFinestra(padre);
    if (GetAncestor(figlio, GA_PARENT) == padre) {
        RECT dentro{};
        GetClientRect(padre, &dentro);
        centra(figlio, dentro, nullptr);
    } else {
        const RECT limiti = areaDiLavoro(padre);
        centra(figlio, rettangolo(padre), &limiti);
    }
}

void koUtilitaFinestre::CentraForm(HWND form) {
    verificaFinestra(form);
    const RECT area = areaDiLavoro(form);
    centra(form, area, &area);
}

void koUtilitaFinestre::FinetraTopMost(HWND hWnd, bool SempreInPrimoPiano) {
    verificaFinestra(hWnd);
    if (!SetWindowPos(hWnd, SempreInPrimoPiano ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                      SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE)) {
        sollevaWin32();
    }
}

void koUtilitaFinestre::SfumaForm(HWND form, std::uint32_t ColoreIniziale, int PassoA, int PassoB) {
    verificaFinestra(form);
    COLORREF colore = 0;
    if (FAILED(OleTranslateColor(ColoreIniziale, nullptr, &colore))) {
        solleva(errori::valoreProprieta);
    }
    // Beyond the whole range nothing changes, and the sums stay in theirs.
    const int a = std::clamp(PassoA, -255, 255);
    const int b = std::clamp(PassoB, -255, 255);
    const DcFinestra dc(form, DCX_CACHE | DCX_CLIPCHILDREN);
    RECT area{};
    if (!dc || !GetClientRect(form, &area)) {
        sollevaWin32();
    }
    for (LONG y = 0; y < area.bottom; ++y) {
        const RECT riga{0, y, area.right, y + 1};
        const Pennello pennello(
            CreateSolidBrush(RGB(tinta(GetRValue(colore), a, b, y, area.bottom),
                                 tinta(GetGValue(colore), a, b, y, area.bottom),
                                 tinta(GetBValue(colore), a, b, y, area.bottom))));
        FillRect(dc.get(), &riga, pennello.get());
    }
}

void koUtilitaFinestre::Evidenzia(HWND casella) {
    verificaFinestra(casella);
    SendMessageW(casella, EM_SETSEL, 0, -1);
}
