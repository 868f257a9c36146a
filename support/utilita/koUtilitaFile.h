#pragma once

#include <string>

// Files, part of koUtilita. Names go to Windows in Unicode. Where nothing else is told a
// failure raises its run-time error.
class koUtilitaFile {
public:
    // Whether any program has the file open, this one included. Raises error 53 when it is missing.
    [[nodiscard]] static bool FileAperto(const std::wstring& file);

    // Clears the read-only attribute; a file without it stays as it is.
    static void EliminaReadOnly(const std::wstring& file);

    // Expands a file of the Windows LZ format (compress.exe, "SZDD") through lz32, which Windows
    // still has, and replaces the destination only when it is whole. Any other file is copied as it
    // is, as lz32 does. Raises error 57 for a damaged file, 75 for a destination that is open, as
    // the source itself is.
    static void Decomprimi(const std::wstring& sorgente, const std::wstring& destinazione);
};
