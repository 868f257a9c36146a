// The monkey takes the window to other monitors.

#include "res/risorse.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/scimmia_win.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr std::array risoluzioni{96, 120, 144, 192};
constexpr SIZE minima{640, 480}; // at 96 dpi

RECT areaDiLavoro() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

int altezzaRiga(HWND lista) {
    RECT r{};
    ListView_GetItemRect(lista, ListView_GetTopIndex(lista), &r, LVIR_BOUNDS);
    return r.bottom - r.top;
}

} // namespace

Scimmia::InVista Scimmia::inVista() const {
    InVista v;
    v.canale = testiCanale();
    v.titolo = testoDi(finestra_.hwnd());
    v.avviso = AvvisiProva(finestra_).detto();
    v.fuoco = GetFocus();
    if (classeDi(v.fuoco) == L"Edit") {
        v.scelta = selezioneDi(v.fuoco);
    }
    v.riga = ListView_GetNextItem(grigliaDi(finestra_).lista(), -1, LVNI_SELECTED);
    return v;
}

void Scimmia::portaA(int dpi, const RECT& posto) {
    dpi_ = dpi;
    ++conti_.cambiDpi;
    SendMessageW(finestra_.hwnd(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&posto));
    pompa();
}

void Scimmia::cambiaMonitor() {
    fatto_ = "monitor";
    if (IsZoomed(finestra_.hwnd()) != FALSE || IsIconic(finestra_.hwnd()) != FALSE) {
        return;
    }
    const HWND lista = griglia().lista();
    if (altezza96_ == 0) {
        altezza96_ = altezzaRiga(lista);
    }
    const int dpi = risoluzioni[static_cast<std::size_t>(caso(4))];
    fatto_ += " of " + std::to_string(dpi) + " dpi after " + std::to_string(dpi_);
    // As Windows suggests it: the window as large as it was to the eye, where there is room.
    const RECT area = areaDiLavoro();
    RECT r{};
    GetWindowRect(finestra_.hwnd(), &r);
    const auto lato = [&](LONG prima, LONG minimo, LONG massimo) {
        return std::clamp<LONG>(MulDiv(prima, dpi, dpi_),
                                std::min<LONG>(MulDiv(minimo, dpi, 96), massimo), massimo);
    };
    const LONG largo = lato(r.right - r.left, minima.cx, area.right);
    const LONG alto = lato(r.bottom - r.top, minima.cy, area.bottom);
    const LONG x = caso(std::min<LONG>(area.right - largo, 200) + 1);
    const LONG y = caso(std::min<LONG>(area.bottom - alto, 200) + 1);
    const RECT posto{x, y, x + largo, y + alto};
    const InVista prima = inVista();
    const int cima = ListView_GetTopIndex(lista);
    portaA(dpi, posto);
    ++conti_.monitor;

    GetWindowRect(finestra_.hwnd(), &r);
    if (EqualRect(&r, &posto) == FALSE) {
        segnala("the window is " + std::to_string(r.right - r.left) + " x " +
                std::to_string(r.bottom - r.top) + " instead of " + std::to_string(largo) + " x " +
                std::to_string(alto));
    }
    const InVista dopo = inVista();
    if (dopo != prima) {
        segnala("the monitor changes more than the size: " + dopo.detto() + " instead of " +
                prima.detto());
    }
    const int quante = ListView_GetCountPerPage(lista);
    const int riga = altezzaRiga(lista);
    if (std::abs(riga * 96 - altezza96_ * dpi) > altezza96_ * dpi / 5) {
        segnala("rows of " + std::to_string(riga) + " pixels, at 96 dpi " +
                std::to_string(altezza96_));
    }
    const int righe = std::max(RigheGriglia::minime - 1, static_cast<int>(modello_.size()));
    const int attesa = std::min(cima, std::max(0, righe - quante));
    if (ListView_GetTopIndex(lista) != attesa) {
        segnala("the top row is " + std::to_string(ListView_GetTopIndex(lista)) + " instead of " +
                std::to_string(attesa));
    }
    RECT ultima{};
    RECT interno{};
    GetClientRect(lista, &interno);
    ListView_GetItemRect(lista, attesa + quante - 1, &ultima, LVIR_BOUNDS);
    if (quante < 1 || ultima.bottom > interno.bottom || ultima.bottom + riga <= interno.bottom) {
        segnala("the list has room for other rows than " + std::to_string(quante));
    }
}

std::string Scimmia::InVista::detto() const {
    std::wstring tutto = titolo + L" | " + avviso + L" | " + classeDi(fuoco) + L" " +
                         std::to_wstring(GetDlgCtrlID(fuoco)) + L" " +
                         std::to_wstring(scelta.first) + L"-" + std::to_wstring(scelta.second) +
                         L" | " + std::to_wstring(riga);
    for (const std::wstring& testo : canale) {
        tutto += L" | " + testo;
    }
    return inUtf8(tutto);
}
