#include "document/modifica.h"

#include <utility>

Modifica inversa(const Modifica& modifica) {
    Modifica altra = modifica;
    std::swap(altra.indice, altra.indiceDopo);
    std::swap(altra.prima, altra.dopo);
    if (modifica.tipo == Modifica::Tipo::Aggiunta) {
        altra.tipo = Modifica::Tipo::Rimozione;
    } else if (modifica.tipo == Modifica::Tipo::Rimozione) {
        altra.tipo = Modifica::Tipo::Aggiunta;
    }
    return altra;
}

void esegui(const Modifica& modifica, TabellaElementi& tabella) {
    switch (modifica.tipo) {
    case Modifica::Tipo::Aggiunta:
        tabella.inserisci(modifica.indice, modifica.dopo);
        break;
    case Modifica::Tipo::Cambio:
        tabella.sostituisci(modifica.indice, modifica.dopo);
        break;
    case Modifica::Tipo::Rimozione:
        tabella.rimuovi(modifica.indice);
        break;
    case Modifica::Tipo::Spostamento:
        tabella.sposta(modifica.indice, modifica.indiceDopo);
        break;
    }
}
