#include "support/errori/errore.h"

#include "tests/aiuti/sollevato.h"

#include <map>

#include <gtest/gtest.h>

TEST(Errori, LaTabellaIntera) {
    const std::map<std::int32_t, std::wstring_view> attesi{
        {3, L"Return senza GoSub"},
        {5, L"Chiamata di routine o argomento non valido"},
        {6, L"Overflow"},
        {7, L"Memoria esaurita"},
        {9, L"Indice non incluso nell'intervallo"},
        {11, L"Divisione per zero"},
        {13, L"Tipo non corrispondente"},
        {52, L"Nome o numero di file non valido"},
        {53, L"Impossibile trovare il file"},
        {55, L"File già aperto"},
        {57, L"Errore di I/O della periferica"},
        {58, L"File già esistente"},
        {61, L"Disco pieno"},
        {62, L"Input oltre la fine del file"},
        {67, L"Troppi file"},
        {68, L"Periferica non disponibile"},
        {70, L"Autorizzazione negata"},
        {71, L"Disco non pronto"},
        {75, L"Errore di accesso al percorso/file"},
        {76, L"Impossibile trovare il percorso"},
        {91, L"Variabile oggetto o variabile del blocco With non impostata"},
        {380, L"Valore di proprietà non valido"},
        {424, L"Necessario oggetto"},
        {429, L"Il componente ActiveX non può creare l'oggetto"},
        {438, L"Proprietà o metodo non supportati dall'oggetto"},
        {440, L"Errore di automazione"},
        {481, L"Immagine non valida"},
    };
    for (std::int32_t n = -1; n < 1000; ++n) {
        const auto atteso = attesi.find(n);
        EXPECT_EQ(testoErrore(n), atteso == attesi.end() ? std::wstring_view{} : atteso->second)
            << n;
    }
}

TEST(Errori, SollevaColTestoDellaTabella) {
    const auto e = sollevatoDa([]() -> int { solleva(errori::discoPieno); });
    EXPECT_EQ(e.numero, 61);
    EXPECT_EQ(e.descrizione, L"Disco pieno");
}

TEST(Errori, WhatDiceNumeroEDescrizione) {
    EXPECT_STREQ(Errore(75, L"C:\\CITTÀ").what(), "error 75: C:\\CITTÀ");
    const Errore originale(-2147467259, L"€");
    const Errore copia = originale; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_STREQ(copia.what(), "error -2147467259: €");
}
