#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/testi.h"

#include <dlgs.h>

namespace {

class FrmMainRicerca : public ProvaFrmMain {
protected:
    FrmMainRicerca() {
        SetFocus(griglia().lista());
        statoIniziale = pannello(0);
    }

    void riempi() {
        for (const wchar_t* const t : {L"alfa", L"Perch\u00E9", L"beta", L"PERCHE", L"gamma"}) {
            metti(t);
        }
    }
    // The find dialog; null when it is not shown.
    [[nodiscard]] HWND dialogo() const {
        for (HWND d = nullptr; (d = FindWindowExW(nullptr, d, L"#32770", nullptr)) != nullptr;) {
            if (GetWindow(d, GW_OWNER) == finestra.hwnd() && IsWindowVisible(d)) {
                return d;
            }
        }
        return nullptr;
    }
    void apriDialogo() {
        premi(L'F', {VK_CONTROL});
        ASSERT_TRUE(
            attendi([this] { return dialogo() != nullptr && IsChild(dialogo(), GetFocus()); }));
    }
    void chiudiDialogo() {
        premi(VK_ESCAPE);
        EXPECT_TRUE(attendi(
            [this] { return dialogo() == nullptr && GetActiveWindow() == finestra.hwnd(); }));
    }
    // With the dialog open: this text instead of the one there, Enter.
    void cerca(std::wstring_view testo) {
        const HWND casella = GetDlgItem(dialogo(), edt1);
        SetFocus(casella);
        SendMessageW(casella, EM_SETSEL, 0, -1);
        scrivi(testo);
        premi(VK_RETURN);
    }
    // From the grid: Ctrl+F, the text, Enter, Esc.
    void cercaEChiudi(std::wstring_view testo) {
        apriDialogo();
        cerca(testo);
        chiudiDialogo();
    }
    [[nodiscard]] int riga() { return griglia().rigaCorrente(); }

    static constexpr const wchar_t* daCapo = L"Ricerca ripresa dall'inizio.";
    static constexpr const wchar_t* dallaFine = L"Ricerca ripresa dalla fine.";

    std::wstring statoIniziale;
};

} // namespace

TEST_F(FrmMainRicerca, CtrlFCercaConIlDialogoDelSistema) {
    riempi();
    apriDialogo();
    EXPECT_TRUE(IsWindowEnabled(finestra.hwnd())); // not modal
    EXPECT_FALSE(IsWindowVisible(GetDlgItem(dialogo(), chx1)));
    EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialogo(), chx2)));
    cerca(L"perche");
    EXPECT_EQ(riga(), 2);
    EXPECT_EQ(pannello(0), statoIniziale);
    // The dialog stays and keeps the focus.
    ASSERT_NE(dialogo(), nullptr);
    EXPECT_TRUE(IsChild(dialogo(), GetFocus()));
    premi(VK_RETURN);
    EXPECT_EQ(riga(), 4);
    premi(VK_RETURN);
    EXPECT_EQ(riga(), 2);
    EXPECT_EQ(pannello(0), daCapo);
    premi(VK_RETURN);
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), L"");
    chiudiDialogo();
    EXPECT_EQ(GetFocus(), griglia().lista());
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainRicerca, DovunqueStiaIlFuoco) {
    riempi();
    for (const HWND fuoco : {campo(IDC_TXTTITOLO), campo(IDC_TXTDESCRIZIONE), campo(IDC_TXTDATA),
                             campo(IDC_CMDGETSIZE), griglia().lista()}) {
        finestra.SelezionaRiga(1);
        SetFocus(fuoco);
        cercaEChiudi(L"gamma");
        EXPECT_EQ(riga(), 5);
        EXPECT_EQ(GetFocus(), fuoco);
        finestra.SelezionaRiga(1);
        premi(VK_F3);
        EXPECT_EQ(riga(), 5);
        EXPECT_EQ(GetFocus(), fuoco);
    }
}

TEST_F(FrmMainRicerca, F3EMaiuscF3Proseguono) {
    riempi();
    cercaEChiudi(L"per");
    EXPECT_EQ(riga(), 2);
    premi(VK_F3);
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), statoIniziale);
    premi(VK_F3);
    EXPECT_EQ(riga(), 2);
    EXPECT_EQ(pannello(0), daCapo);
    premi(VK_F3, {VK_SHIFT});
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), dallaFine);
    premi(VK_F3, {VK_SHIFT});
    EXPECT_EQ(riga(), 2);
    EXPECT_EQ(pannello(0), L"");
    // From a row without an item the search begins at an end.
    finestra.SelezionaRiga(20);
    premi(VK_F3);
    EXPECT_EQ(riga(), 2);
    finestra.SelezionaRiga(20);
    premi(VK_F3, {VK_SHIFT});
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), L"");
}

TEST_F(FrmMainRicerca, F3SenzaUnTestoApreIlDialogo) {
    riempi();
    premi(VK_F3);
    EXPECT_TRUE(attendi([this] { return dialogo() != nullptr; }));
    chiudiDialogo();
    premi(VK_F3, {VK_SHIFT});
    EXPECT_TRUE(attendi([this] { return dialogo() != nullptr; }));
}

TEST_F(FrmMainRicerca, CioCheNonCeSiDiceNellaBarraDiStato) {
    cercaEChiudi(L"qui");
    EXPECT_EQ(pannello(0), L"\u00ABqui\u00BB: non trovato.");
    riempi();
    finestra.SelezionaRiga(3);
    premi(VK_F3);
    EXPECT_EQ(pannello(0), L"\u00ABqui\u00BB: non trovato.");
    EXPECT_EQ(riga(), 3);
    metti(L"qui");
    premi(VK_F3);
    EXPECT_EQ(riga(), 6);
    EXPECT_EQ(pannello(0), L"");
}

TEST_F(FrmMainRicerca, UnaRigaFuoriVistaVieneInCima) {
    std::vector<ElementoCondiviso> righe;
    for (int i = 0; i < 100; ++i) {
        const std::wstring titolo = L"riga " + std::to_wstring(i);
        righe.push_back(creaElemento({titolo, L"", L"", L"", L"", L""}));
    }
    TabellaElementi tabella;
    tabella.riempi(std::move(righe));
    documento.sostituisci(std::move(tabella));
    cercaEChiudi(L"riga 63");
    EXPECT_EQ(riga(), 64);
    EXPECT_EQ(griglia().rigaInCima(), 64);
}

TEST_F(FrmMainRicerca, LeScelteDelDialogoContano) {
    riempi();
    apriDialogo();
    SendDlgItemMessageW(dialogo(), chx2, BM_CLICK, 0, 0);
    cerca(L"PERCHE");
    EXPECT_EQ(riga(), 4);
    premi(VK_RETURN);
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), daCapo);
    SendDlgItemMessageW(dialogo(), chx2, BM_CLICK, 0, 0);
    SendDlgItemMessageW(dialogo(), rad1, BM_CLICK, 0, 0); // up
    cerca(L"PERCHE");
    EXPECT_EQ(riga(), 2);
    cerca(L"alfa");
    EXPECT_EQ(riga(), 1);
    // Next time they are as they were, and so is the text; F3 goes down all the same.
    chiudiDialogo();
    apriDialogo();
    EXPECT_EQ(SendDlgItemMessageW(dialogo(), rad1, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendDlgItemMessageW(dialogo(), chx2, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(testoDi(GetDlgItem(dialogo(), edt1)), L"alfa");
    cerca(L"perche");
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), dallaFine);
    chiudiDialogo();
    premi(VK_F3);
    EXPECT_EQ(riga(), 2);
    EXPECT_EQ(pannello(0), daCapo);
}

TEST_F(FrmMainRicerca, NelDialogoITastiSonoSuoi) {
    riempi();
    apriDialogo();
    const HWND casella = GetDlgItem(dialogo(), edt1);
    scrivi(L"xgamma");
    premi(VK_HOME);
    // No question about deleting, no editor, no move, no save: nothing waits for one.
    premi(VK_DELETE);
    premi(VK_INSERT);
    premi(VK_DOWN, {VK_MENU});
    premi(L'S', {VK_CONTROL});
    premi(L'X', {VK_CONTROL});
    EXPECT_EQ(testoDi(casella), L"gamma");
    EXPECT_EQ(titoliElementi(), L"alfa;Perch\u00E9;beta;PERCHE;gamma;");
    EXPECT_EQ(riga(), 1);
    const HWND prima = GetFocus();
    premi(VK_TAB);
    EXPECT_NE(GetFocus(), prima);
    EXPECT_TRUE(IsChild(dialogo(), GetFocus()));
    premi(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), prima);
    premi(VK_RETURN);
    EXPECT_EQ(riga(), 5);
}

TEST_F(FrmMainRicerca, ConIlDialogoApertoLaFinestraFaIlSuoLavoro) {
    riempi();
    apriDialogo();
    cerca(L"beta");
    SetActiveWindow(finestra.hwnd());
    ASSERT_EQ(GetFocus(), griglia().lista());
    messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                     Risposta::Si);
    premi(VK_DELETE);
    EXPECT_EQ(titoliElementi(), L"alfa;Perch\u00E9;PERCHE;gamma;");
    // Ctrl+F brings the dialog back, the same one.
    const HWND prima = dialogo();
    premi(L'F', {VK_CONTROL});
    EXPECT_EQ(GetActiveWindow(), prima);
    EXPECT_EQ(dialogo(), prima);
}

TEST_F(FrmMainRicerca, ToglieDallaBarraDiStatoSoloCioCheHaDetto) {
    riempi();
    cercaEChiudi(L"perche");
    premi(VK_F3);
    premi(VK_F3);
    EXPECT_EQ(pannello(0), daCapo);
    premi(L'X', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"alfa;beta;PERCHE;gamma;");
    premi(L'Z', {VK_CONTROL});
    const std::wstring annullata = L"Annullata: cancellazione di \u00ABPerch\u00E9\u00BB";
    EXPECT_EQ(pannello(0), annullata);
    EXPECT_EQ(riga(), 2);
    premi(VK_F3);
    EXPECT_EQ(riga(), 4);
    EXPECT_EQ(pannello(0), annullata);
    premi(VK_F3);
    EXPECT_EQ(riga(), 2);
    EXPECT_EQ(pannello(0), daCapo);
    // What was pasted is found like the others.
    finestra.SelezionaRiga(5);
    premi(L'V', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"alfa;Perch\u00E9;beta;PERCHE;gamma;Perch\u00E9;");
    premi(VK_F3, {VK_SHIFT});
    premi(VK_F3);
    EXPECT_EQ(riga(), 6);
    EXPECT_EQ(pannello(0), L"");
}

TEST_F(FrmMainRicerca, DuranteUnComandoIlDialogoRiposa) {
    riempi();
    apriDialogo();
    cerca(L"beta");
    const HWND trova = dialogo();
    EnableWindow(finestra.hwnd(), FALSE);
    EXPECT_FALSE(IsWindowEnabled(trova));
    EnableWindow(finestra.hwnd(), TRUE);
    EXPECT_TRUE(IsWindowEnabled(trova));
    // A box that disables nothing is up: the search has to wait.
    SetActiveWindow(finestra.hwnd());
    messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                     Risposta::No, [&] {
                         SendDlgItemMessageW(trova, IDOK, BM_CLICK, 0, 0);
                         finestra.esegui(trovaAvanti);
                         EXPECT_EQ(riga(), 3);
                         EXPECT_EQ(pannello(0), statoIniziale);
                     });
    premi(VK_DELETE);
}

TEST_F(FrmMainRicerca, IlDialogoFinisceConLaFinestra) {
    riempi();
    apriDialogo();
    const HWND trova = dialogo();
    PostMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(finestra.cicloMessaggi(), 0);
    EXPECT_FALSE(IsWindow(trova));
}
