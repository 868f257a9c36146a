#pragma once

#include <cstdint>
#include <string>

// Locales, by the system's own numbers.
enum class Lingua : std::uint32_t { Utente = 0x0400, Inglese = 0x0409, Italiano = 0x0410 };

// A locale that numbers are read by, and the separators that numbers and dates are written with.
struct FormatoLocale {
    Lingua lingua = Lingua::Italiano;
    wchar_t decimale = L',';
    std::wstring data = L"/";
    std::wstring ora = L":";

    friend bool operator==(const FormatoLocale&, const FormatoLocale&) = default;
};

// The regional settings of the user that runs the program, read anew at each call.
[[nodiscard]] FormatoLocale formatoUtente();
