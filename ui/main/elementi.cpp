#include "ui/main/elementi.h"

#include "support/errore.h"

#include <array>
#include <limits>
#include <utility>

namespace {

// The fields that the editor knows, in the order of CampoElemento.
using Campi = std::array<std::wstring, 5>;

Campi campiDi(const clsItemRss& elemento) {
    return {elemento.sTitle(), elemento.sLink(), elemento.sDescription(), elemento.sAuthor(),
            elemento.sPubDate()};
}

void metti(TabellaElementi& tabella, int indice, Campi& campi) {
    for (std::size_t i = 0; i < campi.size(); ++i) {
        tabella(static_cast<CampoElemento>(i), indice).swap(campi[i]);
    }
}

} // namespace

void richiediPosto(const TabellaElementi& tabella) {
    if (tabella.conteggio() == std::numeric_limits<std::int16_t>::max()) {
        solleva(errori::overflow);
    }
}

// Here and below the texts are copied first: for lack of memory nothing is left half done.
int aggiungiElemento(TabellaElementi& tabella, const clsItemRss& elemento, std::wstring guid) {
    Campi campi = campiDi(elemento);
    const int indice = tabella.aggiungi();
    metti(tabella, indice, campi);
    tabella(CampoElemento::Guid, indice) = std::move(guid);
    return indice;
}

clsItemRss leggiElemento(const TabellaElementi& tabella, int indice) {
    clsItemRss elemento;
    elemento.sTitle(tabella(CampoElemento::Titolo, indice));
    elemento.sLink(tabella(CampoElemento::Link, indice));
    elemento.sDescription(tabella(CampoElemento::Descrizione, indice));
    elemento.sAuthor(tabella(CampoElemento::Autore, indice));
    elemento.sPubDate(tabella(CampoElemento::Data, indice));
    return elemento;
}

void scriviElemento(TabellaElementi& tabella, int indice, const clsItemRss& elemento) {
    Campi campi = campiDi(elemento);
    metti(tabella, indice, campi);
}
