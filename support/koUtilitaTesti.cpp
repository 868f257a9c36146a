#include "support/koUtilitaTesti.h"

#include "support/errore.h"
#include "support/testo.h"

#include <algorithm>

std::wstring koUtilitaTesti::koReplace(std::wstring_view testo, std::wstring_view cerca,
                                       std::wstring_view con) {
    return sostituisci(testo, cerca, con);
}

std::vector<std::wstring> koUtilitaTesti::koSplit(std::wstring_view testo,
                                                  std::wstring_view separatore) {
    const auto pezzi = dividi(testo, separatore);
    return {pezzi.begin(), pezzi.end()};
}

std::wstring koUtilitaTesti::EspuraSpazi(std::wstring_view testo) {
    return sostituisci(testo, L" ", L"");
}

wchar_t koUtilitaTesti::KeyMaiuscolo(wchar_t carattere) noexcept {
    return maiuscolo({&carattere, 1}).front();
}

DataOra koUtilitaTesti::LongToDate(std::int32_t numero) {
    constexpr std::int32_t primo = -657434;  // 1 January 100
    constexpr std::int32_t ultimo = 2958465; // 31 December 9999
    if (numero < primo || numero > ultimo) {
        solleva(errori::overflow);
    }
    constexpr std::int64_t secondiDelGiorno = 86400;
    return DataOra().piuSecondi(numero * secondiDelGiorno);
}
