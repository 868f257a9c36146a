#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What of a feed's file the next save drops, and what of it no reader should be asked to bear: both
// are seen in one pass over the bytes, before the XML parser gets them.

// Something that the document model has no place for: its name (UTF-8) and how often it stands in
// the file. What an unknown element holds goes with it and is not counted.
struct Perdita {
    std::string nome;
    std::int32_t volte = 0;

    friend bool operator==(const Perdita&, const Perdita&) = default;
};

// No feed comes near these; a document beyond one of them would keep the parser busy for minutes.
namespace limiti {
inline constexpr std::size_t attributi = 2'000;  // of one element
inline constexpr std::size_t figli = 20'000;     // elements in one that is not the channel
inline constexpr std::size_t profondita = 1'000; // elements around an element
inline constexpr std::size_t sostituzioni =
    10'000'000; // characters that references to entities give
} // namespace limiti

struct EsameFeed {
    // The most frequent first, those equally frequent as they came.
    std::vector<Perdita> perdite;
    // A limit is passed; `perdite` is then not complete.
    bool smisurato = false;
};

// Looks at the bytes of a whole file. The XML declaration, the program's own comment and the
// version that a save writes again count for nothing.
[[nodiscard]] EsameFeed esaminaFeed(std::span<const std::byte> documento);

// Says what is lost, or nothing where nothing is: the three most frequent, and how many more kinds.
[[nodiscard]] std::wstring avvisoPerdite(std::span<const Perdita> perdite);
