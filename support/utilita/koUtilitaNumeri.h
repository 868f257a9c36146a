#pragma once

#include <cstdint>

// How the user writes numbers, part of koUtilita.
class koUtilitaNumeri {
public:
    // The code of "," or "."; 0 where the user's separator is another one or cannot be read.
    [[nodiscard]] static std::uint8_t GetSeparatoreDecimale();
    [[nodiscard]] static std::uint8_t GetSeparatoreMigliaia();
};
