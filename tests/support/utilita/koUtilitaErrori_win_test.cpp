#include "support/utilita/koUtilita.h"

#include "support/errori/errore.h"
#include "tests/aiuti/messaggi_finti.h"

#include <stdexcept>

#include <gtest/gtest.h>

TEST(KoUtilitaPrintErroreEx, DiceNumeroLuogoEDescrizione) {
    MessaggiFinti messaggi;
    messaggi.attendi(L"Errore 13: Tipo non corrispondente", L"Errore 13", Icona::Critica);
    messaggi.attendi(L"Errore 13 in Leggi: Tipo non corrispondente", L"Errore 13", Icona::Critica);
    messaggi.attendi(L"Errore 52: Impossibile leggere l'unità specificata.", L"Errore 52",
                     Icona::Critica);
    messaggi.attendi(L"Errore 440: Errore di automazione", L"Errore 440", Icona::Critica);
    const koUtilita utilita(messaggi);
    try {
        solleva(errori::tipoNonCorrispondente);
    } catch (...) {
        utilita.PrintErroreEx();
        utilita.PrintErroreEx(L"Leggi");
    }
    try {
        solleva(errori::nomeFileNonValido);
    } catch (...) {
        utilita.PrintErroreEx();
    }
    try {
        throw std::runtime_error("x");
    } catch (...) {
        utilita.PrintErroreEx();
    }
}

TEST(KoUtilitaPrintErroreEx, UnLuogoLungoSiMostraIntero) {
    const std::wstring lungo(1000, L'x');
    MessaggiFinti messaggi;
    messaggi.attendi(L"Errore -2147467259 in " + lungo + L": ", L"Errore -2147467259",
                     Icona::Critica);
    try {
        throw Errore(-2147467259, L"");
    } catch (...) {
        koUtilita(messaggi).PrintErroreEx(lungo);
    }
}
