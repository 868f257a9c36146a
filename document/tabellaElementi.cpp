#include "document/tabellaElementi.h"

#include "support/errore.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr std::int64_t massimo = std::numeric_limits<std::int16_t>::max();

} // namespace

TabellaElementi::TabellaElementi() {
    svuota();
}

TabellaElementi::TabellaElementi(const TabellaElementi& altra) : conteggio_(altra.conteggio_) {
    elementi_.reserve(altra.elementi_.size());
    for (const auto& elemento : altra.elementi_) {
        elementi_.push_back(std::make_unique<Elemento>(*elemento));
    }
}

// A table that was moved from has no item at all: it may only be assigned to or destroyed.
TabellaElementi::TabellaElementi(TabellaElementi&& altra) noexcept
    : elementi_(std::move(altra.elementi_)), conteggio_(std::exchange(altra.conteggio_, {})) {}

TabellaElementi& TabellaElementi::operator=(const TabellaElementi& altra) {
    TabellaElementi copia(altra);
    *this = std::move(copia);
    return *this;
}

TabellaElementi& TabellaElementi::operator=(TabellaElementi&& altra) noexcept {
    std::swap(elementi_, altra.elementi_);
    std::swap(conteggio_, altra.conteggio_);
    return *this;
}

TabellaElementi::~TabellaElementi() = default;

void TabellaElementi::svuota() {
    dimensiona(1);
    conteggio_ = 0;
}

void TabellaElementi::dimensiona(std::int64_t numero) {
    if (numero < 1 || numero > massimo) {
        solleva(errori::overflow);
    }
    std::vector<std::unique_ptr<Elemento>> nuovi(static_cast<std::size_t>(numero));
    std::ranges::generate(nuovi, std::make_unique<Elemento>);
    elementi_ = std::move(nuovi);
    conteggio_ = static_cast<std::int16_t>(numero);
}

int TabellaElementi::limiteSuperiore() const noexcept {
    return static_cast<int>(elementi_.size()) - 1;
}

const std::wstring& TabellaElementi::operator()(CampoElemento campo, int indice) const {
    return (*elementi_[posizione(indice)])[static_cast<std::size_t>(campo)];
}

std::wstring& TabellaElementi::operator()(CampoElemento campo, int indice) {
    return (*elementi_[posizione(indice)])[static_cast<std::size_t>(campo)];
}

int TabellaElementi::aggiungi() {
    if (conteggio_ == massimo) {
        solleva(errori::overflow);
    }
    if (conteggio_ > 0) {
        elementi_.push_back(std::make_unique<Elemento>());
    } else {
        elementi_.front() = std::make_unique<Elemento>();
    }
    ++conteggio_;
    return conteggio_ - 1;
}

void TabellaElementi::rimuovi(int indice) {
    const auto dove = posizione(indice);
    if (elementi_.size() == 1) {
        svuota();
        return;
    }
    elementi_.erase(elementi_.begin() + static_cast<std::ptrdiff_t>(dove));
    --conteggio_;
}

void TabellaElementi::sposta(int da, int a) {
    const auto prima = elementi_.begin() + static_cast<std::ptrdiff_t>(posizione(da));
    const auto dopo = elementi_.begin() + static_cast<std::ptrdiff_t>(posizione(a));
    if (prima < dopo) {
        std::rotate(prima, prima + 1, dopo + 1);
    } else {
        std::rotate(dopo, prima, prima + 1);
    }
}

std::size_t TabellaElementi::posizione(int indice) const {
    if (indice < 0 || indice > limiteSuperiore()) {
        solleva(errori::indiceFuoriIntervallo);
    }
    return static_cast<std::size_t>(indice);
}
