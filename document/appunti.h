#pragma once

#include "document/elemento.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

// What an item is on the clipboard.

struct ElementoAppunti {
    ElementoCondiviso elemento;
    // It was cut and has not been pasted yet: its guid goes with it.
    bool tagliato = false;
};

// The program's own form: the format's number, a checksum, the six texts.
[[nodiscard]] std::string byteAppunti(const ElementoAppunti& appunti);

// The way back; nothing for another form, another number or damaged bytes. What follows the item is
// not looked at: the clipboard may give more bytes than it was given.
[[nodiscard]] std::optional<ElementoAppunti> leggiAppunti(std::span<const std::byte> byte);

// For other programs: title and link, a line each, without blanks around them; one that is empty
// has no line.
[[nodiscard]] std::wstring testoAppunti(const Elemento& elemento);

// The same as the clipboard's "HTML Format": the title as a link, in UTF-8, after a header that
// tells in bytes where everything begins and ends.
[[nodiscard]] std::string htmlAppunti(const Elemento& elemento);
