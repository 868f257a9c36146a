#include "ui/main/menu_win.h"

#include "support/windows/errori_win.h"
#include "ui/main/recenti.h"

#include <vector>

namespace {

void aggiungi(HMENU menu, UINT stile, UINT_PTR id, const std::wstring& didascalia) {
    if (!AppendMenuW(menu, stile, id, didascalia.c_str())) {
        sollevaWin32();
    }
}

// A submenu belongs to its menu as soon as it is appended.
void aggiungiSottomenu(HMENU menu, ManigliaMenu sottomenu, std::wstring_view didascalia) {
    aggiungi(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sottomenu.get()), std::wstring(didascalia));
    static_cast<void>(sottomenu.cedi());
}

BYTE modificatori(const Tasto& tasto) noexcept {
    const int insieme = FVIRTKEY | (tasto.con(Tasto::Controllo) ? FCONTROL : 0) |
                        (tasto.con(Tasto::Alt) ? FALT : 0) |
                        (tasto.con(Tasto::Maiuscole) ? FSHIFT : 0);
    return static_cast<BYTE>(insieme);
}

// The only submenu of the first menu.
HMENU sottomenuRecenti(HMENU barra) {
    const HMENU file = GetSubMenu(barra, 0);
    for (int i = 0; i < GetMenuItemCount(file); ++i) {
        if (const HMENU sottomenu = GetSubMenu(file, i)) {
            return sottomenu;
        }
    }
    return nullptr;
}

} // namespace

ManigliaMenu creaMenu(Menu menu) {
    ManigliaMenu fatto(CreatePopupMenu());
    for (const RigaComando& riga : comandi()) {
        if (riga.menu != menu) {
            continue;
        }
        if (riga.comando == nessunComando) {
            aggiungi(fatto.get(), MF_SEPARATOR, 0, L"");
        } else if (riga.comando == mnrecenti) {
            aggiungiSottomenu(fatto.get(), ManigliaMenu(CreatePopupMenu()), riga.didascalia);
        } else {
            aggiungi(fatto.get(), MF_STRING, riga.comando, std::wstring(riga.didascalia));
        }
    }
    return fatto;
}

Acceleratori creaAcceleratori(Tasto::Dove dove) {
    std::vector<ACCEL> voci;
    for (const RigaComando& riga : comandi()) {
        for (const Tasto& tasto : {riga.tasto, riga.altroTasto}) {
            if (tasto.codice != 0 && tasto.dove == dove) {
                voci.push_back({modificatori(tasto), tasto.codice, riga.comando});
            }
        }
    }
    Acceleratori tabella(CreateAcceleratorTableW(voci.data(), static_cast<int>(voci.size())));
    if (!tabella) {
        sollevaWin32();
    }
    return tabella;
}

ManigliaMenu creaBarraMenu() {
    ManigliaMenu barra(CreateMenu());
    for (const MenuPrincipale& principale : menuPrincipali()) {
        aggiungiSottomenu(barra.get(), creaMenu(principale.menu), principale.didascalia);
    }
    return barra;
}

void mostraRecenti(HMENU barra, std::span<const std::wstring> voci) {
    const HMENU menu = sottomenuRecenti(barra);
    while (GetMenuItemCount(menu) > 0) {
        DeleteMenu(menu, 0, MF_BYPOSITION);
    }
    if (voci.empty()) {
        aggiungi(menu, MF_STRING | MF_GRAYED, mnrec, std::wstring(nessunaVoce));
    }
    UINT_PTR id = mnrec;
    for (const std::wstring& voce : voci) {
        aggiungi(menu, MF_STRING, ++id, didascaliaMenu(voce));
    }
}
