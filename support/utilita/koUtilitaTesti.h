#pragma once

#include "support/tempo/dataora.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Texts and dates, part of koUtilita.
class koUtilitaTesti {
public:
    // Every occurrence replaced, from left to right; an empty `cerca` changes nothing.
    [[nodiscard]] static std::wstring koReplace(std::wstring_view testo, std::wstring_view cerca,
                                                std::wstring_view con);
    // The pieces between separators, empty ones included; an empty separator gives the whole text.
    [[nodiscard]] static std::vector<std::wstring> koSplit(std::wstring_view testo,
                                                           std::wstring_view separatore = L" ");
    // The text before its first character 0.
    [[nodiscard]] static std::wstring_view StripTerminator(std::wstring_view testo) noexcept;
    // Without any blank (U+0020).
    [[nodiscard]] static std::wstring EspuraSpazi(std::wstring_view testo);
    // A typed character in upper case, accents included; for WM_CHAR.
    [[nodiscard]] static wchar_t KeyMaiuscolo(wchar_t carattere) noexcept;

    // The date that is so many days after 30 December 1899, negative before it, as date values
    // count. Raises error 6 outside the years 100 to 9999, as the automation run time does.
    [[nodiscard]] static DataOra LongToDate(std::int32_t numero);
    // A date, a time or both as the user writes them, in the user's format; a time alone belongs to
    // 30 December 1899. Raises error 13 when it is none.
    [[nodiscard]] static DataOra StringaToDate(const std::wstring& testo);
};
