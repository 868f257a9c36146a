#include "document/elementi.h"

#include "support/errori/errore.h"
#include "support/programma/ModGlobale.h"

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

bool guidPresente(const TabellaElementi& tabella, std::wstring_view guid) {
    for (int i = 0; i < tabella.conteggio(); ++i) {
        if (tabella(CampoElemento::Guid, i) == guid) {
            return true;
        }
    }
    return false;
}

std::wstring guidNuovo(std::wstring_view pubDate) {
    return std::wstring(pubDate).append(1, L' ').append(ModGlobale().GeneraIdentificativo());
}

int rigaDopo(const Modifica& modifica) noexcept {
    if (modifica.tipo == Modifica::Tipo::Rimozione) {
        return std::max(rigaDi(modifica.indice) - 1, 1);
    }
    return rigaDi(modifica.indiceDopo);
}
