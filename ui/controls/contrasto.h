#pragma once

#include <cstdint>

// How well a colour is told from another, 1 to 21: the contrast of web accessibility. Colours are
// 0x00BBGGRR.
[[nodiscard]] double contrasto(std::uint32_t a, std::uint32_t b) noexcept;
