#pragma once

#include "support/formato.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers and their texts the way the run time converts them.

// The number that a text begins with: blanks, tabs and line ends are skipped wherever they stand,
// one sign, digits, "." as the decimal point in every locale, an exponent; reading stops at the
// first other character. 0 when nothing was read.
[[nodiscard]] double valoreIniziale(std::wstring_view testo) noexcept;

// A real as an integer, halves to even. Raises error 6 out of range or when it is no number.
[[nodiscard]] std::int16_t aInt16(double valore);
[[nodiscard]] std::int32_t aInt32(double valore);

// A text that must be a number, in the user's format: blanks around it, a sign of each kind before
// or after it, parentheses for a negative, thousands separators behind the first digit or the
// decimal separator, decimals, an exponent; or &H and &O with up to 31 bits. Nothing when it is
// none or too great. Left out on purpose, though the system's call lets some of it pass: a
// parenthesis that stays open, an exponent before any digit, with two signs or with thousands
// separators, thousands separators after a trailing blank or sign, the currency symbol.
[[nodiscard]] std::optional<double> testoADouble(std::wstring_view testo,
                                                 const FormatoLocale& formato);

// The same as a 16-bit integer, halves to even, &H8000 to &HFFFF negative. Raises error 13 when the
// text is no number, 6 out of range.
[[nodiscard]] std::int16_t testoAInt16(std::wstring_view testo, const FormatoLocale& formato);

// A number with at least `cifreIntere` digits before the separator and exactly `decimali` after
// it, no grouping, rounded half away from zero on its decimal value (15 digits). A result that
// shows only zeros has no minus sign.
[[nodiscard]] std::wstring formattaNumero(double valore, int cifreIntere, int decimali,
                                          wchar_t separatore = L',');

// A number as text with a place for the sign: a blank where there is no minus.
[[nodiscard]] std::wstring testoConSegno(std::int32_t numero);
