#pragma once

#include <cstddef>
#include <string>

// The text of a feed of that many items, about 580 bytes each, the same every time: texts of the
// kind a news feed has, with line breaks and markup in the descriptions. With a length, every
// description has that many characters, or, when it varies, about half to half as many again.
[[nodiscard]] std::string feedProva(int elementi, std::size_t lunghezza = 0, bool varia = false);
