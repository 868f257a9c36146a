#include "support/testi/numeri.h"

#include "tests/aiuti/formati.h"
#include "tests/aiuti/sollevato.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

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
    EXPECT_DOUBLE_EQ(valoreIniziale(L"123456789012345678901234567890"),
                     123456789012345678901234567890.0);
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
        const auto letto = testoADouble(formattaNumero(valore, 1, 3), italiano.lingua);
        ASSERT_DOUBLE_EQ(letto.value_or(HUGE_VAL), valore) << "seed " << seme;
        ASSERT_DOUBLE_EQ(valoreIniziale(formattaNumero(valore, 1, 3, L'.')), valore)
            << "seed " << seme;
    }
}

// Texts put together of a number's parts, whole and broken ones, with blanks anywhere.
TEST(Numeri, IlValoreInizialeDiTestiComposti) {
    constexpr unsigned seme = 20050611;
    constexpr std::array segni{L"", L"+", L"-"};
    constexpr std::array intere{L"", L"0", L"12", L"007"};
    constexpr std::array decimali{L"", L".", L".5", L".025"};
    constexpr std::array esponenti{L"", L"E2", L"e-3", L"e+01", L"e", L"E-"};
    constexpr std::array code{L"", L"x9", L",5", L"\u00A05", L"e7", L"(1)"};
    constexpr std::wstring_view bianchi = L" \t\r\n";
    std::mt19937 caso(seme);
    const auto scegli = [&caso](const auto& tra) {
        return tra[std::uniform_int_distribution<std::size_t>(0, tra.size() - 1)(caso)];
    };
    for (int i = 0; i < 5000; ++i) {
        const std::wstring cifre = std::wstring(scegli(intere)) + scegli(decimali);
        const std::wstring esponente = scegli(esponenti);
        const bool intero = esponente.find_first_of(L"0123456789") != std::wstring::npos;
        std::wstring numero = scegli(segni) + cifre;
        std::wstring testo = numero + esponente;
        if (esponente.empty() || intero) {
            numero = testo;
            testo += esponente.empty() ? L"x" : scegli(code);
        }
        for (int n = 0; n < 3; ++n) {
            const auto dove = std::uniform_int_distribution<std::size_t>(0, testo.size())(caso);
            testo.insert(dove, 1, scegli(bianchi));
        }
        const bool vuoto = cifre.find_first_of(L"0123456789") == std::wstring::npos;
        const double atteso = vuoto ? 0 : std::wcstod(numero.c_str(), nullptr);
        ASSERT_DOUBLE_EQ(valoreIniziale(testo), atteso)
            << "seed " << seme << ", text " << i << ": " << testing::PrintToString(testo);
    }
}

TEST(Numeri, IlPostoDelSegno) {
    EXPECT_EQ(testoConSegno(13), L" 13");
    EXPECT_EQ(testoConSegno(0), L" 0");
    EXPECT_EQ(testoConSegno(-2147467259), L"-2147467259");
    EXPECT_EQ(testoConSegno(std::numeric_limits<std::int32_t>::min()), L"-2147483648");
}
