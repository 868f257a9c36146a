#include "document/storia.h"

#include "support/errori/guardia.h"

#include <algorithm>

namespace {

std::wstring_view nome(Modifica::Tipo tipo) noexcept {
    switch (tipo) {
    case Modifica::Tipo::Aggiunta:
        return L"aggiunta";
    case Modifica::Tipo::Cambio:
        return L"modifica";
    case Modifica::Tipo::Rimozione:
        return L"cancellazione";
    default:
        return L"spostamento";
    }
}

// "cancellazione di «Serata sulla Luna»". A line break or a tab of the title would part a line of
// status in two.
std::wstring descrizione(const Modifica& modifica) {
    const Elemento& elemento = modifica.dopo ? *modifica.dopo : *modifica.prima;
    std::wstring titolo(elemento[CampoElemento::Titolo]);
    std::ranges::replace_if(
        titolo, [](wchar_t c) { return c < L' '; }, L' ');
    return std::wstring(nome(modifica.tipo)).append(L" di «").append(titolo).append(L"»");
}

} // namespace

std::wstring Storia::annulla() {
    if (fatti_ == 0) {
        return {};
    }
    const Modifica passo = passi_[fatti_ - 1];
    ripercorri(inversa(passo), fatti_ - 1);
    return L"Annullata: " + descrizione(passo);
}

std::wstring Storia::ripeti() {
    if (fatti_ == passi_.size()) {
        return {};
    }
    const Modifica passo = passi_[fatti_];
    ripercorri(passo, fatti_ + 1);
    return L"Ripetuta: " + descrizione(passo);
}

void Storia::ripercorri(const Modifica& modifica, std::size_t arrivo) {
    const Alzata ripercorre(ripercorre_);
    arrivo_ = arrivo;
    documento_.applica(modifica);
}

void Storia::elementiModificati(const Modifica& modifica, Causa /*causa*/) {
    if (ripercorre_) {
        fatti_ = arrivo_;
        return;
    }
    if (modifica.tipo == Modifica::Tipo::Cambio && *modifica.prima == *modifica.dopo) {
        return;
    }
    passi_.resize(fatti_);
    passi_.push_back(modifica);
    ++fatti_;
}

void Storia::elementiSostituiti() {
    passi_.clear();
    fatti_ = 0;
}
