#include "support/tempo/dataora.h"

#include "tests/aiuti/sollevato.h"

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace {

int annoNonValido(int anno, int mese, int giorno) {
    return sollevatoDa([=] { return DataOra::daParti(anno, mese, giorno); }).numero;
}

bool bisestile(int anno) {
    return (anno % 4 == 0 && anno % 100 != 0) || anno % 400 == 0;
}

int giorniDelMese(int anno, int mese) {
    if (mese == 2) {
        return bisestile(anno) ? 29 : 28;
    }
    return mese == 4 || mese == 6 || mese == 9 || mese == 11 ? 30 : 31;
}

} // namespace

TEST(DataOra, LoZeroEIl30Dicembre1899) {
    const auto p = DataOra().parti();
    EXPECT_EQ(p.anno, 1899);
    EXPECT_EQ(p.mese, 12);
    EXPECT_EQ(p.giorno, 30);
    EXPECT_EQ(p.ora + p.minuto + p.secondo, 0);
    EXPECT_EQ(DataOra::daParti(1899, 12, 30), DataOra());
    EXPECT_EQ(DataOra::daParti(1900, 1, 1).secondi(), 2 * 86400);
    EXPECT_EQ(DataOra::daParti(1899, 12, 29, 23, 59, 59).secondi(), -1);
}

// Day after day, counted by hand, over all the years.
TEST(DataOra, OgniGiornoDelCalendario) {
    std::int64_t secondi = DataOra::daParti(100, 1, 1).secondi();
    int settimana = 6; // 1 January 100 was a Friday.
    for (int anno = 100; anno <= 9999; ++anno) {
        for (int mese = 1; mese <= 12; ++mese) {
            for (int giorno = 1; giorno <= giorniDelMese(anno, mese); ++giorno) {
                const DataOra data = DataOra::daParti(anno, mese, giorno);
                ASSERT_EQ(data.secondi(), secondi) << anno << '-' << mese << '-' << giorno;
                const auto p = data.piuSecondi(86399).parti();
                ASSERT_TRUE(p.anno == anno && p.mese == mese && p.giorno == giorno && p.ora == 23 &&
                            p.minuto == 59 && p.secondo == 59)
                    << anno << '-' << mese << '-' << giorno;
                ASSERT_EQ(data.giornoSettimana(), settimana);
                settimana = settimana % 7 + 1;
                secondi += 86400;
            }
        }
    }
    EXPECT_EQ(secondi, DataOra::daParti(9999, 12, 31).secondi() + 86400);
}

TEST(DataOra, IGiorniNotiDellaSettimana) {
    EXPECT_EQ(DataOra().giornoSettimana(), 7);
    EXPECT_EQ(DataOra::daParti(2005, 6, 11).giornoSettimana(), 7);
    EXPECT_EQ(DataOra::daParti(1789, 7, 14).giornoSettimana(), 3);
    EXPECT_EQ(DataOra::daParti(2000, 2, 29, 23, 59, 59).giornoSettimana(), 3);
    EXPECT_EQ(DataOra::daParti(1899, 12, 29, 12).giornoSettimana(), 6);
}

TEST(DataOra, LePartiRiportano) {
    EXPECT_EQ(DataOra::daParti(2005, 4, 31), DataOra::daParti(2005, 5, 1));
    EXPECT_EQ(DataOra::daParti(2005, 3, 0), DataOra::daParti(2005, 2, 28));
    EXPECT_EQ(DataOra::daParti(2004, 3, 0), DataOra::daParti(2004, 2, 29));
    EXPECT_EQ(DataOra::daParti(2005, 1, 1, 25), DataOra::daParti(2005, 1, 2, 1));
    EXPECT_EQ(DataOra::daParti(2005, 1, 1, -5), DataOra::daParti(2004, 12, 31, 19));
    EXPECT_EQ(DataOra::daParti(2005, 13, 1), DataOra::daParti(2006, 1, 1));
    EXPECT_EQ(DataOra::daParti(2005, 0, 1), DataOra::daParti(2004, 12, 1));
    EXPECT_EQ(DataOra::daParti(2005, 1, 1, 0, -1, 61), DataOra::daParti(2005, 1, 1, 0, 0, 1));
}

TEST(DataOra, GliAnniCorti) {
    EXPECT_EQ(DataOra::daParti(0, 1, 1), DataOra::daParti(2000, 1, 1));
    EXPECT_EQ(DataOra::daParti(29, 1, 1), DataOra::daParti(2029, 1, 1));
    EXPECT_EQ(DataOra::daParti(30, 1, 1), DataOra::daParti(1930, 1, 1));
    EXPECT_EQ(DataOra::daParti(99, 12, 31), DataOra::daParti(1999, 12, 31));
}

TEST(DataOra, FuoriDagliAnniErrore5) {
    EXPECT_EQ(annoNonValido(10000, 1, 1), 5);
    EXPECT_EQ(annoNonValido(-1, 1, 1), 5);
    // The year itself, also where the day would carry back into the range.
    EXPECT_EQ(annoNonValido(10000, 1, 0), 5);
    EXPECT_EQ(annoNonValido(-1, 12, 40), 5);
    EXPECT_EQ(annoNonValido(9999, 12, 32), 5);
    EXPECT_EQ(annoNonValido(100, 1, 0), 5);
    EXPECT_EQ(annoNonValido(100, 1, 1), 0);
    EXPECT_EQ(annoNonValido(9999, 12, 31), 0);
    const DataOra ultima = DataOra::daParti(9999, 12, 31, 23, 59, 59);
    EXPECT_EQ(sollevatoDa([&] { return ultima.piuSecondi(1); }).numero, 5);
    EXPECT_EQ(sollevatoDa([&] { return ultima.piuSecondi(0); }).numero, 0);
    using Secondi = std::numeric_limits<std::int64_t>;
    EXPECT_EQ(sollevatoDa([&] { return ultima.piuSecondi(Secondi::max()); }).numero, 5);
    EXPECT_EQ(sollevatoDa([] { return DataOra().piuSecondi(Secondi::min()); }).numero, 5);
    const DataOra prima = DataOra::daParti(100, 1, 1);
    EXPECT_EQ(prima.piuSecondi(ultima.secondi() - prima.secondi()), ultima);
    EXPECT_EQ(ultima.piuSecondi(prima.secondi() - ultima.secondi()), prima);
}

TEST(DataOra, LeOreDiDifferenzaContanoIConfini) {
    const DataOra a = DataOra::daParti(2005, 1, 1, 10, 59, 59);
    EXPECT_EQ(differenzaOre(a, a.piuSecondi(1)), 1);
    EXPECT_EQ(differenzaOre(a, a), 0);
    EXPECT_EQ(differenzaOre(a.piuSecondi(1), a), -1);
    const DataOra prima = DataOra::daParti(1899, 12, 29, 23, 30);
    EXPECT_EQ(differenzaOre(prima, DataOra()), 1);
    EXPECT_EQ(differenzaOre(prima.piuSecondi(-3600), prima), 1);
}

TEST(DataOra, SiMostraConISeparatoriDati) {
    const DataOra data = DataOra::daParti(205, 1, 2, 13, 4, 5);
    EXPECT_EQ(formattaDataOra(data, {}), L"02/01/0205 13:04:05");
    EXPECT_EQ(formattaDataOra(data, {Lingua::Italiano, L',', L"-", L"."}), L"02-01-0205 13.04.05");
}

TEST(DataOra, NeiNomiStaInOrdine) {
    EXPECT_EQ(oraPerNomi(DataOra::daParti(2026, 1, 2, 3, 4, 5)), L"2026-01-02 03.04.05");
    EXPECT_EQ(oraPerNomi(DataOra::daParti(100, 12, 31)), L"0100-12-31 00.00.00");
}
