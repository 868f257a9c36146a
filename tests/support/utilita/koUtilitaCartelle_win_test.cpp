#include "support/utilita/koUtilita.h"

#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "support/windows/registro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

std::int32_t erroreCrea(const std::wstring& percorso) {
    return erroreDi([&percorso] { koUtilita::CreaPercorsoDirectory(percorso); });
}

bool eCartella(const std::wstring& percorso) {
    return std::filesystem::is_directory(percorso);
}

std::ptrdiff_t quantiIn(const std::wstring& percorso) {
    return std::distance(std::filesystem::directory_iterator(percorso),
                         std::filesystem::directory_iterator());
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

TEST(KoUtilitaCartelle, DoveNonSiScriveNonSiFannoCartelle) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    EXPECT_EQ(erroreCrea(*disco + L"\\a\\b"), 75);
    EXPECT_FALSE(eCartella(*disco + L"\\a"));
    // What is there needs no making.
    EXPECT_EQ(erroreCrea(*disco), 0);
}

TEST(KoUtilitaCartelle, SuUnUnitaCheMancaNonSiFannoCartelle) {
    EXPECT_EQ(GetDriveTypeW(L"Q:\\"), static_cast<UINT>(DRIVE_NO_ROOT_DIR));
    EXPECT_NE(erroreCrea(L"Q:\\a\\b"), 0);
}

TEST(KoUtilitaCartelle, LaCartellaCondivisaEQuellaDelRegistroONessuna) {
    const MacchinaVuota vuota;
    EXPECT_EQ(koUtilita::CartellaCondivisi(), L"");
    scriviTesto(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion",
                L"CommonFilesDir", L"D:\\file comuni ");
    EXPECT_EQ(koUtilita::CartellaCondivisi(), L"D:\\file comuni\\");
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

TEST(KoUtilitaWriteAccess, UnaCartellaScrivibileResta) {
    const CartellaProva cartella;
    MessaggiFinti messaggi;
    EXPECT_TRUE(koUtilita(messaggi).WriteAccess(cartella.percorso()));
    EXPECT_EQ(quantiIn(cartella.percorso()), 0);
}

TEST(KoUtilitaWriteAccess, UnaCartellaDiSolaLetturaSiDice) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    MessaggiFinti messaggi;
    messaggi.attendi(testi::diErrore(75), L"Errore # 75", Icona::Critica);
    EXPECT_FALSE(koUtilita(messaggi).WriteAccess(*disco));
}

TEST(KoUtilitaWriteAccess, IlFileDellUtenteConQuelNomeResta) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"120asd12.tmp", "mio");
    MessaggiFinti messaggi;
    EXPECT_TRUE(koUtilita(messaggi).WriteAccess(cartella.percorso() + L"\\"));
    EXPECT_EQ(leggiTutto(file), "mio");
    // It cannot be written: nothing says that the folder can.
    {
        const ManigliaFile tenuto(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(tenuto);
        messaggi.attendi(testi::diErrore(70), L"Errore # 70", Icona::Critica);
        EXPECT_FALSE(koUtilita(messaggi).WriteAccess(cartella.percorso()));
    }
    EXPECT_EQ(leggiTutto(file), "mio");
}

TEST(KoUtilitaWriteAccess, UnaCartellaCheMancaSiDice) {
    const CartellaProva cartella;
    for (const std::wstring& quale :
         {cartella.file(L"manca"), std::wstring(), std::wstring(L" ")}) {
        MessaggiFinti messaggi;
        messaggi.attendi(testi::diErrore(76), L"Errore # 76", Icona::Critica);
        EXPECT_FALSE(koUtilita(messaggi).WriteAccess(quale));
    }
}

TEST(KoUtilitaWriteAccess, UnNomeTroppoLungoSiDice) {
    const std::wstring lungo = koUtilita::CurDirApp() + std::wstring(1000, L'x');
    MessaggiFinti messaggi;
    messaggi.attendi(testi::diErrore(76), L"Errore # 76", Icona::Critica);
    EXPECT_FALSE(koUtilita(messaggi).WriteAccess(lungo));
}

TEST(KoUtilitaCartelle, DirectoryReteDiceIlNomeDiUnUnitaCollegata) {
    const auto unita = unitaDiRete();
    if (!unita) {
        GTEST_SKIP() << "no drive stands for a network folder";
    }
    EXPECT_EQ(koUtilita::DirectoryRete(*unita + L"\\a b\\c"), L"\\\\server\\dati\\a b\\c\\");
    EXPECT_EQ(koUtilita::DirectoryRete(*unita + L"\\"), L"\\\\server\\dati\\");
    EXPECT_EQ(koUtilita::DirectoryRete(*unita), L"\\\\server\\dati\\");
    EXPECT_EQ(koUtilita::DirectoryRete(*unita + L"a/b"), L"\\\\server\\dati\\a\\b\\");
}
