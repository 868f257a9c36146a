#include "ui/main/comandiDocumento_win.h"

#include "datetime/ClsUTC.h"
#include "document/caratteriXml.h"
#include "document/clsFeedRss.h"
#include "support/dialoghiFile.h"
#include "support/file_win.h"
#include "support/messaggi.h"
#include "support/orologio.h"
#include "support/testo.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/canale_win.h"
#include "ui/main/elementi.h"
#include "ui/main/guardia_win.h"
#include "ui/main/recenti.h"
#include "ui/main/statoDocumento.h"

namespace {

constexpr std::int32_t fileRecenteMancante = 8292;

const RichiestaFile richiestaApri{L"File RSS (*.rss; *.xml)|*.rss; *.xml|Tutti i File (*.*)|*.*",
                                  4100, L""};
const RichiestaFile richiestaSalva{L"File RSS (*.xml; *.rss)|*.xml; *.rss|Tutti i File (*.*)|*.*",
                                   2050, L".xml"};

} // namespace

bool ComandiDocumento::ChiediSalvataggio() {
    if (stato_.scartabile(campi_.vuoti() && elementi_.conteggio() == 0)) {
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

bool ComandiDocumento::Apri(const std::wstring& percorso) {
    bool aperto = false;
    protetto(
        [&] {
            if (!ChiediSalvataggio()) {
                return;
            }
            if (!percorso.empty() && !fileEsiste(percorso)) {
                throw Errore(fileRecenteMancante,
                             maiuscolo(percorso) + L": impossibile trovare il file.");
            }
            leggi(percorso.empty() ? servizi_.dialoghi.apri(richiestaApri) : percorso);
            aperto = true;
        },
        [&] { finestra_.MostraErrore(); });
    return aperto;
}

void ComandiDocumento::leggi(const std::wstring& percorso) {
    const Clessidra clessidra;
    finestra_.NuovoDocumento();
    Canale c;
    clsFeedRss().LeggiDocumentoRSS(percorso, c.title, c.link, c.description, c.language,
                                   c.copyright, c.lastBuildDate, c.webMaster, c.image, elementi_);
    riempiCampi(percorso, c);
    finestra_.RiempiGriglia(false);
    stato_.modificato(false);
}

void ComandiDocumento::riempiCampi(const std::wstring& percorso, const Canale& canale) {
    campi_.testo(CampoCanale::Titolo, canale.title);
    campi_.Tag(percorso);
    finestra_.ImpostaTitolo(percorso);
    campi_.testo(CampoCanale::LinkHome, canale.link);
    campi_.testo(CampoCanale::Descrizione, canale.description);
    campi_.testo(CampoCanale::Lingua, canale.language);
    campi_.testo(CampoCanale::Copyright, canale.copyright);
    // A date that cannot be shown is told, once for both pickers, and the rest still loads.
    protetto([&] { campi_.dataOra(ClsUTC().ToDate(canale.lastBuildDate)); },
             [&] { finestra_.MostraErrore(); });
    campi_.testo(CampoCanale::WebMaster, canale.webMaster);
    if (canale.image.Modificato()) {
        campi_.testo(CampoCanale::Logo, canale.image.sTitle());
        campi_.testo(CampoCanale::Url, canale.image.sUrl());
        campi_.testo(CampoCanale::LinkImg, canale.image.sLink());
        campi_.txtLarghezza().Valore(canale.image.nWidth());
        campi_.txtAltezza().Valore(canale.image.nHeight());
    }
}

bool ComandiDocumento::Salva(bool conNome) {
    return protetto(
        [&] {
            richiediElementi(elementi_);
            std::wstring percorso(rifila(campi_.Tag()));
            if (conNome || percorso.empty()) {
                percorso = servizi_.dialoghi.salva(richiestaSalva);
            }
            const Clessidra clessidra;
            const Canale c = raccogliCanale(campi_);
            try {
                clsFeedRss().CreaDocumentoRSS(percorso, c.title, c.link, c.description, c.language,
                                              c.copyright, c.lastBuildDate, c.webMaster, c.image,
                                              elementi_);
            } catch (const TestoRifiutato& errore) {
                // Seen behind the message. Row 0, for a text of the channel, changes nothing.
                finestra_.SelezionaRiga(rigaDi(errore.elemento() - 1));
                throw;
            }
            campi_.Tag(percorso);
            finestra_.ImpostaTitolo(percorso);
            recenti_.AggiungiRecente(percorso);
            finestra_.CaricaRecenti();
            stato_.modificato(false);
        },
        [&] { finestra_.MostraErrore(); });
}
