#include "support/testi/sistema.h"

#include "support/errori/errore.h"
#include "support/testi/numeri.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

// Windows' part of pure code, as far as the tests need it where there is no Windows: numbers as a
// person writes them, the letters of Western Europe and their accents.

namespace {

// Every letter moved by `quanto`: the 26 from `prima` on and, in Latin-1, those with accents.
std::wstring sposta(std::wstring_view testo, wchar_t prima, int quanto) {
    std::wstring risultato(testo);
    for (wchar_t& c : risultato) {
        const bool segno = c == L'\u00D7' || c == L'\u00F7';
        if ((c >= prima && c <= prima + 25) || (c >= prima + 0x7F && c <= prima + 0x9D && !segno)) {
            c = static_cast<wchar_t>(c + quanto);
        }
    }
    return risultato;
}

// The letters from U+00C0 to U+00FF without their accents; a blank stays as it is.
constexpr std::wstring_view senzaAccenti =
    L"AAAAAA CEEEEIIII NOOOOO  UUUUY  aaaaaa ceeeeiiii nooooo  uuuuy y";

} // namespace

std::optional<double> testoADouble(std::wstring_view testo, Lingua lingua) {
    const wchar_t decimale = lingua == Lingua::Inglese ? L'.' : L',';
    const wchar_t migliaia = lingua == Lingua::Inglese ? L',' : L'.';
    testo.remove_prefix(std::min(testo.find_first_not_of(L" \t"), testo.size()));
    testo = testo.substr(0, testo.find_last_not_of(L" \t") + 1);
    const bool parentesi = testo.starts_with(L'(') && testo.ends_with(L')');
    const bool meno = parentesi || testo.ends_with(L'-');
    testo = testo.substr(parentesi ? 1 : 0, testo.size() - (parentesi ? 2 : meno ? 1 : 0));
    // What the C library would read and Windows does not: "inf", "0x1", a second sign, a leading
    // thousands separator.
    if (testo.find_first_not_of(L"0123456789+-.,eE") != std::wstring_view::npos ||
        testo.starts_with(migliaia) || (meno && testo.find_first_of(L"+-") == 0)) {
        return std::nullopt;
    }
    std::wstring numero(testo);
    std::erase(numero, migliaia);
    std::replace(numero.begin(), numero.end(), decimale, L'.');
    wchar_t* fine = nullptr;
    const double valore = std::wcstod(numero.c_str(), &fine);
    if (numero.empty() || fine != numero.c_str() + numero.size() || !std::isfinite(valore)) {
        return std::nullopt;
    }
    return meno ? -valore : valore;
}

std::int16_t testoAInt16(std::wstring_view testo, Lingua lingua) {
    const auto numero = testoADouble(testo, lingua);
    if (!numero) {
        solleva(errori::tipoNonCorrispondente);
    }
    return aInt16(*numero);
}

std::wstring maiuscolo(std::wstring_view testo) {
    return sposta(testo, L'a', L'A' - L'a');
}

std::wstring minuscolo(std::wstring_view testo) {
    return sposta(testo, L'A', L'a' - L'A');
}

void piega(std::wstring_view testo, Maiuscole maiuscole, std::wstring& piegato) {
    std::wstring scomposto;
    for (const wchar_t c : testo) {
        const bool accentata = c >= L'\u00C0' && c <= L'\u00FF';
        const wchar_t lettera =
            accentata ? senzaAccenti[static_cast<std::size_t>(c - L'\u00C0')] : L' ';
        if (c == L'\u00DF') {
            scomposto += L"ss";
        } else if (c == L'\u00E6' || c == L'\u00C6') {
            scomposto += c == L'\u00E6' ? L"ae" : L"AE";
        } else if (c < L'\u0300' || c > L'\u036F') {
            scomposto += lettera == L' ' ? c : lettera;
        }
    }
    piegato = maiuscole == Maiuscole::Ignora ? minuscolo(scomposto) : scomposto;
}
