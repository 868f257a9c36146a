#pragma once

#include "document/elemento.h"
#include "document/tabellaElementi.h"

#include <cstdint>

// One change of the item table, a value: what it takes to make it and to take it back.
struct Modifica {
    enum class Tipo : std::uint8_t { Aggiunta, Cambio, Rimozione, Spostamento };

    Tipo tipo{};
    // Where the item stands before and after; they differ in a move only.
    int indice = 0;
    int indiceDopo = 0;
    // Null before an addition and after a removal; the same item in a move.
    ElementoCondiviso prima;
    ElementoCondiviso dopo;
};

// Why a table changes.
enum class Causa : std::uint8_t {
    Comando,
    // Rows reordered with the mouse: the document does not count as modified by that.
    Trascinamento
};

// The change that takes this one back.
[[nodiscard]] Modifica inversa(const Modifica& modifica);

// Makes the change. Raises errors 6 and 9 and leaves the table as it was.
void esegui(const Modifica& modifica, TabellaElementi& tabella);
