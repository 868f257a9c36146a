#pragma once

#include <string>
#include <string_view>

// The program of a command line as the registry holds it: what stands in quotation marks, else all
// up to the first ".exe" that a blank or the end follows, else the whole text; without blanks
// around it.
[[nodiscard]] std::wstring fileDellaRiga(std::wstring_view riga);
