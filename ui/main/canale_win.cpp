#include "ui/main/canale_win.h"

#include "datetime/ClsUTC.h"
#include "support/errore.h"
#include "support/numeri.h"
#include "support/testo.h"
#include "ui/main/campiCanale_win.h"

namespace {

constexpr std::int32_t nessunElemento = 12883;

std::wstring rifilato(const CampiCanale& campi, CampoCanale campo) {
    return std::wstring(rifila(campi.testo(campo)));
}

} // namespace

Canale raccogliCanale(const CampiCanale& campi) {
    Canale c;
    c.title = rifilato(campi, CampoCanale::Titolo);
    c.link = rifilato(campi, CampoCanale::LinkHome);
    // The description keeps its leading blanks.
    c.description = rifilaDestra(campi.testo(CampoCanale::Descrizione));
    c.language = rifilato(campi, CampoCanale::Lingua);
    c.copyright = rifilato(campi, CampoCanale::Copyright);
    c.webMaster = rifilato(campi, CampoCanale::WebMaster);
    c.lastBuildDate = ClsUTC().GetDataUtc(campi.dataOra(), true);
    // Without a title an image has no size; address and link stand on their own.
    if (auto titolo = rifilato(campi, CampoCanale::Logo); !titolo.empty()) {
        c.image.sTitle(std::move(titolo));
        c.image.nWidth(aInt32(campi.txtLarghezza().Valore()));
        c.image.nHeight(aInt32(campi.txtAltezza().Valore()));
    }
    if (auto url = rifilato(campi, CampoCanale::Url); !url.empty()) {
        c.image.sUrl(std::move(url));
    }
    if (auto link = rifilato(campi, CampoCanale::LinkImg); !link.empty()) {
        c.image.sLink(std::move(link));
    }
    return c;
}

void richiediElementi(const TabellaElementi& elementi) {
    if (elementi.conteggio() == 0) {
        throw Errore(nessunElemento, L"Per salvare il documento è necessario immettere almeno un "
                                     L"contenuto. Salvataggio non consentito.");
    }
}
