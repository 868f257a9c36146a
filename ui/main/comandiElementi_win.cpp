#include "ui/main/comandiElementi_win.h"

#include "document/clsItemRss.h"
#include "document/custodeLavoro_win.h"
#include "document/elementi.h"
#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/guardia_win.h"
#include "ui/dialogs/editorElementi.h"

namespace {

// The item editor is open, for the diary.
class EditorAperto {
public:
    EditorAperto(CustodeLavoro& custode, int indice) noexcept : custode_(custode) {
        custode_.editorAperto(indice);
    }
    EditorAperto(const EditorAperto&) = delete;
    EditorAperto& operator=(const EditorAperto&) = delete;
    ~EditorAperto() { custode_.editorChiuso(); }

private:
    CustodeLavoro& custode_;
};

} // namespace

template <class Azione>
void ComandiElementi::riportando(Azione azione) {
    protetto(azione, [&] { koUtilita(messaggi_).PrintErrore(); });
}

void ComandiElementi::aggiungi(const TestiCampi* bozza) {
    riportando([&] {
        // Told before the user has written what could not be kept.
        richiediPosto(documento_.elementi());
        const EditorAperto aperto(custode_, -1);
        clsItemRss nuovo;
        const auto scelta = editor_.modifica(nuovo, documento_.ultimaData(), bozza);
        if (!scelta) {
            return;
        }
        nuovo.sGuid(guidNuovo(nuovo.sPubDate()));
        const Modifica aggiunta = documento_.aggiunta(nuovo.elemento());
        documento_.ultimaData(*scelta);
        documento_.applica(aggiunta);
    });
}

void ComandiElementi::modifica(int elemento, const TestiCampi* bozza) {
    riportando([&] {
        // The editor knows nothing of the guid, which stays the table's.
        const std::wstring guid(documento_.elementi()(CampoElemento::Guid, elemento));
        clsItemRss modificato;
        modificato.riempi(*documento_.elementi().elemento(elemento));
        modificato.sGuid(L"");
        const EditorAperto aperto(custode_, elemento);
        if (!editor_.modifica(modificato, documento_.ultimaData(), bozza)) {
            return;
        }
        modificato.sGuid(guid);
        documento_.applica(documento_.cambio(elemento, modificato.elemento()));
    });
}

void ComandiElementi::riprendi(const Bozza& bozza) {
    if (bozza.indice < 0) {
        aggiungi(&bozza.testi);
    } else {
        modifica(bozza.indice, &bozza.testi);
    }
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
