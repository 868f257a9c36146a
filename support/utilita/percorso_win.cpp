#include "support/utilita/percorso_win.h"

#include "support/windows/errori_win.h"

std::wstring percorsoCompleto(const std::wstring& percorso) {
    if (percorso.empty()) {
        solleva(errori::chiamataNonValida);
    }
    std::wstring intero = chiediTesto([&percorso](wchar_t* testo, DWORD spazio) {
        return GetFullPathNameW(percorso.c_str(), spazio, testo, nullptr);
    });
    if (intero.empty()) {
        sollevaWin32();
    }
    return intero;
}
