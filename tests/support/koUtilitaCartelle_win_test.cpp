#include "support/koUtilita.h"

#include "support/file_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

std::int32_t erroreCrea(const std::wstring& percorso) {
    return sollevatoDa([&percorso] {
               koUtilita::CreaPercorsoDirectory(percorso);
               return 0;
           })
        .numero;
}

bool eCartella(const std::wstring& percorso) {
    return std::filesystem::is_directory(percorso);
}

} // namespace

TEST(KoUtilitaCartelle, CreaPercorsoDirectoryFaOgniCartellaCheManca) {
    const CartellaProva cartella;
    koUtilita::CreaPercorsoDirectory(cartella.file(L"uno\\due è\\Ω\\"));
    EXPECT_TRUE(eCartella(cartella.file(L"uno\\due è\\Ω")));
    koUtilita::CreaPercorsoDirectory(cartella.file(L"uno/due è/tre"));
    EXPECT_TRUE(eCartella(cartella.file(L"uno\\due è\\tre")));
    // What is there stays as it is.
    const std::wstring file = cartella.scrivi(L"uno\\a.txt", "x");
    koUtilita::CreaPercorsoDirectory(cartella.file(L"uno"));
    koUtilita::CreaPercorsoDirectory(koUtilita::CartellaWindows().substr(0, 3));
    EXPECT_EQ(leggiTutto(file), "x");
}

TEST(KoUtilitaCartelle, UnPercorsoCheNonSiFaNonLasciaNulla) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"file", "x");
    EXPECT_EQ(erroreCrea(L""), 5);
    EXPECT_NE(erroreCrea(cartella.file(L"file\\sotto")), 0);
    EXPECT_EQ(erroreCrea(file), 75);
    EXPECT_NE(erroreCrea(cartella.file(L"a\\b\\c?d\\e")), 0);
    EXPECT_FALSE(eCartella(cartella.file(L"a")));
    EXPECT_NE(erroreCrea(cartella.file(L"a\\b\\") + std::wstring(1000, L'x')), 0);
    EXPECT_FALSE(eCartella(cartella.file(L"a")));
    EXPECT_EQ(leggiTutto(file), "x");
}

TEST(KoUtilitaCartelle, LeCartelleDelSistemaEsistonoEFinisconoConLaBarra) {
    for (const std::wstring& c : {koUtilita::CartellaWindows(), koUtilita::GetWindowsSysDir(),
                                  koUtilita::CurDirApp(), koUtilita::CartellaCondivisi()}) {
        EXPECT_TRUE(c.ends_with(L"\\")) << inUtf8(c);
        EXPECT_TRUE(eCartella(c)) << inUtf8(c);
    }
    EXPECT_TRUE(fileEsiste(koUtilita::GetWindowsSysDir() + L"kernel32.dll"));
    EXPECT_TRUE(koUtilita::GetWindowsSysDir().starts_with(koUtilita::CartellaWindows()));
    EXPECT_EQ(koUtilita::CurDirApp(), cartellaProgramma() + L"\\");
}

TEST(KoUtilitaCartelle, DirectoryReteDiceIlNomeDiRete) {
    EXPECT_EQ(koUtilita::DirectoryRete(L"\\\\server\\dati\\a"), L"\\\\server\\dati\\a\\");
    EXPECT_EQ(koUtilita::DirectoryRete(koUtilita::CartellaWindows()), L"");
    for (const std::wstring& percorso : {std::wstring(L"9:\\a"), std::wstring(L"a\\b"),
                                         std::wstring(), std::wstring(1000, L'x')}) {
        EXPECT_EQ(koUtilita::DirectoryRete(percorso), L"") << inUtf8(percorso);
    }
}
