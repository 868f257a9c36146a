// The main window's parts: where they stand and how large they are.

#include "ui/main/FrmMain_win.h"

#include "res/risorse.h"
#include "support/windows/dpi_win.h"
#include "support/windows/errori_win.h"

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <array>

namespace {

// The size the window opens with, the least one, and its parts, in pixels at 96 dpi.
constexpr SIZE misuraIniziale{1000, 700};
constexpr SIZE misuraPiuPiccola{640, 480};
constexpr int larghezzaPicCmd = 124;
constexpr int altezzaPulsante = 26;
constexpr int larghezzaPannelloDimensioni = 110;

// Of the monitor on which most of the window is.
RECT areaDiLavoro(HWND finestra) noexcept {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(finestra, MONITOR_DEFAULTTOPRIMARY), &monitor);
    if ((monitor.dwFlags & MONITORINFOF_PRIMARY) != 0) {
        // What was set for this process counts too.
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &monitor.rcWork, 0);
    }
    return monitor.rcWork;
}

// Pixels at 96 dpi as the window's, no more than there is room for.
POINT scalata(HWND finestra, SIZE misura, const RECT& area) noexcept {
    const Dpi dpi = dpiDi(finestra);
    return {std::min<LONG>(dpi.x.daProgetto(misura.cx), area.right - area.left),
            std::min<LONG>(dpi.y.daProgetto(misura.cy), area.bottom - area.top)};
}

} // namespace

void FrmMain::posa() noexcept {
    const RECT area = areaDiLavoro(hwnd());
    const auto [larghezza, altezza] = scalata(hwnd(), misuraIniziale, area);
    SetWindowPos(hwnd(), nullptr, area.left + (area.right - area.left - larghezza) / 2,
                 area.top + (area.bottom - area.top - altezza) / 2, larghezza, altezza,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

POINT FrmMain::misuraMinima() const noexcept {
    return scalata(hwnd(), misuraPiuPiccola, areaDiLavoro(hwnd()));
}

void FrmMain::creaControlli() {
    KOInputNumerico::registraClasse();
    Toolbar1_.crea(hwnd(), IDC_TOOLBAR, dpiDi(hwnd()).y);
    campi_.crea(IDD_FRADATI, hwnd());
    griglia_.creaIn(hwnd(), IDC_GRIGLIA, L"Elementi", RECT{});
    striscia_.crea(hwnd());
    StatusBar1_ = CreateWindowExW(
        0, STATUSCLASSNAMEW, nullptr, WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0, hwnd(),
        reinterpret_cast<HMENU>(UINT_PTR{IDC_STATUSBAR}), GetModuleHandleW(nullptr), nullptr);
    if (StatusBar1_ == nullptr) {
        sollevaWin32();
    }
    adattaParti();
    // What is dropped on a control that takes no files comes to the window around it.
    DragAcceptFiles(hwnd(), TRUE);
}

void FrmMain::adattaParti() {
    const Dpi dpi = dpiDi(hwnd());
    const auto carattere = reinterpret_cast<HFONT>(SendMessageW(campi_.hwnd(), WM_GETFONT, 0, 0));
    striscia_.adatta(carattere, dpi.y.daProgetto(altezzaPulsante));
    caratteriDiSistema();
    avvisi_.prepara(hwnd(), carattere, dpi.y);
}

void FrmMain::caratteriDiSistema() {
    const LOGFONTW font = metriche(dpiDi(hwnd()).y).lfStatusFont;
    Carattere nuovo(CreateFontIndirectW(&font));
    for (const HWND finestra : {StatusBar1_, Toolbar1_.suggerimenti()}) {
        SendMessageW(finestra, WM_SETFONT, reinterpret_cast<WPARAM>(nuovo.get()), TRUE);
    }
    carattereStato_ = std::move(nuovo);
}

void FrmMain::cambiaDpi(Dpi dpi, const RECT& posto) {
    tieniDpi(hwnd(), dpi);
    const Carattere prima = campi_.adatta();
    Toolbar1_.figure(dpi.y);
    adattaParti();
    griglia_.aggiornaAspetto();
    SetWindowPos(hwnd(), nullptr, posto.left, posto.top, posto.right - posto.left,
                 posto.bottom - posto.top, SWP_NOZORDER | SWP_NOACTIVATE);
    // The window may have been that large already.
    SendMessageW(StatusBar1_, WM_SIZE, 0, 0);
    Form_Resize();
    RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

FrmMain::Misure FrmMain::misure() const noexcept {
    RECT interno{};
    RECT esterno{};
    GetClientRect(hwnd(), &interno);
    GetWindowRect(hwnd(), &esterno);
    return {{interno.right, interno.bottom},
            {esterno.right - esterno.left, esterno.bottom - esterno.top}};
}

void FrmMain::Form_Resize() {
    const Dpi dpi = dpiDi(hwnd());
    disposta_ = misure();
    const auto& [interne, esterne] = disposta_;
    RECT stato{};
    RECT griglia{};
    GetClientRect(griglia_.hwnd(), &griglia);
    GetClientRect(StatusBar1_, &stato);

    MisureFinestra misure{};
    misure.larghezzaInterna = dpi.x.twips(interne.cx);
    misure.altezzaInterna = dpi.y.twips(interne.cy);
    misure.altezzaStato = dpi.y.twips(stato.bottom + avvisi_.altezza());
    misure.altezzaGriglia = dpi.y.twips(griglia.bottom);
    misure.altoDati = dpi.y.twips(Toolbar1_.disponi()) + margineTwips;
    misure.larghezzaPicCmd = dpi.x.twips(dpi.x.daProgetto(larghezzaPicCmd));
    campi_.misura(misure, dpi);

    const Disposizione disposizione = DisponiControlli(misure);
    campi_.disponi(disposizione, dpi);
    const auto sposta = [&](HWND controllo, const std::optional<Riquadro>& r) {
        if (r) {
            SetWindowPos(controllo, nullptr, dpi.x.pixelTroncati(r->sinistra),
                         dpi.y.pixelTroncati(r->alto), dpi.x.pixelTroncati(r->larghezza),
                         dpi.y.pixelTroncati(r->altezza),
                         SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        }
    };
    sposta(griglia_.hwnd(), disposizione.griglia);
    sposta(striscia_.hwnd(), disposizione.picCmd);
    avvisi_.disponi(
        {0, interne.cy - stato.bottom - avvisi_.altezza(), interne.cx, avvisi_.altezza()});

    const std::array<int, 2> pannelli{
        static_cast<int>(interne.cx) - dpi.x.daProgetto(larghezzaPannelloDimensioni), -1};
    SendMessageW(StatusBar1_, SB_SETPARTS, pannelli.size(),
                 reinterpret_cast<LPARAM>(pannelli.data()));
    const std::wstring dimensioni =
        L"(" + std::to_wstring(esterne.cx) + L"," + std::to_wstring(esterne.cy) + L")";
    SendMessageW(StatusBar1_, SB_SETTEXTW, 1, reinterpret_cast<LPARAM>(dimensioni.c_str()));
}
