#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/griglia_prova_win.h"

// Taking back and doing again, as a person does it.

namespace {

class FrmMainStoria : public ProvaFrmMain {
protected:
    FrmMainStoria() {
        for (const wchar_t* const titolo : {L"uno", L"due", L"tre"}) {
            metti(titolo);
        }
        // What is there was opened.
        TabellaElementi aperta = documento.elementi();
        documento.sostituisci(std::move(aperta));
        documento.modificato(false);
        SetFocus(griglia().lista());
    }

    void cancella(int riga) {
        finestra.SelezionaRiga(riga);
        messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                         Risposta::Si);
        premi(VK_DELETE);
    }
};

} // namespace

TEST_F(FrmMainStoria, CtrlZAnnullaECtrlYRipete) {
    cancella(2);
    EXPECT_EQ(titoliElementi(), L"uno;tre;");
    documento.modificato(false);
    premi(L'Z', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"uno;due;tre;");
    EXPECT_EQ(pannello(0), L"Annullata: cancellazione di «due»");
    EXPECT_EQ(finestra.ElementoSelezionato(), 1);
    EXPECT_TRUE(documento.modificato());
    premi(L'Y', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"uno;tre;");
    EXPECT_EQ(pannello(0), L"Ripetuta: cancellazione di «due»");
    premi(L'Z', {VK_CONTROL});
    premi(L'Z', {VK_CONTROL, VK_SHIFT});
    EXPECT_EQ(titoliElementi(), L"uno;tre;");
}

TEST_F(FrmMainStoria, LoSpostamentoDaTastieraSiAnnulla) {
    finestra.SelezionaRiga(1);
    premi(VK_END, {VK_MENU});
    EXPECT_EQ(titoliElementi(), L"due;tre;uno;");
    premi(L'Z', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"uno;due;tre;");
    EXPECT_EQ(finestra.ElementoSelezionato(), 0);
}

TEST_F(FrmMainStoria, SenzaNienteDaAnnullareLoStatoRestaComEra) {
    const std::wstring prima = pannello(0);
    premi(L'Z', {VK_CONTROL});
    premi(L'Y', {VK_CONTROL});
    EXPECT_EQ(pannello(0), prima);
    EXPECT_FALSE(documento.modificato());
    EXPECT_EQ(titoliElementi(), L"uno;due;tre;");
}

TEST_F(FrmMainStoria, NelleCaselleCtrlZEDellaCasella) {
    cancella(1);
    SetFocus(campo(IDC_TXTTITOLO));
    scrivi(L"x");
    premi(L'Z', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"due;tre;");
    EXPECT_EQ(campi.testo(IDC_TXTTITOLO), L"");
}

TEST_F(FrmMainStoria, UnSalvataggioNonTagliaLaStoria) {
    cancella(1);
    dialoghi.attendiSalva(richiestaSalva, cartella.file(L"a.xml"));
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_FALSE(documento.modificato());
    premi(L'Z', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"uno;due;tre;");
    EXPECT_TRUE(documento.modificato());
}

TEST_F(FrmMainStoria, UnNuovoDocumentoLaDimentica) {
    cancella(1);
    attendiDomanda(Risposta::No);
    finestra.esegui(mnNuovo);
    SetFocus(griglia().lista());
    premi(L'Z', {VK_CONTROL});
    EXPECT_EQ(titoliElementi(), L"");
    EXPECT_FALSE(documento.modificato());
}
