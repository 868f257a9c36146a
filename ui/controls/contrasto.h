#pragma once

#include <cstdint>

// How well a colour is told from another, 1 to 21: the contrast of web accessibility. Colours are
// 0x00BBGGRR.
[[nodiscard]] double contrasto(std::uint32_t a, std::uint32_t b) noexcept;

// Whether text of one colour can be read on the other: 4.5 at least, to one decimal. The system's
// white on the blue of its selection has 4.499.
[[nodiscard]] bool siLegge(std::uint32_t testo, std::uint32_t sfondo) noexcept;
