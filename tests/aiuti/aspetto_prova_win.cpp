#include "tests/aiuti/aspetto_prova_win.h"

#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/schermo_win.h"

#include <commctrl.h>

#include <array>
#include <sstream>

#include <gtest/gtest.h>

namespace {

void scrivi(std::ostream& dove, const RECT& r) {
    dove << r.left << ',' << r.top << ',' << r.right << ',' << r.bottom << ' ';
}

std::string parte(HWND finestra, HWND tutta) {
    std::array<wchar_t, 100> classe{};
    GetClassNameW(finestra, classe.data(), static_cast<int>(classe.size()));
    std::ostringstream testo;
    testo << inUtf8(classe.data()) << ' ' << GetDlgCtrlID(finestra) << ' '
          << ((GetWindowLongPtrW(finestra, GWL_STYLE) & WS_VISIBLE) != 0 ? "" : "hidden ");
    RECT r{};
    GetWindowRect(finestra, &r);
    MapWindowPoints(nullptr, tutta, reinterpret_cast<POINT*>(&r), 2);
    scrivi(testo, r);
    GetClientRect(finestra, &r);
    scrivi(testo, r);
    LOGFONTW font{};
    if (GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(finestra, WM_GETFONT, 0, 0)),
                   sizeof(font), &font) != 0) {
        testo << "font " << font.lfHeight << ' ';
    }
    const std::wstring nome = classe.data();
    if (_wcsicmp(nome.c_str(), L"EDIT") == 0) {
        SendMessageW(finestra, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&r));
        testo << "text ";
        scrivi(testo, r);
    } else if (nome == WC_LISTVIEWW) {
        testo << "columns " << ListView_GetColumnWidth(finestra, 0) << ','
              << ListView_GetColumnWidth(finestra, 1) << " top " << ListView_GetTopIndex(finestra)
              << " row ";
        ListView_GetItemRect(finestra, ListView_GetTopIndex(finestra), &r, LVIR_BOUNDS);
        scrivi(testo, r);
    } else if (nome == TOOLBARCLASSNAMEW) {
        SendMessageW(finestra, TB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&r));
        testo << "button ";
        scrivi(testo, r);
    }
    return testo.str();
}

} // namespace

Aspetto aspettoDi(HWND finestra) {
    Aspetto aspetto;
    std::pair<HWND, std::vector<std::string>*> dati{finestra, &aspetto.parti};
    EnumChildWindows(
        finestra,
        [](HWND f, LPARAM p) -> BOOL {
            const auto& [tutta, parti] = *reinterpret_cast<decltype(dati)*>(p);
            parti->push_back(parte(f, tutta));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&dati));
    // Nothing lights up under the pointer.
    muoviMouse(GetDesktopWindow(),
               {GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1});
    pompa();
    aspetto.immagine = sulloSchermo(finestra);
    return aspetto;
}

void confronta(const Aspetto& uno, const Aspetto& altro) {
    ASSERT_EQ(uno.parti.size(), altro.parti.size());
    for (std::size_t i = 0; i < uno.parti.size(); ++i) {
        EXPECT_EQ(uno.parti[i], altro.parti[i]);
    }
    const RECT dove = uno.immagine.doveDiversi(altro.immagine);
    EXPECT_EQ(uno.immagine.diversi(altro.immagine), 0)
        << "in (" << dove.left << ", " << dove.top << ", " << dove.right << ", " << dove.bottom
        << ")";
}

void portaSuMonitor(HWND finestra, int dpi, SIZE misura) {
    RECT r{};
    GetWindowRect(finestra, &r);
    r.right = r.left + MulDiv(misura.cx, dpi, 96);
    r.bottom = r.top + MulDiv(misura.cy, dpi, 96);
    SendMessageW(finestra, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&r));
    pompa();
}
