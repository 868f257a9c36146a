#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// What a fuzz target shares with the others.

// The bytes as a text of 16-bit units, as Windows would hold it. A first byte of 0 to 127 spreads
// the rest one byte to a character, which finds numbers and dates sooner.
[[nodiscard]] inline std::wstring testoDa(const std::uint8_t* dati, std::size_t quanti) {
    std::wstring testo;
    if (quanti == 0) {
        return testo;
    }
    const bool larghi = dati[0] >= 128;
    for (std::size_t i = 1; i + (larghi ? 1 : 0) < quanti; i += larghi ? 2 : 1) {
        const unsigned alto = larghi ? dati[i + 1] : 0U;
        testo += static_cast<wchar_t>(dati[i] | (alto << 8U));
    }
    return testo;
}

// An invariant: ends the run where it does not hold.
inline void esigi(bool vero) {
    if (!vero) {
        std::abort();
    }
}
