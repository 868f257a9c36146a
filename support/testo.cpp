#include "support/testo.h"

#include <algorithm>
#include <array>

namespace {

constexpr bool surrogatoAlto(char32_t c) noexcept {
    return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool surrogatoBasso(char32_t c) noexcept {
    return c >= 0xDC00 && c <= 0xDFFF;
}

} // namespace

std::wstring_view rifilaDestra(std::wstring_view testo) noexcept {
    const auto fine = testo.find_last_not_of(L' ');
    return fine == std::wstring_view::npos ? std::wstring_view{} : testo.substr(0, fine + 1);
}

std::wstring_view rifila(std::wstring_view testo) noexcept {
    testo = rifilaDestra(testo);
    testo.remove_prefix(std::min(testo.find_first_not_of(L' '), testo.size()));
    return testo;
}

std::wstring sostituisci(std::wstring_view testo, std::wstring_view cerca, std::wstring_view con) {
    std::wstring risultato;
    if (cerca.empty()) {
        risultato = testo;
        return risultato;
    }
    risultato.reserve(testo.size());
    for (;;) {
        const auto dove = testo.find(cerca);
        risultato.append(testo.substr(0, dove));
        if (dove == std::wstring_view::npos) {
            return risultato;
        }
        risultato.append(con);
        testo.remove_prefix(dove + cerca.size());
    }
}

std::wstring aCapoCrLf(std::wstring_view testo) {
    const auto manca = [&](std::size_t i) {
        return testo[i] == L'\n' && (i == 0 || testo[i - 1] != L'\r');
    };
    std::size_t mancanti = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        mancanti += manca(i) ? 1 : 0;
    }
    // In one piece of the right size: thousands of these are kept, and what a growing text leaves
    // behind breaks the heap into crumbs.
    std::wstring risultato;
    risultato.reserve(testo.size() + mancanti);
    std::size_t scritti = 0;
    for (std::size_t i = 0; mancanti > 0 && i < testo.size(); ++i) {
        if (manca(i)) {
            risultato.append(testo.substr(scritti, i - scritti)).append(1, L'\r');
            scritti = i;
        }
    }
    risultato.append(testo.substr(scritti));
    // Not what append gives: that would be a copy.
    return risultato;
}

std::vector<std::wstring_view> dividi(std::wstring_view testo, std::wstring_view separatore) {
    std::vector<std::wstring_view> pezzi;
    for (;;) {
        const auto dove = separatore.empty() ? testo.npos : testo.find(separatore);
        pezzi.push_back(testo.substr(0, dove));
        if (dove == std::wstring_view::npos) {
            return pezzi;
        }
        testo.remove_prefix(dove + separatore.size());
    }
}

void aggiungiCarattere(std::wstring& testo, char32_t punto) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (punto > 0xFFFF) {
            testo += static_cast<wchar_t>(0xD800 + ((punto - 0x10000) >> 10));
            testo += static_cast<wchar_t>(0xDC00 + ((punto - 0x10000) & 0x3FF));
            return;
        }
    }
    testo += static_cast<wchar_t>(punto);
}

char32_t leggiCarattere(std::wstring_view testo, std::size_t& posizione) noexcept {
    const auto primo = static_cast<char32_t>(testo[posizione]);
    ++posizione;
    if (surrogatoAlto(primo) && posizione < testo.size()) {
        const auto secondo = static_cast<char32_t>(testo[posizione]);
        if (surrogatoBasso(secondo)) {
            ++posizione;
            return 0x10000 + ((primo - 0xD800) << 10) + (secondo - 0xDC00);
        }
    }
    return primo;
}

std::string comeUtf8(std::wstring_view testo) {
    // What the first byte begins with, by the number of bytes.
    constexpr std::array<char32_t, 4> testa{0x00, 0xC0, 0xE0, 0xF0};
    constexpr char32_t sostituto = 0xFFFD;
    std::string risultato;
    for (std::size_t posizione = 0; posizione < testo.size();) {
        char32_t c = leggiCarattere(testo, posizione);
        if (surrogatoAlto(c) || surrogatoBasso(c)) {
            c = sostituto;
        }
        std::size_t resto = byteUtf8(c) - 1;
        risultato += static_cast<char>(testa[resto] | (c >> (6 * resto)));
        while (resto > 0) {
            --resto;
            risultato += static_cast<char>(0x80 | ((c >> (6 * resto)) & 0x3F));
        }
    }
    return risultato;
}
