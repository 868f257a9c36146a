#pragma once

#include <string>
#include <string_view>

// Files, paths and INI files, part of koUtilita. Names go to Windows in Unicode. Where nothing else
// is told a failure raises its run-time error.
class koUtilitaFile {
public:
    // The parts of a path: what stands behind the last "\", "/" or ":", what stands before with
    // that character (the two together are the path), and the extension of the name with its dot.
    [[nodiscard]] static std::wstring DeterminaSoloFileName(std::wstring_view percorso);
    [[nodiscard]] static std::wstring EstraiPath(std::wstring_view percorso);
    [[nodiscard]] static std::wstring EstraiEstensione(std::wstring_view nome);

    // Whether any program has the file open, this one included. Raises error 53 when it is missing.
    [[nodiscard]] static bool FileAperto(const std::wstring& file);

    // Clears the read-only attribute; a file without it stays as it is.
    static void EliminaReadOnly(const std::wstring& file);

    // Expands a file of the Windows LZ format (compress.exe, "SZDD") through lz32, which Windows
    // still has, and replaces the destination only when it is whole. Any other file is copied as it
    // is, as lz32 does. Raises error 57 for a damaged file.
    static void Decomprimi(const std::wstring& sorgente, const std::wstring& destinazione);

    // Appends "yyyy-mmm-dd hh:mm:ss text" (local time, the user's month names and time separator)
    // to a log, in the ANSI code page. A file name that does not end in ".log" gets it. Line breaks
    // in the text become blanks: one call, one line. Raises error 52 for an empty name.
    static void ScriviLog(const std::wstring& file, std::wstring_view testo);

    // One key of a section of an INI file, as Windows reads it: upper and lower case are the same,
    // blanks and one pair of quotation marks around a value are no part of it. What is missing, the
    // file included, reads as the default. A file without a folder stands in the current one, not
    // in the Windows folder.
    [[nodiscard]] static std::wstring LeggiINI(const std::wstring& fileINI,
                                               const std::wstring& Sezione,
                                               const std::wstring& chiave,
                                               const std::wstring& DefaultValore = {});
    // Writes it, so that LeggiINI gives exactly that value back; makes the file, not its folder.
    // Raises error 5, before the file is touched, for what an INI file cannot hold: an empty
    // section or key or one that would be read as another, a line break, a character that the
    // file's encoding (the ANSI code page unless it is UTF-16) lacks; 52 for a path of 260
    // characters or more.
    static void ScriviINI(const std::wstring& fileINI, const std::wstring& Sezione,
                          const std::wstring& chiave, const std::wstring& Valore);
};
