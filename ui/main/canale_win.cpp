#include "ui/main/canale_win.h"

#include "datetime/ClsUTC.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"
#include "ui/main/campiCanale_win.h"

namespace {

std::wstring rifilato(const CampiCanale& campi, int id) {
    return std::wstring(rifila(campi.testo(id)));
}

} // namespace

Canale raccogliCanale(const CampiCanale& campi) {
    Canale c;
    for (const ControlloCanale& controllo : controlliCanale) {
        if (controllo.membro == nullptr) {
            continue;
        }
        std::wstring& valore = c.*controllo.membro;
        if (!controllo.testo()) {
            valore = ClsUTC().GetDataUtc(campi.dataOra(), true);
        } else if (controllo.id == IDC_TXTDESCRIZIONE) {
            // The description keeps its leading blanks.
            valore = rifilaDestra(campi.testo(controllo.id));
        } else {
            valore = rifilato(campi, controllo.id);
        }
    }
    // Without a title an image has no size; address and link stand on their own.
    if (auto titolo = rifilato(campi, IDC_TXTLOGO); !titolo.empty()) {
        c.image.sTitle(std::move(titolo));
        c.image.nWidth(aInt32(campi.txtLarghezza().Valore()));
        c.image.nHeight(aInt32(campi.txtAltezza().Valore()));
    }
    if (auto url = rifilato(campi, IDC_TXTURL); !url.empty()) {
        c.image.sUrl(std::move(url));
    }
    if (auto link = rifilato(campi, IDC_TXTLINKIMG); !link.empty()) {
        c.image.sLink(std::move(link));
    }
    return c;
}
