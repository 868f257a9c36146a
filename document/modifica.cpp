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
