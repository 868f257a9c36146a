#include "support/utilita/koUtilita.h"

#include "support/errori/errore.h"
#include "support/programma/prodotto.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/ambiente_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/registratore_win.h"

#include <windows.h>

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

namespace {

constexpr const wchar_t* tipoNostro = L".oprova";

// EseguiEx that must fail with this text after the target.
void deveFallire(const std::wstring& oggetto, const std::wstring& motivo) {
    MessaggiFinti messaggi;
    messaggi.attendi(oggetto + motivo, L"Errore", Icona::Critica);
    const koUtilita utilita(messaggi);
    EXPECT_FALSE(utilita.EseguiEx(nullptr, oggetto));
    EXPECT_FALSE(utilita.EseguiEx(nullptr, oggetto, true));
}

bool esegue(const std::wstring& oggetto) {
    MessaggiFinti messaggi;
    return koUtilita(messaggi).EseguiEx(nullptr, oggetto);
}

std::wstring radiceProgramma() {
    return cartellaProgramma().substr(0, 3);
}

// GetTempPath prefers TMP.
class TemporaneaIn : VariabileAmbiente {
public:
    explicit TemporaneaIn(const std::wstring& cartella) : VariabileAmbiente(L"TMP", cartella) {}
};

} // namespace

TEST(KoUtilitaShell, UnDocumentoSiApreConIlSuoProgramma) {
    const CartellaProva cartella;
    const std::wstring documento = cartella.scrivi(L"perché no & sì.oprova", "x");
    Registratore registratore;
    registratore.tipo(tipoNostro);
    EXPECT_TRUE(esegue(documento));
    const auto lancio = registratore.attendi();
    EXPECT_EQ(lancio.obiettivo, documento);
    EXPECT_EQ(lancio.cartella, radiceProgramma());
    EXPECT_EQ(lancio.stato, SW_SHOWNORMAL);
}

TEST(KoUtilitaShell, UnaPaginaSiApreConIlProgrammaDiHtm) {
    const CartellaProva cartella;
    const std::wstring pagina = cartella.scrivi(L"ko12.tmp.htm", "x");
    Registratore registratore;
    registratore.tipo(L".htm");
    EXPECT_TRUE(esegue(pagina));
    EXPECT_EQ(registratore.attendi().obiettivo, pagina);
}

TEST(KoUtilitaShell, UnIndirizzoSiApreConIlProgrammaDelProtocollo) {
    Registratore registratore;
    registratore.protocollo(L"http");
    const std::wstring indirizzo = L"http://www.esempio.example/a.asp?b=1&c=%20d#e";
    EXPECT_TRUE(esegue(indirizzo));
    EXPECT_EQ(registratore.attendi().obiettivo, indirizzo);
    koUtilita::GoWeb(nullptr, indirizzo + L"2");
    const auto lancio = registratore.attendi();
    EXPECT_EQ(lancio.obiettivo, indirizzo + L"2");
    EXPECT_EQ(lancio.cartella, radiceProgramma());
    EXPECT_EQ(lancio.stato, SW_SHOWNORMAL);
}

TEST(KoUtilitaShell, GoWebApreAncheUnDocumento) {
    const CartellaProva cartella;
    const std::wstring documento = cartella.scrivi(L"a.oprova", "x");
    Registratore registratore;
    registratore.tipo(tipoNostro);
    koUtilita::GoWeb(nullptr, documento);
    EXPECT_EQ(registratore.attendi().obiettivo, documento);
}

TEST(KoUtilitaShell, HomepageApreIlSito) {
    Registratore registratore;
    registratore.protocollo(L"https");
    koUtilita::Homepage(nullptr);
    EXPECT_EQ(registratore.attendi().obiettivo, prodotto::sito);
}

TEST(KoUtilitaShell, EMailScriveAllAutoreConTitoloEVersione) {
    Registratore registratore;
    registratore.protocollo(L"mailto");
    koUtilita::EMail(nullptr);
    EXPECT_EQ(registratore.attendi().obiettivo, L"Mailto:" + std::wstring(prodotto::postaAutore) +
                                                    L"?subject=Ostrelle%20v" +
                                                    prodotto::versione());
}

TEST(KoUtilitaShell, IlVerboEQuelloPredefinitoDelTipo) {
    const CartellaProva cartella;
    const std::wstring documento = cartella.scrivi(L"a.oprova", "x");
    Registratore registratore;
    registratore.tipo(tipoNostro, L"cartella-che-manca\\programma.exe \"%1\"");
    registratore.verboPredefinito(tipoNostro, L"stampa");
    EXPECT_TRUE(esegue(documento));
    EXPECT_EQ(registratore.attendi().obiettivo, documento);
}

TEST(KoUtilitaShell, UnDocumentoCheMancaNonSiTrova) {
    const CartellaProva cartella;
    Registratore registratore;
    registratore.tipo(tipoNostro);
    deveFallire(cartella.file(L"Manca.oprova"), L": file non trovato!");
    deveFallire(cartella.file(L"manca"), L": file non trovato!");
}

TEST(KoUtilitaShell, UnTipoSenzaProgrammaSiDice) {
    const CartellaProva cartella;
    deveFallire(cartella.scrivi(L"Prova.senzaprogramma", "x"),
                L": nessun programma associato a questo tipo di file!");
}

TEST(KoUtilitaShell, OgniAltroRifiutoEAccessoNegato) {
    const CartellaProva cartella;
    // A program that is a folder, one that is none.
    Registratore registratore;
    registratore.tipo(tipoNostro, L'"' + cartella.percorso() + L"\" \"%1\"");
    deveFallire(cartella.scrivi(L"a.oprova", "x"), L": accesso negato!");
    deveFallire(cartella.scrivi(L"finto.exe", "nessun programma"), L": accesso negato!");
}

TEST(KoUtilitaShell, IlMessaggioPortaIlNomeComeFuDato) {
    const CartellaProva cartella;
    // The code page lacks "Ω": the shell is asked for another name, the message keeps this one.
    deveFallire(cartella.scrivi(L"Ωmega.oprova", "x"), L": file non trovato!");
}

TEST(KoUtilitaShell, UnIndirizzoRifiutatoNonSiDice) {
    const CartellaProva cartella;
    Registratore registratore;
    registratore.tipo(tipoNostro);
    koUtilita::GoWeb(nullptr, cartella.file(L"manca.oprova"));
    koUtilita::GoWeb(nullptr, L"");
    koUtilita::GoWeb(nullptr, L"nessunprotocollo://a");
    const std::wstring documento = cartella.scrivi(L"a.oprova", "x");
    koUtilita::GoWeb(nullptr, documento);
    EXPECT_EQ(registratore.attendi().obiettivo, documento);
}

TEST(KoUtilitaFile, IlFileTemporaneoENuovoEVuotoNellaCartellaTemporanea) {
    const CartellaProva cartella;
    const TemporaneaIn temporanea(cartella.percorso());
    const std::wstring primo = koUtilita::GetFileTemporaneo();
    const std::wstring secondo = koUtilita::GetFileTemporaneo();
    EXPECT_NE(primo, secondo);
    for (const auto& file : {primo, secondo}) {
        const std::wstring inizio = cartella.percorso() + L"\\ko";
        ASSERT_TRUE(file.starts_with(inizio)) << inUtf8(file);
        ASSERT_TRUE(file.ends_with(L".tmp")) << inUtf8(file);
        const std::wstring numero = file.substr(inizio.size(), file.size() - inizio.size() - 4);
        EXPECT_FALSE(numero.empty());
        EXPECT_EQ(numero.find_first_not_of(L"0123456789abcdefABCDEF"), std::wstring::npos);
        EXPECT_TRUE(fileEsiste(file));
        EXPECT_EQ(leggiTutto(file), "");
    }
}

TEST(KoUtilitaFile, LaCartellaTemporaneaFinisceConLaBarraEAccettaGliAccenti) {
    const CartellaProva cartella;
    const std::wstring accentata = cartella.file(L"così");
    ASSERT_TRUE(CreateDirectoryW(accentata.c_str(), nullptr));
    const TemporaneaIn temporanea(accentata);
    EXPECT_EQ(koUtilita::GetDirectoryTemp(), accentata + L"\\");
    EXPECT_TRUE(fileEsiste(koUtilita::GetFileTemporaneo()));
}

TEST(KoUtilitaFile, SenzaTmpValeTemp) {
    const CartellaProva cartella;
    const VariabileAmbiente temp(L"TEMP", cartella.percorso());
    const VariabileAmbiente tmp(L"TMP", L"");
    EXPECT_EQ(koUtilita::GetDirectoryTemp(), cartella.percorso() + L"\\");
}

TEST(KoUtilitaFile, UnaCartellaTemporaneaCheMancaDaIlNomeFisso) {
    const CartellaProva cartella;
    const TemporaneaIn temporanea(cartella.file(L"manca"));
    const std::wstring file = koUtilita::GetFileTemporaneo();
    EXPECT_EQ(file, cartella.file(L"manca\\ko12345.tmp"));
    EXPECT_FALSE(fileEsiste(file));
}

TEST(KoUtilitaFile, UnaCartellaTemporaneaTroppoLungaValeQuellaDelProgramma) {
    const CartellaProva cartella;
    const std::wstring lunga =
        cartella.percorso() + L'\\' + std::wstring(252 - cartella.percorso().size(), L'x');
    ASSERT_EQ(lunga.size(), 253U);
    {
        const TemporaneaIn temporanea(lunga);
        EXPECT_EQ(koUtilita::GetDirectoryTemp(), lunga + L"\\");
    }
    const TemporaneaIn temporanea(lunga + L"y");
    EXPECT_EQ(koUtilita::GetDirectoryTemp(), cartellaProgramma() + L"\\");
}

TEST(KoUtilitaErrore, IlTitoloHaDueSpaziPrimaDiUnNumeroNonNegativo) {
    MessaggiFinti messaggi;
    messaggi.attendi(L"Tipo non corrispondente", L"Errore  13", Icona::Informazione);
    try {
        solleva(errori::tipoNonCorrispondente);
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaErrore, IlTitoloHaUnoSpazioPrimaDiUnNumeroNegativo) {
    MessaggiFinti messaggi;
    messaggi.attendi(L"Errore di automazione", L"Errore -2147467259", Icona::Informazione);
    try {
        throw Errore(-2147467259, L"Errore di automazione");
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaErrore, IlNumeroCinquantadueHaUnTestoSuo) {
    MessaggiFinti messaggi;
    messaggi.attendi(L"Impossibile leggere l'unità specificata.", L"Errore  52",
                     Icona::Informazione);
    try {
        throw Errore(52, L"un altro testo");
    } catch (...) {
        koUtilita(messaggi).PrintErrore();
    }
}

TEST(KoUtilitaErrore, AncheUnErroreDelLinguaggioSiDice) {
    MessaggiFinti messaggi;
    messaggi.attendi(L"Memoria esaurita", L"Errore  7", Icona::Informazione);
    messaggi.attendi(L"Errore di automazione", L"Errore  440", Icona::Informazione);
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
