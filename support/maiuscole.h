#pragma once

#include <cstdint>
#include <span>

// The case tables of the Basic Multilingual Plane, as Windows maps one character to one.

// Characters from `primo` to `ultimo`, every `passo`-th, move by `differenza`.
struct IntervalloMaiuscole {
    std::uint16_t primo;
    std::uint16_t ultimo;
    std::uint16_t passo;
    std::int32_t differenza;
};

[[nodiscard]] std::span<const IntervalloMaiuscole> tabellaMaiuscole() noexcept;
[[nodiscard]] std::span<const IntervalloMaiuscole> tabellaMinuscole() noexcept;

[[nodiscard]] wchar_t converti(wchar_t carattere,
                               std::span<const IntervalloMaiuscole> tabella) noexcept;
