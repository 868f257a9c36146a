#include "support/programma/prodotto.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

TEST(Prodotto, NessunCreditoRompeUnCommento) {
    EXPECT_EQ(prodotto::creditoFeed.find(L"--"), std::wstring_view::npos);
    EXPECT_EQ(prodotto::creditoPagina.find(L"--"), std::wstring_view::npos);
    EXPECT_NE(prodotto::creditoFeed.back(), L'-');
    EXPECT_FALSE(prodotto::creditoPagina.empty());
}

TEST(Prodotto, IlSitoFinisceSenzaBarraInUnDominioRiservato) {
    EXPECT_TRUE(prodotto::sito.starts_with(L"https://"));
    EXPECT_TRUE(prodotto::sito.ends_with(L".example"));
    EXPECT_TRUE(prodotto::postaAutore.ends_with(L".example"));
}

TEST(Prodotto, LaVersioneHaTreNumeriEIlSeparatoreChiesto) {
    const std::wstring versione = prodotto::versione();
    EXPECT_EQ(std::ranges::count(versione, L'.'), 2);
    EXPECT_EQ(versione.find_first_not_of(L"0123456789."), std::wstring::npos);
    std::wstring conPiu = versione;
    std::ranges::replace(conPiu, L'.', L'+');
    EXPECT_EQ(prodotto::versione(L'+'), conPiu);
}
