#pragma once

#include "document/modifica.h"
#include "document/tabellaElementi.h"

// What the commands ask of the items, without windows.

// Raises error 6 when the table holds as many items as it can.
void richiediPosto(const TabellaElementi& tabella);

// Raises 12883 when there is no item to write.
void richiediElementi(const TabellaElementi& tabella);

// The grid row of an item.
[[nodiscard]] constexpr int rigaDi(int indice) noexcept {
    return indice + 1;
}

// The row selected after a change: that of its item; once it is gone that of the item above it, or
// the first.
[[nodiscard]] int rigaDopo(const Modifica& modifica) noexcept;
