#include "support/utilita/koUtilita.h"

#include "support/programma/prodotto.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

constexpr const wchar_t* tipoNostro = L".oprova";

// EseguiEx that must fail with this text after the target.
void deveFallire(const std::wstring& oggetto, const std::wstring& motivo) {
    MessaggiFinti messaggi;
    messaggi.attendi(oggetto + motivo, testi::errore, Icona::Critica);
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

} // namespace

TEST(KoUtilitaAvvio, UnDocumentoSiApreConIlSuoProgramma) {
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

TEST(KoUtilitaAvvio, UnaPaginaSiApreConIlProgrammaDiHtm) {
    const CartellaProva cartella;
    const std::wstring pagina = cartella.scrivi(L"ko12.tmp.htm", "x");
    Registratore registratore;
    registratore.tipo(L".htm");
    EXPECT_TRUE(esegue(pagina));
    EXPECT_EQ(registratore.attendi().obiettivo, pagina);
}

TEST(KoUtilitaAvvio, UnIndirizzoSiApreConIlProgrammaDelProtocollo) {
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

TEST(KoUtilitaAvvio, GoWebApreAncheUnDocumento) {
    const CartellaProva cartella;
    const std::wstring documento = cartella.scrivi(L"a.oprova", "x");
    Registratore registratore;
    registratore.tipo(tipoNostro);
    koUtilita::GoWeb(nullptr, documento);
    EXPECT_EQ(registratore.attendi().obiettivo, documento);
}

TEST(KoUtilitaAvvio, HomepageApreIlSito) {
    Registratore registratore;
    registratore.protocollo(L"https");
    koUtilita::Homepage(nullptr);
    EXPECT_EQ(registratore.attendi().obiettivo, prodotto::sito);
}

TEST(KoUtilitaAvvio, EMailScriveAllAutoreConTitoloEVersione) {
    Registratore registratore;
    registratore.protocollo(L"mailto");
    koUtilita::EMail(nullptr);
    EXPECT_EQ(registratore.attendi().obiettivo, L"Mailto:" + std::wstring(prodotto::postaAutore) +
                                                    L"?subject=Ostrelle%20v" +
                                                    prodotto::versione());
}

TEST(KoUtilitaAvvio, IlVerboEQuelloPredefinitoDelTipo) {
    const CartellaProva cartella;
    const std::wstring documento = cartella.scrivi(L"a.oprova", "x");
    Registratore registratore;
    registratore.tipo(tipoNostro, L"cartella-che-manca\\programma.exe \"%1\"");
    registratore.verboPredefinito(tipoNostro, L"stampa");
    EXPECT_TRUE(esegue(documento));
    EXPECT_EQ(registratore.attendi().obiettivo, documento);
}

TEST(KoUtilitaAvvio, UnDocumentoCheMancaNonSiTrova) {
    const CartellaProva cartella;
    Registratore registratore;
    registratore.tipo(tipoNostro);
    deveFallire(cartella.file(L"Manca.oprova"), testi::fileNonTrovato);
    deveFallire(cartella.file(L"manca"), testi::fileNonTrovato);
}

TEST(KoUtilitaAvvio, UnTipoSenzaProgrammaSiDice) {
    const CartellaProva cartella;
    deveFallire(cartella.scrivi(L"Prova.senzaprogramma", "x"), testi::nessunProgramma);
}

TEST(KoUtilitaAvvio, OgniAltroRifiutoEAccessoNegato) {
    const CartellaProva cartella;
    // A program that is a folder, one that is none.
    Registratore registratore;
    registratore.tipo(tipoNostro, L'"' + cartella.percorso() + L"\" \"%1\"");
    deveFallire(cartella.scrivi(L"a.oprova", "x"), testi::accessoNegato);
    deveFallire(cartella.scrivi(L"finto.exe", "nessun programma"), testi::accessoNegato);
}

TEST(KoUtilitaAvvio, IlMessaggioPortaIlNomeComeFuDato) {
    const CartellaProva cartella;
    // The code page lacks "Ω": the shell is asked for another name, the message keeps this one.
    deveFallire(cartella.scrivi(L"Ωmega.oprova", "x"), testi::fileNonTrovato);
}

TEST(KoUtilitaAvvio, UnIndirizzoRifiutatoNonSiDice) {
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
