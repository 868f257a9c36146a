#include "support/errori/errore.h"

#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

#include <map>

#include <gtest/gtest.h>

TEST(Errori, LaTabellaIntera) {
    std::map<std::int32_t, std::wstring_view> attesi;
    for (const auto& voce : testi::erroriSistema) {
        attesi[voce.numero] = voce.testo;
    }
    // The program's own are none of the run time's.
    for (std::int32_t n = -1; n < 33000; ++n) {
        const auto atteso = attesi.find(n);
        EXPECT_EQ(testoErrore(n), atteso == attesi.end() ? std::wstring_view{} : atteso->second)
            << n;
    }
}

TEST(Errori, SollevaColTestoDellaTabella) {
    const auto e = sollevatoDa([]() -> int { solleva(errori::discoPieno); });
    EXPECT_EQ(e.numero, 61);
    EXPECT_EQ(e.descrizione, testi::diErrore(61));
}

TEST(Errori, IPropriComincianoDaCioCheColpiscono) {
    for (const auto& voce : testi::erroriPropri) {
        const bool diQualcosa = voce.testo.starts_with(L": ");
        const std::wstring chi = diQualcosa ? L"C:\\CITTÀ" : L"";
        const auto e = sollevatoDa([&]() -> int { solleva(voce.numero, chi); });
        EXPECT_EQ(e.numero, voce.numero);
        EXPECT_EQ(e.descrizione, chi + std::wstring(voce.testo));
    }
}

TEST(Errori, WhatDiceNumeroEDescrizione) {
    EXPECT_STREQ(Errore(75, L"C:\\CITTÀ").what(), "error 75: C:\\CITTÀ");
    const Errore originale(-2147467259, L"€");
    const Errore copia = originale; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_STREQ(copia.what(), "error -2147467259: €");
}
