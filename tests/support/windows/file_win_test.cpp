#include "support/windows/file_win.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <filesystem>

#include <gtest/gtest.h>

TEST(FileEsiste, NormaliArchiviatiEDiSolaLettura) {
    const CartellaProva cartella;
    const auto file = cartella.scrivi(L"a.xml", "x");
    EXPECT_TRUE(fileEsiste(file));
    for (const DWORD attributi :
         {FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_ARCHIVE, FILE_ATTRIBUTE_READONLY}) {
        ASSERT_TRUE(SetFileAttributesW(file.c_str(), attributi));
        EXPECT_TRUE(fileEsiste(file)) << attributi;
    }
    EXPECT_FALSE(fileEsiste(cartella.file(L"b.xml")));
    EXPECT_FALSE(fileEsiste(cartella.file(L"nessuna\\b.xml")));
    EXPECT_FALSE(fileEsiste(L""));
}

TEST(FileEsiste, CartelleNo) {
    const CartellaProva cartella;
    EXPECT_FALSE(fileEsiste(cartella.percorso()));
    EXPECT_FALSE(fileEsiste(cartella.percorso() + L"\\"));
    EXPECT_FALSE(fileEsiste(L"C:\\"));
}

TEST(FileEsiste, NascostiEDiSistemaNo) {
    const CartellaProva cartella;
    const auto file = cartella.scrivi(L"a.xml", "x");
    for (const DWORD attributi : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
        ASSERT_TRUE(SetFileAttributesW(file.c_str(), attributi));
        if ((GetFileAttributesW(file.c_str()) & attributi) == 0) {
            GTEST_SKIP() << "the volume keeps no such attribute";
        }
        EXPECT_FALSE(fileEsiste(file)) << attributi;
    }
}

TEST(StessoFile, ComunqueSiaScrittoIlPercorso) {
    const CartellaProva cartella;
    const auto uno = cartella.scrivi(L"uno.xml", "x");
    const auto altro = cartella.scrivi(L"altro.xml", "x");
    EXPECT_TRUE(stessoFile(uno, uno));
    EXPECT_TRUE(stessoFile(uno, cartella.file(L".\\UNO.XML")));
    EXPECT_TRUE(stessoFile(cartella.percorso() + L"/uno.xml", uno));
    EXPECT_FALSE(stessoFile(uno, altro));
}

TEST(StessoFile, CioCheNonCeNonELoStesso) {
    const CartellaProva cartella;
    const auto uno = cartella.scrivi(L"uno.xml", "x");
    EXPECT_FALSE(stessoFile(uno, cartella.file(L"manca.xml")));
    EXPECT_FALSE(stessoFile(cartella.file(L"manca.xml"), cartella.file(L"manca.xml")));
    EXPECT_FALSE(stessoFile(uno, L""));
    EXPECT_FALSE(stessoFile(L"", L""));
}

TEST(StessoFile, ApertoDaAltriSiRiconosce) {
    const CartellaProva cartella;
    const auto uno = cartella.scrivi(L"uno.xml", "x");
    const ManigliaFile aperto(CreateFileW(uno.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                          OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(aperto);
    EXPECT_TRUE(stessoFile(uno, uno));
}

TEST(FileEsiste, ICaratteriJollySiEspandono) {
    const CartellaProva cartella;
    static_cast<void>(cartella.scrivi(L"abc.xml", "x"));
    std::filesystem::create_directory(cartella.file(L"solo.cartella"));
    EXPECT_TRUE(fileEsiste(cartella.file(L"*.xml")));
    EXPECT_TRUE(fileEsiste(cartella.file(L"a?c.xml")));
    EXPECT_FALSE(fileEsiste(cartella.file(L"*.rss")));
    EXPECT_FALSE(fileEsiste(cartella.file(L"*.cartella")));
    // Behind entries that do not count another one may.
    EXPECT_TRUE(fileEsiste(cartella.file(L"*")));
}

TEST(CancellaFile, CancellaOSollevaIlMotivo) {
    const CartellaProva cartella;
    const auto file = cartella.scrivi(L"a.xml", "x");
    const auto numero = [&](const std::wstring& percorso) {
        return sollevatoDa([&] {
                   cancellaFile(percorso);
                   return true;
               })
            .numero;
    };
    EXPECT_EQ(numero(file), 0);
    EXPECT_FALSE(fileEsiste(file));
    EXPECT_EQ(numero(file), 53);
    EXPECT_EQ(numero(cartella.file(L"nessuna\\a.xml")), 76);
    EXPECT_EQ(numero(cartella.percorso()), 75);
}

TEST(CartellaProgramma, EQuellaDelProgrammaSenzaBarra) {
    const std::filesystem::path cartella = cartellaProgramma();
    EXPECT_TRUE(std::filesystem::exists(cartella / L"prove_win.exe"));
    EXPECT_NE(cartella.wstring().back(), L'\\');
}
