#include "support/utilita/koUtilita.h"

#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

TEST(KoUtilitaDateDiWindows, LongToDateContaIGiorniDalTrentaDicembre1899) {
    EXPECT_EQ(koUtilita::LongToDate(0), DataOra::daParti(1899, 12, 30));
    EXPECT_EQ(koUtilita::LongToDate(38671), DataOra::daParti(2005, 11, 15));
    EXPECT_EQ(koUtilita::LongToDate(-1), DataOra::daParti(1899, 12, 29));
    EXPECT_EQ(koUtilita::LongToDate(2958465), DataOra::daParti(9999, 12, 31));
    EXPECT_EQ(koUtilita::LongToDate(-657434), DataOra::daParti(100, 1, 1));
}

TEST(KoUtilitaDateDiWindows, LongToDateRifiutaGliAnniDiTroppo) {
    for (const std::int32_t numero : {2958466, -657435, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(sollevatoDa([numero] { return koUtilita::LongToDate(numero); }).numero, 6);
    }
}
