#include "support/numeri.h"

#include "tests/aiuti/sollevato.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace {

const FormatoLocale italiano{};
const FormatoLocale inglese{L'.', L',', L"/", L":"};

int erroreInt16(std::wstring_view testo) {
    return sollevatoDa([&] { return testoAInt16(testo, italiano); }).numero;
}

} // namespace

TEST(Numeri, ValoreInizialeSiFermaAlPrimoEstraneo) {
    EXPECT_EQ(valoreIniziale(L"120px"), 120);
    EXPECT_EQ(valoreIniziale(L"1 2 0"), 120);
    EXPECT_EQ(valoreIniziale(L"\t1\r\n2"), 12);
    EXPECT_EQ(valoreIniziale(L"-5"), -5);
    EXPECT_EQ(valoreIniziale(L"- 5"), -5);
    EXPECT_EQ(valoreIniziale(L"+5"), 5);
    EXPECT_EQ(valoreIniziale(L"--5"), 0);
    EXPECT_EQ(valoreIniziale(L"1,5"), 1);
    EXPECT_EQ(valoreIniziale(L".5"), 0.5);
    EXPECT_EQ(valoreIniziale(L"1.5.5"), 1.5);
    EXPECT_EQ(valoreIniziale(L"1e2"), 100);
    EXPECT_EQ(valoreIniziale(L"1E-2x"), 0.01);
    EXPECT_EQ(valoreIniziale(L"e5"), 0);
    EXPECT_EQ(valoreIniziale(L"1e"), 1);
    EXPECT_EQ(valoreIniziale(L""), 0);
    EXPECT_EQ(valoreIniziale(L"px"), 0);
    EXPECT_EQ(valoreIniziale(L"\u00A05"), 0);
    EXPECT_EQ(valoreIniziale(L"123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_TRUE(std::isinf(valoreIniziale(L"1e99999")));
    EXPECT_EQ(valoreIniziale(L"1e-99999"), 0);
}

TEST(Numeri, InteriConLeMetaAlPari) {
    EXPECT_EQ(aInt16(0.5), 0);
    EXPECT_EQ(aInt16(1.5), 2);
    EXPECT_EQ(aInt16(2.5), 2);
    EXPECT_EQ(aInt16(-2.5), -2);
    EXPECT_EQ(aInt16(32767.4), 32767);
    EXPECT_EQ(aInt16(-32768.5), -32768);
    EXPECT_EQ(aInt32(2147483647.4), 2147483647);
    EXPECT_EQ(aInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(Numeri, FuoriIntervalloOverflow) {
    for (const double v : {32767.5, -32769.0, 1e300, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(sollevatoDa([&] { return aInt16(v); }).numero, 6) << v;
    }
    for (const double v : {2147483647.5, -2147483649.0, -1e300}) {
        EXPECT_EQ(sollevatoDa([&] { return aInt32(v); }).numero, 6) << v;
    }
}

TEST(Numeri, TestoAInt16) {
    EXPECT_EQ(testoAInt16(L"+0100", italiano), 100);
    EXPECT_EQ(testoAInt16(L"-0500", italiano), -500);
    EXPECT_EQ(testoAInt16(L"(0100)", italiano), -100);
    EXPECT_EQ(testoAInt16(L"0500-", italiano), -500);
    EXPECT_EQ(testoAInt16(L" 12 ", italiano), 12);
    EXPECT_EQ(testoAInt16(L"2,5", italiano), 2);
    EXPECT_EQ(testoAInt16(L"1.000", italiano), 1000);
    EXPECT_EQ(testoAInt16(L"1.000", inglese), 1);
    EXPECT_EQ(testoAInt16(L"&HFFFF", italiano), -1);
    EXPECT_EQ(testoAInt16(L"&O17", italiano), 15);
    for (const auto* const testo : {L"--0500", L"EST", L"Z", L"+01:00", L"", L" ", L"-", L"(1",
                                    L"1)", L"1 2", L"&", L"&H", L"e1", L"1e", L"+", L","}) {
        EXPECT_EQ(erroreInt16(testo), 13);
    }
    for (const auto* const testo : {L"40000", L"32767,5", L"1e400", L"&H10000", L"-32769"}) {
        EXPECT_EQ(erroreInt16(testo), 6);
    }
}

TEST(Numeri, TestoADoubleSecondoISeparatori) {
    EXPECT_EQ(testoADouble(L"1.234,5", italiano), 1234.5);
    EXPECT_EQ(testoADouble(L"1,234.5", inglese), 1234.5);
    EXPECT_EQ(testoADouble(L",5", italiano), 0.5);
    EXPECT_EQ(testoADouble(L"5,", italiano), 5);
    EXPECT_EQ(testoADouble(L"1e2", italiano), 100);
    for (const auto* const testo : {L"", L"-", L"abc", L"1a", L".5", L"1,5,5", L"1e400"}) {
        EXPECT_FALSE(testoADouble(testo, italiano).has_value());
    }
}

TEST(Numeri, FormattaArrotondaLontanoDaZero) {
    EXPECT_EQ(formattaNumero(0.125, 1, 2), L"0,13");
    EXPECT_EQ(formattaNumero(2.5, 1, 0), L"3");
    EXPECT_EQ(formattaNumero(0.5, 1, 0), L"1");
    EXPECT_EQ(formattaNumero(12.7, 1, 0), L"13");
    EXPECT_EQ(formattaNumero(-2.5, 1, 0), L"-3");
    EXPECT_EQ(formattaNumero(1.005, 1, 2), L"1,01");
    EXPECT_EQ(formattaNumero(9.995, 1, 2), L"10,00");
    EXPECT_EQ(formattaNumero(-0.001, 1, 2), L"0,00");
    EXPECT_EQ(formattaNumero(0.049, 1, 1), L"0,0");
    EXPECT_EQ(formattaNumero(0, 1, 0), L"0");
}

TEST(Numeri, FormattaRiempieDiZeri) {
    EXPECT_EQ(formattaNumero(7, 2, 0), L"07");
    EXPECT_EQ(formattaNumero(-500, 4, 0), L"-0500");
    EXPECT_EQ(formattaNumero(99.95, 4, 1), L"0100,0");
    EXPECT_EQ(formattaNumero(0.5, 0, 1), L",5");
    EXPECT_EQ(formattaNumero(1234.5, 1, 3, L'.'), L"1234.500");
    EXPECT_EQ(formattaNumero(1e15, 1, 0), L"1000000000000000");
    EXPECT_EQ(formattaNumero(123456, 2, 0), L"123456");
}

// Against exact arithmetic on hundredths.
TEST(Numeri, FormattaCentesimiComeAritmeticaIntera) {
    for (int millesimi = -20000; millesimi <= 20000; ++millesimi) {
        const int assoluto = std::abs(millesimi);
        const int centesimi = (assoluto + 5) / 10;
        char atteso[32];
        std::snprintf(atteso, sizeof atteso, "%s%d,%02d",
                      millesimi < 0 && centesimi != 0 ? "-" : "", centesimi / 100, centesimi % 100);
        const std::wstring nostro = formattaNumero(millesimi / 1000.0, 1, 2);
        ASSERT_EQ(std::string(nostro.begin(), nostro.end()), atteso) << millesimi;
    }
}

TEST(Numeri, CioCheFormattaRilegge) {
    constexpr unsigned seme = 7;
    std::mt19937 caso(seme);
    std::uniform_int_distribution<std::int64_t> interi(-999999999, 999999999);
    for (int i = 0; i < 5000; ++i) {
        const double valore = static_cast<double>(interi(caso)) / 1000;
        ASSERT_EQ(testoADouble(formattaNumero(valore, 1, 3), italiano), valore) << "seed " << seme;
        ASSERT_EQ(valoreIniziale(formattaNumero(valore, 1, 3, L'.')), valore) << "seed " << seme;
    }
}

TEST(Numeri, IlPostoDelSegno) {
    EXPECT_EQ(testoConSegno(13), L" 13");
    EXPECT_EQ(testoConSegno(0), L" 0");
    EXPECT_EQ(testoConSegno(-2147467259), L"-2147467259");
    EXPECT_EQ(testoConSegno(std::numeric_limits<std::int32_t>::min()), L"-2147483648");
}
