#pragma once

#include <cstdlib>
#include <optional>
#include <string>

// A folder on a volume that nobody can write, with a read-only file "a.txt" on it, and one on a
// volume of 256 KB; none where the machine has no such volumes.
[[nodiscard]] inline std::optional<std::wstring> daAmbiente(const wchar_t* variabile) {
    const wchar_t* const valore = _wgetenv(variabile);
    return valore == nullptr ? std::nullopt : std::optional<std::wstring>(valore);
}
[[nodiscard]] inline std::optional<std::wstring> discoDiSolaLettura() {
    return daAmbiente(L"OSTRELLE_SOLA_LETTURA");
}
[[nodiscard]] inline std::optional<std::wstring> discoPiccolo() {
    return daAmbiente(L"OSTRELLE_DISCO_PIENO");
}
// The letter and ":" of a drive that is the network folder "\\server\dati".
[[nodiscard]] inline std::optional<std::wstring> unitaDiRete() {
    return daAmbiente(L"OSTRELLE_UNITA_RETE");
}
