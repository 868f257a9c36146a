#pragma once

#include <windows.h>

#include <optional>
#include <string>

// A string value of the registry, its variables replaced where it has some, up to its first
// character 0; an empty key is `radice` itself, an empty name the key's default value. Nothing when
// it is missing or no text.
[[nodiscard]] std::optional<std::wstring> leggiTesto(HKEY radice, const std::wstring& chiave,
                                                     const std::wstring& nome);

// Writes a string value and makes its key. Raises the run-time error of the failure.
void scriviTesto(HKEY radice, const std::wstring& chiave, const std::wstring& nome,
                 const std::wstring& valore);
