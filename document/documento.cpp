#include "document/documento.h"

#include "support/errori/errore.h"
#include "support/programma/prodotto.h"

#include <utility>

Modifica Documento::aggiunta(ElementoCondiviso elemento) const {
    return aggiunta(elementi_.conteggio(), std::move(elemento));
}

Modifica Documento::aggiunta(int indice, ElementoCondiviso elemento) const {
    if (elementi_.piena()) {
        solleva(errori::overflow);
    }
    if (indice < 0 || indice > elementi_.conteggio()) {
        solleva(errori::indiceFuoriIntervallo);
    }
    return {.tipo = Modifica::Tipo::Aggiunta,
            .indice = indice,
            .indiceDopo = indice,
            .prima = nullptr,
            .dopo = std::move(elemento)};
}

Modifica Documento::cambio(int indice, ElementoCondiviso elemento) const {
    Modifica modifica = rimozione(indice);
    modifica.tipo = Modifica::Tipo::Cambio;
    modifica.dopo = std::move(elemento);
    return modifica;
}

Modifica Documento::rimozione(int indice) const {
    if (indice >= elementi_.conteggio()) {
        solleva(errori::indiceFuoriIntervallo);
    }
    return {.tipo = Modifica::Tipo::Rimozione,
            .indice = indice,
            .indiceDopo = indice,
            .prima = elementi_.elemento(indice),
            .dopo = nullptr};
}

Modifica Documento::spostamento(int da, int a) const {
    Modifica modifica = cambio(da, rimozione(da).prima);
    modifica.tipo = Modifica::Tipo::Spostamento;
    modifica.indiceDopo = rimozione(a).indice;
    return modifica;
}

void Documento::applica(const Modifica& modifica, Causa causa) {
    esegui(modifica, elementi_);
    modificato_ = modificato_ || causa != Causa::Trascinamento;
    for (OsservatoreDocumento* const osservatore : osservatori_) {
        osservatore->elementiModificati(modifica, causa);
    }
}

void Documento::sostituisci(TabellaElementi elementi) {
    elementi_ = std::move(elementi);
    for (OsservatoreDocumento* const osservatore : osservatori_) {
        osservatore->elementiSostituiti();
    }
}

void Documento::campiModificati() {
    modificato_ = true;
    for (OsservatoreDocumento* const osservatore : osservatori_) {
        osservatore->campiModificati();
    }
}

std::wstring Documento::ImpostaTitolo(std::wstring_view nome) {
    std::wstring titolo(prodotto::titolo);
    nuovo_ = nome == nuovoDocumento;
    if (!nome.empty()) {
        titolo.append(L"  [").append(nome).append(L"]");
    }
    return titolo;
}

bool Documento::scartabile(bool campiVuoti) const noexcept {
    return !modificato_ || (nuovo_ && campiVuoti && elementi_.conteggio() == 0);
}
