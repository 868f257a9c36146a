#include "support/prodotto.h"

#include "support/versione.h"

std::wstring prodotto::commentoFeed() {
    std::wstring commento(L"Feed RSS creato con ");
    return commento.append(titolo).append(creditoFeed);
}

std::wstring prodotto::versione(wchar_t separatore) {
    return std::to_wstring(versioneMaggiore) + separatore + std::to_wstring(versioneMinore) +
           separatore + std::to_wstring(versioneRevisione);
}
