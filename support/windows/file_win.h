#pragma once

#include <string>

// Whether a directory listing of `percorso` shows something: normal, read-only and archived files
// are found; folders, hidden and system files are not; wildcards are expanded. An empty path
// names nothing.
[[nodiscard]] bool fileEsiste(const std::wstring& percorso) noexcept;

// Whether two paths name one and the same file, however each is written; false when one of them
// cannot be looked at.
[[nodiscard]] bool stessoFile(const std::wstring& uno, const std::wstring& altro) noexcept;

// Deletes a file. Raises the run-time error of the failure.
void cancellaFile(const std::wstring& percorso);

// The folder of the running program, without a trailing "\" but at the root of a drive.
[[nodiscard]] std::wstring cartellaProgramma();

// The file name of the running program, without its folder.
[[nodiscard]] std::wstring nomeProgramma();
