#pragma once

#include <string>

// Temporary files, part of koUtilita. Names go to Windows in the ANSI code page: a character it
// lacks becomes "?".
class koUtilitaTemporanei {
public:
    // A new empty file in the temporary folder, the caller's to delete; where Windows makes none, a
    // fixed name in that folder, of a file that need not exist. Never fails.
    [[nodiscard]] static std::wstring GetFileTemporaneo();
    // The temporary folder, else the program's; ends in "\". Never fails.
    [[nodiscard]] static std::wstring GetDirectoryTemp();
};
