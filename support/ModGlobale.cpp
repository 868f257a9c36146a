#include "support/ModGlobale.h"

#include "support/numeri.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string_view>

namespace {

std::uint64_t timer() noexcept {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

} // namespace

ModGlobale::ModGlobale() noexcept : stato_(timer()) {}

// SplitMix64: one word of state, and neighbouring seeds give unrelated numbers, as a timer needs.
float ModGlobale::prossimo() noexcept {
    stato_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = stato_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    z ^= z >> 31U;
    return static_cast<float>(z >> 40U) * 0x1p-24F;
}

float ModGlobale::NumeroCasuale(std::int16_t inferiore, std::int16_t superiore) {
    // Each step in 16 bits.
    const std::int16_t ampiezza = aInt16(aInt16(superiore - inferiore) + 1);
    const float numero =
        std::floor(static_cast<float>(ampiezza) * prossimo() + static_cast<float>(inferiore));
    // Far from zero a sum just below the end of the range rounds up to it.
    return std::min(numero, static_cast<float>(std::max(inferiore, superiore)));
}

std::wstring ModGlobale::GeneraIdentificativo() {
    constexpr std::wstring_view tabella = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    constexpr auto ultimo = static_cast<std::int16_t>(tabella.size() - 1);
    stato_ = timer();
    std::wstring identificativo = L"{";
    for (int i = 1; i <= 32; ++i) {
        identificativo += tabella[static_cast<std::size_t>(NumeroCasuale(0, ultimo))];
        if (i % 4 == 0 && i != 32) {
            identificativo += L'-';
        }
    }
    identificativo += L'}';
    return identificativo;
}
