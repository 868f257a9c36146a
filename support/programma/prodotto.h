#pragma once

#include <string>
#include <string_view>

// Who the program is and who makes it. The version numbers are in the generated
// "support/programma/versione.h". No text here holds "--": one of them goes into an XML comment.
namespace prodotto {

// Window caption, settings store, comment of the feed, generator line of the page.
inline constexpr std::wstring_view titolo = L"Ostrelle";

// Without a trailing "/": pages of the site are appended with theirs.
inline constexpr std::wstring_view sito = L"https://www.quorvex.example";
inline constexpr std::wstring_view autore = L"Gli autori di Ostrelle";
inline constexpr std::wstring_view postaAutore = L"autore@quorvex.example";

// Follows the title in the feed's comment, with the blank between them. The reader knows a feed of
// this program by the whole comment: one written before a change here is another's.
inline constexpr std::wstring_view creditoFeed = L" di Quorvex (https://www.quorvex.example)";
// Ends the page's generator line; the version resource's company name is the same.
inline constexpr std::wstring_view creditoPagina = L"Quorvex";

// Where the XML parser can be had, for the message that it is missing.
inline constexpr std::wstring_view sitoParser = L"https://www.parser-xml.example";

// The comment that stands before the root of a feed of this program.
[[nodiscard]] std::wstring commentoFeed();

// Major, minor and revision in plain decimal, with the separator between them.
[[nodiscard]] std::wstring versione(wchar_t separatore = L'.');

} // namespace prodotto
