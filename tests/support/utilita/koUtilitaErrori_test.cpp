#include "support/utilita/koUtilita.h"

#include "support/errori/errore.h"
#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

TEST(KoUtilitaErrori, MessaggioErroreITAELaTabellaDegliErroriSollevati) {
    EXPECT_EQ(koUtilita::MessaggioErroreITA(3), L"Return senza GoSub");
    EXPECT_EQ(koUtilita::MessaggioErroreITA(5), L"Chiamata di routine o argomento non valido");
    for (std::int32_t numero = 0; numero < 1000; ++numero) {
        const auto sollevato = sollevatoDa([numero]() -> int { solleva(numero); });
        EXPECT_EQ(koUtilita::MessaggioErroreITA(numero), sollevato.descrizione);
    }
    EXPECT_EQ(koUtilita::MessaggioErroreITA(4), L"");
    EXPECT_EQ(koUtilita::MessaggioErroreITA(-2147467259), L"");
}
