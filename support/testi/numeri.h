#pragma once

#include "support/testi/sistema.h" // a text that must be a number

#include <cstdint>
#include <string>
#include <string_view>

// Numbers and their texts the way the run time converts them.

// The number that a text begins with: blanks, tabs and line ends are skipped wherever they stand,
// one sign, digits, "." as the decimal point in every locale, an exponent; reading stops at the
// first other character. 0 when nothing was read, infinite when it is too great.
[[nodiscard]] double valoreIniziale(std::wstring_view testo);

// A real as an integer, halves to even. Raises error 6 out of range or when it is no number.
[[nodiscard]] std::int16_t aInt16(double valore);
[[nodiscard]] std::int32_t aInt32(double valore);

// A number with at least `cifreIntere` digits before the separator and exactly `decimali` after
// it, no grouping, rounded half away from zero on its decimal value (15 digits). A result that
// shows only zeros has no minus sign.
[[nodiscard]] std::wstring formattaNumero(double valore, int cifreIntere, int decimali,
                                          wchar_t separatore = L',');

// A number as text with a place for the sign: a blank where there is no minus.
[[nodiscard]] std::wstring testoConSegno(std::int32_t numero);
