#include "support/utilita/koUtilitaTesti.h"

#include "support/testi/testo.h"

std::wstring koUtilitaTesti::koReplace(std::wstring_view testo, std::wstring_view cerca,
                                       std::wstring_view con) {
    return sostituisci(testo, cerca, con);
}

std::vector<std::wstring> koUtilitaTesti::koSplit(std::wstring_view testo,
                                                  std::wstring_view separatore) {
    const auto pezzi = dividi(testo, separatore);
    return {pezzi.begin(), pezzi.end()};
}

std::wstring_view koUtilitaTesti::StripTerminator(std::wstring_view testo) noexcept {
    return testo.substr(0, testo.find(L'\0'));
}

std::wstring koUtilitaTesti::EspuraSpazi(std::wstring_view testo) {
    return sostituisci(testo, L" ", L"");
}

wchar_t koUtilitaTesti::KeyMaiuscolo(wchar_t carattere) noexcept {
    return maiuscolo({&carattere, 1}).front();
}
