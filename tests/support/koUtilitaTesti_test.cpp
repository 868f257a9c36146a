#include "support/comando.h"
#include "support/errore.h"
#include "support/koUtilita.h"
#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

using Pezzi = std::vector<std::wstring>;

TEST(KoUtilitaTesti, NonHaStatoOltreAiMessaggi) {
    EXPECT_EQ(sizeof(koUtilita), sizeof(Messaggi*));
}

TEST(KoUtilitaTesti, KoReplaceSostituisceOgniOccorrenzaESoloQuelle) {
    EXPECT_EQ(koUtilita::koReplace(L"a-b-c", L"-", L"--"), L"a--b--c");
    EXPECT_EQ(koUtilita::koReplace(L"Aa", L"a", L""), L"A");
    EXPECT_EQ(koUtilita::koReplace(L"abc", L"", L"x"), L"abc");
    EXPECT_EQ(koUtilita::koReplace(L"", L"a", L"b"), L"");
    EXPECT_EQ(koUtilita::koReplace(std::wstring(1000, L'a'), L"a", L"bc").size(), 2000U);
}

TEST(KoUtilitaTesti, KoSplitDaAncheIPezziVuoti) {
    EXPECT_EQ(koUtilita::koSplit(L"a;;b;", L";"), (Pezzi{L"a", L"", L"b", L""}));
    EXPECT_EQ(koUtilita::koSplit(L"uno, due, tre", L", "), (Pezzi{L"uno", L"due", L"tre"}));
    EXPECT_EQ(koUtilita::koSplit(L"uno due"), (Pezzi{L"uno", L"due"}));
    EXPECT_EQ(koUtilita::koSplit(L"a;b", L""), (Pezzi{L"a;b"}));
    EXPECT_EQ(koUtilita::koSplit(L"", L";"), (Pezzi{L""}));
    EXPECT_EQ(koUtilita::koSplit(std::wstring(1000, L';'), L";").size(), 1001U);
}

TEST(KoUtilitaTesti, EspuraSpaziToglieGliSpaziENonITab) {
    EXPECT_EQ(koUtilita::EspuraSpazi(L"  a b\tc  d "), L"ab\tcd");
    EXPECT_EQ(koUtilita::EspuraSpazi(L"   "), L"");
    EXPECT_EQ(koUtilita::EspuraSpazi(L""), L"");
}

TEST(KoUtilitaTesti, KeyMaiuscoloCambiaSoloLeMinuscole) {
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'a'), L'A');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'è'), L'È');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'7'), L'7');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'\b'), L'\b');
    EXPECT_EQ(koUtilita::KeyMaiuscolo(L'\0'), L'\0');
}

TEST(KoUtilitaTesti, LongToDateContaIGiorniDalTrentaDicembre1899) {
    EXPECT_EQ(koUtilita::LongToDate(0), DataOra::daParti(1899, 12, 30));
    EXPECT_EQ(koUtilita::LongToDate(38671), DataOra::daParti(2005, 11, 15));
    EXPECT_EQ(koUtilita::LongToDate(-1), DataOra::daParti(1899, 12, 29));
    EXPECT_EQ(koUtilita::LongToDate(2958465), DataOra::daParti(9999, 12, 31));
    EXPECT_EQ(koUtilita::LongToDate(-657434), DataOra::daParti(100, 1, 1));
}

TEST(KoUtilitaTesti, LongToDateRifiutaGliAnniDiTroppo) {
    for (const std::int32_t numero : {2958466, -657435, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(sollevatoDa([numero] { return koUtilita::LongToDate(numero); }).numero, 5);
    }
}

TEST(KoUtilitaTesti, MessaggioErroreITAELaTabellaDegliErroriSollevati) {
    EXPECT_EQ(koUtilita::MessaggioErroreITA(3), L"Return senza GoSub");
    EXPECT_EQ(koUtilita::MessaggioErroreITA(5), L"Chiamata di routine o argomento non valido");
    for (std::int32_t numero = 0; numero < 1000; ++numero) {
        const auto sollevato = sollevatoDa([numero]() -> int { solleva(numero); });
        EXPECT_EQ(koUtilita::MessaggioErroreITA(numero), sollevato.descrizione);
    }
    EXPECT_EQ(koUtilita::MessaggioErroreITA(4), L"");
    EXPECT_EQ(koUtilita::MessaggioErroreITA(-2147467259), L"");
}

TEST(KoUtilitaPercorsi, UnPercorsoSiDivideInCartellaENome) {
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"C:\\a b\\c.d.xml"), L"c.d.xml");
    EXPECT_EQ(koUtilita::EstraiPath(L"C:\\a b\\c.d.xml"), L"C:\\a b\\");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"C:/a/b"), L"b");
    EXPECT_EQ(koUtilita::EstraiPath(L"C:b"), L"C:");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"b"), L"b");
    EXPECT_EQ(koUtilita::EstraiPath(L"b"), L"");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L"C:\\a\\"), L"");
    EXPECT_EQ(koUtilita::DeterminaSoloFileName(L""), L"");
    EXPECT_EQ(koUtilita::EstraiPath(L""), L"");
    EXPECT_EQ(koUtilita::EstraiPath(std::wstring(1000, L'x') + L"\\y").size(), 1001U);
}

TEST(KoUtilitaPercorsi, LEstensioneELUltimaDelNomeConIlPunto) {
    EXPECT_EQ(koUtilita::EstraiEstensione(L"C:\\a\\b.tar.gz"), L".gz");
    EXPECT_EQ(koUtilita::EstraiEstensione(L"C:\\a.b\\c"), L"");
    EXPECT_EQ(koUtilita::EstraiEstensione(L"nome."), L".");
    EXPECT_EQ(koUtilita::EstraiEstensione(L""), L"");
    EXPECT_EQ(koUtilita::EstraiEstensione(std::wstring(1000, L'.')), L".");
}

TEST(KoUtilitaVersioni, ConfrontaVersioneContaNumeroPerNumero) {
    EXPECT_LT(koUtilita::ConfrontaVersione(L"1.9.0", L"1.10.0"), 0);
    EXPECT_GT(koUtilita::ConfrontaVersione(L"2", L"1.99.99.99"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"1.0", L"1"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L" 01.002", L"1.2.0.0"), 0);
    EXPECT_LT(koUtilita::ConfrontaVersione(L"1.2.3.4", L"1.2.3.5"), 0);
    EXPECT_GT(koUtilita::ConfrontaVersione(L"4294967297", L"4294967296"), 0);
}

TEST(KoUtilitaVersioni, CioCheNonENumeroConfrontandoVersioniValeZero) {
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"", L""), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"", L"0.0.0.0"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"abc", L"0"), 0);
    EXPECT_LT(koUtilita::ConfrontaVersione(L"..", L"0.0.0.1"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"1beta.2", L"1.2"), 0);
    EXPECT_GT(koUtilita::ConfrontaVersione(std::wstring(1000, L'9'), std::wstring(999, L'9')), 0);
}

TEST(NomeSistema, ISistemiDellElencoHannoIlLoroNome) {
    const auto nome = [](std::uint32_t maggiore, std::uint32_t minore, bool nt) {
        return nomeSistema({maggiore, minore, 0, nt}, L"qualunque");
    };
    EXPECT_EQ(nome(4, 0, false), L"Windows 95");
    EXPECT_EQ(nome(4, 10, false), L"Windows 98");
    EXPECT_EQ(nome(4, 90, false), L"Windows Millennium");
    EXPECT_EQ(nome(4, 0, true), L"Windows NT");
    EXPECT_EQ(nome(5, 0, true), L"Windows 2000");
    EXPECT_EQ(nome(5, 1, true), L"Windows XP");
}

TEST(NomeSistema, UnSistemaPiuNuovoSiChiamaComeDiceDiSe) {
    EXPECT_EQ(nomeSistema({6, 1, 7601}, L"Microsoft Windows 7"), L"Windows 7");
    EXPECT_EQ(nomeSistema({6, 3, 9600}, L"Windows 8.1 Pro"), L"Windows 8.1 Pro");
    EXPECT_EQ(nomeSistema({10, 0, 19045}, L"Windows 10 Home"), L"Windows 10 Home");
    EXPECT_EQ(nomeSistema({10, 0, 22000}, L"Windows 10 Home"), L"Windows 11 Home");
    EXPECT_EQ(nomeSistema({10, 0, 26100}, L"Windows Server 2025"), L"Windows Server 2025");
    EXPECT_EQ(nomeSistema({10, 0, 26100}, L""), L"Windows 10.0");
}

TEST(FileDelComando, ToglieVirgoletteEParametri) {
    EXPECT_EQ(fileDelComando(L"\"C:\\a b\\c.exe\" /x"), L"C:\\a b\\c.exe");
    EXPECT_EQ(fileDelComando(L" C:\\a b\\c.EXE /Automation "), L"C:\\a b\\c.EXE");
    EXPECT_EQ(fileDelComando(L"C:\\a.exe.d\\c.exe -x"), L"C:\\a.exe.d\\c.exe");
    EXPECT_EQ(fileDelComando(L"C:\\a b\\c.dll"), L"C:\\a b\\c.dll");
    EXPECT_EQ(fileDelComando(L"\"senza fine"), L"senza fine");
    EXPECT_EQ(fileDelComando(L""), L"");
}
