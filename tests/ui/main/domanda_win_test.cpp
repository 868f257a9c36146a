// When a document asks before it goes, and what is left when a message cannot be shown.

#include "tests/aiuti/frmMain_win.h"

#include "tests/aiuti/testi.h"

namespace {

using Domanda = ProvaFrmMain;

} // namespace

TEST_F(Domanda, UnSoloCampoScrittoOUnSoloElementoBastaPerChiedere) {
    for (const int id : campiTesto) {
        SCOPED_TRACE(id);
        finestra.NuovoDocumento();
        campi.testo(id, L"x");
        attendiDomanda(Risposta::Annulla);
        EXPECT_FALSE(finestra.ChiediSalvataggio());
    }
    finestra.NuovoDocumento();
    metti(L"uno");
    finestra.ImpostaModificato();
    attendiDomanda(Risposta::Annulla);
    EXPECT_FALSE(finestra.ChiediSalvataggio());
}

// A message that fails ends a command as any failure does.
TEST_F(Domanda, UnMessaggioCheNonSiPuoMostrareNonFermaIComandiSeguenti) {
    const auto fallisce = [] { solleva(errori::memoriaEsaurita); };
    metti(L"uno");
    finestra.ImpostaModificato();
    const auto fallito = [&](UINT messaggio, WPARAM w) {
        // The question cannot be shown, and then the report of that.
        messaggi.attendi(testi::domandaSalvataggio, testi::salvataggio, Icona::Domanda,
                         Pulsanti::SiNoAnnulla, Risposta::Annulla, fallisce);
        messaggi.attendi(testi::diErrore(7), testi::erroreNumero(7), Icona::Critica, Pulsanti::Ok,
                         Risposta::Ok, fallisce);
        attendiErrore(7);
        SendMessageW(finestra.hwnd(), messaggio, w, 0);
    };
    fallito(WM_COMMAND, mnNuovo);
    EXPECT_EQ(titoliElementi(), L"uno;");
    fallito(WM_CLOSE, 0);
    ASSERT_NE(finestra.hwnd(), nullptr);
    attendiDomanda(Risposta::No);
    finestra.esegui(mnNuovo);
    EXPECT_EQ(titoliElementi(), L"");
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(finestra.hwnd(), nullptr);
}
