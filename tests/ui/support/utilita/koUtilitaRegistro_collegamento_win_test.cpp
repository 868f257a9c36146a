#include "support/utilita/koUtilita.h"

#include "support/windows/file_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/collegamento_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include <gtest/gtest.h>

namespace {

const std::wstring classi = L"Software\\Classes\\";

} // namespace

TEST(KoUtilitaCollegamento, PortaCioCheGliSiDice) {
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"mia app.exe");
    Registratore::copiaIn(programma);
    koUtilita::CreaCollegamento(cartella.file(L"città"),
                                {programma, cartella.percorso(), 7, programma + L",0"});
    const auto letto = leggiCollegamento(cartella.file(L"città.lnk"));
    EXPECT_EQ(letto.obiettivo, programma);
    EXPECT_EQ(letto.cartella, cartella.percorso());
    EXPECT_EQ(letto.icona, programma);
    EXPECT_EQ(letto.indice, 0);
    EXPECT_EQ(letto.stile, 7);
    // The same name again.
    koUtilita::CreaCollegamento(cartella.file(L"città.lnk"), {cartella.percorso(), L"", 1, L""});
    EXPECT_EQ(leggiCollegamento(cartella.file(L"città.lnk")).stile, 1);
}

TEST(KoUtilitaCollegamento, SenzaNomeObiettivoOCartellaEUnErrore) {
    const CartellaProva cartella;
    const auto crea = [](const std::wstring& file, const std::wstring& obiettivo) {
        return erroreDi([&] { koUtilita::CreaCollegamento(file, {obiettivo, L"", 1, L""}); });
    };
    EXPECT_EQ(crea(L"", L"C:\\a.exe"), 5);
    EXPECT_EQ(crea(cartella.file(L"a"), L""), 5);
    EXPECT_EQ(crea(cartella.file(L"manca\\a"), L"C:\\a.exe"), 76);
    EXPECT_NE(crea(std::wstring(1000, L'x'), L"C:\\a.exe"), 0);
    EXPECT_NE(crea(cartella.file(L"a?b"), L"C:\\a.exe"), 0);
    const std::wstring lungo = L"C:\\" + std::wstring(1000, L'x');
    EXPECT_EQ(crea(cartella.file(L"a"), lungo), 5);
    for (const Collegamento& dati :
         {Collegamento{L"C:\\a.exe", lungo, 1, L""}, Collegamento{L"C:\\a.exe", L"", 1, lungo}}) {
        EXPECT_EQ(erroreDi([&] { koUtilita::CreaCollegamento(cartella.file(L"a"), dati); }), 5);
    }
    EXPECT_FALSE(fileEsiste(cartella.file(L"*.lnk")));
}

TEST(KoUtilitaCollegamento, SenzaIlComponenteEErrore429) {
    const CartellaProva cartella;
    const ChiaveSalvata nome(HKEY_LOCAL_MACHINE, classi + L"WScript.Shell");
    EXPECT_EQ(erroreDi([&] {
                  koUtilita::CreaCollegamento(cartella.file(L"a"), {L"C:\\a.exe", L"", 1, L""});
              }),
              429);
    EXPECT_FALSE(fileEsiste(cartella.file(L"a.lnk")));
}

TEST(KoUtilitaCollegamento, DoveNonSiScriveEUnErrore) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    EXPECT_NE(erroreDi([&] {
                  koUtilita::CreaCollegamento(*disco + L"\\a", {L"C:\\a.exe", L"", 1, L""});
              }),
              0);
    EXPECT_FALSE(fileEsiste(*disco + L"\\a.lnk"));
}
