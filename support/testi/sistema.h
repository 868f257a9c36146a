#pragma once

#include "support/testi/formato.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What Windows does itself and pure code asks it for. Where there is no Windows, whoever links pure
// code brings an answer: tests/aiuti/sistema.cpp is the native tests'.

// A text that must be a number, in a locale's format: blanks, signs, parentheses for a negative,
// thousands separators, decimals, an exponent, the currency, &H and &O; what of it passes is
// Windows' to say. Nothing when it is no number or too great.
[[nodiscard]] std::optional<double> testoADouble(std::wstring_view testo, Lingua lingua);

// The same as a 16-bit integer, halves to even, &H8000 to &HFFFF negative. Raises error 13 when the
// text is no number, 6 out of range.
[[nodiscard]] std::int16_t testoAInt16(std::wstring_view testo, Lingua lingua);

// Full upper and lower case in every locale, accents included, one character for one.
[[nodiscard]] std::wstring maiuscolo(std::wstring_view testo);
[[nodiscard]] std::wstring minuscolo(std::wstring_view testo);

enum class Maiuscole : std::uint8_t { Ignora, Distingui };

// A text as a search compares it, into memory that is kept from text to text: ligatures taken
// apart, letters without their accents and, unless case counts, in lower case. Character by
// character: the pieces of a text give the pieces of what the whole gives.
void piega(std::wstring_view testo, Maiuscole maiuscole, std::wstring& piegato);
