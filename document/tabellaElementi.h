#pragma once

#include "document/elemento.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// The item table: shared items, with the 16-bit count kept beside it. It always has a first item:
// empty, with count 0, in an empty document. The writer and the page go by the upper bound, never
// by the count. A copy of the table copies no texts.
class TabellaElementi {
public:
    TabellaElementi() { svuota(); }
    TabellaElementi(const TabellaElementi& altra) = default;
    // A table that was moved from has no item at all: it may only be assigned to or destroyed.
    TabellaElementi(TabellaElementi&& altra) noexcept = default;
    TabellaElementi& operator=(const TabellaElementi& altra) = default;
    TabellaElementi& operator=(TabellaElementi&& altra) noexcept = default;
    ~TabellaElementi() = default;

    // Back to one empty item and count 0.
    void svuota();

    // These items and no others; none makes the empty table. Raises error 6 past 32767.
    void riempi(std::vector<ElementoCondiviso> elementi);

    [[nodiscard]] std::int16_t conteggio() const noexcept { return conteggio_; }
    [[nodiscard]] bool piena() const noexcept;
    // The last item index, at least 0.
    [[nodiscard]] int limiteSuperiore() const noexcept;

    // Raise error 9 when the index is beyond the upper bound. The text lives as long as the item.
    [[nodiscard]] std::wstring_view operator()(CampoElemento campo, int indice) const {
        return (*elemento(indice))[campo];
    }
    [[nodiscard]] const ElementoCondiviso& elemento(int indice) const;

    // The item comes to stand at an index, at most the count; the others make room. Raises error 9
    // beyond, error 6 past 32767 items, and leaves the table as it was.
    void inserisci(int indice, ElementoCondiviso elemento);

    // Another item takes the place of the one at an index. Here and below error 9 beyond the count.
    void sostituisci(int indice, ElementoCondiviso elemento);

    // Removes an item; the last one left leaves the empty table.
    void rimuovi(int indice);

    // The item at `da` ends at index `a`, the others keep their order.
    void sposta(int da, int a);

private:
    // Of a counted item. Raises error 9.
    [[nodiscard]] std::ptrdiff_t posizione(int indice) const;

    std::vector<ElementoCondiviso> elementi_;
    std::int16_t conteggio_ = 0;
};
