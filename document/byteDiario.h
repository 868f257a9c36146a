#pragma once

#include "document/elemento.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

// How numbers, texts, items and records stand in the bytes of a diary and of the clipboard.

// What a record says, put together.
class ContenutoRecord {
public:
    ContenutoRecord() = default;
    explicit ContenutoRecord(std::string byte) noexcept : byte_(std::move(byte)) {}

    // Seven bits a byte, the lowest first.
    void numero(std::uint64_t valore);
    void conSegno(std::int64_t valore);
    // Its length and its UTF-16 units.
    void testo(std::wstring_view valore);
    // Its six texts.
    void elemento(const Elemento& valore);

    [[nodiscard]] const std::string& byte() const noexcept { return byte_; }

private:
    std::string byte_;
};

// The same, taken apart again. What does not read as asked gives nothing.
class LettoreRecord {
public:
    explicit LettoreRecord(std::span<const std::byte> byte) noexcept : byte_(byte) {}

    [[nodiscard]] std::optional<std::uint64_t> numero() noexcept;
    [[nodiscard]] std::optional<std::int64_t> conSegno() noexcept;
    // A number from 0 to `massimo`.
    [[nodiscard]] std::optional<int> piccolo(int massimo) noexcept;
    [[nodiscard]] std::optional<std::wstring> testo();
    // Null for nothing.
    [[nodiscard]] ElementoCondiviso elemento();

    [[nodiscard]] bool finito() const noexcept { return byte_.empty(); }

private:
    std::span<const std::byte> byte_;
};

enum class TipoRecord : std::uint8_t {
    Inizio = 1,
    Elementi,
    BaseCompleta,
    Modifica,
    TestoCanale,
    BozzaAperta,
    TestoBozza,
    BozzaChiusa,
    // An item on the clipboard; no diary holds one.
    Appunti
};

// A record as it stands in the file: its length, a checksum, its kind, what it says. The checksum
// goes over that of the record before it too, so none can be missing or stand elsewhere; `catena`
// is that one and becomes this one's.
[[nodiscard]] std::string record(TipoRecord tipo, const ContenutoRecord& contenuto,
                                 std::uint64_t& catena);

struct RecordLetto {
    TipoRecord tipo{};
    std::span<const std::byte> contenuto;
};

// The record that stands first in `byte`, which moves past it; nothing where none stands whole.
[[nodiscard]] std::optional<RecordLetto> leggiRecord(std::span<const std::byte>& byte,
                                                     std::uint64_t& catena) noexcept;
