#include "support/tempo/dataora_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/frmMain_win.h"

#include <commctrl.h>

namespace {

class CampiDelCanale : public ProvaFrmMain {
protected:
    CampiDelCanale() { metti(L"uno"); }

    // Writes into the first part of a picker: the day, or the hour.
    void scriviIn(int selettore, std::wstring_view cifre) {
        clic(campo(selettore), {8, 8});
        scrivi(cifre);
    }
    // Saves with the key, to this file.
    std::wstring salva(const wchar_t* nome) {
        std::wstring percorso = cartella.file(nome);
        documento.percorso(percorso);
        premi('S', {VK_CONTROL});
        return percorso;
    }
    // Date and time of a saved feed, without the offset, which is today's.
    [[nodiscard]] static std::wstring dataIn(const std::wstring& percorso) {
        FeedDiProva letto;
        letto.leggi(percorso);
        return letto.lastBuildDate.substr(0, letto.lastBuildDate.rfind(L' '));
    }
    // A feed whose image has this size.
    [[nodiscard]] std::wstring feed(int larghezza, int altezza) {
        return cartella.scrivi(L"misure.xml",
                               rssCon("<title>c</title><image><title>t</title><width>" +
                                      std::to_string(larghezza) + "</width><height>" +
                                      std::to_string(altezza) +
                                      "</height></image><item><title>i</title></item>"));
    }
    [[nodiscard]] HWND larghezza() { return txtnumeroDi(campi.txtLarghezza()); }
    // Where the selection in the width begins and ends, and the text.
    [[nodiscard]] std::wstring selezione() {
        const auto [inizio, fine] = selezioneDi(larghezza());
        return std::to_wstring(inizio) + L'-' + std::to_wstring(fine) + L' ' + testoDi(larghezza());
    }
    // A date and time picker set from outside, as a whole.
    void selettore(int id, DataOra valore) {
        const SYSTEMTIME tempo = aSystemTime(valore);
        ASSERT_TRUE(DateTime_SetSystemtime(campo(id), GDT_VALID, &tempo));
    }
};

} // namespace

TEST_F(CampiDelCanale, LeCifreDelGiornoSiSalvanoAncheSenzaUscireDalCampo) {
    scriviIn(IDC_TXTDATA, L"5");
    EXPECT_EQ(dataIn(salva(L"giorno.xml")), L"Sat, 05 Nov 2005 10:00:00");
    // The day is still the part in use.
    EXPECT_EQ(GetFocus(), campo(IDC_TXTDATA));
    scrivi(L"6");
    EXPECT_EQ(dataIn(salva(L"ancora.xml")), L"Sun, 06 Nov 2005 10:00:00");
}

TEST_F(CampiDelCanale, LeCifreDellOraSiSalvanoAncheSenzaUscireDalCampo) {
    scriviIn(IDC_TXTORARIO, L"1");
    EXPECT_EQ(dataIn(salva(L"ora.xml")), L"Tue, 15 Nov 2005 01:00:00");
}

TEST_F(CampiDelCanale, DopoUnaCifraDellaDataChiudereChiede) {
    for (const int id : {IDC_TXTDATA, IDC_TXTORARIO}) {
        documento.modificato(false);
        scriviIn(id, L"1");
        attendiDomanda(Risposta::Annulla);
        SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
        ASSERT_NE(finestra.hwnd(), nullptr);
        EXPECT_TRUE(documento.modificato());
    }
    EXPECT_EQ(campi.dataOra(), DataOra::daParti(2005, 11, 1, 1, 0, 0));
}

TEST_F(CampiDelCanale, OgniComandoPrendeLeCifreDellaData) {
    scriviIn(IDC_TXTDATA, L"5");
    finestra.esegui(mnAggiorna);
    EXPECT_EQ(campi.dataOra(), DataOra::daParti(2005, 11, 5, 10, 0, 0));
    EXPECT_TRUE(documento.modificato());
}

TEST_F(CampiDelCanale, UnSelettoreNonToccatoRestaComE) {
    for (const int id : {IDC_TXTDATA, IDC_TXTORARIO}) {
        SetFocus(campo(id));
        finestra.esegui(mnAggiorna);
        clic(campo(id), {8, 8});
        finestra.esegui(mnAggiorna);
    }
    EXPECT_EQ(campi.dataOra(), orologio.locale());
    EXPECT_FALSE(documento.modificato());
}

TEST_F(CampiDelCanale, LaDataVieneDaUnSelettoreELOraDallAltro) {
    selettore(IDC_TXTDATA, DataOra::daParti(2005, 3, 4, 5, 6, 7));
    selettore(IDC_TXTORARIO, DataOra::daParti(2001, 12, 31, 21, 22, 23));
    EXPECT_EQ(campi.dataOra(), DataOra::daParti(2005, 3, 4, 21, 22, 23));
    EXPECT_EQ(dataIn(salva(L"due.xml")), L"Fri, 04 Mar 2005 21:22:23");
}

TEST_F(CampiDelCanale, UnNuovoDocumentoAzzeraLeDueMisure) {
    campi.dimensioni(7, 8);
    finestra.NuovoDocumento();
    EXPECT_EQ(campi.txtLarghezza().Valore(), 0);
    EXPECT_EQ(campi.txtAltezza().Valore(), 0);
}

TEST_F(CampiDelCanale, UnControlloCheRifiutaLAzzeramentoNonFermaGliAltri) {
    campi.testo(IDC_TXTLINKIMG, L"k");
    campi.dimensioni(7, 8);
    campi.txtLarghezza().Minimo(5);
    // Too early for a picker.
    orologio.locale(DataOra::daParti(1600, 1, 1));
    const DataOra prima = campi.dataOra();
    finestra.NuovoDocumento();
    EXPECT_EQ(campi.testo(IDC_TXTLINKIMG), L"");
    EXPECT_EQ(campi.dataOra(), prima);
    EXPECT_EQ(campi.txtLarghezza().Valore(), 7);
    EXPECT_EQ(campi.txtAltezza().Valore(), 0);
    EXPECT_EQ(titoliElementi(), L"");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(CampiDelCanale, InvioEdEscNelleMisureNonSonoUnUscita) {
    for (KOInputNumerico* const misura : {&campi.txtLarghezza(), &campi.txtAltezza()}) {
        SetFocus(txtnumeroDi(*misura));
        scrivi(L"25000");
        for (const WORD tasto : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
            premi(tasto);
            EXPECT_EQ(testoDi(txtnumeroDi(*misura)), L"25000");
        }
        premi(VK_TAB);
        EXPECT_EQ(testoDi(txtnumeroDi(*misura)), L"10000");
    }
}

TEST_F(CampiDelCanale, ChiudereRiportaPrimaLeMisureNeiLimiti) {
    SetFocus(larghezza());
    scrivi(L"25000");
    attendiDomanda(Risposta::Annulla);
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    ASSERT_NE(finestra.hwnd(), nullptr);
    EXPECT_EQ(GetFocus(), larghezza());
    EXPECT_EQ(testoDi(larghezza()), L"10000");
}

TEST_F(CampiDelCanale, DopoUnNuovoDocumentoLaMisuraInUsoSiRiscriveSubito) {
    SetFocus(larghezza());
    scrivi(L"55");
    attendiDomanda(Risposta::No);
    premi('N', {VK_CONTROL});
    EXPECT_EQ(selezione(), L"0-1 0");
    scrivi(L"120");
    EXPECT_EQ(testoDi(larghezza()), L"120");
    EXPECT_EQ(campi.txtLarghezza().Valore(), 120);
}

TEST_F(CampiDelCanale, DopoUnAperturaLaMisuraInUsoSiRiscriveSubito) {
    SetFocus(larghezza());
    dialoghi.attendiApri(richiestaApri, feed(300, 200));
    premi('O', {VK_CONTROL});
    EXPECT_EQ(selezione(), L"0-3 300");
    scrivi(L"4");
    EXPECT_EQ(testoDi(larghezza()), L"4");
}

TEST_F(CampiDelCanale, SalvareLasciaIlCursoreNellaMisura) {
    campi.testo(IDC_TXTLOGO, L"t");
    SetFocus(larghezza());
    scrivi(L"120");
    premi(VK_LEFT);
    salva(L"a.xml");
    EXPECT_EQ(selezione(), L"2-2 120");
    // Where the limits change the text too.
    premi(VK_HOME);
    premi(VK_END, {VK_SHIFT});
    scrivi(L"25000");
    premi(VK_LEFT);
    salva(L"b.xml");
    EXPECT_EQ(selezione(), L"4-4 10000");
}
