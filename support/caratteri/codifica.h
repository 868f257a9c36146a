#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Code points and how texts hold them.

// A code point as UTF-16 on Windows and UTF-32 elsewhere, appended to a text.
void aggiungiCarattere(std::wstring& testo, char32_t punto);

// How many bytes a code point takes in UTF-8.
[[nodiscard]] constexpr std::size_t byteUtf8(char32_t punto) noexcept {
    if (punto < 0x80) {
        return 1;
    }
    if (punto < 0x800) {
        return 2;
    }
    return punto < 0x10000 ? 3 : 4;
}

// The code point in UTF-8, appended.
void aggiungiUtf8(std::string& testo, char32_t punto);

// The text as UTF-8; a lone surrogate becomes U+FFFD.
[[nodiscard]] std::string comeUtf8(std::wstring_view testo);

// The code point at `posizione`, which moves past it. A lone surrogate is given as it is.
[[nodiscard]] char32_t leggiCarattere(std::wstring_view testo, std::size_t& posizione) noexcept;
