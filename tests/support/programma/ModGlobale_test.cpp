#include "support/programma/ModGlobale.h"

#include "support/errori/errore.h"

#include <array>
#include <cmath>
#include <limits>
#include <set>

#include <gtest/gtest.h>

namespace {

constexpr std::int16_t minimo = std::numeric_limits<std::int16_t>::min();
constexpr std::int16_t massimo = std::numeric_limits<std::int16_t>::max();

std::int32_t numeroErrore(std::int16_t inferiore, std::int16_t superiore) {
    ModGlobale generatore(1);
    try {
        static_cast<void>(generatore.NumeroCasuale(inferiore, superiore));
    } catch (const Errore& errore) {
        return errore.numero();
    }
    return 0;
}

} // namespace

TEST(ModGlobale, LIdentificativoHaLaFormaDetta) {
    ModGlobale generatore;
    for (int prova = 0; prova < 500; ++prova) {
        const std::wstring id = generatore.GeneraIdentificativo();
        ASSERT_EQ(id.size(), 41U);
        EXPECT_EQ(id.front(), L'{');
        EXPECT_EQ(id.back(), L'}');
        for (std::size_t i = 1; i < 40; ++i) {
            const wchar_t c = id[i];
            // Positions 6, 11, ... 36, the brace being the first.
            if (i % 5 == 0) {
                EXPECT_EQ(c, L'-') << i;
            } else {
                EXPECT_TRUE((c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9')) << i;
            }
        }
    }
}

TEST(ModGlobale, GeneraIdentificativoRisemina) {
    // The same seed, but not the same identifier once the timer has moved.
    std::set<std::wstring> visti;
    for (int prova = 0; prova < 1000 && visti.size() < 2; ++prova) {
        visti.insert(ModGlobale(7).GeneraIdentificativo());
    }
    EXPECT_GE(visti.size(), 2U);
}

TEST(ModGlobale, LoStessoSemeDaGliStessiNumeri) {
    ModGlobale a(42);
    ModGlobale b(42);
    ModGlobale c(43);
    int diversi = 0;
    for (int i = 0; i < 100; ++i) {
        const float numero = a.NumeroCasuale(0, 32766);
        EXPECT_EQ(numero, b.NumeroCasuale(0, 32766));
        diversi += numero != c.NumeroCasuale(0, 32766) ? 1 : 0;
    }
    EXPECT_GT(diversi, 90);
}

TEST(ModGlobale, TuttiETrentaseiUgualmenteProbabili) {
    constexpr int estrazioni = 360000;
    ModGlobale generatore(20050611);
    std::array<int, 36> volte{};
    for (int i = 0; i < estrazioni; ++i) {
        const float numero = generatore.NumeroCasuale(0, 35);
        ASSERT_GE(numero, 0.0F);
        ASSERT_LE(numero, 35.0F);
        ASSERT_EQ(numero, std::floor(numero));
        ++volte[static_cast<std::size_t>(numero)];
    }
    constexpr double attese = estrazioni / 36.0;
    double chiQuadrato = 0;
    for (const int n : volte) {
        chiQuadrato += (n - attese) * (n - attese) / attese;
    }
    // 35 degrees of freedom: between the 0.1 % and the 99.9 % quantile.
    EXPECT_GT(chiQuadrato, 14.69);
    EXPECT_LT(chiQuadrato, 66.62);
}

TEST(ModGlobale, NumeriVicini) {
    // Pairs of consecutive draws spread over all 36 x 36 of them too.
    constexpr int estrazioni = 648000;
    ModGlobale generatore(3);
    std::array<int, 1296> volte{};
    for (int i = 0; i < estrazioni; ++i) {
        const auto primo = static_cast<std::size_t>(generatore.NumeroCasuale(0, 35));
        const auto secondo = static_cast<std::size_t>(generatore.NumeroCasuale(0, 35));
        ++volte[primo * 36 + secondo];
    }
    constexpr double attese = estrazioni / 1296.0;
    double chiQuadrato = 0;
    for (const int n : volte) {
        chiQuadrato += (n - attese) * (n - attese) / attese;
    }
    // 1295 degrees of freedom, 50.9 being their standard deviation: within four of them.
    EXPECT_NEAR(chiQuadrato, 1295, 204);
}

TEST(ModGlobale, GliEstremiSonoCompresi) {
    ModGlobale generatore(5);
    std::set<float> visti;
    for (int i = 0; i < 200; ++i) {
        visti.insert(generatore.NumeroCasuale(-2, 1));
    }
    EXPECT_EQ(visti, (std::set<float>{-2, -1, 0, 1}));
    EXPECT_EQ(generatore.NumeroCasuale(9, 9), 9.0F);
}

TEST(ModGlobale, LontanoDaZeroLArrotondamentoNonEsceDallIntervallo) {
    ModGlobale generatore(11);
    for (int i = 0; i < 200000; ++i) {
        ASSERT_EQ(generatore.NumeroCasuale(32000, 32000), 32000.0F);
    }
    for (int i = 0; i < 200000; ++i) {
        const float numero = generatore.NumeroCasuale(-1, 32765);
        ASSERT_GE(numero, -1.0F);
        ASSERT_LE(numero, 32765.0F);
    }
}

TEST(ModGlobale, UnIntervalloOltre32767EOverflow) {
    EXPECT_EQ(numeroErrore(0, 32766), 0);
    EXPECT_EQ(numeroErrore(1, massimo), 0);
    EXPECT_EQ(numeroErrore(minimo, -2), 0);
    EXPECT_EQ(numeroErrore(0, massimo), errori::overflow);
    EXPECT_EQ(numeroErrore(minimo, -1), errori::overflow);
    EXPECT_EQ(numeroErrore(minimo, massimo), errori::overflow);
    EXPECT_EQ(numeroErrore(massimo, minimo), errori::overflow);
    EXPECT_EQ(numeroErrore(massimo, 0), 0);
}
