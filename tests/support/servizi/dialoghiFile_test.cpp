#include "support/servizi/dialoghiFile.h"

#include "support/errori/errore.h"
#include "tests/aiuti/dialoghi_finti.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(DialoghiFile, IlFiltroFinisceConDueZeri) {
    EXPECT_EQ(filtroWindows(L"A|*.a;*.b|B|*.*"), L"A\0*.a;*.b\0B\0*.*\0\0"s);
    EXPECT_EQ(filtroWindows(L""), L"\0\0"s);
}

TEST(DialoghiFile, LEstensionePerdeIlSuoPunto) {
    EXPECT_EQ(estensioneWindows(L".xml"), L"xml");
    EXPECT_EQ(estensioneWindows(L"xml"), L"xml");
    EXPECT_EQ(estensioneWindows(L""), L"");
    EXPECT_EQ(estensioneWindows(L".tar.gz"), L"tar.gz");
}

TEST(DialoghiFile, AnnullareSollevaIlSuoErrore) {
    DialoghiFinti dialoghi;
    dialoghi.attendiApri({L"A|*.a", opzioniApri, L""}, std::nullopt);
    dialoghi.attendiSalva({L"A|*.a", opzioniSalva, L".a"}, L"c:\\x.a");
    try {
        static_cast<void>(dialoghi.apri({L"A|*.a", opzioniApri, L""}));
        ADD_FAILURE();
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.numero(), 32755);
    }
    EXPECT_EQ(dialoghi.salva({L"A|*.a", opzioniSalva, L".a"}), L"c:\\x.a");
}
