#include "document/clsFeedRss.h"
#include "support/errori/errore.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/testi/ansi_win.h"
#include "support/windows/fileNuovo_win.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/ambiente_win.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/tabella_prova.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

FeedDiProva breve() {
    FeedDiProva d;
    d.title = L"breve";
    return d;
}

void crea(const FeedDiProva& d, const std::wstring& percorso) {
    clsFeedRss().CreaDocumentoHTML(percorso, d.title, d.link, d.description, d.language,
                                   d.copyright, d.lastBuildDate, d.webMaster, d.image, d.items);
}

std::int32_t errorePagina(const std::wstring& percorso) {
    return sollevatoDa([&] { crea(breve(), percorso); }).numero;
}

// The pages and temporary names in a folder.
int quantiFile(const CartellaProva& cartella) {
    WIN32_FIND_DATAW trovato{};
    const Ricerca ricerca(FindFirstFileW(cartella.file(L"*").c_str(), &trovato));
    int quanti = 0;
    if (ricerca) {
        do {
            quanti += (trovato.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 ? 1 : 0;
        } while (FindNextFileW(ricerca.get(), &trovato));
    }
    return quanti;
}

} // namespace

TEST(PaginaSuDisco, UnaPaginaInteraSostituisceQuellaCheCe) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.scrivi(L"perché.htm", std::string(100000, 'x'));
    crea(breve(), percorso);
    const std::string pagina = leggiTutto(percorso);
    EXPECT_TRUE(pagina.starts_with(" <!DOCTYPE HTML"));
    EXPECT_TRUE(pagina.ends_with("\r\n </HTML>\r\n"));
    EXPECT_LT(pagina.size(), 1000U);
    EXPECT_EQ(quantiFile(cartella), 1);
}

TEST(PaginaSuDisco, QuelloCheLaPaginaDiCodiceNonHaEUnRiferimento) {
    EXPECT_EQ(inAnsiHtml(L"aè€’\u0101\u0141\U0001F600?&<"),
              "a\xE8\x80\x92&#257;&#321;&#128512;?&<");
    EXPECT_EQ(inAnsiHtml(L""), "");
    EXPECT_EQ(inAnsiHtml(std::wstring(L"a\xD83D")), "a&#55357;");
}

TEST(PaginaSuDisco, UnFileDiSolaLetturaRestaComE) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.scrivi(L"a.htm", "prima");
    ASSERT_TRUE(SetFileAttributesW(percorso.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(errorePagina(percorso), errori::accessoAlPercorso);
    EXPECT_EQ(leggiTutto(percorso), "prima");
}

TEST(PaginaSuDisco, UnFileInUsoRestaComE) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.scrivi(L"a.htm", "prima");
    {
        const ManigliaFile altro(CreateFileW(percorso.c_str(), GENERIC_READ, FILE_SHARE_READ,
                                             nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(altro);
        EXPECT_EQ(errorePagina(percorso), errori::autorizzazioneNegata);
    }
    EXPECT_EQ(leggiTutto(percorso), "prima");
}

TEST(PaginaSuDisco, UnPercorsoImpossibileSollevaENonLasciaNulla) {
    const CartellaProva cartella;
    EXPECT_EQ(errorePagina(cartella.file(L"manca\\a.htm")), errori::percorsoNonTrovato);
    EXPECT_EQ(errorePagina(cartella.percorso()), errori::accessoAlPercorso);
    EXPECT_EQ(errorePagina(L""), errori::percorsoNonTrovato);
    EXPECT_EQ(errorePagina(cartella.file(L"a|b.htm")), errori::nomeFileNonValido);
    EXPECT_EQ(quantiFile(cartella), 0);
}

TEST(PaginaSuDisco, UnNomeConAsterischiNonCancellaNulla) {
    const CartellaProva cartella;
    const std::wstring altro = cartella.scrivi(L"altro.htm", "altro");
    EXPECT_EQ(errorePagina(cartella.file(L"*.htm")), errori::nomeFileNonValido);
    EXPECT_EQ(leggiTutto(altro), "altro");
}

// Folders on a file system of a few KiB and on one mounted read-only, where there are such.
TEST(PaginaSuDisco, SuUnDiscoPienoSollevaENonLasciaMezzaPagina) {
    const wchar_t* const cartella = _wgetenv(L"OSTRELLE_DISCO_PIENO");
    if (cartella == nullptr) {
        GTEST_SKIP() << "OSTRELLE_DISCO_PIENO is not set";
    }
    const std::wstring percorso = cartella + std::wstring(L"\\pagina.htm");
    FeedDiProva lunga = breve();
    lunga.description = std::wstring(1000000, L'x');
    EXPECT_EQ(sollevatoDa([&] { crea(lunga, percorso); }).numero, errori::discoPieno);
    EXPECT_FALSE(fileEsiste(percorso));
    EXPECT_EQ(errorePagina(percorso), 0);
    cancellaFile(percorso);
}

TEST(PaginaSuDisco, SuUnDiscoDiSolaLetturaSolleva) {
    const wchar_t* const cartella = _wgetenv(L"OSTRELLE_SOLA_LETTURA");
    if (cartella == nullptr) {
        GTEST_SKIP() << "OSTRELLE_SOLA_LETTURA is not set";
    }
    EXPECT_EQ(errorePagina(cartella + std::wstring(L"\\pagina.htm")), 75);
    const VariabileAmbiente tmp(L"TMP", cartella);
    ClsCodaEliminazione coda;
    EXPECT_NE(sollevatoDa([&] {
                  static_cast<void>(clsFeedRss().VisualizzaItemHTML(TabellaElementi(), coda));
              }).numero,
              0);
    const std::wstring pagina = coda.Pop();
    EXPECT_TRUE(pagina.starts_with(cartella)) << inUtf8(pagina);
    EXPECT_EQ(coda.Pop() + L".htm", pagina);
}

TEST(FileNuovo, SenzaConfermaNonRestaNulla) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.scrivi(L"a.htm", "prima");
    {
        FileNuovo file(percorso);
        file.scrivi("mezza pag");
        EXPECT_TRUE(fileEsiste(percorso));
    }
    EXPECT_FALSE(fileEsiste(percorso));
}

TEST(FileNuovo, ConfermatoRestaInteroEVuotoSeNonSiScrive) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.scrivi(L"a.htm", "prima, ed era lunga");
    {
        FileNuovo file(percorso);
        file.scrivi("uno");
        file.scrivi("");
        file.scrivi("due");
        file.conferma();
    }
    EXPECT_EQ(leggiTutto(percorso), "unodue");
    FileNuovo(percorso).conferma();
    EXPECT_EQ(leggiTutto(percorso), "");
}

TEST(FileNuovo, UnaScritturaCheNonRiesceSolleva) {
    // A pipe whose other end goes away between opening and writing.
    const std::wstring nome =
        L"\\\\.\\pipe\\OstrelleProve" + std::to_wstring(GetCurrentProcessId());
    const ManigliaFile lettore(CreateNamedPipeW(nome.c_str(), PIPE_ACCESS_INBOUND, PIPE_TYPE_BYTE,
                                                1, 4096, 4096, 0, nullptr));
    ASSERT_TRUE(lettore);
    FileNuovo file(nome);
    ASSERT_TRUE(DisconnectNamedPipe(lettore.get()));
    EXPECT_EQ(sollevatoDa([&] { file.scrivi("x"); }).numero, errori::erroreIO);
}

TEST(Anteprima, SonoInCodaIlNomeNudoEPoiLaPagina) {
    const CartellaProva cartella;
    const VariabileAmbiente tmp(L"TMP", cartella.percorso());
    TabellaElementi items;
    metti(items, CampoElemento::Titolo, 0, L"uno");
    ClsCodaEliminazione coda;
    const std::wstring pagina = clsFeedRss().VisualizzaItemHTML(items, coda);
    EXPECT_TRUE(pagina.starts_with(cartella.percorso() + L"\\ko")) << inUtf8(pagina);
    EXPECT_TRUE(pagina.ends_with(L".tmp.htm")) << inUtf8(pagina);
    EXPECT_NE(leggiTutto(pagina).find("\r\nuno\r\n"), std::string::npos);
    EXPECT_EQ(quantiFile(cartella), 2);
    EXPECT_EQ(coda.Pop(), pagina);
    EXPECT_EQ(coda.Pop(), pagina.substr(0, pagina.size() - 4));
    EXPECT_FALSE(coda.filePresenti());
}

TEST(Anteprima, QuelloCheLaPaginaDiCodiceNonHaEUnRiferimento) {
    const CartellaProva cartella;
    const VariabileAmbiente tmp(L"TMP", cartella.percorso());
    ClsCodaEliminazione coda;
    TabellaElementi items;
    metti(items, CampoElemento::Descrizione, 0, L"5 € \u0101 \U0001F600 &#8364;");
    metti(items, CampoElemento::Autore, 0, L"\u0141ukasz");
    const std::string pagina = leggiTutto(clsFeedRss().VisualizzaItemHTML(items, coda));
    EXPECT_NE(pagina.find("<p>5 \x80 &#257; &#128512; &#8364;\r\n"), std::string::npos);
    EXPECT_NE(pagina.find("<br>&#321;ukasz</i>"), std::string::npos);
    EXPECT_EQ(pagina.find('?'), std::string::npos);
}

TEST(Anteprima, OgnunaHaIlSuoNome) {
    const CartellaProva cartella;
    const VariabileAmbiente tmp(L"TMP", cartella.percorso());
    {
        ClsCodaEliminazione coda;
        const std::wstring prima = clsFeedRss().VisualizzaItemHTML(TabellaElementi(), coda);
        EXPECT_NE(clsFeedRss().VisualizzaItemHTML(TabellaElementi(), coda), prima);
        EXPECT_EQ(quantiFile(cartella), 4);
    }
    EXPECT_EQ(quantiFile(cartella), 0);
}

TEST(Anteprima, SenzaCartellaTemporaneaSollevaEINomiSonoInCoda) {
    const CartellaProva cartella;
    const VariabileAmbiente tmp(L"TMP", cartella.file(L"manca"));
    ClsCodaEliminazione coda;
    const auto sollevato = sollevatoDa(
        [&] { static_cast<void>(clsFeedRss().VisualizzaItemHTML(TabellaElementi(), coda)); });
    EXPECT_EQ(sollevato.numero, errori::percorsoNonTrovato);
    EXPECT_EQ(coda.Pop(), cartella.file(L"manca\\ko12345.tmp.htm"));
    EXPECT_EQ(coda.Pop(), cartella.file(L"manca\\ko12345.tmp"));
}

TEST(Anteprima, IFileCiSonoFinoAllaFineDelProgrammaENonOltre) {
    const CartellaProva cartella;
    const std::wstring dove = cartella.file(L"dove.txt");
    const std::wstring nome = L"OstrelleProveAnteprima" + std::to_wstring(GetCurrentProcessId());
    const ManigliaOggetto evento(CreateEventW(nullptr, TRUE, FALSE, nome.c_str()));
    ASSERT_TRUE(evento);
    std::wstring comando =
        L'"' + cartellaProgramma() + L"\\anteprima.exe\" \"" + dove + L"\" " + nome;
    STARTUPINFOW avvio{};
    avvio.cb = sizeof(avvio);
    PROCESS_INFORMATION processo{};
    ASSERT_TRUE(CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &avvio, &processo));
    const ManigliaOggetto thread(processo.hThread);
    const ManigliaOggetto figlio(processo.hProcess);

    ASSERT_TRUE(attendiChe([&] { return fileEsiste(dove) && leggiTutto(dove).ends_with(".htm"); }));
    const std::wstring pagina = daUtf8(leggiTutto(dove));
    const std::wstring nudo = pagina.substr(0, pagina.size() - 4);
    EXPECT_NE(leggiTutto(pagina).find("\r\nanteprima\r\n"), std::string::npos);
    EXPECT_TRUE(fileEsiste(nudo));

    SetEvent(evento.get());
    ASSERT_EQ(WaitForSingleObject(figlio.get(), 30000), WAIT_OBJECT_0);
    DWORD esito = 1;
    GetExitCodeProcess(figlio.get(), &esito);
    EXPECT_EQ(esito, 0U);
    EXPECT_FALSE(fileEsiste(pagina));
    EXPECT_FALSE(fileEsiste(nudo));
}
