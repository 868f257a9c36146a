#include "ui/main/comandiElementi_win.h"

#include "support/ModGlobale.h"
#include "support/koUtilita.h"
#include "support/messaggi.h"
#include "ui/dialogs/editorElementi.h"
#include "ui/main/elementi.h"
#include "ui/main/guardia_win.h"

void avvisaNessunaSelezione(Messaggi& messaggi) {
    messaggi.avvisa(L"E' necessario selezionare un elemento dalla griglia.", L"Attenzione",
                    Icona::Informazione);
}

template <class Comando>
void ComandiElementi::esegui(Comando comando) {
    protetto(comando, [&] { koUtilita(messaggi_).PrintErrore(); });
}

template <class Comando>
void ComandiElementi::conSelezionato(Comando comando) {
    esegui([&] {
        const int selezionato = finestra_.ElementoSelezionato();
        if (selezionato < 0) {
            avvisaNessunaSelezione(messaggi_);
            return;
        }
        comando(selezionato);
    });
}

void ComandiElementi::cmdAggiungi_Click() {
    esegui([&] {
        // Told before the user has written what could not be kept.
        richiediPosto(elementi_);
        clsItemRss nuovo;
        const auto scelta = editor_.modifica(nuovo, ultimaData_);
        if (!scelta) {
            return;
        }
        const int indice = aggiungiElemento(
            elementi_, nuovo, nuovo.sPubDate() + L' ' + ModGlobale().GeneraIdentificativo());
        ultimaData_ = *scelta;
        mostraModifica(rigaDi(indice));
    });
}

void ComandiElementi::cmdModifica_Click() {
    conSelezionato([&](int selezionato) {
        clsItemRss elemento = leggiElemento(elementi_, selezionato);
        if (!editor_.modifica(elemento, ultimaData_)) {
            return;
        }
        scriviElemento(elementi_, selezionato, elemento);
        mostraModifica(rigaDi(selezionato));
    });
}

void ComandiElementi::cmdCancella_Click() {
    conSelezionato([&](int selezionato) {
        if (messaggi_.mostra(L"Si desidera cancellare realmente il contenuto selezionato?",
                             L"Attenzione", Icona::Domanda, Pulsanti::SiNo) != Risposta::Si) {
            return;
        }
        elementi_.rimuovi(selezionato);
        mostraModifica(rigaDopoCancellazione(selezionato));
    });
}

void ComandiElementi::mostraModifica(int riga) {
    // First, lest a grid that fails lets the change go unsaved.
    finestra_.ImpostaModificato();
    finestra_.RiempiGriglia(false);
    finestra_.SelezionaRiga(riga);
}
