#pragma once

#include "support/errori/errore.h"

#include <cstdint>
#include <string>

// What an action raises; number 0 when it raises nothing.
struct Sollevato {
    std::int32_t numero = 0;
    std::wstring descrizione;
};

template <class Azione>
[[nodiscard]] Sollevato sollevatoDa(Azione azione) {
    try {
        static_cast<void>(azione());
    } catch (const Errore& errore) {
        return {errore.numero(), errore.descrizione()};
    }
    return {};
}

// The number alone, of an action that gives nothing.
template <class Azione>
[[nodiscard]] std::int32_t erroreDi(Azione azione) {
    return sollevatoDa([&azione] {
               azione();
               return 0;
           })
        .numero;
}
