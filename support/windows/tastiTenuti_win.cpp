#include "support/windows/tastiTenuti_win.h"

#include <windows.h>

#include <array>
#include <bitset>

namespace {

using Tasti = std::bitset<256>; // by virtual code

// What the hook of a thread knows. It outlives the modal loops as long as a key is held.
struct Sorvegliati {
    Tasti giu;
    // Of these, the ones whose repeats are dropped.
    Tasti tenuti;
    int cicli = 0;
    HHOOK gancio = nullptr;
};

thread_local Sorvegliati tasti;

Tasti giuAdesso() noexcept {
    Tasti giu;
    std::array<BYTE, 256> stato{};
    if (GetKeyboardState(stato.data()) != FALSE) {
        // The mouse's buttons, which come first, stay out: no key message tells when they go up.
        for (std::size_t i = VK_XBUTTON2 + 1; i < stato.size(); ++i) {
            giu[i] = (stato[i] & 0x80U) != 0;
        }
    }
    return giu;
}

void staccaSeInutile() noexcept {
    if (tasti.gancio != nullptr && tasti.cicli == 0 && tasti.tenuti.none()) {
        UnhookWindowsHookEx(tasti.gancio);
        tasti.gancio = nullptr;
    }
}

LRESULT CALLBACK sorveglia(int codice, WPARAM tasto, LPARAM l) noexcept {
    if (codice >= 0 && tasto < tasti.giu.size()) {
        const bool su = (HIWORD(l) & KF_UP) != 0;
        if (tasti.tenuti[tasto] && !su && (HIWORD(l) & KF_REPEAT) != 0) {
            return 1;
        }
        // Let go, or pressed anew after it was let go elsewhere.
        tasti.tenuti[tasto] = false;
        tasti.giu[tasto] = !su;
        staccaSeInutile();
    }
    return CallNextHookEx(nullptr, codice, tasto, l);
}

} // namespace

SenzaRipetizioni::SenzaRipetizioni() noexcept {
    ++tasti.cicli;
    if (tasti.gancio == nullptr) {
        tasti.giu = giuAdesso();
        tasti.gancio = SetWindowsHookExW(WH_KEYBOARD, sorveglia, nullptr, GetCurrentThreadId());
    }
    tasti.tenuti = tasti.giu;
}

SenzaRipetizioni::~SenzaRipetizioni() {
    --tasti.cicli;
    tasti.tenuti = tasti.giu;
    staccaSeInutile();
}
