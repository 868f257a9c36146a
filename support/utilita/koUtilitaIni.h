#pragma once

#include <string>

// INI files, part of koUtilita. Names go to Windows in Unicode.
class koUtilitaIni {
public:
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
    // file's encoding (the ANSI code page unless it is UTF-16) lacks, and for a file in big-endian
    // UTF-16, which Windows does not know; 52 for a path of 260 characters or more.
    static void ScriviINI(const std::wstring& fileINI, const std::wstring& Sezione,
                          const std::wstring& chiave, const std::wstring& Valore);
};
