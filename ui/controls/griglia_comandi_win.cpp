// The grid's mouse and keys.

#include "ui/controls/griglia_win.h"

#include "support/windows/gdi_win.h"
#include "support/windows/guardia_win.h"

#include <windowsx.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace {

POINT puntoDi(LPARAM l) noexcept {
    return {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
}

POINT sulloSchermo(HWND hwnd, POINT punto) noexcept {
    ClientToScreen(hwnd, &punto);
    return punto;
}

bool premuto(int tasto) noexcept {
    return GetKeyState(tasto) < 0;
}

// The left button, as the user knows it: the physical one is the right button of the left-handed.
bool sinistroGiu() noexcept {
    return premuto(VK_LBUTTON);
}

} // namespace

LRESULT Griglia::inoltra(UINT codice, WPARAM w, LPARAM l) const noexcept {
    return DefSubclassProc(lista_, codice, w, l);
}

LRESULT Griglia::messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) {
    return hwnd == lista_ ? messaggioLista(codice, w, l) : messaggioTestata(codice, w, l);
}

LRESULT Griglia::messaggioLista(UINT codice, WPARAM w, LPARAM l) {
    suggerisci(codice, w, l);
    switch (codice) {
    case WM_NCCALCSIZE: {
        // The index column lies beyond the right edge, and no scroll bar leads there.
        const LONG_PTR stile = GetWindowLongPtrW(lista_, GWL_STYLE);
        if ((stile & WS_HSCROLL) != 0) {
            SetWindowLongPtrW(lista_, GWL_STYLE, stile & ~WS_HSCROLL);
        }
        return inoltra(codice, w, l);
    }
    case WM_HSCROLL:
    case WM_MOUSEHWHEEL:
        return 0;
    case WM_NOTIFY:
        switch (reinterpret_cast<const NMHDR*>(l)->code) {
        case HDN_BEGINTRACKA:
        case HDN_BEGINTRACKW:
            return TRUE;
        case HDN_DIVIDERDBLCLICKA:
        case HDN_DIVIDERDBLCLICKW:
            return 0;
        case TTN_GETDISPINFOW:
            suggerimento(*reinterpret_cast<NMTTDISPINFOW*>(l));
            return 0;
        default:
            return inoltra(codice, w, l);
        }
    case WM_LBUTTONDOWN:
        premi(puntoDi(l));
        return 0;
    case WM_LBUTTONDBLCLK: {
        const int riga = rigaA(puntoDi(l).y);
        abbandona();
        prendiFuoco();
        seleziona(riga);
        osservatore_.grigliaDoppioClic(std::max(riga, 0));
        return 0;
    }
    case WM_MOUSEMOVE:
        if (premuto_) {
            muovi(puntoDi(l));
            return 0;
        }
        return inoltra(codice, w, l);
    case WM_LBUTTONUP:
        lascia();
        return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK: {
        const int riga = rigaA(puntoDi(l).y);
        abbandona();
        prendiFuoco();
        seleziona(riga);
        return 0;
    }
    case WM_RBUTTONUP:
        osservatore_.grigliaMenu(sulloSchermo(lista_, puntoDi(l)),
                                 std::max(rigaA(puntoDi(l).y), 0));
        return 0;
    case WM_CONTEXTMENU:
        if (l == -1) {
            menuDaTastiera();
        } else {
            osservatore_.grigliaMenu(puntoDi(l), rigaCorrente_);
        }
        return 0;
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
    case WM_KILLFOCUS:
        abbandona();
        return inoltra(codice, w, l);
    case WM_MOUSEWHEEL: {
        if ((LOWORD(w) & MK_SHIFT) != 0) {
            return 0;
        }
        const LRESULT esito = inoltra(codice, w, l);
        if (premuto_) {
            segui(ultimo_);
        }
        return esito;
    }
    case WM_GETDLGCODE: {
        const LRESULT esito = inoltra(codice, w, l);
        return premuto_ ? esito | DLGC_WANTALLKEYS : esito;
    }
    case WM_KEYDOWN:
        return tasto(codice, w, l);
    case WM_CHAR:
        return premuto_ ? 0 : inoltraTasto(codice, w, l, false);
    default:
        return inoltra(codice, w, l);
    }
}

LRESULT Griglia::messaggioTestata(UINT codice, WPARAM w, LPARAM l) {
    switch (codice) {
    case WM_LBUTTONDOWN:
        abbandona();
        prendiFuoco();
        return 0;
    case WM_LBUTTONDBLCLK:
        osservatore_.grigliaDoppioClic(0);
        return 0;
    case WM_RBUTTONDOWN:
        abbandona();
        prendiFuoco();
        return 0;
    case WM_RBUTTONUP:
        osservatore_.grigliaMenu(sulloSchermo(testata_, puntoDi(l)), 0);
        return 0;
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
        return TRUE;
    default:
        return DefSubclassProc(testata_, codice, w, l);
    }
}

void Griglia::prendiFuoco() const noexcept {
    if (GetFocus() != lista_) {
        SetFocus(lista_);
    }
}

void Griglia::premi(POINT punto) {
    const int riga = rigaA(punto.y);
    abbandona();
    // The control that loses the focus may show a box, and the button is up when it is gone.
    prendiFuoco();
    seleziona(riga);
    if (riga < 1 || GetFocus() != lista_ || !sinistroGiu()) {
        return;
    }
    SetCapture(lista_);
    premuto_ = true;
    partenza_ = {riga, rigaInCima()};
    pressione_ = punto;
    ultimo_ = punto;
    POINT nella = punto;
    MapWindowPoints(lista_, hwnd(), &nella, 1);
    if (iniziaTrascinamento(area(), nella.x, nella.y)) {
        trascinamento_.premi(ElementoSelezionato());
        puntatori_.mostra(trascinamento_.puntatore());
    }
}

void Griglia::muovi(POINT punto) {
    // Windows repeats the last move when something under the pointer changes.
    if (punto.x == ultimo_.x && punto.y == ultimo_.y) {
        return;
    }
    if (!sinistroGiu()) {
        abbandona();
        return;
    }
    ultimo_ = punto;
    POINT nella = punto;
    MapWindowPoints(lista_, hwnd(), &nella, 1);
    const int spostamento = nella.y - punto.y;
    if (const int passo = passoScorrimento(area(), nella.y, pressione_.y + spostamento)) {
        ListView_Scroll(lista_, 0, passo * altezzaRiga());
    }
    segui(punto);
}

void Griglia::segui(POINT punto) {
    seleziona(rigaVicina(punto.y));
    trascinamento_.segui(ElementoSelezionato());
    if (trascinamento_.attivo()) {
        puntatori_.mostra(trascinamento_.puntatore());
    }
}

void Griglia::lascia() {
    const bool premutaQui = premuto_;
    Trascinamento::Esito esito;
    if (trascinamento_.attivo()) {
        esito = trascinamento_.rilascia(ElementoSelezionato());
        puntatori_.mostra(trascinamento_.puntatore());
    }
    abbandona();
    if (!premutaQui) {
        return;
    }
    if (esito.sposta) {
        const int cima = rigaInCima();
        osservatore_.grigliaSposta(esito.da, esito.a);
        rigaInCima(cima);
    }
    seleziona(esito.a >= 0 ? esito.a + 1 : rigaCorrente_);
}

void Griglia::abbandona() noexcept {
    const bool attivo = trascinamento_.attivo();
    trascinamento_.abbandona();
    if (std::exchange(premuto_, false) && GetCapture() == lista_) {
        ReleaseCapture();
    }
    if (attivo) {
        puntatori_.mostra(Puntatore::Predefinito);
    }
}

void Griglia::menuDaTastiera() {
    POINT punto{altezzaTestata(), altezzaTestata()};
    RECT r{};
    if (visibile(rigaCorrente_) &&
        ListView_GetItemRect(lista_, rigaCorrente_ - 1, &r, LVIR_BOUNDS)) {
        punto.y = (r.top + r.bottom) / 2;
    }
    osservatore_.grigliaMenu(sulloSchermo(lista_, punto), rigaCorrente_);
}

int Griglia::rigaUnaPaginaSotto() const noexcept {
    const int intere = std::max<int>(1, ListView_GetCountPerPage(lista_));
    const int fondo = rigaInCima() + intere - 1;
    return rigaCorrente_ < fondo ? fondo : rigaCorrente_ + std::max(1, intere - 1);
}

// Not the list's own keys: these would go down to the rows without items.
void Griglia::vaiGiu(int riga) {
    if (riga >= 1) {
        ListView_EnsureVisible(lista_, riga - 1, FALSE);
        seleziona(riga);
    }
}

LRESULT Griglia::tasto(UINT codice, WPARAM w, LPARAM l) {
    if (premuto_) {
        if (w == VK_ESCAPE) {
            abbandona();
            rigaInCima(partenza_.cima);
            seleziona(partenza_.riga);
        }
        return 0;
    }
    bool muove = false;
    switch (w) {
    case VK_LEFT:
    case VK_RIGHT:
        return 0;
    case VK_ADD:
        // Would fit the columns to their texts.
        if (premuto(VK_CONTROL)) {
            return 0;
        }
        break;
    case VK_END:
        vaiGiu(righe_.ultima());
        return 0;
    case VK_NEXT:
        vaiGiu(std::min(righe_.ultima(), rigaUnaPaginaSotto()));
        return 0;
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_HOME:
        muove = true;
        break;
    default:
        break;
    }
    return inoltraTasto(codice, w, l, muove);
}

LRESULT Griglia::inoltraTasto(UINT codice, WPARAM w, LPARAM l, bool muove) {
    // The list brings the row into sight after it has told the change: only then is it known
    // whether it has to become the top row.
    LRESULT esito = 0;
    {
        const Alzata allineando(allineando_);
        if (muove) {
            deseleziona(LVIS_SELECTED);
        }
        esito = inoltra(codice, w, l);
    }
    allinea();
    return esito;
}

void Griglia::suggerisci(UINT codice, WPARAM w, LPARAM l) noexcept {
    switch (codice) {
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP: {
        const int sotto = premuto_ ? 0 : std::max(rigaA(puntoDi(l).y), 0);
        RECT r{};
        if (sotto >= 1) {
            ListView_GetItemRect(lista_, sotto - 1, &r, LVIR_BOUNDS);
        }
        MSG mouse{};
        mouse.hwnd = lista_;
        mouse.message = codice;
        mouse.wParam = w;
        mouse.lParam = l;
        suggerimento_.segui(mouse, sotto, r);
        break;
    }
    case WM_MOUSEWHEEL:
    case WM_VSCROLL:
    case WM_KEYDOWN:
    case WM_CHAR:
        suggerimento_.nascondi();
        break;
    default:
        break;
    }
}

void Griglia::suggerimento(NMTTDISPINFOW& richiesta) {
    const int riga = suggerimento_.riga();
    RECT r{};
    RECT client{};
    GetClientRect(lista_, &client);
    std::wstring tagliati;
    if (riga >= 1 && ListView_GetItemRect(lista_, riga - 1, &r, LVIR_BOUNDS)) {
        const DcFinestra dc(lista_);
        tagliati = aspetto_.tagliati(dc.get(), righe_, riga, posto(r));
    }
    suggerimento_.rispondi(richiesta, std::move(tagliati), client.right);
}
