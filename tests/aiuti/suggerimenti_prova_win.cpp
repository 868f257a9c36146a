#include "tests/aiuti/suggerimenti_prova_win.h"

#include "tests/aiuti/schermo_win.h"

#include <commctrl.h>

#include <algorithm>
#include <vector>

namespace {

std::vector<HWND> suggerimenti() {
    std::vector<HWND> trovati;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND hwnd, LPARAM l) -> BOOL {
            if (classeDi(hwnd) == TOOLTIPS_CLASSW) {
                reinterpret_cast<std::vector<HWND>*>(l)->push_back(hwnd);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&trovati));
    return trovati;
}

} // namespace

std::vector<HWND> suggerimentiInVista() {
    std::vector<HWND> visti = suggerimenti();
    std::erase_if(visti, [](HWND s) { return IsWindowVisible(s) == FALSE; });
    return visti;
}

bool suggerisce(HWND finestra, POINT punto, std::wstring_view testo,
                std::chrono::milliseconds scadenza) {
    for (const HWND s : suggerimenti()) {
        SendMessageW(s, TTM_SETDELAYTIME, TTDT_INITIAL, 1);
        SendMessageW(s, TTM_SETDELAYTIME, TTDT_RESHOW, 1);
    }
    muoviMouse(finestra, punto);
    return attendi(
        [&] {
            return std::ranges::any_of(suggerimentiInVista(),
                                       [&](HWND s) { return testoDi(s) == testo; });
        },
        scadenza);
}
