#include "document/tabellaElementi.h"

#include "support/errori/errore.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr std::int16_t massimo = std::numeric_limits<std::int16_t>::max();

} // namespace

void TabellaElementi::svuota() {
    elementi_ = std::vector{elementoVuoto()};
    conteggio_ = 0;
}

void TabellaElementi::riempi(std::vector<ElementoCondiviso> elementi) {
    if (elementi.size() > static_cast<std::size_t>(massimo)) {
        solleva(errori::overflow);
    }
    if (elementi.empty()) {
        svuota();
        return;
    }
    elementi_ = std::move(elementi);
    conteggio_ = static_cast<std::int16_t>(elementi_.size());
}

bool TabellaElementi::piena() const noexcept {
    return conteggio_ == massimo;
}

int TabellaElementi::limiteSuperiore() const noexcept {
    return static_cast<int>(elementi_.size()) - 1;
}

const ElementoCondiviso& TabellaElementi::elemento(int indice) const {
    if (indice < 0 || indice > limiteSuperiore()) {
        solleva(errori::indiceFuoriIntervallo);
    }
    return elementi_[static_cast<std::size_t>(indice)];
}

void TabellaElementi::inserisci(int indice, ElementoCondiviso elemento) {
    if (indice < 0 || indice > conteggio_) {
        solleva(errori::indiceFuoriIntervallo);
    }
    if (piena()) {
        solleva(errori::overflow);
    }
    if (conteggio_ == 0) {
        elementi_.front() = std::move(elemento);
    } else {
        elementi_.insert(elementi_.begin() + indice, std::move(elemento));
    }
    ++conteggio_;
}

void TabellaElementi::sostituisci(int indice, ElementoCondiviso elemento) {
    elementi_[static_cast<std::size_t>(posizione(indice))] = std::move(elemento);
}

void TabellaElementi::rimuovi(int indice) {
    const auto dove = posizione(indice);
    if (conteggio_ == 1) {
        svuota();
        return;
    }
    elementi_.erase(elementi_.begin() + dove);
    --conteggio_;
}

void TabellaElementi::sposta(int da, int a) {
    const auto prima = elementi_.begin() + posizione(da);
    const auto dopo = elementi_.begin() + posizione(a);
    if (prima < dopo) {
        std::rotate(prima, prima + 1, dopo + 1);
    } else {
        std::rotate(dopo, prima, prima + 1);
    }
}

std::ptrdiff_t TabellaElementi::posizione(int indice) const {
    if (indice < 0 || indice >= conteggio_) {
        solleva(errori::indiceFuoriIntervallo);
    }
    return indice;
}
