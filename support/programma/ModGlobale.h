#pragma once

#include <cstdint>
#include <random>
#include <string>

// Random numbers and the identifiers of new items. The generator belongs to the object, so that two
// of them draw apart.
class ModGlobale {
public:
    // Seeded from the system timer.
    ModGlobale();
    // Always the same numbers for the same seed.
    explicit ModGlobale(std::uint64_t seme) : generatore_(seme) {}

    // A whole number from `inferiore` to `superiore`, both included, each equally likely. Raises
    // error 6 when (superiore - inferiore + 1) leaves the 16 bits.
    [[nodiscard]] float NumeroCasuale(std::int16_t inferiore, std::int16_t superiore);

    // {XXXX-XXXX-XXXX-XXXX-XXXX-XXXX-XXXX-XXXX} of capital letters and digits. Seeds the generator
    // from the timer first: two calls in the same tick may give the same text.
    [[nodiscard]] std::wstring GeneraIdentificativo();

private:
    std::mt19937_64 generatore_;
};
