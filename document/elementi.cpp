#include "document/elementi.h"

#include "support/errori/errore.h"

#include <algorithm>

namespace {

constexpr std::int32_t nessunElemento = 12883;

} // namespace

void richiediPosto(const TabellaElementi& tabella) {
    if (tabella.piena()) {
        solleva(errori::overflow);
    }
}

void richiediElementi(const TabellaElementi& tabella) {
    if (tabella.conteggio() == 0) {
        throw Errore(nessunElemento, L"Per salvare il documento è necessario immettere almeno un "
                                     L"contenuto. Salvataggio non consentito.");
    }
}

int rigaDopo(const Modifica& modifica) noexcept {
    if (modifica.tipo == Modifica::Tipo::Rimozione) {
        return std::max(rigaDi(modifica.indice) - 1, 1);
    }
    return rigaDi(modifica.indiceDopo);
}
