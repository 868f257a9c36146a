// The strip of notices in the main window: focus, keys, and what its buttons do.

#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMain_win.h"

#include "support/errori/errore.h"

#include <vector>

namespace {

class FrmMainAvvisi : public ProvaFrmMain {
protected:
    // A notice with two buttons; each writes down its letter and then gives the answer.
    [[nodiscard]] Avviso conPulsanti(const wchar_t* testo, bool esito = true) {
        const auto azione = [this, esito](wchar_t lettera) {
            return [this, esito, lettera] {
                fatti += lettera;
                return esito;
            };
        };
        return avvisoProva(testo, {L"Recupera", azione(L'R')}, {L"Elimina", azione(L'E')},
                           [this] { fatti += L'C'; });
    }
    void avvisa(const wchar_t* testo) { finestra.avvisi().avvisa(conPulsanti(testo)); }
    [[nodiscard]] HWND recupera() { return avvisi.pulsante(L"Recupera"); }
    [[nodiscard]] HWND elimina() { return avvisi.pulsante(L"Elimina"); }
    [[nodiscard]] HWND cancella() {
        return GetDlgItem(FindWindowExW(finestra.hwnd(), nullptr, L"OstrellePicCmd", nullptr),
                          mnDelFeed);
    }
    // As an assistive program presses: the focus stays where it is.
    void premiDaFuori(HWND pulsante) {
        SendMessageW(avvisi.striscia(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(pulsante), BN_CLICKED),
                     reinterpret_cast<LPARAM>(pulsante));
    }

    AvvisiProva avvisi{finestra};
    std::wstring fatti;
};

} // namespace

TEST_F(FrmMainAvvisi, UnAvvisoSiVedeENonPrendeIlFuoco) {
    EXPECT_FALSE(avvisi.inVista());
    SetFocus(campo(IDC_TXTTITOLO));
    scrivi(L"a");
    avvisa(L"uno");
    EXPECT_EQ(avvisi.detto(), L"uno");
    EXPECT_EQ(GetFocus(), campo(IDC_TXTTITOLO));
    EXPECT_EQ(GetForegroundWindow(), finestra.hwnd());
    scrivi(L"b");
    EXPECT_EQ(testoDi(campo(IDC_TXTTITOLO)), L"ab");
}

TEST_F(FrmMainAvvisi, F6VaAlPrimoPulsanteETornaDoveEra) {
    avvisa(L"uno");
    metti(L"elemento");
    for (const HWND dove : {campo(IDC_TXTTITOLO), campo(IDC_CBOLINGUA), griglia().lista(),
                            txtnumeroDi(campi.txtLarghezza()), cancella()}) {
        SetFocus(dove);
        const HWND prima = GetFocus();
        premi(VK_F6);
        EXPECT_EQ(GetFocus(), recupera());
        premi(VK_TAB);
        EXPECT_EQ(GetFocus(), elimina());
        premi(VK_F6, {VK_SHIFT});
        EXPECT_EQ(GetFocus(), prima);
    }
    finestra.avvisi().avvisa(avvisoProva(L"uno"));
    SetFocus(griglia().lista());
    premi(VK_F6);
    EXPECT_EQ(GetFocus(), avvisi.chiudi());
}

TEST_F(FrmMainAvvisi, F6TenutoGiuVaUnaVoltaEConCtrlNonVa) {
    avvisa(L"uno");
    SetFocus(griglia().lista());
    premiGiu(VK_F6);
    ripeti(VK_F6);
    lascia(VK_F6);
    EXPECT_EQ(GetFocus(), recupera());
    SetFocus(griglia().lista());
    premi(VK_F6, {VK_CONTROL});
    EXPECT_EQ(GetFocus(), griglia().lista());
}

TEST_F(FrmMainAvvisi, SenzaAvvisiF6EEscNonFannoNulla) {
    SetFocus(griglia().lista());
    premi(VK_F6);
    EXPECT_EQ(GetFocus(), griglia().lista());
    avvisa(L"uno");
    finestra.avvisi().ritira(L"uno");
    premi(VK_F6);
    premi(VK_ESCAPE);
    EXPECT_EQ(GetFocus(), griglia().lista());
    EXPECT_EQ(fatti, L"");
}

TEST_F(FrmMainAvvisi, TabCiPassaDopoTuttoIlResto) {
    SetFocus(cancella());
    premi(VK_TAB);
    const HWND primo = GetFocus();
    avvisa(L"uno");
    SetFocus(cancella());
    for (const HWND atteso : {recupera(), elimina(), avvisi.chiudi(), primo}) {
        premi(VK_TAB);
        EXPECT_EQ(GetFocus(), atteso);
    }
    for (const HWND atteso : {avvisi.chiudi(), elimina(), recupera(), cancella()}) {
        premi(VK_TAB, {VK_SHIFT});
        EXPECT_EQ(GetFocus(), atteso);
    }
    finestra.avvisi().ritira(L"uno");
    premi(VK_TAB);
    EXPECT_EQ(GetFocus(), primo);
}

TEST_F(FrmMainAvvisi, EscChiudeERendeIlFuoco) {
    avvisa(L"uno");
    SetFocus(campo(IDC_TXTDESCRIZIONE));
    premi(VK_ESCAPE);
    EXPECT_EQ(avvisi.detto(), L"uno");
    premi(VK_F6);
    premi(VK_TAB);
    premi(VK_ESCAPE);
    EXPECT_FALSE(avvisi.inVista());
    EXPECT_EQ(fatti, L"C");
    EXPECT_EQ(GetFocus(), campo(IDC_TXTDESCRIZIONE));
}

TEST_F(FrmMainAvvisi, InvioESpazioPremonoIlPulsanteColFuoco) {
    for (const WORD tasto : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
        fatti.clear();
        for (int tab = 0; tab < 3; ++tab) {
            avvisa(L"uno");
            SetFocus(griglia().lista());
            premi(VK_F6);
            for (int i = 0; i < tab; ++i) {
                premi(VK_TAB);
            }
            premi(tasto);
            EXPECT_FALSE(avvisi.inVista());
            EXPECT_EQ(GetFocus(), griglia().lista());
        }
        EXPECT_EQ(fatti, L"REC");
    }
}

TEST_F(FrmMainAvvisi, IlClicPremeERendeIlFuoco) {
    for (int i = 0; i < 3; ++i) {
        avvisa(L"uno");
        SetFocus(campo(IDC_TXTTITOLO));
        clic(std::vector{recupera(), elimina(), avvisi.chiudi()}.at(static_cast<std::size_t>(i)));
        EXPECT_FALSE(avvisi.inVista());
        EXPECT_EQ(GetFocus(), campo(IDC_TXTTITOLO));
        // So that the next press is not the second of a pair.
        clic(campo(IDC_TXTTITOLO));
    }
    EXPECT_EQ(fatti, L"REC");
}

TEST_F(FrmMainAvvisi, IlProssimoVieneQuandoIlPrimoENeVaESenzaFuoco) {
    for (const wchar_t* const testo : {L"uno", L"due", L"tre"}) {
        avvisa(testo);
    }
    EXPECT_EQ(avvisi.detto(), L"uno");
    SetFocus(griglia().lista());
    premi(VK_F6);
    premi(VK_RETURN);
    EXPECT_EQ(avvisi.detto(), L"due");
    EXPECT_EQ(GetFocus(), griglia().lista());
    premi(VK_F6);
    premi(VK_ESCAPE);
    EXPECT_EQ(avvisi.detto(), L"tre");
    EXPECT_EQ(GetFocus(), griglia().lista());
    EXPECT_EQ(fatti, L"RC");
}

TEST_F(FrmMainAvvisi, UnDoppioClicNonArrivaAllAvvisoDopo) {
    avvisa(L"uno");
    avvisa(L"due");
    doppioClic(avvisi.chiudi(), {5, 5});
    EXPECT_EQ(avvisi.detto(), L"due");
    EXPECT_EQ(fatti, L"C");
    // On one that stays both presses count.
    finestra.avvisi().avvisa(conPulsanti(L"due", false));
    clic(campo(IDC_TXTTITOLO));
    doppioClic(recupera(), {5, 5});
    EXPECT_EQ(fatti, L"CRR");
}

TEST_F(FrmMainAvvisi, QuelloRitiratoColFuocoLoRende) {
    avvisa(L"uno");
    avvisa(L"due");
    SetFocus(campo(IDC_TXTLOGO));
    premi(VK_F6);
    finestra.avvisi().ritira(L"uno");
    EXPECT_EQ(avvisi.detto(), L"due");
    EXPECT_EQ(GetFocus(), campo(IDC_TXTLOGO));
    premi(VK_F6);
    finestra.avvisi().ritira(L"due");
    EXPECT_FALSE(avvisi.inVista());
    EXPECT_EQ(GetFocus(), campo(IDC_TXTLOGO));
}

TEST_F(FrmMainAvvisi, RitiratoMentreIlProgrammaEDietroIlFuocoNonRestaInCioCheNonSiVede) {
    avvisa(L"uno");
    SetFocus(campo(IDC_TXTLOGO));
    premi(VK_F6);
    const HWND altra = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                       nullptr, nullptr, nullptr, nullptr);
    portaAvanti(altra);
    finestra.avvisi().ritira(L"uno");
    DestroyWindow(altra);
    portaAvanti(finestra.hwnd());
    EXPECT_TRUE(IsWindowVisible(GetFocus()));
    EXPECT_TRUE(IsChild(campi.hwnd(), GetFocus()));
}

TEST_F(FrmMainAvvisi, UnAzioneCheDiceDiNoOFallisceLasciaLAvviso) {
    finestra.avvisi().avvisa(conPulsanti(L"uno", false));
    clic(elimina());
    EXPECT_EQ(avvisi.detto(), L"uno");
    EXPECT_EQ(fatti, L"E");
    EXPECT_EQ(GetFocus(), elimina());
    finestra.avvisi().avvisa(
        avvisoProva(L"uno", {L"Recupera", []() -> bool { solleva(errori::fileNonTrovato); }}));
    attendiErrore(53, L"Impossibile trovare il file");
    clic(recupera());
    EXPECT_EQ(avvisi.detto(), L"uno");
}

TEST_F(FrmMainAvvisi, UnAzionePuoDireERitirareAvvisi) {
    finestra.avvisi().avvisa(avvisoProva(L"uno", {L"Recupera", [this] {
                                                      finestra.avvisi().ritira(L"uno");
                                                      avvisa(L"due");
                                                      avvisa(L"tre");
                                                      return true;
                                                  }}));
    premiDaFuori(recupera());
    EXPECT_EQ(avvisi.detto(), L"due");
    // One said anew by its own action stays.
    finestra.avvisi().avvisa(avvisoProva(L"due", {L"Recupera", [this] {
                                                      avvisa(L"due");
                                                      return true;
                                                  }}));
    premiDaFuori(recupera());
    EXPECT_EQ(avvisi.detto(), L"due");
    clic(elimina());
    EXPECT_EQ(avvisi.detto(), L"tre");
}

TEST_F(FrmMainAvvisi, MentreUnComandoLavoraIPulsantiNonFannoNulla) {
    avvisa(L"uno");
    campi.testo(IDC_TXTTITOLO, L"x");
    messaggi.attendi(testi::domandaSalvataggio, testi::salvataggio, Icona::Domanda,
                     Pulsanti::SiNoAnnulla, Risposta::Annulla, [this] {
                         for (const HWND p : {recupera(), elimina(), avvisi.chiudi()}) {
                             premiDaFuori(p);
                         }
                         // What is said meanwhile is shown at once.
                         finestra.avvisi().ritira(L"uno");
                         avvisa(L"due");
                         EXPECT_EQ(avvisi.detto(), L"due");
                     });
    finestra.esegui(mnNuovo);
    EXPECT_EQ(fatti, L"");
    EXPECT_EQ(avvisi.detto(), L"due");
}

TEST_F(FrmMainAvvisi, MentreUnAzioneLavoraNessunComandoParte) {
    finestra.avvisi().avvisa(avvisoProva(L"uno", {L"Recupera", [this] {
                                                      finestra.esegui(mnaddFeed);
                                                      return true;
                                                  }}));
    premiDaFuori(recupera()); // the editor would fail the test
    EXPECT_FALSE(avvisi.inVista());
}

TEST_F(FrmMainAvvisi, UnAzioneTrovaICampiNeiLimiti) {
    double trovato = 0;
    finestra.avvisi().avvisa(avvisoProva(L"uno", {L"Recupera", [&] {
                                                      trovato = campi.txtLarghezza().Valore();
                                                      return true;
                                                  }}));
    SetFocus(txtnumeroDi(campi.txtLarghezza()));
    scrivi(L"25000");
    premiDaFuori(recupera());
    EXPECT_EQ(trovato, 10000);
}

TEST_F(FrmMainAvvisi, QuelCheSiDicePrimaDellaFinestraSiVedeConLei) {
    Documento altro;
    FrmMain seconda{Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle},
                    altro};
    seconda.avvisi().avvisa(avvisoProva(L"presto"));
    seconda.avvisi().avvisa(avvisoProva(L"ritirato"));
    seconda.avvisi().ritira(L"ritirato");
    seconda.apri(SW_SHOWNORMAL);
    const AvvisiProva suoi(seconda);
    EXPECT_EQ(suoi.detto(), L"presto");
    RECT r{};
    GetClientRect(suoi.striscia(), &r);
    EXPECT_GT(r.bottom, 20);
}

TEST_F(FrmMainAvvisi, SegueColoriTemiEImpostazioni) {
    avvisa(L"uno");
    const auto croce = [this] { return SendMessageW(avvisi.chiudi(), BM_GETIMAGE, IMAGE_ICON, 0); };
    for (const auto& [finestraSua, messaggio] :
         {std::pair{finestra.hwnd(), UINT{WM_SYSCOLORCHANGE}},
          std::pair{finestra.hwnd(), UINT{WM_SETTINGCHANGE}},
          std::pair{avvisi.striscia(), UINT{WM_THEMECHANGED}}}) {
        const LRESULT prima = croce();
        SendMessageW(finestraSua, messaggio, 0, 0);
        EXPECT_NE(croce(), prima) << messaggio;
    }
}

TEST_F(FrmMainAvvisi, DopoLaFinestraNonSiDiceENonSuccedeNulla) {
    avvisa(L"uno");
    premi(VK_F6);
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    ASSERT_EQ(finestra.hwnd(), nullptr);
    finestra.avvisi().ritira(L"uno");
    avvisa(L"due");
    EXPECT_EQ(avvisi.striscia(), nullptr);
}

TEST_F(FrmMainAvvisi, UnaStrisciaCheNonSiPuoFareEUnErroreEPoiSiRiprova) {
    // The system refuses one window.
    static bool rifiuta = false;
    rifiuta = true;
    const HHOOK gancio = SetWindowsHookExW(
        WH_CBT,
        [](int codice, WPARAM w, LPARAM l) noexcept -> LRESULT {
            if (codice == HCBT_CREATEWND) {
                const auto* const come = reinterpret_cast<const CBT_CREATEWNDW*>(l);
                if (rifiuta && come->lpcs->lpszName != nullptr &&
                    !IS_INTRESOURCE(come->lpcs->lpszName) &&
                    std::wstring_view(come->lpcs->lpszName) == L"Chiudi avviso") {
                    return 1;
                }
            }
            return CallNextHookEx(nullptr, codice, w, l);
        },
        nullptr, GetCurrentThreadId());
    attendiErrore(57, L"Errore di I/O della periferica");
    avvisa(L"uno");
    EXPECT_FALSE(avvisi.inVista());
    rifiuta = false;
    UnhookWindowsHookEx(gancio);
    avvisa(L"due");
    EXPECT_EQ(avvisi.detto(), L"uno");
}
