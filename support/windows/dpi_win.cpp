#include "support/windows/dpi_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"
#include "support/windows/maniglie_win.h"

namespace {

constexpr const wchar_t* proprieta = L"OstrelleDpi";

// A function that older systems do not have.
template <class Funzione>
Funzione diUser32(const char* nome) noexcept {
    return funzione<Funzione>(GetModuleHandleW(L"user32.dll"), nome);
}

} // namespace

Dpi dpiDi(HWND finestra) noexcept {
    if (const auto tenuto =
            reinterpret_cast<DWORD_PTR>(GetPropW(GetAncestor(finestra, GA_ROOT), proprieta))) {
        return {{LOWORD(tenuto)}, {HIWORD(tenuto)}};
    }
    // A device context knows the screen's alone.
    if (const auto suoi = diUser32<UINT(WINAPI*)(HWND)>("GetDpiForWindow")) {
        if (const auto dpi = static_cast<int>(suoi(finestra))) {
            return {{dpi}, {dpi}};
        }
    }
    const DcFinestra dc(finestra);
    if (!dc) {
        return {};
    }
    return {{GetDeviceCaps(dc.get(), LOGPIXELSX)}, {GetDeviceCaps(dc.get(), LOGPIXELSY)}};
}

void tieniDpi(HWND finestra, Dpi dpi) noexcept {
    SetPropW(finestra, proprieta,
             reinterpret_cast<HANDLE>(static_cast<DWORD_PTR>(MAKELONG(dpi.x.dpi, dpi.y.dpi))));
}

void scordaDpi(HWND finestra) noexcept {
    RemovePropW(finestra, proprieta);
}

int metrica(int quale, Risoluzione risoluzione) noexcept {
    const auto scalata = diUser32<int(WINAPI*)(int, UINT)>("GetSystemMetricsForDpi");
    return scalata != nullptr ? scalata(quale, static_cast<UINT>(risoluzione.dpi))
                              : GetSystemMetrics(quale);
}

NONCLIENTMETRICSW metriche(Risoluzione risoluzione) {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof(misure);
    const auto scalate =
        diUser32<BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT)>("SystemParametersInfoForDpi");
    const BOOL lette = scalate != nullptr ? scalate(SPI_GETNONCLIENTMETRICS, sizeof(misure),
                                                    &misure, 0, static_cast<UINT>(risoluzione.dpi))
                                          : SystemParametersInfoW(SPI_GETNONCLIENTMETRICS,
                                                                  sizeof(misure), &misure, 0);
    if (lette == FALSE) {
        sollevaWin32();
    }
    return misure;
}
