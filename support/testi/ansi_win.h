#pragma once

#include <string>
#include <string_view>

// The border to the system's ANSI code page. No best fit: a character that the page lacks becomes
// "?" and never a look-alike.
[[nodiscard]] std::string inAnsi(std::wstring_view testo);
[[nodiscard]] std::wstring daAnsi(std::string_view testo);

// For HTML: what the code page has as its bytes, each other character as a decimal reference
// ("&#128512;").
[[nodiscard]] std::string inAnsiHtml(std::wstring_view testo);
