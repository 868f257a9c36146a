#include "ui/controls/tastiDialogo_win.h"

#include "support/windows/errori_win.h"

#include <vector>

namespace {

// Where the hook, which is told of no object, finds a dialog's table of keys.
constexpr const wchar_t* proprieta = L"OstrelleTasti";

} // namespace

TastiDialogo::TastiDialogo(HWND dialogo, std::span<const ACCEL> tasti) {
    std::vector<ACCEL> voci(tasti.begin(), tasti.end());
    tasti_ = Acceleratori(CreateAcceleratorTableW(voci.data(), static_cast<int>(voci.size())));
    gancio_ = Gancio(SetWindowsHookExW(WH_MSGFILTER, filtra, nullptr, GetCurrentThreadId()));
    if (!tasti_ || !gancio_ || SetPropW(dialogo, proprieta, tasti_.get()) == FALSE) {
        sollevaWin32();
    }
}

LRESULT CALLBACK TastiDialogo::filtra(int codice, WPARAM w, LPARAM l) noexcept {
    if (codice == MSGF_DIALOGBOX) {
        auto* const msg = reinterpret_cast<MSG*>(l);
        const HWND dialogo = GetAncestor(msg->hwnd, GA_ROOT);
        if (auto* const tasti = static_cast<HACCEL>(GetPropW(dialogo, proprieta));
            tasti != nullptr && TranslateAcceleratorW(dialogo, tasti, msg) != 0) {
            return 1;
        }
    }
    return CallNextHookEx(nullptr, codice, w, l);
}
