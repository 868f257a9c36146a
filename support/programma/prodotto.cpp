#include "support/programma/prodotto.h"

#include "support/programma/versione.h"

std::wstring prodotto::commentoFeed() {
    std::wstring commento(L"Feed RSS creato con ");
    commento.append(titolo).append(creditoFeed);
    return commento;
}

std::wstring prodotto::versione(wchar_t separatore) {
    return std::to_wstring(versioneMaggiore) + separatore + std::to_wstring(versioneMinore) +
           separatore + std::to_wstring(versioneRevisione);
}
