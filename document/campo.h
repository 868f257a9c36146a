#pragma once

#include <string>
#include <string_view>
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

// The same for a text, into the memory that the field has already.
inline void assegna(std::wstring& campo, std::wstring_view valore, bool& modificato) {
    if (campo != valore) {
        campo = valore;
        modificato = true;
    }
}
