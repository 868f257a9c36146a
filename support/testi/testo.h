#pragma once

#include "support/testi/sistema.h" // upper and lower case

#include <string>
#include <string_view>
#include <vector>

// Texts the way the run time treats them, in every locale and on every system.

// Without the blanks (U+0020 and nothing else: a tab or a line end stays) at both ends; at the
// right.
[[nodiscard]] std::wstring_view rifila(std::wstring_view testo) noexcept;
[[nodiscard]] std::wstring_view rifilaDestra(std::wstring_view testo) noexcept;

// Every occurrence of one text replaced by another, from left to right; an empty `cerca` changes
// nothing.
[[nodiscard]] std::wstring sostituisci(std::wstring_view testo, std::wstring_view cerca,
                                       std::wstring_view con);

// Every line break as CR LF: CR LF becomes LF, then each LF becomes CR LF. A lone CR stays.
[[nodiscard]] std::wstring aCapoCrLf(std::wstring_view testo);

// The pieces between separators, empty ones included: "a;;b" gives three, "" gives one.
// An empty separator gives the whole text.
[[nodiscard]] std::vector<std::wstring_view> dividi(std::wstring_view testo,
                                                    std::wstring_view separatore);
[[nodiscard]] inline std::vector<std::wstring_view> dividi(std::wstring_view testo,
                                                           wchar_t separatore) {
    return dividi(testo, std::wstring_view(&separatore, 1));
}
