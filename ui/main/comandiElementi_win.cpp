#include "ui/main/comandiElementi_win.h"

#include "document/clsItemRss.h"
#include "document/elementi.h"
#include "support/programma/ModGlobale.h"
#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/guardia_win.h"
#include "ui/controls/griglia_win.h"
#include "ui/dialogs/editorElementi.h"

void avvisaNessunaSelezione(Messaggi& messaggi) {
    messaggi.avvisa(L"E' necessario selezionare un elemento dalla griglia.", titoli::attenzione,
                    Icona::Informazione);
}

template <class Comando>
void ComandiElementi::esegui(Comando comando) {
    protetto(comando, [&] { koUtilita(messaggi_).PrintErrore(); });
}

template <class Comando>
void ComandiElementi::conSelezionato(Comando comando) {
    esegui([&] {
        const int selezionato = griglia_.ElementoSelezionato();
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
        richiediPosto(documento_.elementi());
        clsItemRss nuovo;
        const auto scelta = editor_.modifica(nuovo, documento_.ultimaData());
        if (!scelta) {
            return;
        }
        nuovo.sGuid(nuovo.sPubDate() + L' ' + ModGlobale().GeneraIdentificativo());
        const Modifica aggiunta = documento_.aggiunta(nuovo.elemento());
        documento_.ultimaData(*scelta);
        documento_.applica(aggiunta);
    });
}

void ComandiElementi::cmdModifica_Click() {
    conSelezionato([&](int selezionato) {
        // The editor knows nothing of the guid, which stays the table's.
        const std::wstring guid(documento_.elementi()(CampoElemento::Guid, selezionato));
        clsItemRss elemento;
        elemento.riempi(*documento_.elementi().elemento(selezionato));
        elemento.sGuid(L"");
        if (!editor_.modifica(elemento, documento_.ultimaData())) {
            return;
        }
        elemento.sGuid(guid);
        documento_.applica(documento_.cambio(selezionato, elemento.elemento()));
    });
}

void ComandiElementi::cmdCancella_Click() {
    conSelezionato([&](int selezionato) {
        if (messaggi_.mostra(L"Si desidera cancellare realmente il contenuto selezionato?",
                             titoli::attenzione, Icona::Domanda, Pulsanti::SiNo) == Risposta::Si) {
            documento_.applica(documento_.rimozione(selezionato));
        }
    });
}
