#include "support/windows/dpi_win.h"

#include "support/windows/gdi_win.h"

Dpi dpiDi(HWND finestra) noexcept {
    const DcFinestra dc(finestra);
    if (!dc) {
        return {};
    }
    return {{GetDeviceCaps(dc.get(), LOGPIXELSX)}, {GetDeviceCaps(dc.get(), LOGPIXELSY)}};
}
