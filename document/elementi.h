#pragma once

#include "document/modifica.h"
#include "document/tabellaElementi.h"

#include <string>
#include <string_view>

// What the commands ask of the items, without windows.

// Raises error 6 when the table holds as many items as it can.
void richiediPosto(const TabellaElementi& tabella);

// Raises 12883 when there is no item to write.
void richiediElementi(const TabellaElementi& tabella);

// Whether an item bears this guid.
[[nodiscard]] bool guidPresente(const TabellaElementi& tabella, std::wstring_view guid);

// The guid of a new item of that publication date.
[[nodiscard]] std::wstring guidNuovo(std::wstring_view pubDate);

// The grid row of an item.
[[nodiscard]] constexpr int rigaDi(int indice) noexcept {
    return indice + 1;
}

// The row selected after a change: that of its item; once it is gone that of the item above it, or
// the first.
[[nodiscard]] int rigaDopo(const Modifica& modifica) noexcept;
