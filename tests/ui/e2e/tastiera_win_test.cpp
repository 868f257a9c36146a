// The shipped executable from outside, with the keyboard alone.

#include "res/risorse.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/datiLocali_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/programma_prova_win.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <array>
#include <initializer_list>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

constexpr const wchar_t* informazioni = L"Informazioni su Ostrelle";

// The box of the system's find dialog.
constexpr int casellaTrova = 0x480;

class Tastiera : public testing::Test {
protected:
    // The focus is there, or in something that belongs to it.
    static void attendiFuoco(const Programma& programma, HWND controllo) {
        EXPECT_TRUE(attendiChe([&] {
            const HWND fuoco = programma.fuocoCorrente();
            return fuoco == controllo || IsChild(controllo, fuoco) != FALSE;
        })) << "the focus is on "
            << inUtf8(classeDi(programma.fuocoCorrente())) << " "
            << GetDlgCtrlID(programma.fuocoCorrente()) << " instead of "
            << inUtf8(classeDi(controllo)) << " " << GetDlgCtrlID(controllo);
    }
    // Types into what has the focus, over what is there.
    static void scriviQui(const Programma& programma, const std::wstring& testo) {
        const HWND campo = programma.fuocoCorrente();
        scrivi(testo);
        EXPECT_TRUE(attendiChe([&] { return Programma::testoNel(campo) == testo; }))
            << inUtf8(Programma::testoNel(campo)) << " instead of " << inUtf8(testo);
    }
    // A box or dialog of that title is in front; the key closes it, and the focus is where it was.
    static void chiudi(Programma& programma, const std::wstring& titolo, WORD tasto, HWND poi) {
        const HWND box = programma.attendiFinestra(L"#32770", titolo);
        premi(tasto);
        Programma::attendiChiusa(box);
        programma.attendiTastiera(programma.principale);
        attendiFuoco(programma, poi);
    }
    static void scelta(const Programma& programma, int riga, int linea = __builtin_LINE()) {
        SCOPED_TRACE("line " + std::to_string(linea));
        programma.attendiScelta(riga);
    }
    // Opens a menu by its key; a key that comes while the window is being activated is lost, for
    // a person too.
    static void apriMenu(WORD tasto, std::initializer_list<WORD> con = {VK_MENU}) {
        const auto aperto = [] {
            const HWND menu = FindWindowW(L"#32768", nullptr);
            return menu != nullptr && IsWindowVisible(menu) != FALSE;
        };
        for (int volte = 0; volte < 5 && !aperto(); ++volte) {
            premi(tasto, con);
            static_cast<void>(attendiChe(aperto, 3000));
        }
        EXPECT_TRUE(aperto()) << "no menu comes up";
    }
    // The editor is in front, the focus in its first field.
    static HWND editor(Programma& programma) {
        const HWND aperto = programma.attendiFinestra(L"#32770", L"Edit");
        attendiFuoco(programma, GetDlgItem(aperto, IDC_EDITTITOLO));
        return aperto;
    }
    // From the title on: the link, and a description of two lines.
    static void compila(Programma& programma, HWND editor, const std::wstring& titolo) {
        scriviQui(programma, titolo);
        premi(VK_TAB);
        attendiFuoco(programma, GetDlgItem(editor, IDC_EDITLINK));
        scriviQui(programma, L"https://e.example/" + titolo);
        premi(VK_TAB);
        attendiFuoco(programma, GetDlgItem(editor, IDC_EDITAUTORE));
        premi(VK_TAB);
        const HWND descrizione = GetDlgItem(editor, IDC_EDITDESCRIZIONE);
        attendiFuoco(programma, descrizione);
        scrivi(L"prima");
        premi(VK_RETURN);
        scrivi(L"poi");
        EXPECT_TRUE(
            attendiChe([&] { return Programma::testoNel(descrizione) == L"prima\r\npoi"; }));
    }
    static void finita(Programma& programma, HWND editor, HWND poi) {
        Programma::attendiChiusa(editor);
        programma.attendiTastiera(programma.principale);
        attendiFuoco(programma, poi);
    }

    const CartellaProva cartella;
    const DatiLocaliProva dati{cartella.file(L"dati")};
    const ChiaveSalvata impostazioni{HKEY_CURRENT_USER,
                                     L"Software\\VB and VBA Program Settings\\Ostrelle"};
};

constexpr std::array<std::pair<int, const wchar_t*>, 11> canale{{
    {IDC_TXTTITOLO, L"Notizie dal circolo"},
    {IDC_TXTLINKHOME, L"https://circolo.example/"},
    {IDC_TXTDESCRIZIONE, L"Serate & lezioni, perché no"},
    {IDC_CBOLINGUA, L"it"},
    {IDC_TXTCOPYRIGHT, L"Il circolo"},
    {IDC_TXTDATA, nullptr},
    {IDC_TXTORARIO, nullptr},
    {IDC_TXTWEBMASTER, L"posta@circolo.example"},
    {IDC_TXTLOGO, L"Il logo"},
    {IDC_TXTURL, L"https://circolo.example/logo.gif"},
    {IDC_TXTLINKIMG, L"https://circolo.example/chi"},
}};

} // namespace

TEST_F(Tastiera, TuttoIlLavoroDalNuovoDocumentoAlFileSalvato) {
    const std::wstring feed = cartella.file(L"Il mio feed.xml");
    {
        Programma programma;
        const HWND lista = programma.lista();

        // A new document, once the question is answered with No.
        attendiFuoco(programma, programma.campo(IDC_TXTTITOLO));
        scriviQui(programma, L"da buttare");
        premi('N', {VK_CONTROL});
        static_cast<void>(programma.attendiFinestra(L"#32770", testi::salvataggio));
        premi(VK_TAB);
        chiudi(programma, testi::salvataggio, VK_SPACE, programma.campo(IDC_TXTTITOLO));
        EXPECT_TRUE(attendiChe(
            [&] { return Programma::testoNel(programma.campo(IDC_TXTTITOLO)).empty(); }));

        // The channel, field by field.
        for (const auto& [id, testo] : canale) {
            const HWND campo = programma.campo(id);
            attendiFuoco(programma, campo);
            if (testo != nullptr) {
                scriviQui(programma, testo);
            } else {
                const std::wstring prima = Programma::testoNel(campo);
                // Under Wine no part is chosen before an arrow.
                premi(VK_RIGHT);
                premi(VK_UP);
                EXPECT_TRUE(attendiChe([&] { return Programma::testoNel(campo) != prima; }));
            }
            premi(VK_TAB);
        }
        for (const auto& [id, numero] :
             {std::pair{IDC_TXTLARGHEZZA, L"88"}, {IDC_TXTALTEZZA, L"31"}}) {
            attendiFuoco(programma, programma.campo(id));
            scriviQui(programma, numero);
            premi(VK_TAB);
        }
        attendiFuoco(programma, programma.campo(IDC_CMDGETSIZE));
        premi(VK_SPACE);
        chiudi(programma, L"", VK_ESCAPE, programma.campo(IDC_CMDGETSIZE));
        premi(VK_TAB);
        attendiFuoco(programma, lista);

        // Three items, saved in three ways.
        premi(VK_INSERT);
        HWND aperto = editor(programma);
        compila(programma, aperto, L"uno");
        premi(VK_RETURN, {VK_CONTROL});
        finita(programma, aperto, lista);
        scelta(programma, 0);
        premi(VK_INSERT);
        aperto = editor(programma);
        compila(programma, aperto, L"due");
        for (const int id : {IDC_EDITDATA, IDC_EDITORARIO, IDC_CMDSALVA}) {
            premi(VK_TAB);
            attendiFuoco(programma, GetDlgItem(aperto, id));
        }
        premi(VK_SPACE);
        finita(programma, aperto, lista);
        scelta(programma, 1);
        premi(VK_INSERT);
        aperto = editor(programma);
        compila(programma, aperto, L"tre");
        premi('S', {VK_CONTROL});
        finita(programma, aperto, lista);
        scelta(programma, 2);

        // The last gets another title; one that is given up stays as it is.
        premi(VK_RETURN);
        aperto = editor(programma);
        premi(VK_END);
        scrivi(L" bis");
        EXPECT_TRUE(attendiChe(
            [&] { return Programma::testoNel(GetDlgItem(aperto, IDC_EDITTITOLO)) == L"tre bis"; }));
        premi(VK_RETURN);
        finita(programma, aperto, lista);
        apriMenu(VK_APPS, {});
        premi('M');
        aperto = editor(programma);
        scrivi(L"perduto");
        premi(VK_ESCAPE);
        finita(programma, aperto, lista);

        // Moved: uno, tre bis, due; then tre bis, uno, due.
        premi(VK_UP, {VK_MENU});
        scelta(programma, 1);
        premi(VK_HOME, {VK_MENU});
        scelta(programma, 0);

        // Found, and once more all round.
        premi('F', {VK_CONTROL});
        const HWND trova = programma.attendiFinestra(L"#32770", L"");
        attendiFuoco(programma, GetDlgItem(trova, casellaTrova));
        scriviQui(programma, L"DUE");
        premi(VK_RETURN);
        scelta(programma, 2);
        premi(VK_ESCAPE);
        finita(programma, trova, lista);
        premi(VK_HOME);
        scelta(programma, 0);
        premi(VK_F3);
        scelta(programma, 2);
        scrivi(L"u");
        scelta(programma, 1);

        // "uno" goes, once the question is answered with Yes, and comes back.
        premi(VK_DELETE);
        static_cast<void>(programma.attendiFinestra(L"#32770", testi::attenzione));
        premi(VK_TAB);
        chiudi(programma, testi::attenzione, VK_RETURN, lista);
        scelta(programma, 1);
        premi(VK_DELETE);
        chiudi(programma, testi::attenzione, VK_RETURN, lista);
        scelta(programma, 0);
        premi('Z', {VK_CONTROL});
        scelta(programma, 1);

        // A copy of "due" stands below "tre bis"; "uno" is cut and pasted at the end.
        premi(VK_END);
        scelta(programma, 2);
        premi('C', {VK_CONTROL});
        premi(VK_HOME);
        scelta(programma, 0);
        premi('V', {VK_CONTROL});
        scelta(programma, 1);
        premi(VK_DOWN);
        scelta(programma, 2);
        premi('X', {VK_CONTROL});
        scelta(programma, 1);
        premi(VK_END);
        scelta(programma, 2);
        premi('V', {VK_CONTROL});
        scelta(programma, 3);

        // The buttons beside the grid.
        for (const Comando comando : {cmdAggiungi, cmdModifica, cmdCancella}) {
            premi(VK_TAB);
            attendiFuoco(programma, programma.pulsante(comando));
        }
        premi(VK_SPACE);
        chiudi(programma, testi::attenzione, VK_ESCAPE, programma.pulsante(cmdCancella));
        premi(VK_TAB, {VK_SHIFT});
        attendiFuoco(programma, programma.pulsante(cmdModifica));
        premi(VK_RETURN);
        aperto = editor(programma);
        premi(VK_ESCAPE);
        finita(programma, aperto, programma.pulsante(cmdModifica));

        // The menus: a save given up, and the about box.
        apriMenu('F');
        premi('L');
        chiudi(programma, L"", VK_ESCAPE, programma.pulsante(cmdModifica));
        apriMenu('C');
        premi(VK_RIGHT);
        premi('I');
        const HWND box = programma.attendiFinestra(L"#32770", informazioni);
        attendiFuoco(programma, GetDlgItem(box, IDC_CMDOK));
        premi(VK_TAB);
        attendiFuoco(programma, GetDlgItem(box, IDC_CMDSYSINFO));
        premi(VK_TAB);
        attendiFuoco(programma, GetDlgItem(box, IDC_LBLSITO));
        chiudi(programma, informazioni, VK_ESCAPE, programma.pulsante(cmdModifica));

        premi('S', {VK_CONTROL});
        programma.scegliFile(feed);
        programma.attendiTitolo(L"Ostrelle  [" + feed + L"]");
        attendiFuoco(programma, programma.pulsante(cmdModifica));
        EXPECT_EQ(programma.chiudi(), 0U);
    }
    FeedDiProva documento;
    documento.leggi(feed);
    EXPECT_EQ(documento.title, canale[0].second);
    EXPECT_EQ(documento.link, canale[1].second);
    EXPECT_EQ(documento.description, canale[2].second);
    EXPECT_EQ(documento.language, canale[3].second);
    EXPECT_EQ(documento.copyright, canale[4].second);
    EXPECT_EQ(documento.webMaster, canale[7].second);
    EXPECT_EQ(documento.image.sTitle(), canale[8].second);
    EXPECT_EQ(documento.image.sUrl(), canale[9].second);
    EXPECT_EQ(documento.image.sLink(), canale[10].second);
    EXPECT_EQ(documento.image.nWidth(), 88);
    EXPECT_EQ(documento.image.nHeight(), 31);
    const std::array titoli{L"tre bis", L"due", L"due", L"uno"};
    ASSERT_EQ(documento.items.conteggio(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(documento.items(CampoElemento::Titolo, i), titoli[static_cast<std::size_t>(i)]);
        EXPECT_EQ(documento.items(CampoElemento::Descrizione, i), L"prima\r\npoi");
    }
}
