#include "tests/aiuti/lascito_win.h"

#include <shlobj.h>

#include <cstring>

#include <gtest/gtest.h>

HGLOBAL lasciaFile(HWND finestra, const std::vector<std::wstring>& percorsi, POINT punto) {
    std::wstring nomi;
    for (const std::wstring& percorso : percorsi) {
        nomi.append(percorso).append(1, L'\0');
    }
    nomi += L'\0';
    const std::size_t spazio = nomi.size() * sizeof(wchar_t);
    const HGLOBAL blocco = GlobalAlloc(GMEM_MOVEABLE, sizeof(DROPFILES) + spazio);
    auto* const lasciati = static_cast<DROPFILES*>(GlobalLock(blocco));
    EXPECT_NE(lasciati, nullptr);
    *lasciati = {};
    lasciati->pFiles = sizeof(DROPFILES);
    lasciati->pt = punto;
    lasciati->fWide = TRUE;
    std::memcpy(lasciati + 1, nomi.data(), spazio);
    GlobalUnlock(blocco);
    EXPECT_TRUE(PostMessageW(finestra, WM_DROPFILES, reinterpret_cast<WPARAM>(blocco), 0));
    return blocco;
}
