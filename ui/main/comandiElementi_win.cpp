#include "ui/main/comandiElementi_win.h"

#include "document/clsItemRss.h"
#include "document/elementi.h"
#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/guardia_win.h"
#include "ui/dialogs/editorElementi.h"

template <class Azione>
void ComandiElementi::riportando(Azione azione) {
    protetto(azione, [&] { koUtilita(messaggi_).PrintErrore(); });
}

void ComandiElementi::cmdAggiungi_Click() {
    riportando([&] {
        // Told before the user has written what could not be kept.
        richiediPosto(documento_.elementi());
        clsItemRss nuovo;
        const auto scelta = editor_.modifica(nuovo, documento_.ultimaData());
        if (!scelta) {
            return;
        }
        nuovo.sGuid(guidNuovo(nuovo.sPubDate()));
        const Modifica aggiunta = documento_.aggiunta(nuovo.elemento());
        documento_.ultimaData(*scelta);
        documento_.applica(aggiunta);
    });
}

void ComandiElementi::cmdModifica_Click(int elemento) {
    riportando([&] {
        // The editor knows nothing of the guid, which stays the table's.
        const std::wstring guid(documento_.elementi()(CampoElemento::Guid, elemento));
        clsItemRss modificato;
        modificato.riempi(*documento_.elementi().elemento(elemento));
        modificato.sGuid(L"");
        if (!editor_.modifica(modificato, documento_.ultimaData())) {
            return;
        }
        modificato.sGuid(guid);
        documento_.applica(documento_.cambio(elemento, modificato.elemento()));
    });
}

void ComandiElementi::cmdCancella_Click(int elemento) {
    riportando([&] {
        if (messaggi_.mostra(L"Si desidera cancellare realmente il contenuto selezionato?",
                             titoli::attenzione, Icona::Domanda, Pulsanti::SiNo) == Risposta::Si) {
            documento_.applica(documento_.rimozione(elemento));
        }
    });
}

void ComandiElementi::SpostaElemento(int da, int a, Causa causa) {
    if (da >= 0 && a != da && a >= 0 && a <= ultimo()) {
        documento_.applica(documento_.spostamento(da, a), causa);
    }
}
