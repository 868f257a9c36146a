#include "document/copie_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace {

using Esito = CopieFile::Esito;

class CopieSuDisco : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::wstring> copieDi(const std::wstring& percorso) const {
        std::vector<std::wstring> nomi;
        if (std::filesystem::exists(copie.cartella(percorso))) {
            for (const auto& voce : std::filesystem::directory_iterator(copie.cartella(percorso))) {
                nomi.push_back(voce.path().filename().wstring());
            }
        }
        std::ranges::sort(nomi);
        return nomi;
    }

    CartellaProva cartella;
    CopieFile copie{cartella.file(L"dati\\copie")};
    DataOra ora = DataOra::daParti(2026, 11, 21, 13, 5, 0);
    std::wstring file = cartella.scrivi(L"notizie.xml", "prima");
};

TEST_F(CopieSuDisco, IlFileCheCEraStaTraLeCopieConLaSuaOra) {
    EXPECT_EQ(copie.conserva(file, ora), Esito::Fatta);
    EXPECT_EQ(copieDi(file), std::vector<std::wstring>{L"2026-11-21 13.05.00.xml"});
    EXPECT_EQ(leggiTutto(copie.cartella(file) + L"\\2026-11-21 13.05.00.xml"), "prima");
    EXPECT_EQ(leggiTutto(file), "prima");
}

TEST_F(CopieSuDisco, IlFileCheSeNeVaDiventaLaCopia) {
    EXPECT_EQ(copie.conserva(file, ora, CopieFile::Originale::PuoAndare), Esito::Spostata);
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(leggiTutto(copie.cartella(file) + L"\\2026-11-21 13.05.00.xml"), "prima");
    static_cast<void>(cartella.scrivi(L"notizie.xml", "dopo!"));
    EXPECT_EQ(copie.conserva(file, ora, CopieFile::Originale::PuoAndare), Esito::Spostata);
    EXPECT_EQ(leggiTutto(copie.cartella(file) + L"\\2026-11-21 13.05.00.xml"), "prima");
    EXPECT_EQ(leggiTutto(copie.cartella(file) + L"\\2026-11-21 13.05.00 (2).xml"), "dopo!");
    // Equal to the newest, it is for others to delete.
    static_cast<void>(cartella.scrivi(L"notizie.xml", "dopo!"));
    EXPECT_EQ(copie.conserva(file, ora, CopieFile::Originale::PuoAndare), Esito::GiaTenuta);
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(CopieSuDisco, UnFileCheHaUnAltroNomeSiCopia) {
    const std::wstring altro = cartella.file(L"altro nome.xml");
    ASSERT_TRUE(CreateHardLinkW(altro.c_str(), file.c_str(), nullptr));
    EXPECT_EQ(copie.conserva(file, ora, CopieFile::Originale::PuoAndare), Esito::Fatta);
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(CopieSuDisco, CioCheNonSiPuoEliminareSiCopia) {
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(copie.conserva(file, ora, CopieFile::Originale::PuoAndare), Esito::Fatta);
    EXPECT_TRUE(std::filesystem::exists(file));
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(CopieSuDisco, SenzaFileNonSiFaNulla) {
    const std::wstring altro = cartella.file(L"manca.xml");
    EXPECT_EQ(copie.conserva(altro, ora), Esito::NessunFile);
    EXPECT_FALSE(std::filesystem::exists(cartella.file(L"dati")));
}

TEST_F(CopieSuDisco, UnaCopiaUgualeAllUltimaNonSiRifa) {
    EXPECT_EQ(copie.conserva(file, ora), Esito::Fatta);
    EXPECT_EQ(copie.conserva(file, ora.piuSecondi(60)), Esito::GiaTenuta);
    EXPECT_EQ(copieDi(file).size(), 1U);
    // As long, but different.
    file = cartella.scrivi(L"notizie.xml", "primo");
    EXPECT_EQ(copie.conserva(file, ora.piuSecondi(120)), Esito::Fatta);
    // Equal to an older one than the newest.
    file = cartella.scrivi(L"notizie.xml", "prima");
    EXPECT_EQ(copie.conserva(file, ora.piuSecondi(180)), Esito::Fatta);
    EXPECT_EQ(copieDi(file).size(), 3U);
}

TEST_F(CopieSuDisco, NellaStessaOraSiNumerano) {
    for (const auto* const testo : {"prima", "seconda", "terza"}) {
        file = cartella.scrivi(L"notizie.xml", testo);
        EXPECT_EQ(copie.conserva(file, ora), Esito::Fatta);
    }
    EXPECT_EQ(copieDi(file), (std::vector<std::wstring>{L"2026-11-21 13.05.00 (2).xml",
                                                        L"2026-11-21 13.05.00 (3).xml",
                                                        L"2026-11-21 13.05.00.xml"}));
    EXPECT_EQ(leggiTutto(copie.cartella(file) + L"\\2026-11-21 13.05.00 (3).xml"), "terza");
}

TEST_F(CopieSuDisco, NeRestanoVenti) {
    for (int i = 0; i < 23; ++i) {
        file = cartella.scrivi(L"notizie.xml", std::to_string(i));
        EXPECT_EQ(copie.conserva(file, ora.piuSecondi(60 * i)), Esito::Fatta);
    }
    const auto nomi = copieDi(file);
    ASSERT_EQ(nomi.size(), 20U);
    EXPECT_EQ(nomi.front(), L"2026-11-21 13.08.00.xml");
    EXPECT_EQ(nomi.back(), L"2026-11-21 13.27.00.xml");
}

TEST_F(CopieSuDisco, OgniPercorsoHaLaSuaCartella) {
    const CartellaProva altra;
    const std::wstring omonimo = altra.scrivi(L"notizie.xml", "altro");
    EXPECT_EQ(copie.conserva(file, ora), Esito::Fatta);
    EXPECT_EQ(copie.conserva(omonimo, ora), Esito::Fatta);
    EXPECT_NE(copie.cartella(file), copie.cartella(omonimo));
    std::wstring inAltroModo = file;
    CharUpperBuffW(inAltroModo.data(), static_cast<DWORD>(inAltroModo.size()));
    EXPECT_EQ(copie.conserva(inAltroModo, ora), Esito::GiaTenuta);
}

TEST_F(CopieSuDisco, UnFileDiSolaLetturaLasciaUnaCopiaCheSiPuoEliminare) {
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(copie.conserva(file, ora), Esito::Fatta);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(GetFileAttributesW((copie.cartella(file) + L"\\2026-11-21 13.05.00.xml").c_str()) &
                  FILE_ATTRIBUTE_READONLY,
              0U);
}

TEST_F(CopieSuDisco, DoveNonSiPuoScrivereSollevaELasciaIlFile) {
    const std::wstring inMezzo = cartella.scrivi(L"un file", "");
    EXPECT_EQ(
        sollevatoDa([&] { return CopieFile(inMezzo + L"\\copie").conserva(file, ora); }).numero,
        errori::accessoAlPercorso);
    EXPECT_EQ(leggiTutto(file), "prima");
}

TEST_F(CopieSuDisco, SuUnDiscoPienoNonRestaMezzaCopia) {
    const auto disco = discoPiccolo();
    if (!disco) {
        GTEST_SKIP() << "no small volume here";
    }
    const CopieFile piccole(*disco + L"\\copie");
    file = cartella.scrivi(L"notizie.xml", std::string(400'000, 'x'));
    EXPECT_NE(sollevatoDa([&] { return piccole.conserva(file, ora); }).numero, 0);
    EXPECT_TRUE(std::filesystem::is_empty(piccole.cartella(file)));
    std::filesystem::remove_all(*disco + L"\\copie");
}

} // namespace
