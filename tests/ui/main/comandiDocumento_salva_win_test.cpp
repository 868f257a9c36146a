#include "tests/aiuti/frmMain_win.h"

#include "support/testi/testo.h"
#include "tests/aiuti/testi.h"

#include <commctrl.h>

namespace {

using Salvataggi = ProvaFrmMain;

} // namespace

TEST_F(Salvataggi, IlPercorsoSiRifila) {
    metti(L"uno");
    const std::wstring percorso = cartella.file(L"r.xml");
    documento.percorso(L"  " + percorso + L"  ");
    EXPECT_TRUE(finestra.Salva(false));
    EXPECT_NE(leggiTutto(percorso).find("uno"), std::string::npos);
    EXPECT_EQ(documento.percorso(), percorso);
    EXPECT_EQ(titolo(), L"Ostrelle  [" + percorso + L"]");
    // One of blanks alone is none.
    documento.percorso(L"   ");
    dialoghi.attendiSalva(richiestaSalva, std::nullopt);
    EXPECT_FALSE(finestra.Salva(false));
}

TEST_F(Salvataggi, DoveNonSiPuoSalvareDicePerche) {
    metti(L"uno");
    finestra.ImpostaModificato();
    struct Caso {
        const wchar_t* nome;
        std::int32_t numero;
    };
    for (const Caso& caso : {Caso{L"nessuna\\a.xml", 76}, Caso{L"a?b", 52}}) {
        dialoghi.attendiSalva(richiestaSalva, cartella.file(caso.nome));
        attendiErrore(caso.numero);
        EXPECT_FALSE(finestra.Salva(false));
    }
    EXPECT_EQ(documento.percorso(), L"");
    EXPECT_TRUE(documento.modificato());
}

TEST_F(Salvataggi, LElementoCheNonSiSalvaEScelto) {
    for (int i = 0; i < 100; ++i) {
        metti(L"e" + std::to_wstring(i));
    }
    finestra.SelezionaRiga(1);
    documento.percorso(cartella.file(L"s.xml"));
    const std::wstring inizio = maiuscolo(documento.percorso());
    const HWND lista = griglia().lista();
    ::metti(documento, CampoElemento::Descrizione, 69, L"]]>");
    // Seen while the message is up already.
    messaggi.attendi(inizio + L": sequenza ]]> non ammessa in descrizione dell'elemento 70.",
                     testi::erroreNumero(5), Icona::Critica, Pulsanti::Ok, Risposta::Ok, [&] {
                         EXPECT_EQ(finestra.ElementoSelezionato(), 69);
                         EXPECT_NE(ListView_GetItemState(lista, 69, LVIS_SELECTED), 0U);
                         const int cima = ListView_GetTopIndex(lista);
                         EXPECT_TRUE(cima <= 69 && 69 < cima + ListView_GetCountPerPage(lista))
                             << cima;
                     });
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_EQ(finestra.ElementoSelezionato(), 69);
    // A text of the channel selects nothing.
    campi.testo(IDC_TXTCOPYRIGHT, L"\v");
    attendiErrore(5, inizio + L": carattere non ammesso in copyright del canale (U+000B).");
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_EQ(finestra.ElementoSelezionato(), 69);
}
