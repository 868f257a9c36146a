#pragma once

#include "document/documento.h"

#include <string_view>
#include <utility>
#include <vector>

// Tables for tests, text by text.

// That many empty items and no others.
inline void dimensiona(TabellaElementi& tabella, int quanti) {
    tabella.riempi({static_cast<std::size_t>(quanti), elementoVuoto()});
}

// One more empty item; gives its index.
inline int aggiungi(TabellaElementi& tabella) {
    tabella.inserisci(tabella.conteggio(), elementoVuoto());
    return tabella.conteggio() - 1;
}

// The item with another text in a field.
[[nodiscard]] inline ElementoCondiviso conTesto(const Elemento& elemento, CampoElemento campo,
                                                std::wstring_view testo) {
    TestiElemento testi = elemento.testi();
    testi[static_cast<std::size_t>(campo)] = testo;
    return creaElemento(testi);
}

// Writes a text of an item; the first item of an empty table is made by it.
inline void metti(TabellaElementi& tabella, CampoElemento campo, int indice,
                  std::wstring_view testo) {
    if (tabella.conteggio() == 0) {
        aggiungi(tabella);
    }
    tabella.sostituisci(indice, conTesto(*tabella.elemento(indice), campo, testo));
}

// The same in a document, not as a modification.
inline void dimensiona(Documento& documento, int quanti) {
    TabellaElementi tabella;
    dimensiona(tabella, quanti);
    documento.sostituisci(std::move(tabella));
}
inline int aggiungi(Documento& documento) {
    documento.applica(documento.aggiunta(elementoVuoto()), Causa::Trascinamento);
    return documento.elementi().conteggio() - 1;
}
inline void metti(Documento& documento, CampoElemento campo, int indice, std::wstring_view testo) {
    documento.applica(
        documento.cambio(indice, conTesto(*documento.elementi().elemento(indice), campo, testo)),
        Causa::Trascinamento);
}
