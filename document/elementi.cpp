#include "document/elementi.h"

#include "support/errori/errore.h"

#include <algorithm>

void richiediPosto(const TabellaElementi& tabella) {
    if (tabella.piena()) {
        solleva(errori::overflow);
    }
}

void richiediElementi(const TabellaElementi& tabella) {
    if (tabella.conteggio() == 0) {
        solleva(errori::nessunElemento);
    }
}

int rigaDopo(const Modifica& modifica) noexcept {
    if (modifica.tipo == Modifica::Tipo::Rimozione) {
        return std::max(rigaDi(modifica.indice) - 1, 1);
    }
    return rigaDi(modifica.indiceDopo);
}
