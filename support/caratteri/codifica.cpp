#include "support/caratteri/codifica.h"

#include <array>

namespace {

constexpr bool surrogatoAlto(char32_t c) noexcept {
    return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool surrogatoBasso(char32_t c) noexcept {
    return c >= 0xDC00 && c <= 0xDFFF;
}

} // namespace

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

void aggiungiUtf8(std::string& testo, char32_t punto) {
    // What the first byte begins with, by the number of bytes.
    constexpr std::array<char32_t, 4> testa{0x00, 0xC0, 0xE0, 0xF0};
    std::size_t resto = byteUtf8(punto) - 1;
    testo += static_cast<char>(testa[resto] | (punto >> (6 * resto)));
    while (resto > 0) {
        --resto;
        testo += static_cast<char>(0x80 | ((punto >> (6 * resto)) & 0x3F));
    }
}

std::string comeUtf8(std::wstring_view testo) {
    constexpr char32_t sostituto = 0xFFFD;
    std::string risultato;
    for (std::size_t posizione = 0; posizione < testo.size();) {
        const char32_t c = leggiCarattere(testo, posizione);
        aggiungiUtf8(risultato, surrogatoAlto(c) || surrogatoBasso(c) ? sostituto : c);
    }
    return risultato;
}
