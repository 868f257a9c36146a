#include "support/indirizzo.h"

namespace {

constexpr std::wstring_view lungo = LR"(\\?\)";
constexpr std::wstring_view lungoRete = LR"(\\?\UNC\)";
constexpr std::wstring_view rete = LR"(\\)";

// What an address would give another meaning to. Letters with accents stay: escaped, they would
// be read back byte by byte in one code page or another.
constexpr std::wstring_view speciali = L" %#?\"<>[]^`{|}";

void aggiungiEscape(std::wstring& testo, wchar_t c) {
    constexpr std::wstring_view cifre = L"0123456789ABCDEF";
    const auto codice = static_cast<unsigned char>(c);
    testo += L'%';
    testo += cifre[codice / 16];
    testo += cifre[codice % 16];
}

} // namespace

std::wstring indirizzoFile(std::wstring_view percorso) {
    std::wstring indirizzo = L"file:///";
    if (percorso.starts_with(lungoRete)) {
        percorso.remove_prefix(lungoRete.size());
        indirizzo.pop_back();
    } else if (percorso.starts_with(lungo)) {
        percorso.remove_prefix(lungo.size());
    } else if (percorso.starts_with(rete)) {
        percorso.remove_prefix(rete.size());
        indirizzo.pop_back();
    }
    for (const wchar_t c : percorso) {
        if (c == L'\\') {
            indirizzo += L'/';
        } else if (c < L' ' || speciali.find(c) != std::wstring_view::npos) {
            aggiungiEscape(indirizzo, c);
        } else {
            indirizzo += c;
        }
    }
    return indirizzo;
}
