#pragma once

#include <string>

// The text of a feed of that many items, about 580 bytes each, the same every time: texts of the
// kind a news feed has, with line breaks and markup in the descriptions.
[[nodiscard]] std::string feedProva(int elementi);
