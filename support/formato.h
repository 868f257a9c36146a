#pragma once

#include <string>

// What the user's regional settings say about numbers and dates.
struct FormatoLocale {
    wchar_t decimale = L',';
    wchar_t migliaia = L'.';
    std::wstring data = L"/";
    std::wstring ora = L":";
};

// The settings of the user that runs the program, read anew at each call.
[[nodiscard]] FormatoLocale formatoUtente();
