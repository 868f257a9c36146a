#include "support/utilita/koUtilita.h"

#include "support/errori/errore.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/testi.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

TEST(KoUtilitaPrintErrore, IlTitoloHaDueSpaziPrimaDiUnNumeroNonNegativo) {
    MessaggiFinti messaggi;
    messaggi.attendi(testi::diErrore(13), testi::erroreDetto(13), Icona::Informazione);
    try {
        solleva(errori::tipoNonCorrispondente);
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaPrintErrore, IlTitoloHaUnoSpazioPrimaDiUnNumeroNegativo) {
    MessaggiFinti messaggi;
    messaggi.attendi(testi::diErrore(440), testi::erroreDetto(-2147467259), Icona::Informazione);
    try {
        throw Errore(-2147467259, testi::diErrore(440));
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaPrintErrore, IlNumeroCinquantadueHaUnTestoSuo) {
    MessaggiFinti messaggi;
    messaggi.attendi(testi::unitaIllegibile, testi::erroreDetto(52), Icona::Informazione);
    try {
        throw Errore(52, L"un altro testo");
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaPrintErrore, AncheUnErroreDelLinguaggioSiDice) {
    MessaggiFinti messaggi;
    messaggi.attendi(testi::diErrore(7), testi::erroreDetto(7), Icona::Informazione);
    messaggi.attendi(testi::diErrore(440), testi::erroreDetto(440), Icona::Informazione);
    try {
        throw std::bad_alloc();
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
    try {
        throw std::runtime_error("x");
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaPrintErroreEx, DiceNumeroLuogoEDescrizione) {
    MessaggiFinti messaggi;
    messaggi.attendi(L"Errore 13: " + testi::diErrore(13), L"Errore 13", Icona::Critica);
    messaggi.attendi(L"Errore 13 in Leggi: " + testi::diErrore(13), L"Errore 13", Icona::Critica);
    messaggi.attendi(std::wstring(L"Errore 52: ") + testi::unitaIllegibile, L"Errore 52",
                     Icona::Critica);
    messaggi.attendi(L"Errore 440: " + testi::diErrore(440), L"Errore 440", Icona::Critica);
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
