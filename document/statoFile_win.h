#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

// How a file stood at a moment, to see later whether anybody changed it since.
struct StatoFile {
    // In bytes; when it was written last, as Windows counts; what its bytes are.
    std::uint64_t lunghezza = 0;
    std::uint64_t scritto = 0;
    std::uint64_t somma = 0;
};

// Nothing where the file cannot be read. Reads all of it.
[[nodiscard]] std::optional<StatoFile> statoFile(const std::wstring& percorso) noexcept;

// The same from the bytes that were just read; they are not read again.
[[nodiscard]] std::optional<StatoFile> statoFile(const std::wstring& percorso,
                                                 std::span<const std::byte> contenuto) noexcept;

// Whether the file still holds those bytes. They are looked at only where size and time leave it
// open.
[[nodiscard]] bool ancora(const StatoFile& stato, const std::wstring& percorso) noexcept;
