#pragma once

#include <utility>

// The rule of every setter of a record: a value that differs is stored and raises the flag, an
// equal one changes nothing.
template <class Valore>
void assegna(Valore& campo, Valore valore, bool& modificato) noexcept {
    if (campo != valore) {
        campo = std::move(valore);
        modificato = true;
    }
}
