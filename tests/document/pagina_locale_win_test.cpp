#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/tabella_prova.h"

#include <gtest/gtest.h>

namespace {

// A sample feed; the page it must give stands in tests/campioni.
FeedDiProva feedCampione() {
    FeedDiProva d;
    d.title = L"Città & dintorni";
    d.link = L" http://www.esempio.example/?a=1&b=2 ";
    d.description = L"Notizie <b>in grassetto</b>\r\nsu due righe, ‘fra apici’ e a 5 €";
    d.language = L"it";
    d.copyright = L"© 2005 \u0141ukasz";
    d.lastBuildDate = L"Sat, 11 Jun 2005 15:00:00 +0100";
    d.webMaster = L"posta@esempio.example";
    d.image.sTitle(L"Il \"logo\"");
    d.image.sUrl(L"http://www.esempio.example/logo.gif");
    d.image.sLink(L"http://www.esempio.example/");
    d.image.nWidth(144);
    d.image.nHeight(-1);
    dimensiona(d.items, 3);
    metti(d.items, CampoElemento::Titolo, 0, L"Prima notizia");
    metti(d.items, CampoElemento::Link, 0, L"http://www.esempio.example/1.htm");
    metti(d.items, CampoElemento::Descrizione, 0,
          L"Una <i>descrizione</i> con una faccina: \U0001F600");
    metti(d.items, CampoElemento::Autore, 0, L" Anna ");
    metti(d.items, CampoElemento::Data, 0, L"Mon, 9 Gen 2006 07:08:09 +0100");
    metti(d.items, CampoElemento::Guid, 0, L"{AAAA}");
    metti(d.items, CampoElemento::Titolo, 1, L"Seconda, senza indirizzo");
    metti(d.items, CampoElemento::Link, 1, L"  ");
    metti(d.items, CampoElemento::Data, 1, L"ieri");
    return d;
}

} // namespace

// Both languages of the tests write dates with "/" and ":".
TEST(PaginaCampione, OgniByteEQuelloAtteso) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.file(L"pagina.htm");
    const FeedDiProva d = feedCampione();
    clsFeedRss().CreaDocumentoHTML(percorso, d.title, d.link, d.description, d.language,
                                   d.copyright, d.lastBuildDate, d.webMaster, d.image, d.items);
    EXPECT_EQ(leggiTutto(percorso), leggiTutto(campione(L"pagina.htm")));
}
