#include "support/testi/formato.h"

#include <windows.h>

#include <array>

namespace {

std::wstring informazione(LCTYPE tipo) {
    std::array<wchar_t, 16> testo{};
    const int lunghezza =
        GetLocaleInfoW(LOCALE_USER_DEFAULT, tipo, testo.data(), static_cast<int>(testo.size()));
    return lunghezza > 0 ? std::wstring(testo.data()) : std::wstring{};
}

wchar_t primoCarattere(const std::wstring& testo, wchar_t altrimenti) {
    return testo.empty() ? altrimenti : testo.front();
}

} // namespace

FormatoLocale formatoUtente() {
    return {Lingua::Utente, primoCarattere(informazione(LOCALE_SDECIMAL), L','),
            informazione(LOCALE_SDATE), informazione(LOCALE_STIME)};
}
