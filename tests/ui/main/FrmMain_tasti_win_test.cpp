#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/immagini_prova.h"
#include "tests/aiuti/puntatore_win.h"
#include "tests/aiuti/spia_win.h"
#include "tests/aiuti/testi.h"

#include "support/utilita/guida_win.h"
#include "support/windows/file_win.h"

#include <commctrl.h>

namespace {

class FrmMainTasti : public ProvaFrmMain {
protected:
    void riempi() {
        for (const wchar_t* const t : {L"a", L"b", L"c"}) {
            metti(t);
        }
        SetFocus(griglia().lista());
    }
    [[nodiscard]] HWND lista() { return griglia().lista(); }
    [[nodiscard]] HWND pulsante(int id) {
        return GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), id);
    }
    // A point of a grid row.
    [[nodiscard]] POINT punto(int riga) {
        RECT r{};
        ListView_GetItemRect(lista(), riga - 1, &r, LVIR_BOUNDS);
        return {60, (r.top + r.bottom) / 2};
    }
    void attendiCancellazione(Risposta risposta) {
        messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                         risposta);
    }
    // The editor comes up for this item, and the user gives it another title.
    void attendiEditor(std::wstring_view atteso, std::wstring_view nuovo) {
        editor.attendi([=](clsItemRss& elemento, DataOra ultima) {
            EXPECT_EQ(elemento.sTitle(), atteso);
            elemento.sTitle(std::wstring(nuovo));
            return std::optional(ultima);
        });
    }
};

} // namespace

TEST_F(FrmMainTasti, InsInvioECancNellaGriglia) {
    riempi();
    attendiEditor(L"", L"d");
    premi(VK_INSERT);
    EXPECT_EQ(titoliElementi(), L"a;b;c;d;");
    EXPECT_EQ(griglia().rigaCorrente(), 4);
    attendiEditor(L"d", L"e");
    premi(VK_RETURN);
    EXPECT_EQ(titoliElementi(), L"a;b;c;e;");
    attendiCancellazione(Risposta::No);
    premi(VK_DELETE);
    EXPECT_EQ(titoliElementi(), L"a;b;c;e;");
    attendiCancellazione(Risposta::Si);
    premi(VK_DELETE);
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 3);
}

TEST_F(FrmMainTasti, AltConFrecceHomeEFineSpostaESegnaLaModifica) {
    struct Mossa {
        WORD tasto;
        const wchar_t* dopo;
        int riga;
        bool modifica;
    };
    riempi();
    metti(L"d");
    for (const Mossa& mossa : {Mossa{VK_DOWN, L"b;a;c;d;", 2, true},
                               {VK_END, L"b;c;d;a;", 4, true},
                               {VK_DOWN, L"b;c;d;a;", 4, false},
                               {VK_END, L"b;c;d;a;", 4, false},
                               {VK_UP, L"b;c;a;d;", 3, true},
                               {VK_HOME, L"a;b;c;d;", 1, true},
                               {VK_HOME, L"a;b;c;d;", 1, false},
                               {VK_UP, L"a;b;c;d;", 1, false}}) {
        SCOPED_TRACE(inUtf8(mossa.dopo) + " " + std::to_string(mossa.tasto));
        documento.modificato(false);
        premi(mossa.tasto, {VK_MENU});
        EXPECT_EQ(titoliElementi(), mossa.dopo);
        EXPECT_EQ(griglia().rigaCorrente(), mossa.riga);
        EXPECT_EQ(documento.modificato(), mossa.modifica);
    }
}

TEST_F(FrmMainTasti, LasciareAltPrimaDellAltroTastoNonApreIlMenu) {
    riempi();
    int menuAperti = 0;
    const Spia spia([&](const CWPSTRUCT& messaggio) {
        if (messaggio.message == WM_ENTERMENULOOP) {
            ++menuAperti;
            PostMessageW(finestra.hwnd(), WM_KEYDOWN, VK_ESCAPE, 0);
        }
    });
    for (const WORD tasto : {WORD{VK_DOWN}, WORD{VK_UP}, WORD{VK_END}, WORD{VK_HOME}}) {
        SCOPED_TRACE(tasto);
        menuAperti = 0;
        premiGiu(VK_MENU);
        premiGiu(tasto);
        lascia(VK_MENU);
        lascia(tasto);
        EXPECT_EQ(menuAperti, 0);
        // Alt alone still does.
        premiGiu(VK_MENU);
        lascia(VK_MENU);
        EXPECT_EQ(menuAperti, 1);
    }
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_EQ(GetFocus(), lista());
}

TEST_F(FrmMainTasti, FuoriDallaGrigliaITastiSonoDelCampo) {
    riempi();
    SetFocus(campo(IDC_TXTTITOLO));
    scrivi(L"xy");
    premi(VK_HOME);
    premi(VK_DELETE);
    premi(VK_INSERT);
    premi(VK_RETURN);
    EXPECT_EQ(testoDi(campo(IDC_TXTTITOLO)), L"y");
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
}

TEST_F(FrmMainTasti, CtrlNOESOvunqueStiaIlFuoco) {
    for (const HWND fuoco : {campo(IDC_TXTTITOLO), campo(IDC_TXTDESCRIZIONE), lista()}) {
        finestra.NuovoDocumento();
        metti(L"uno");
        SetFocus(fuoco);
        const std::wstring percorso = cartella.file(L"tasti.xml");
        dialoghi.attendiSalva(richiestaSalva, percorso);
        premi(L'S', {VK_CONTROL});
        EXPECT_EQ(documento.percorso(), percorso);
        premi(L'N', {VK_CONTROL});
        EXPECT_EQ(titolo(), L"Ostrelle  [Nuovo Documento]");
        dialoghi.attendiApri(richiestaApri, percorso);
        premi(L'O', {VK_CONTROL});
        EXPECT_EQ(titoliElementi(), L"uno;");
    }
}

TEST_F(FrmMainTasti, SalvareDaTastieraPortaPrimaLeMisureNeiLimiti) {
    metti(L"uno");
    SetFocus(txtnumeroDi(campi.txtLarghezza()));
    scrivi(L"25000");
    dialoghi.attendiSalva(richiestaSalva, std::nullopt);
    premi(L'S', {VK_CONTROL});
    EXPECT_EQ(campi.txtLarghezza().Valore(), 10000);
}

TEST_F(FrmMainTasti, F1ApreLaGuidaEDiceSeManca) {
    std::wstring guida = cartellaProgramma() + L'\\' + nomeProgramma();
    guida.replace(guida.rfind(L'.'), std::wstring::npos, L".htm");
    messaggi.attendi(guida + testi::fileNonTrovato, testi::errore, Icona::Critica);
    premi(VK_F1);
}

TEST_F(FrmMainTasti, UnErroreDellaGuidaSiDiceComeQuelliDegliElementi) {
    // The message about the missing file cannot be shown: for the guide that is an error.
    messaggi.attendi(fileGuida() + testi::fileNonTrovato, testi::errore, Icona::Critica,
                     Pulsanti::Ok, Risposta::Ok, [] { solleva(errori::memoriaEsaurita); });
    messaggi.attendi(testi::diErrore(7), testi::erroreDetto(7), Icona::Informazione);
    premi(VK_F1);
}

TEST_F(FrmMainTasti, IlDoppioClicModificaLaRigaCliccata) {
    riempi();
    attendiEditor(L"b", L"x");
    doppioClic(lista(), punto(2));
    EXPECT_EQ(titoliElementi(), L"a;x;c;");
}

TEST_F(FrmMainTasti, IlDoppioClicSullIntestazioneOSuUnaRigaVuotaNonModificaNulla) {
    riempi();
    attendiNessunaSelezione();
    doppioClic(ListView_GetHeader(lista()), {60, 5});
    // Away, so that the next press is not a third one.
    clic(campo(IDC_TXTTITOLO));
    attendiNessunaSelezione();
    doppioClic(lista(), punto(4));
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainTasti, ITastiDuranteUnTrascinamentoNonContano) {
    riempi();
    premiMouse(lista(), punto(1));
    muoviMouse(lista(), punto(2));
    ASSERT_EQ(puntatoreVisto(), Puntatore::Trascina);
    premi(VK_DELETE);
    premi(VK_RETURN);
    premi(VK_INSERT);
    premi(VK_DOWN, {VK_MENU});
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    lasciaMouse();
    EXPECT_EQ(titoliElementi(), L"b;a;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 2);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainTasti, EscDuranteUnTrascinamentoLoAbbandona) {
    riempi();
    premiMouse(lista(), punto(1));
    muoviMouse(lista(), punto(3));
    premi(VK_ESCAPE);
    EXPECT_NE(puntatoreVisto(), Puntatore::Trascina);
    EXPECT_EQ(griglia().rigaCorrente(), 1);
    lasciaMouse();
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 1);
}

TEST_F(FrmMainTasti, IlMenuDuranteUnTrascinamentoLoAbbandona) {
    riempi();
    premiMouse(lista(), punto(1));
    muoviMouse(lista(), punto(3));
    const QuandoAppare menu(L"#32768", L"", [&](HWND) {
        EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
        EndMenu();
    });
    premi(VK_APPS);
    lasciaMouse();
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 3);
}

TEST_F(FrmMainTasti, InvioESpazioPremonoIlPulsanteColFuoco) {
    riempi();
    for (const WORD tasto : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
        SetFocus(pulsante(cmdCancella));
        attendiCancellazione(Risposta::No);
        premi(tasto);
        SetFocus(campo(IDC_CMDGETSIZE));
        dialoghi.attendiApri({L"File immagine (*.jpg;*.gif;*.jpeg)|*.jpg;*.gif;*.jpeg|"
                              L"Tutti i file (*.*)|*.*",
                              opzioniApri, L""},
                             std::nullopt);
        premi(tasto);
    }
}

TEST_F(FrmMainTasti, UnImmagineTroppoLargaEErrore380ELasciaLeMisure) {
    campi.dimensioni(7, 8);
    dialoghi.attendiApri({L"File immagine (*.jpg;*.gif;*.jpeg)|*.jpg;*.gif;*.jpeg|"
                          L"Tutti i file (*.*)|*.*",
                          opzioniApri, L""},
                         cartella.scrivi(L"larga.bmp", immagini::bmp(20000, 1)));
    messaggi.attendi(testi::diErrore(380), testi::erroreDetto(380), Icona::Informazione);
    clic(campo(IDC_CMDGETSIZE));
    EXPECT_EQ(campi.txtLarghezza().Valore(), 7);
    EXPECT_EQ(campi.txtAltezza().Valore(), 8);
}
