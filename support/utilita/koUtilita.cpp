#include "support/utilita/koUtilita.h"

#include "support/testi/testo.h"

std::wstring koUtilita::AggiungiSepDir(std::wstring& percorso) {
    percorso = std::wstring(rifila(percorso));
    if (!percorso.empty() && percorso.back() != L'\\') {
        percorso += L'\\';
    }
    return percorso;
}

std::wstring_view koUtilita::StripTerminator(std::wstring_view testo) noexcept {
    return testo.substr(0, testo.find(L'\0'));
}
