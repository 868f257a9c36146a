#pragma once

#include <string>
#include <string_view>

// The border to the system's ANSI code page. No best fit: a character that the page lacks becomes
// "?" and never a look-alike.
[[nodiscard]] std::string inAnsi(std::wstring_view testo);
[[nodiscard]] std::wstring daAnsi(std::string_view testo);
