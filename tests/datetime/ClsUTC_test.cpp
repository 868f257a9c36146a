#include "datetime/ClsUTC.h"

#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

#include <array>
#include <random>

#include <gtest/gtest.h>

namespace {

const DataOra giugno = DataOra::daParti(2005, 6, 11, 15, 0, 0);
const DataOra luglio = DataOra::daParti(2005, 7, 11, 15, 0, 0);

ClsUTC conScarto(int ore, int minuti = 0) {
    const DataOra utc = DataOra::daParti(2005, 6, 11, 12, 10, 0);
    return {{utc, utc.piuSecondi(std::int64_t{ore} * 3600 + std::int64_t{minuti} * 60)}, {}};
}

Sollevato errore(std::wstring_view testo) {
    return sollevatoDa([&] { return conScarto(1).ToDate(testo); });
}

int numeroErrore(std::wstring_view testo) {
    return errore(testo).numero;
}

} // namespace

TEST(ClsUTC, GiugnoSiScriveJulELuglioJun) {
    const ClsUTC utc = conScarto(1);
    EXPECT_EQ(utc.GetDataUtc(giugno, true), L"Sat, 11 Jul 2005 15:00:00 +0100");
    EXPECT_EQ(utc.GetDataUtc(luglio, true), L"Mon, 11 Jun 2005 15:00:00 +0100");
}

TEST(ClsUTC, IGiorniDellaSettimanaEIMesiSiScrivonoInInglese) {
    const ClsUTC utc = conScarto(1);
    // 2 January 2005 was a Sunday.
    int giorno = 2;
    for (const auto* const nome :
         {L"Sun", L"Mon", L"Tue", L"Wed", L"Thu", L"Fri", L"Sat", L"Sun"}) {
        const std::wstring numero = std::to_wstring(giorno);
        EXPECT_EQ(utc.GetDataUtc(DataOra::daParti(2005, 1, giorno, 4, 5, 6), true),
                  std::wstring(nome) + L", 0" + numero + L" Jan 2005 04:05:06 +0100");
        ++giorno;
    }
    int mese = 1;
    for (const std::wstring nome : {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jul", L"Jun", L"Aug",
                                    L"Sep", L"Oct", L"Nov", L"Dec"}) {
        EXPECT_EQ(utc.GetDataUtc(DataOra::daParti(2005, mese, 10), true).substr(4, 13),
                  L" 10 " + nome + L" 2005 ");
        ++mese;
    }
}

TEST(ClsUTC, JunSiLeggeLuglioEGiuGiugno) {
    const ClsUTC utc = conScarto(1);
    EXPECT_EQ(utc.ToDate(L"Sat, 11 Jun 2005 15:00:00 +0100"), luglio);
    EXPECT_EQ(utc.ToDate(L"Sat, 11 Giu 2005 15:00:00 +0100"), giugno);
    EXPECT_EQ(utc.ToDate(L"Sat, 11 jun 2005 15:00:00 +0100"), luglio);
    EXPECT_EQ(utc.ToDate(L"Sat, 11 Lug 2005 15:00:00 +0100"), luglio);
}

TEST(ClsUTC, OgniMeseInglesePrimaDiQuelloItaliano) {
    const ClsUTC utc = conScarto(0);
    constexpr std::array<std::wstring_view, 12> inglesi{L"JAN", L"feb", L"Mar", L"apr",
                                                        L"May", L"Jul", L"Jun", L"Aug",
                                                        L"Sep", L"Oct", L"nOv", L"Dec"};
    constexpr std::array<std::wstring_view, 12> italiani{L"gen", L"FEB", L"Mar", L"Apr",
                                                         L"Mag", L"Giu", L"Lug", L"Ago",
                                                         L"Set", L"Ott", L"Nov", L"dic"};
    for (const auto& nomi : {inglesi, italiani}) {
        for (int mese = 1; mese <= 12; ++mese) {
            const std::wstring testo = L", 2 " +
                                       std::wstring(nomi[static_cast<std::size_t>(mese - 1)]) +
                                       L" 2005 01:02:03 GMT";
            EXPECT_EQ(utc.ToDate(testo), DataOra::daParti(2005, mese, 2, 1, 2, 3));
        }
    }
}

TEST(ClsUTC, SpaziRipetutiPuntiETrattiniNellOrario) {
    const ClsUTC utc = conScarto(2);
    EXPECT_EQ(utc.ToDate(L"Sat,   11  Jun 2005   15.00.00   GMT"),
              DataOra::daParti(2005, 7, 11, 17, 0, 0));
    EXPECT_EQ(utc.ToDate(L"Sat, 11 Jun 2005 15-01-02 +0000"),
              DataOra::daParti(2005, 7, 11, 15, 1, 2));
    EXPECT_EQ(utc.ToDate(L"Sat, 11 Jun 2005 15:01:02.999 +0000"),
              DataOra::daParti(2005, 7, 11, 15, 1, 2));
}

TEST(ClsUTC, LOraUtcDiventaLocale) {
    const DataOra attesa = DataOra::daParti(2005, 7, 12, 0, 30, 0);
    for (const auto* const zona : {L"UTC", L"utc", L"GMT", L"Gmt", L"(UTC)", L"(gmt)"}) {
        EXPECT_EQ(conScarto(1).ToDate(L"Sat, 11 Jun 2005 23:30:00 " + std::wstring(zona)), attesa);
    }
    EXPECT_EQ(conScarto(-5).ToDate(L"Sat, 11 Jun 2005 02:30:00 UTC"),
              DataOra::daParti(2005, 7, 10, 21, 30, 0));
}

TEST(ClsUTC, UnaZonaNumericaSiControllaESiIgnora) {
    const ClsUTC utc = conScarto(1);
    for (const auto* const zona : {L"-0500", L"+0100", L"0", L"(0100)", L"+0000", L"-0330"}) {
        EXPECT_EQ(utc.ToDate(L"Sat, 11 Jun 2005 15:00:00 " + std::wstring(zona)), luglio);
    }
    for (const auto* const zona : {L"--0500", L"EST", L"Z", L"+01:00", L"(EST)", L"\t"}) {
        EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 2005 15:00:00 " + std::wstring(zona)), 13);
    }
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 2005 15:00:00 40000"), 6);
    EXPECT_EQ(errore(L"Sat, 11 Jun 2005 15:00:00 Z").descrizione, testi::diErrore(13));
}

TEST(ClsUTC, UnaParolaDopoLaZonaSiIgnora) {
    EXPECT_EQ(conScarto(1).ToDate(L"Sat, 11 Jun 2005 15:00:00 +0100 (CET)"), luglio);
}

TEST(ClsUTC, IlVuotoDaLaDataZero) {
    EXPECT_EQ(conScarto(1).ToDate(L""), DataOra());
    EXPECT_EQ(conScarto(1).ToDate(L"    "), DataOra());
    // A tab is no blank.
    EXPECT_EQ(numeroErrore(L"\t"), 4453);
}

TEST(ClsUTC, SenzaVirgolaOSenzaDuePuntiIlFormatoNonEValido) {
    for (const auto* const testo :
         {L"11 Jun 2005 15:00:00 +0100", L"Sat, 11 Jun 2005 1500 +0100", L"x",
          L"Sat, 11 Jun 2005 1500", L"Sat, 11 Jun 2005 15:00 +0100"}) {
        const auto e = errore(testo);
        EXPECT_EQ(e.numero, 4453);
        EXPECT_EQ(e.descrizione, testi::diErrore(4453));
    }
}

TEST(ClsUTC, UnMeseSconosciutoSiNominaInMaiuscolo) {
    const auto e = errore(L"Sat, 11 Xyz 2005 15:00:00 +0100");
    EXPECT_EQ(e.numero, 4454);
    EXPECT_EQ(e.descrizione, L"XYZ" + testi::diErrore(4454));
    EXPECT_EQ(errore(L"Sat, 11 xèz").descrizione, L"XÈZ" + testi::diErrore(4454));
    EXPECT_EQ(numeroErrore(L"Sat, 11 June 2005 15:00:00 GMT"), 4454);
}

TEST(ClsUTC, UnPezzoCheMancaEFuoriIntervallo) {
    EXPECT_EQ(numeroErrore(L"Sat,"), 9);
    EXPECT_EQ(numeroErrore(L","), 9);
    EXPECT_EQ(numeroErrore(L"Sat, 11"), 9);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun"), 9);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 2005"), 9);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 2005 15:00:00"), 9);
    // A tab does not separate.
    EXPECT_EQ(numeroErrore(L"Sat,\t11\tJun\t2005\t15:00:00\tGMT"), 9);
}

TEST(ClsUTC, VinceIlPrimoErroreNellOrdineDeiPassi) {
    EXPECT_EQ(numeroErrore(L"11 Xyz"), 4453);
    EXPECT_EQ(numeroErrore(L"Sat, 99999 Xyz"), 6);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Xyz 99999 1500 Z"), 4454);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 99999 1500 Z"), 6);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 10000 1500 Z"), 4453);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 10000 15:00:99999 Z"), 13);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 10000 15:00:99999 GMT"), 5);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun 2005 15:00:99999 GMT"), 6);
    EXPECT_EQ(numeroErrore(L"Sat, 11 Jun -5 15:00:00 GMT"), 5);
}

TEST(ClsUTC, IlGiornoDellaSettimanaNonSiControlla) {
    EXPECT_EQ(conScarto(1).ToDate(L", 11 Jun 2005 15:00:00 +0100"), luglio);
    EXPECT_EQ(conScarto(1).ToDate(L"qualunque cosa,11 Jun 2005 15:00:00 +0100"), luglio);
}

TEST(ClsUTC, IValoriFuoriMisuraRiportano) {
    const ClsUTC utc = conScarto(-5);
    const auto data = [&](const wchar_t* testo) { return utc.ToDate(testo); };
    EXPECT_EQ(data(L", 31 Apr 2005 00:00:00 0"), DataOra::daParti(2005, 5, 1));
    EXPECT_EQ(data(L", 0 Apr 2005 00:00:00 0"), DataOra::daParti(2005, 3, 31));
    EXPECT_EQ(data(L", x Apr 2005 00:00:00 0"), DataOra::daParti(2005, 3, 31));
    EXPECT_EQ(data(L", -1 Apr 2005 00:00:00 0"), DataOra::daParti(2005, 3, 30));
    EXPECT_EQ(data(L", 1 Apr 2005 25:61:61 0"), DataOra::daParti(2005, 4, 2, 2, 2, 1));
    EXPECT_EQ(data(L", 1 Apr 2005 03:00:00 GMT"), DataOra::daParti(2005, 3, 31, 22));
    EXPECT_EQ(data(L", 1 Apr 29 00:00:00 0"), DataOra::daParti(2029, 4, 1));
    EXPECT_EQ(data(L", 1 Apr 30 00:00:00 0"), DataOra::daParti(1930, 4, 1));
    EXPECT_EQ(data(L", 1 Apr 0 00:00:00 0"), DataOra::daParti(2000, 4, 1));
    EXPECT_EQ(data(L", 1 Apr 99 00:00:00 0"), DataOra::daParti(1999, 4, 1));
}

TEST(ClsUTC, GiornoEAnnoSonoIlNumeroIniziale) {
    const ClsUTC utc = conScarto(0);
    EXPECT_EQ(utc.ToDate(L", 11th Jun 2005AD 15:00:00 0"), luglio);
    // Halves go to even: 2.5 is day 2.
    EXPECT_EQ(utc.ToDate(L", 2.5 Jan 2005 00:00:00 0"), DataOra::daParti(2005, 1, 2));
    EXPECT_EQ(utc.ToDate(L", 3.5 Jan 2005 00:00:00 0"), DataOra::daParti(2005, 1, 4));
    EXPECT_EQ(utc.ToDate(L", 1 Jan 2005 a:b:c 0"), DataOra::daParti(2005, 1, 1));
    // The hours are rounded when the time is built.
    EXPECT_EQ(utc.ToDate(L", 1 Jan 2005 25e-1:00:00 0"), DataOra::daParti(2005, 1, 1, 25, 1, 0));
}

TEST(ClsUTC, AOvestDiGreenwichDueMeno) {
    EXPECT_EQ(conScarto(-5).GetDataUtc(giugno, true), L"Sat, 11 Jul 2005 15:00:00 --0500");
    EXPECT_EQ(conScarto(0).GetDataUtc(giugno, true), L"Sat, 11 Jul 2005 15:00:00 +0000");
    EXPECT_EQ(numeroErrore(conScarto(-5).GetDataUtc(giugno, true)), 13);
}

TEST(ClsUTC, NonLocaleEOraUtcConLoScartoLocale) {
    EXPECT_EQ(conScarto(2).GetDataUtc(giugno, false), L"Sat, 11 Jul 2005 13:00:00 +0200");
    EXPECT_EQ(conScarto(-10).GetDataUtc(giugno, false), L"Sun, 12 Jul 2005 01:00:00 --1000");
}

TEST(ClsUTC, OgniScartoIntero) {
    for (int ore = -12; ore <= 14; ++ore) {
        const ClsUTC utc = conScarto(ore);
        const int valore = ore < 0 ? -ore : ore;
        const std::wstring coda = std::wstring(ore < 0 ? L"--" : L"+") +
                                  (valore < 10 ? L"0" : L"") + std::to_wstring(valore) + L"00";
        const std::wstring testo = utc.GetDataUtc(giugno, true);
        EXPECT_EQ(testo, L"Sat, 11 Jul 2005 15:00:00 " + coda);
        if (ore >= 0) {
            EXPECT_EQ(utc.ToDate(testo), giugno);
        }
        EXPECT_EQ(utc.ToDate(L"Sat, 11 Jul 2005 15:00:00 UTC"),
                  giugno.piuSecondi(std::int64_t{ore} * 3600));
    }
}

// Both clocks are cut to the hour, so the offset of a half-hour zone changes within the hour.
TEST(ClsUTC, ZoneDiMezzOraContanoIConfiniDiOra) {
    const auto scarto = [](int minutoUtc, int minuti) {
        const DataOra utc = DataOra::daParti(2005, 6, 11, 12, minutoUtc, 0);
        const ClsUTC qui({utc, utc.piuSecondi(std::int64_t{minuti} * 60)}, {});
        return qui.GetDataUtc(giugno, true).substr(26);
    };
    EXPECT_EQ(scarto(29, 330), L"+0500");
    EXPECT_EQ(scarto(30, 330), L"+0600");
    EXPECT_EQ(scarto(29, -210), L"--0400");
    EXPECT_EQ(scarto(30, -210), L"--0300");
    EXPECT_EQ(scarto(14, 345), L"+0500");
    EXPECT_EQ(scarto(15, 345), L"+0600");
    EXPECT_EQ(scarto(29, 570), L"+0900");
    EXPECT_EQ(scarto(59, 570), L"+1000");
}

// Rome in 2005: on 30 October half past two comes twice, on 27 March never.
TEST(ClsUTC, LOraCheSiRipeteEQuellaCheManca) {
    const DataOra dueEMezzaDiOttobre = DataOra::daParti(2005, 10, 30, 2, 30, 0);
    const ClsUTC prima({DataOra::daParti(2005, 10, 30, 0, 30, 0), dueEMezzaDiOttobre}, {});
    const ClsUTC dopo({DataOra::daParti(2005, 10, 30, 1, 30, 0), dueEMezzaDiOttobre}, {});
    const std::wstring conLegale = prima.GetDataUtc(prima.adessoLocale(), true);
    const std::wstring conSolare = dopo.GetDataUtc(dopo.adessoLocale(), true);
    EXPECT_EQ(conLegale, L"Sun, 30 Oct 2005 02:30:00 +0200");
    EXPECT_EQ(conSolare, L"Sun, 30 Oct 2005 02:30:00 +0100");
    EXPECT_EQ(prima.GetDataUtc(dueEMezzaDiOttobre, false), L"Sun, 30 Oct 2005 00:30:00 +0200");
    EXPECT_EQ(dopo.GetDataUtc(dueEMezzaDiOttobre, false), L"Sun, 30 Oct 2005 01:30:00 +0100");
    EXPECT_FALSE(prima.leggeCome(dopo));

    const ClsUTC ultima(
        {DataOra::daParti(2005, 3, 27, 0, 59, 59), DataOra::daParti(2005, 3, 27, 1, 59, 59)}, {});
    const ClsUTC saltata(
        {DataOra::daParti(2005, 3, 27, 1, 0, 0), DataOra::daParti(2005, 3, 27, 3, 0, 0)}, {});
    EXPECT_EQ(ultima.nDiffOre(), 1);
    EXPECT_EQ(saltata.nDiffOre(), 2);
    // A clock time is a clock time, whichever it is and whenever it is read.
    const DataOra dueEMezzaDiMarzo = DataOra::daParti(2005, 3, 27, 2, 30, 0);
    for (const ClsUTC* const utc : {&prima, &dopo, &ultima, &saltata}) {
        EXPECT_EQ(utc->ToDate(conLegale), dueEMezzaDiOttobre);
        EXPECT_EQ(utc->ToDate(conSolare), dueEMezzaDiOttobre);
        EXPECT_EQ(utc->ToDate(utc->GetDataUtc(dueEMezzaDiMarzo, true)), dueEMezzaDiMarzo);
        EXPECT_EQ(utc->ToDate(L"Sun, 30 Oct 2005 00:30:00 GMT"),
                  DataOra::daParti(2005, 10, 30, utc->nDiffOre(), 30, 0));
    }
}

TEST(ClsUTC, LoScartoDiCapodannoEDellUltimoGiorno) {
    const DataOra capodanno = DataOra::daParti(2006, 1, 1, 0, 30, 0);
    EXPECT_EQ(ClsUTC({capodanno.piuSecondi(-3600), capodanno}, {}).nDiffOre(), 1);
    EXPECT_EQ(ClsUTC({capodanno, capodanno.piuSecondi(-3600)}, {}).nDiffOre(), -1);
    const DataOra ultima = DataOra::daParti(9999, 12, 31, 23, 59, 59);
    const ClsUTC laggiu({ultima.piuSecondi(-14 * 3600), ultima}, {});
    EXPECT_EQ(laggiu.nDiffOre(), 14);
    EXPECT_EQ(laggiu.GetDataUtc(ultima, true), L"Fri, 31 Dec 9999 23:59:59 +1400");
    EXPECT_EQ(laggiu.GetDataUtc(ultima, false), L"Fri, 31 Dec 9999 09:59:59 +1400");
    EXPECT_EQ(laggiu.ToDate(L"Fri, 31 Dec 9999 09:59:59 GMT"), ultima);
    EXPECT_EQ(sollevatoDa([&] { return laggiu.ToDate(L"Fri, 31 Dec 9999 10:00:00 GMT"); }).numero,
              5);
}

TEST(ClsUTC, GliAnniEstremi) {
    const ClsUTC utc = conScarto(0);
    const DataOra prima = DataOra::daParti(100, 1, 1);
    const DataOra ultima = DataOra::daParti(9999, 12, 31, 23, 59, 59);
    EXPECT_EQ(utc.GetDataUtc(prima, true), L"Fri, 01 Jan 0100 00:00:00 +0000");
    EXPECT_EQ(utc.GetDataUtc(ultima, true), L"Fri, 31 Dec 9999 23:59:59 +0000");
    EXPECT_EQ(utc.ToDate(utc.GetDataUtc(prima, true)), prima);
    EXPECT_EQ(utc.ToDate(utc.GetDataUtc(ultima, true)), ultima);
    EXPECT_EQ(sollevatoDa([&] { return conScarto(1).GetDataUtc(prima, false); }).numero, 5);
    EXPECT_EQ(sollevatoDa([&] { return utc.ToDate(L", 31 Dec 9999 24:00:00 0"); }).numero, 5);
    EXPECT_EQ(sollevatoDa([&] { return utc.ToDate(L", 0 Jan 100 00:00:00 0"); }).numero, 5);
    EXPECT_EQ(sollevatoDa([&] { return utc.ToDate(L", 0 Jan 10000 00:00:00 0"); }).numero, 5);
}

TEST(ClsUTC, LaDataZeroSiScriveComeTutteLeAltre) {
    EXPECT_EQ(conScarto(1).GetDataUtc(DataOra(), true), L"Sat, 30 Dec 1899 00:00:00 +0100");
}

TEST(ClsUTC, CioCheScriveRilegge) {
    constexpr unsigned seme = 822;
    std::mt19937_64 caso(seme);
    const auto primo = DataOra::daParti(100, 1, 1).secondi();
    const auto ultimo = DataOra::daParti(9999, 12, 31).secondi();
    std::uniform_int_distribution<std::int64_t> secondi(primo, ultimo);
    for (int i = 0; i < 5000; ++i) {
        const DataOra data = DataOra().piuSecondi(secondi(caso));
        const ClsUTC utc = conScarto(i % 15);
        const auto testo = utc.GetDataUtc(data, true);
        ASSERT_EQ(utc.ToDate(testo), data)
            << "seed " << seme << ": " << testing::PrintToString(testo);
    }
}
