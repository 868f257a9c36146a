#include "tests/aiuti/leggibili_win.h"

#include "tests/aiuti/accessibile_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/suggerimenti_prova_win.h"

#include <commctrl.h>

#include <ranges>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Where a control has texts, in pixels of its client area.
std::vector<RECT> scritte(HWND controllo) {
    RECT r{};
    GetClientRect(controllo, &r);
    const std::wstring classe = classeDi(controllo);
    const LONG_PTR stile = GetWindowLongPtrW(controllo, GWL_STYLE);
    // What a button or a part draws around its text.
    constexpr int bordo = 4;
    std::vector<RECT> trovate;
    if (classe == STATUSCLASSNAMEW) {
        const LRESULT parti = SendMessageW(controllo, SB_GETPARTS, 0, 0);
        for (LRESULT i = 0; i < parti; ++i) {
            SendMessageW(controllo, SB_GETRECT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(&r));
            InflateRect(&r, -bordo, -bordo);
            trovate.push_back(r);
        }
        // The grip.
        trovate.back().right -= trovate.back().bottom;
    } else if (classe == WC_HEADERW) {
        for (int i = 0; i < 2; ++i) {
            Header_GetItemRect(controllo, i, &r);
            InflateRect(&r, -bordo, -bordo);
            trovate.push_back(r);
        }
    } else if (classe == DATETIMEPICK_CLASSW) {
        // The button stands at the right.
        trovate.push_back({bordo, bordo, r.right - r.bottom - bordo, r.bottom - bordo});
    } else if (classe == WC_BUTTONW && (stile & BS_TYPEMASK) == BS_GROUPBOX) {
        if (!testoDi(controllo).empty()) {
            constexpr int rientro = 8;
            trovate.push_back({rientro, 0, rientro + 30, 13});
        }
    } else if (classe == WC_BUTTONW) {
        InflateRect(&r, -bordo, -bordo);
        trovate.push_back(r);
    } else if (classe == WC_EDITW ||
               (classe == WC_STATICW && (stile & SS_TYPEMASK) != SS_OWNERDRAW)) {
        trovate.push_back(r);
    }
    return trovate;
}

void tema(HWND finestra, const wchar_t* quale) {
    // The import library of it is not everywhere.
    static const auto imposta = reinterpret_cast<HRESULT(WINAPI*)(HWND, LPCWSTR, LPCWSTR)>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"uxtheme.dll"), "SetWindowTheme")));
    // Who draws for a control hears of it after that one.
    for (const HWND controllo : tuttiIVisibili(finestra) | std::views::reverse) {
        imposta(controllo, quale, quale);
    }
}

} // namespace

void inOgniSchema(HWND finestra, const std::function<void()>& guarda) {
    for (std::size_t i = 0; i < schemi().size(); ++i) {
        SCOPED_TRACE("scheme " + std::to_string(i));
        const ColoriSistema schema(schemi()[i]);
        tema(finestra, i == 0 ? nullptr : L" ");
        pompa();
        guarda();
    }
    tema(finestra, nullptr);
}

int verificaLeggibili(HWND finestra) {
    pompa();
    int quante = 0;
    for (const HWND controllo : tuttiIVisibili(finestra)) {
        if (IsWindowEnabled(controllo) == FALSE) {
            continue;
        }
        for (const RECT& r : scritte(controllo)) {
            ++quante;
            EXPECT_GE(leggibilita(sulloSchermo(controllo).ritaglio(r)), leggibile)
                << inUtf8(classeDi(controllo)) << " \"" << inUtf8(testoDi(controllo)) << "\"";
        }
    }
    return quante;
}

int verificaMenuLeggibile(HWND finestra) {
    pompa();
    RECT fuori{};
    GetWindowRect(finestra, &fuori);
    const HMENU menu = GetMenu(finestra);
    const int quante = GetMenuItemCount(menu);
    for (int i = 0; i < quante; ++i) {
        RECT r{};
        EXPECT_TRUE(GetMenuItemRect(finestra, menu, static_cast<UINT>(i), &r));
        OffsetRect(&r, -fuori.left, -fuori.top);
        EXPECT_GE(leggibilita(tuttaSulloSchermo(finestra).ritaglio(r)), leggibile) << "menu " << i;
    }
    return quante;
}

void verificaSuggerimentoLeggibile() {
    const std::vector<HWND> visti = suggerimentiInVista();
    EXPECT_FALSE(visti.empty());
    pompa();
    for (const HWND suggerimento : visti) {
        EXPECT_GE(leggibilita(sulloSchermo(suggerimento)), leggibile);
    }
}
