#include "ui/controls/sottoclasse_win.h"

#include "support/errori/errore.h"

#include <commctrl.h>

#include <utility>

namespace {

LRESULT CALLBACK procedura(HWND hwnd, UINT codice, WPARAM w, LPARAM l, UINT_PTR identita,
                           DWORD_PTR gestore) noexcept {
    auto& g = *reinterpret_cast<GestoreSottoclasse*>(gestore);
    if (codice == WM_NCDESTROY) {
        RemoveWindowSubclass(hwnd, &procedura, identita);
    }
    return alConfine(g, LRESULT{0}, [&] { return g.messaggioDi(hwnd, codice, w, l); });
}

// One handler subclasses a window once: its address tells its subclassing from others'.
UINT_PTR identita(const GestoreSottoclasse* gestore) noexcept {
    return reinterpret_cast<UINT_PTR>(gestore);
}

} // namespace

Sottoclasse::Sottoclasse(HWND hwnd, GestoreSottoclasse& gestore) : hwnd_(hwnd), gestore_(&gestore) {
    if (!SetWindowSubclass(hwnd, &procedura, identita(gestore_),
                           reinterpret_cast<DWORD_PTR>(gestore_))) {
        solleva(errori::memoriaEsaurita);
    }
}

Sottoclasse::Sottoclasse(Sottoclasse&& altra) noexcept
    : hwnd_(std::exchange(altra.hwnd_, nullptr)), gestore_(std::exchange(altra.gestore_, nullptr)) {
}

Sottoclasse& Sottoclasse::operator=(Sottoclasse&& altra) noexcept {
    std::swap(hwnd_, altra.hwnd_);
    std::swap(gestore_, altra.gestore_);
    return *this;
}

Sottoclasse::~Sottoclasse() {
    if (hwnd_ != nullptr) {
        RemoveWindowSubclass(hwnd_, &procedura, identita(gestore_));
    }
}
