#include "ui/main/statoDocumento.h"

#include "support/prodotto.h"

std::wstring StatoDocumento::ImpostaTitolo(std::wstring_view nome) {
    std::wstring titolo(prodotto::titolo);
    nuovo_ = nome == nuovoDocumento;
    if (!nome.empty()) {
        titolo.append(L"  [").append(nome).append(L"]");
    }
    return titolo;
}

bool StatoDocumento::scartabile(bool vuoto) const noexcept {
    return !modificato_ || (nuovo_ && vuoto);
}
