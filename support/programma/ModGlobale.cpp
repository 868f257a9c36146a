#include "support/programma/ModGlobale.h"

#include "support/testi/numeri.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string_view>

namespace {

std::uint64_t timer() noexcept {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

} // namespace

ModGlobale::ModGlobale() : generatore_(timer()) {}

float ModGlobale::NumeroCasuale(std::int16_t inferiore, std::int16_t superiore) {
    // Each step in 16 bits.
    const std::int16_t ampiezza = aInt16(aInt16(superiore - inferiore) + 1);
    const auto r = std::generate_canonical<float, 24>(generatore_);
    const float numero =
        std::floor(static_cast<float>(ampiezza) * r + static_cast<float>(inferiore));
    // Far from zero a sum just below the end of the range rounds up to it.
    return std::min(numero, static_cast<float>(std::max(inferiore, superiore)));
}

std::wstring ModGlobale::GeneraIdentificativo() {
    constexpr std::wstring_view tabella = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    constexpr auto ultimo = static_cast<std::int16_t>(tabella.size() - 1);
    generatore_.seed(timer());
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
