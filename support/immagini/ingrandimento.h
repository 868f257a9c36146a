#pragma once

#include <cstdint>
#include <span>
#include <vector>

// Square pictures side by side, line by line: each pixel blue, green, red and, at the top, how
// opaque it is.
struct FilaDiFigure {
    int quante = 0;
    int lato = 0;
    std::span<const std::uint32_t> punti;
};

// The same pictures with that side. Between pixels colours change evenly; what cannot be seen has
// no part in them, and no picture in its neighbour.
[[nodiscard]] std::vector<std::uint32_t> ingrandite(const FilaDiFigure& fila, int lato);
