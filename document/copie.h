#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The rules of the copies that are kept of files before they are replaced: how folders and copies
// are named, and which copies go.

namespace copie {

// The copies of one file that stay.
inline constexpr std::size_t perFile = 20;
// What all copies together may take, in bytes; the newest of each file stays in any case.
inline constexpr std::uint64_t spazio = std::uint64_t{200} * 1024 * 1024;

// The folder of a file's copies: its name, at most 100 characters of it, and in brackets a number
// made of the whole path, in which case does not count. "C:\feed\notizie.xml" gives
// "notizie.xml (xxxxxxxx)".
[[nodiscard]] std::wstring nomeCartella(std::wstring_view percorso);

// The name of a copy: the time "2026-11-21 13.05.00", " (n)" from the second of that time on, and
// the file's own extension.
[[nodiscard]] std::wstring nomeCopia(std::wstring_view ora, int numero, std::wstring_view percorso);

struct Copia {
    std::wstring cartella;
    std::wstring nome;
    std::uint64_t byte = 0;
};

// Whether one copy is older than another, by their names.
[[nodiscard]] bool piuVecchia(std::wstring_view una, std::wstring_view altra) noexcept;

// The copies, of all that there are, that have to go.
[[nodiscard]] std::vector<Copia> daEliminare(std::vector<Copia> tutte);

} // namespace copie
