#include "support/servizi/dialoghiFile.h"

#include <algorithm>

std::wstring filtroWindows(std::wstring_view filtro) {
    std::wstring risultato(filtro);
    std::replace(risultato.begin(), risultato.end(), L'|', L'\0');
    risultato.append(2, L'\0');
    return risultato;
}

std::wstring estensioneWindows(std::wstring_view estensione) {
    return std::wstring(estensione.starts_with(L'.') ? estensione.substr(1) : estensione);
}
