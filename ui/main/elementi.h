#pragma once

#include "document/clsItemRss.h"
#include "document/tabellaElementi.h"

#include <string>

// What the item commands do to the table, without windows.

// Raises error 6 when the table holds as many items as it can.
void richiediPosto(const TabellaElementi& tabella);

// A new item at the end with this guid; gives its index. Raises error 6, the table then as it was.
int aggiungiElemento(TabellaElementi& tabella, const clsItemRss& elemento, std::wstring guid);

// The item at an index as the editor takes it: without its guid. Raises error 9.
[[nodiscard]] clsItemRss leggiElemento(const TabellaElementi& tabella, int indice);

// Writes an item back; the guid stays the table's. Raises error 9.
void scriviElemento(TabellaElementi& tabella, int indice, const clsItemRss& elemento);

// The grid row of an item.
[[nodiscard]] constexpr int rigaDi(int indice) noexcept {
    return indice + 1;
}

// The row selected once an item is gone: that of the item above it, or the first.
[[nodiscard]] constexpr int rigaDopoCancellazione(int indice) noexcept {
    return indice > 0 ? indice : 1;
}
