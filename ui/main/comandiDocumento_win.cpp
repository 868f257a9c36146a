#include "ui/main/comandiDocumento_win.h"

#include "datetime/ClsUTC.h"
#include "document/caratteriXml.h"
#include "document/clsFeedRss.h"
#include "document/custodeLavoro_win.h"
#include "document/documento.h"
#include "document/elementi.h"
#include "document/esitoLettura_win.h"
#include "support/servizi/dialoghiFile.h"
#include "support/servizi/messaggi.h"
#include "support/servizi/orologio.h"
#include "support/testi/testo.h"
#include "support/windows/file_win.h"
#include "support/windows/guardia_win.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/canale_win.h"
#include "ui/main/custodeCopie_win.h"
#include "ui/main/finestraPrincipale_win.h"
#include "ui/main/recenti.h"

#include <utility>

namespace {

const RichiestaFile dlgApri{L"File RSS (*.rss; *.xml)|*.rss; *.xml|Tutti i File (*.*)|*.*",
                            opzioniApri, L""};
const RichiestaFile dlgSalva{L"File RSS (*.xml; *.rss)|*.xml; *.rss|Tutti i File (*.*)|*.*",
                             opzioniSalva, L".xml"};

} // namespace

bool ComandiDocumento::ChiediSalvataggio() {
    if (documento_.scartabile(campi_.vuoti())) {
        return true;
    }
    switch (servizi_.messaggi.mostra(
        L"Il documento è stato modificato. Si desidera salvare le modifiche?", L"Salvataggio",
        Icona::Domanda, Pulsanti::SiNoAnnulla)) {
    case Risposta::Si:
        return Salva(false);
    case Risposta::No:
        return true;
    default:
        return false;
    }
}

void ComandiDocumento::mnNuovo_Click() {
    if (ChiediSalvataggio()) {
        finestra_.NuovoDocumento();
    }
}

void ComandiDocumento::mnrec_Click(std::size_t posizione) {
    // A copy: the list is read anew while the file opens.
    const std::wstring percorso = recenti_.voci().at(posizione - 1);
    Apri(percorso);
}

bool ComandiDocumento::Apri(const std::wstring& percorso) {
    bool aperto = false;
    protetto(
        [&] {
            if (!ChiediSalvataggio()) {
                return;
            }
            if (!percorso.empty() && !fileEsiste(percorso)) {
                solleva(errori::recenteMancante, maiuscolo(percorso));
            }
            const std::wstring scelto =
                percorso.empty() ? servizi_.dialoghi.apri(dlgApri) : percorso;
            aperto = leggi(scelto);
            if (aperto) {
                recentiSistema_.ricorda(scelto);
            }
        },
        [&] { finestra_.MostraErrore(); });
    return aperto;
}

bool ComandiDocumento::leggi(const std::wstring& percorso) {
    const Clessidra clessidra;
    finestra_.NuovoDocumento();
    Canale canale;
    TabellaElementi elementi;
    EsitoLettura esito;
    clsFeedRss().LeggiDocumentoRSS(percorso, canale, elementi, &esito);
    // A value that its field refuses ends the filling; the items are there and are shown.
    const bool riempiti =
        protetto([&] { riempiCampi(percorso, canale); }, [&] { finestra_.MostraErrore(); });
    documento_.sostituisci(std::move(elementi));
    documento_.modificato(!riempiti);
    copie_.aperto(esito.file, esito.perdite);
    return riempiti;
}

void ComandiDocumento::riempiCampi(const std::wstring& percorso, const Canale& canale) {
    const clsImgRss& image = canale.image;
    for (const ControlloCanale& controllo : controlliCanale) {
        if (!controllo.testo()) {
            // A date that cannot be shown is told, once for both pickers, and the rest still loads.
            protetto([&] { campi_.dataOra(ClsUTC().ToDate(canale.*controllo.membro)); },
                     [&] { finestra_.MostraErrore(); });
        } else if (controllo.membro != nullptr) {
            campi_.testo(controllo.id, canale.*controllo.membro);
        } else if (image.Modificato()) {
            campi_.testo(controllo.id, (image.*controllo.immagine)());
        }
        if (controllo.id == IDC_TXTTITOLO) {
            campi_.Tag(percorso);
            finestra_.ImpostaTitolo(percorso);
        }
    }
    if (image.Modificato()) {
        campi_.txtLarghezza().Valore(image.nWidth());
        campi_.txtAltezza().Valore(image.nHeight());
    }
}

bool ComandiDocumento::Salva(bool conNome) {
    return protetto(
        [&] {
            richiediElementi(documento_.elementi());
            std::wstring percorso(rifila(campi_.Tag()));
            if (conNome || percorso.empty()) {
                percorso = servizi_.dialoghi.salva(dlgSalva);
            }
            const Clessidra clessidra;
            try {
                clsFeedRss().CreaDocumentoRSS(percorso, raccogliCanale(campi_),
                                              documento_.elementi(), &copie_);
            } catch (const TestoRifiutato& errore) {
                // Seen behind the message. Row 0, for a text of the channel, changes nothing.
                finestra_.SelezionaRiga(rigaDi(errore.elemento() - 1));
                throw;
            }
            campi_.Tag(percorso);
            copie_.salvato();
            finestra_.ImpostaTitolo(percorso);
            recenti_.AggiungiRecente(percorso);
            finestra_.CaricaRecenti();
            documento_.modificato(false);
            lavoro_.dimentica();
            recentiSistema_.ricorda(percorso);
        },
        [&] { finestra_.MostraErrore(); });
}
