#include "support/windows/fileNuovo_win.h"

#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

class ProvaDiCreazione : public testing::Test {
protected:
    [[nodiscard]] static std::int32_t errore(const std::wstring& percorso) {
        return erroreDi([&] { provaCreazione(percorso); });
    }

    CartellaProva cartella;
};

// A name too long and a drive that is missing: what the system says differs.
void attendiMancante(std::int32_t numero) {
    EXPECT_TRUE(numero == 76 || numero == 53) << numero;
}

} // namespace

TEST_F(ProvaDiCreazione, DoveSiPuoNonRestaNulla) {
    const std::wstring percorso = cartella.file(L"nuovo.xml");
    EXPECT_EQ(errore(percorso), 0);
    EXPECT_FALSE(std::filesystem::exists(percorso));
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST_F(ProvaDiCreazione, DoveNonSiPuoDicePerche) {
    EXPECT_EQ(errore(cartella.file(L"nessuna\\a.xml")), 76);
    EXPECT_EQ(errore(cartella.file(L"a?b")), 52);
    attendiMancante(errore(L"Q:\\a.xml"));
    attendiMancante(errore(cartella.file(std::wstring(300, L'n'))));
    EXPECT_EQ(errore(cartella.percorso()), 75);
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST_F(ProvaDiCreazione, DoveNonSiHaIlPermessoDicePerche) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    // A medium that is protected, or a folder of others: what the system takes it for differs.
    const auto numero = errore(*disco + L"\\a.xml");
    EXPECT_TRUE(numero == 70 || numero == 75) << numero;
}

TEST_F(ProvaDiCreazione, UnFileNascostoResta) {
    const std::wstring percorso = cartella.scrivi(L"n.xml", "prima");
    ASSERT_TRUE(SetFileAttributesW(percorso.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(errore(percorso), 0);
    EXPECT_EQ(leggiTutto(percorso), "prima");
}
