#include "ui/main/statoDocumento.h"

#include <gtest/gtest.h>

TEST(StatoDocumento, IlTitoloHaDueSpaziEIlNomeTraParentesi) {
    StatoDocumento stato;
    EXPECT_EQ(stato.ImpostaTitolo(L"Nuovo Documento"), L"Ostrelle  [Nuovo Documento]");
    EXPECT_TRUE(stato.nuovo());
    EXPECT_EQ(stato.ImpostaTitolo(L"C:\\f.xml"), L"Ostrelle  [C:\\f.xml]");
    EXPECT_FALSE(stato.nuovo());
}

TEST(StatoDocumento, UnNomeVuotoLasciaIlSoloTitoloENonENuovo) {
    StatoDocumento stato;
    EXPECT_EQ(stato.ImpostaTitolo(L""), L"Ostrelle");
    EXPECT_FALSE(stato.nuovo());
}

TEST(StatoDocumento, IlNomeDelNuovoDocumentoSiConfrontaAllaLettera) {
    StatoDocumento stato;
    static_cast<void>(stato.ImpostaTitolo(L"nuovo documento"));
    EXPECT_FALSE(stato.nuovo());
    static_cast<void>(stato.ImpostaTitolo(L"Nuovo Documento "));
    EXPECT_FALSE(stato.nuovo());
}

TEST(StatoDocumento, ScartabileSenzaDomanda) {
    StatoDocumento stato;
    static_cast<void>(stato.ImpostaTitolo(StatoDocumento::nuovoDocumento));
    EXPECT_TRUE(stato.scartabile(false));
    stato.modificato(true);
    EXPECT_TRUE(stato.scartabile(true));
    EXPECT_FALSE(stato.scartabile(false));
    // A document with a file is never taken for empty.
    static_cast<void>(stato.ImpostaTitolo(L"C:\\f.xml"));
    EXPECT_FALSE(stato.scartabile(true));
}
