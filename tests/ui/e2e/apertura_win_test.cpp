// The shipped executable started as the shell starts it: with a document, or with something else.

#include "support/testi/testo.h"
#include "tests/aiuti/cartellaLunga_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/programma_prova_win.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <string>

#include <gtest/gtest.h>

namespace {

constexpr const char* contenuto = "<title>Canale aperto</title><item><title>uno</title></item>";

// It shows that document and nothing else, unmodified.
void attendiAperto(Programma& programma, const std::wstring& percorso) {
    programma.attendiPrincipale(L"Ostrelle  [" + percorso + L"]");
    EXPECT_TRUE(attendiChe(
        [&] { return Programma::testoNel(programma.campo(IDC_TXTTITOLO)) == L"Canale aperto"; }));
    EXPECT_EQ(programma.chiudi(), 0U);
}

} // namespace

TEST(Apertura, IlDocumentoNominatoSiApreDopoLAvvio) {
    const CartellaProva cartella;
    const std::wstring feed = cartella.scrivi(L"Città 100%25 #1 & l'altra.xml", rssCon(contenuto));
    Programma programma(L'"' + feed + L'"');
    attendiAperto(programma, feed);
}

TEST(Apertura, UnNomeRelativoPartiDallaCartellaDiChiAvvia) {
    const CartellaProva cartella;
    const std::wstring sotto = cartella.file(L"due parole");
    ASSERT_TRUE(CreateDirectoryW(sotto.c_str(), nullptr));
    const std::wstring feed = cartella.scrivi(L"due parole\\a b.rss", rssCon(contenuto));
    Programma programma(L"\"a b.rss\"", sotto.c_str());
    attendiAperto(programma, feed);
}

TEST(Apertura, UnPercorsoPiuLungoDi260SiApre) {
    CartellaLunga cartella;
    const std::wstring feed = cartella.scrivi(L"lontano.xml", rssCon(contenuto));
    Programma programma(L'"' + feed + L'"');
    attendiAperto(programma, feed);
}

TEST(Apertura, UnFileCheNonEUnFeedDaLErroreDiAperturaEIlProgrammaResta) {
    const CartellaProva cartella;
    const std::wstring rotto = cartella.scrivi(L"rotto.xml", "<rss>");
    Programma programma(L'"' + rotto + L'"');
    const HWND box = programma.attendiFinestra(L"#32770", testi::erroreNumero(18343));
    EXPECT_EQ(Programma::testoNel(GetDlgItem(box, 0xFFFF)),
              maiuscolo(rotto) + testi::diErrore(18343));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    Programma::attendiChiusa(box);
    programma.attendiPrincipale(Programma::documentoNuovo);
    EXPECT_EQ(programma.chiudi(), 0U);
}

TEST(Apertura, PiuArgomentiOUnoCheNonEUnFileNonContano) {
    const CartellaProva cartella;
    static_cast<void>(cartella.scrivi(L"uno.xml", rssCon(contenuto)));
    static_cast<void>(cartella.scrivi(L"due.xml", rssCon(contenuto)));
    for (const wchar_t* const argomenti : {L"uno.xml due.xml", L"/uno.xml", L"manca.xml", L"."}) {
        SCOPED_TRACE(inUtf8(argomenti));
        Programma programma(argomenti, cartella.percorso().c_str());
        programma.attendiPrincipale(Programma::documentoNuovo);
        // What is typed now is taken after whatever came before.
        programma.scriviIn(programma.campo(IDC_TXTCOPYRIGHT), L"x");
        EXPECT_EQ(Programma::testoNel(programma.principale), Programma::documentoNuovo);
        programma.scriviIn(programma.campo(IDC_TXTCOPYRIGHT), L" ");
        EXPECT_EQ(programma.chiudi(), 0U);
    }
}

TEST(Apertura, UnElementoTagliatoInUnProgrammaSiIncollaNellAltro) {
    const CartellaProva cartella;
    const ChiaveSalvata impostazioni(HKEY_CURRENT_USER,
                                     L"Software\\VB and VBA Program Settings\\Ostrelle");
    const std::wstring da = cartella.scrivi(
        L"da.xml", rssCon("<title>c</title><item><title>uno</title><description>perché"
                          "</description><guid>il guid</guid></item><item><title>due</title>"
                          "</item>"));
    const std::wstring a =
        cartella.scrivi(L"a.xml", rssCon("<title>c</title><item><title>zero</title></item>"));
    Programma primo(L'"' + da + L'"');
    primo.attendiPrincipale(L"Ostrelle  [" + da + L"]");
    clic(primo.lista(), primo.punto(0));
    primo.attendiScelta(0);
    testoAppunti(L"prima");
    premi('X', {VK_CONTROL});
    EXPECT_TRUE(attendiChe([] { return testoAppunti() == L"uno"; }));
    Programma secondo(L'"' + a + L'"');
    secondo.attendiPrincipale(L"Ostrelle  [" + a + L"]");
    clic(secondo.lista(), secondo.punto(0));
    secondo.attendiScelta(0);
    premi('V', {VK_CONTROL});
    secondo.attendiScelta(1);
    premi('V', {VK_CONTROL});
    secondo.attendiScelta(2);
    premi('S', {VK_CONTROL});
    EXPECT_EQ(secondo.chiudi(), 0U);
    FeedDiProva salvato;
    salvato.leggi(a);
    ASSERT_EQ(salvato.items.conteggio(), 3);
    EXPECT_EQ(salvato.items(CampoElemento::Guid, 1), L"il guid");
    EXPECT_NE(salvato.items(CampoElemento::Guid, 2), L"il guid");
    for (const int i : {1, 2}) {
        EXPECT_EQ(salvato.items(CampoElemento::Titolo, i), L"uno");
        EXPECT_EQ(salvato.items(CampoElemento::Descrizione, i), L"perché");
    }
    primo.attendiTastiera(primo.principale);
    premi('S', {VK_CONTROL});
    EXPECT_EQ(primo.chiudi(), 0U);
    FeedDiProva resto;
    resto.leggi(da);
    ASSERT_EQ(resto.items.conteggio(), 1);
    EXPECT_EQ(resto.items(CampoElemento::Titolo, 0), L"due");
}
