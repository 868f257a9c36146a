#pragma once

#include <string>
#include <string_view>

// The file: address of a full path ("C:\a b.xml", "\\server\share\a.xml", either with the "\\?\"
// prefix), escaped so that unescaping gives the path back to the letter.
[[nodiscard]] std::wstring indirizzoFile(std::wstring_view percorso);
