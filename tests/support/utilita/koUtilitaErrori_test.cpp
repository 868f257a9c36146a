#include "support/utilita/koUtilita.h"

#include "support/errori/errore.h"
#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

#include <gtest/gtest.h>

TEST(KoUtilitaErrori, MessaggioErroreITAELaTabellaDegliErroriSollevati) {
    EXPECT_EQ(koUtilita::MessaggioErroreITA(3), testi::diErrore(3));
    EXPECT_EQ(koUtilita::MessaggioErroreITA(5), testi::diErrore(5));
    for (std::int32_t numero = 0; numero < 1000; ++numero) {
        const auto sollevato = sollevatoDa([numero]() -> int { solleva(numero); });
        EXPECT_EQ(koUtilita::MessaggioErroreITA(numero), sollevato.descrizione);
    }
    EXPECT_EQ(koUtilita::MessaggioErroreITA(4), L"");
    EXPECT_EQ(koUtilita::MessaggioErroreITA(-2147467259), L"");
}
