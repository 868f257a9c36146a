#include "document/clsFeedRss.h"
#include "support/programma/prodotto.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/ambiente_win.h"
#include "tests/aiuti/comandi_prova_win.h"
#include "tests/aiuti/testi.h"

#include <array>

namespace {

// Three items, the second one selected, a clean document.
class Pagina : public ProvaComandi {
protected:
    void SetUp() override {
        ProvaComandi::SetUp();
        riparti();
    }

    // What an export or a preview must leave as it is.
    [[nodiscard]] std::wstring stato() {
        return titolo() + L'|' + documento.percorso() + L'|' + titoliElementi() +
               std::to_wstring(documento.modificato()) +
               std::to_wstring(impostazioni.valori.size()) + L'|' +
               std::to_wstring(griglia().rigaCorrente());
    }
    // Exports to a file and leaves it closed; gives what was written.
    [[nodiscard]] std::string esporta(const std::wstring& pagina) {
        dialoghi.attendiSalva(richiestaPagina, pagina);
        attendiDomandaPagina(Risposta::No);
        finestra.esegui(mnsalvahtm);
        return leggiTutto(pagina);
    }
};

} // namespace

TEST_F(Pagina, EsportareSenzaElementiSiRifiutaSenzaDialogo) {
    finestra.NuovoDocumento();
    attendiErrore(12883);
    finestra.esegui(mnsalvahtm);
}

TEST_F(Pagina, AnnullareLEsportazioneNonDiceNulla) {
    const std::wstring prima = stato();
    dialoghi.attendiSalva(richiestaPagina, std::nullopt);
    finestra.esegui(mnsalvahtm);
    EXPECT_EQ(stato(), prima);
}

TEST_F(Pagina, RispondereNoLasciaLaPaginaENonApreNulla) {
    for (const bool modificato : {false, true}) {
        documento.modificato(modificato);
        const std::wstring prima = stato();
        dialoghi.attendiSalva(richiestaPagina, cartella.file(L"no.htm"));
        attendiDomandaPagina(Risposta::No);
        finestra.esegui(mnsalvahtm);
        EXPECT_NE(leggiTutto(cartella.file(L"no.htm")).find("tre"), std::string::npos);
        EXPECT_EQ(stato(), prima);
    }
    // Had one of them opened something, it would come before this.
    finestra.esegui(mniaco);
    EXPECT_EQ(registratore.attendi().obiettivo, prodotto::sito);
}

TEST_F(Pagina, LaPaginaEsportataHaIlCanaleComeSiSalverebbeEOgniElemento) {
    const std::array scritti{L"  t ", L" l  ", L"  d  ", L" it ", L" c ",
                             L" w ",  L" i ",  L" u ",   L" k "};
    for (std::size_t i = 0; i < scritti.size(); ++i) {
        campi.testo(campiTesto[i], scritti[i]);
    }
    campi.dimensioni(12, 34);
    clsImgRss immagine;
    immagine.sTitle(L"i");
    immagine.sUrl(L"u");
    immagine.sLink(L"k");
    immagine.nWidth(12);
    immagine.nHeight(34);
    const std::wstring attesa = cartella.file(L"attesa.htm");
    const auto scriviAttesa = [&] {
        clsFeedRss().CreaDocumentoHTML(attesa, L"t", L"l", L"  d", L"it", L"c",
                                       L"Tue, 15 Nov 2005 10:00:00 +0100", L"w", immagine,
                                       documento.elementi());
        return leggiTutto(attesa);
    };
    EXPECT_EQ(esporta(cartella.file(L"p.htm")), scriviAttesa());
    // Without a title the image loses its size.
    campi.testo(IDC_TXTLOGO, L" ");
    immagine = clsImgRss();
    immagine.sUrl(L"u");
    immagine.sLink(L"k");
    EXPECT_EQ(esporta(cartella.file(L"p.htm")), scriviAttesa());
}

TEST_F(Pagina, EsportareSuUnaPaginaInSolaLetturaOSuUnaCartellaSiDiceENienteSiPerde) {
    const std::wstring pagina = cartella.scrivi(L"ferma.htm", "vecchia");
    SetFileAttributesW(pagina.c_str(), FILE_ATTRIBUTE_READONLY);
    const std::wstring sotto = cartella.file(L"cartella.htm");
    CreateDirectoryW(sotto.c_str(), nullptr);
    const std::wstring prima = stato();
    for (const std::wstring& dove : {pagina, sotto}) {
        dialoghi.attendiSalva(richiestaPagina, dove);
        attendiErrore(75);
        finestra.esegui(mnsalvahtm);
        EXPECT_EQ(stato(), prima);
    }
    EXPECT_EQ(leggiTutto(pagina), "vecchia");
    SetFileAttributesW(pagina.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Pagina, EsportareSulFeedApertoSiRifiutaENienteSiPerde) {
    const std::wstring feed = cartella.file(L"feed.xml");
    dialoghi.attendiSalva(richiestaSalva, feed);
    finestra.esegui(mnsalva);
    const std::string salvato = leggiTutto(feed);
    const std::wstring prima = stato();
    for (const std::wstring& stesso : {feed, cartella.file(L".\\FEED.XML")}) {
        dialoghi.attendiSalva(richiestaPagina, stesso);
        attendiErrore(55);
        finestra.esegui(mnsalvahtm);
        EXPECT_EQ(leggiTutto(feed), salvato);
        EXPECT_EQ(stato(), prima);
    }
}

TEST_F(Pagina, SenzaBrowserLaPaginaRestaDovEEdELUnicoMessaggio) {
    const std::wstring prima = stato();
    const std::wstring perche = testi::nessunProgramma;
    const std::wstring pagina = cartella.file(L"Pagina.htm");
    registratore.nessunProgramma(L".htm");
    dialoghi.attendiSalva(richiestaPagina, pagina);
    attendiDomandaPagina(Risposta::Si);
    messaggi.attendi(pagina + perche, testi::errore, Icona::Critica);
    finestra.esegui(mnsalvahtm);
    EXPECT_NE(leggiTutto(pagina).find("tre"), std::string::npos);
    EXPECT_EQ(stato(), prima);
}

TEST_F(Pagina, SenzaBrowserLAnteprimaLoDiceENonPerdeNulla) {
    const std::wstring prima = stato();
    const std::wstring temporanea = cartella.file(L"tmp");
    CreateDirectoryW(temporanea.c_str(), nullptr);
    const VariabileAmbiente tmp(L"TMP", temporanea);
    registratore.nessunProgramma(L".htm");
    WIN32_FIND_DATAW trovata{};
    const auto pagina = [&] {
        const Ricerca ricerca(FindFirstFileW((temporanea + L"\\*.htm").c_str(), &trovata));
        return ricerca ? temporanea + L'\\' + trovata.cFileName : std::wstring();
    };
    messaggi.attendiCome([&] { return pagina() + testi::nessunProgramma; }, testi::errore,
                         Icona::Critica);
    finestra.esegui(mnvisualhtml);
    EXPECT_EQ(stato(), prima);
    coda.CancellaFile();
    EXPECT_EQ(pagina(), L"");
}

TEST_F(Pagina, LAnteprimaSenzaElementoDiceDiSceglierneUnoENonScriveNulla) {
    const std::wstring temporanea = cartella.file(L"tmp");
    CreateDirectoryW(temporanea.c_str(), nullptr);
    const VariabileAmbiente tmp(L"TMP", temporanea);
    attendiNessunaSelezione();
    finestra.NuovoDocumento();
    finestra.esegui(mnvisualhtml);
    riparti();
    finestra.SelezionaRiga(10); // a filler row
    attendiNessunaSelezione();
    finestra.esegui(mnvisualhtml);
    EXPECT_TRUE(RemoveDirectoryW(temporanea.c_str())) << "not empty";
}

TEST_F(Pagina, LAnteprimaMostraSoloLElementoSceltoESparisceConLaCoda) {
    const std::wstring prima = stato();
    finestra.esegui(mnvisualhtml);
    const std::wstring una = registratore.attendi().obiettivo;
    finestra.esegui(mnvisualhtml);
    const std::wstring altra = registratore.attendi().obiettivo;
    EXPECT_NE(una, altra);
    const std::string pagina = leggiTutto(una);
    EXPECT_NE(pagina.find("e.example/due"), std::string::npos);
    EXPECT_EQ(pagina.find("e.example/tre"), std::string::npos);
    EXPECT_EQ(stato(), prima);
    coda.CancellaFile();
    EXPECT_FALSE(fileEsiste(una));
    EXPECT_FALSE(fileEsiste(altra));
    EXPECT_FALSE(fileEsiste(una.substr(0, una.size() - 4)));
}

TEST_F(Pagina, LAnteprimaHaOgniCampoDellElementoTranneIlGuid) {
    const ElementoCondiviso elemento =
        creaElemento({L" titolo ", L"https://e.example/?a=1&b=2", L"<b>testo</b>", L" autore",
                      L"Sat, 05 Mar 2005 21:22:23 +0100", L"identificativo"});
    TabellaElementi solo;
    solo.riempi({elemento});
    documento.applica(documento.cambio(1, elemento), Causa::Trascinamento);
    finestra.SelezionaRiga(2);
    finestra.esegui(mnvisualhtml);
    const std::string pagina = leggiTutto(registratore.attendi().obiettivo);
    EXPECT_EQ(pagina, leggiTutto(clsFeedRss().VisualizzaItemHTML(solo, coda)));
    EXPECT_EQ(pagina.find("identificativo"), std::string::npos);
}

TEST_F(Pagina, UnaSecondaAnteprimaSiApreMentreIlBrowserTieneLaPrima) {
    finestra.esegui(mnvisualhtml);
    const std::wstring prima = registratore.attendi().obiettivo;
    {
        const ManigliaFile tenuta(
            CreateFileW(prima.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(tenuta);
        finestra.SelezionaRiga(3);
        finestra.esegui(mnvisualhtml);
        EXPECT_NE(leggiTutto(registratore.attendi().obiettivo).find("e.example/tre"),
                  std::string::npos);
    }
    EXPECT_NE(leggiTutto(prima).find("e.example/due"), std::string::npos);
}

TEST_F(Pagina, LAnteprimaCheNonSiPuoScrivereSiDice) {
    const VariabileAmbiente tmp(L"TMP", cartella.file(L"manca"));
    const std::wstring prima = stato();
    attendiErrore(76);
    finestra.esegui(mnvisualhtml);
    EXPECT_EQ(stato(), prima);
}
