#include "document/paginaWeb.h"

#include "document/clsItemRss.h"
#include "support/errori/errore.h"
#include "support/programma/prodotto.h"
#include "support/testi/testo.h"

#include <string_view>
#include <utility>

namespace {

bool pieno(std::wstring_view testo) noexcept {
    return !rifila(testo).empty();
}

class Pagina {
public:
    Pagina(const ClsUTC& utc, const FormatoLocale& formato) : utc_(utc), formato_(formato) {}

    // A line made of pieces.
    template <class... Pezzi>
    void riga(const Pezzi&... pezzi) {
        ((testo_ += pezzi), ...);
        testo_ += L"\r\n";
    }

    void testata(std::wstring_view title) {
        riga(LR"( <!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN">)");
        riga(L" <HTML>");
        riga(L" <HEAD>");
        riga(L" <TITLE>", title, L"</TITLE>");
        riga(LR"( <META http-equiv="Content-Type" content="text/html; charset=iso-8859-1">)");
        riga(LR"( <META NAME="Generator" CONTENT=")", prodotto::titolo, L" v", prodotto::versione(),
             L" ", prodotto::creditoPagina, LR"(">)");
        riga(L" </HEAD>");
        riga(LR"( <BODY TEXT="#000000")");
        riga(LR"(     BGCOLOR="#FFFFFF")");
        riga(LR"(     LINK="#0000FF")");
        riga(LR"(     VLINK="#800080")");
        riga(LR"(     ALINK="#FF0000">)");
    }

    // Opens and closes the anchor of a link; none for a blank one.
    void apriLink(const std::wstring& link) {
        if (pieno(link)) {
            riga(LR"(<a href=")", link, LR"(">)");
        }
    }
    void chiudiLink(const std::wstring& link) {
        if (pieno(link)) {
            riga(L"</a>");
        }
    }

    void immagine(const clsImgRss& image) {
        if (!image.Modificato()) {
            return;
        }
        apriLink(image.sLink());
        if (pieno(image.sUrl())) {
            riga(LR"(<img src=")", image.sUrl(), LR"(" border=0 width=)",
                 std::to_wstring(image.nWidth()), L" height=", std::to_wstring(image.nHeight()),
                 LR"( alt=")", image.sTitle(), LR"(" >)");
        }
        chiudiLink(image.sLink());
    }

    void intestazione(const std::wstring& title, const std::wstring& link) {
        riga(L"<H3>");
        apriLink(link);
        riga(title);
        chiudiLink(link);
        riga(L"</H3>");
    }

    void elementi(const TabellaElementi& items) {
        clsItemRss item;
        for (int i = 0; i <= items.limiteSuperiore(); ++i) {
            item.riempi(*items.elemento(i));
            item.sPubDate(data(item.sPubDate()));
            elemento(item);
        }
    }

    [[nodiscard]] std::wstring data(const std::wstring& testo) const {
        try {
            return formattaDataOra(utc_.ToDate(testo), formato_);
        } catch (const Errore&) {
            return testo;
        }
    }

    [[nodiscard]] std::wstring chiudi() {
        riga(L" </BODY>");
        riga(L" </HTML>");
        return std::move(testo_);
    }

private:
    void elemento(const clsItemRss& item) {
        riga(L"<p><hr>");
        intestazione(item.sTitle(), item.sLink());
        riga(L"<p>", item.sDescription());
        riga(L"<p><i>", item.sPubDate(), L" ");
        riga(L"<br>", item.sAuthor(), L"</i> ");
    }

    const ClsUTC& utc_;
    const FormatoLocale& formato_;
    std::wstring testo_;
};

} // namespace

std::wstring paginaFeed(const Canale& canale, const TabellaElementi& items, const ClsUTC& utc,
                        const FormatoLocale& formato) {
    Pagina pagina(utc, formato);
    pagina.testata(canale.title);
    pagina.immagine(canale.image);
    pagina.intestazione(canale.title, canale.link);
    pagina.riga(L"<p>", canale.description);
    pagina.riga(L"<p><i>", pagina.data(canale.lastBuildDate), L" ");
    pagina.riga(L"<br>", canale.copyright, L" ");
    pagina.riga(L"<br>", canale.webMaster, L"</i>");
    pagina.elementi(items);
    return pagina.chiudi();
}

std::wstring paginaElementi(const TabellaElementi& items, const ClsUTC& utc,
                            const FormatoLocale& formato) {
    Pagina pagina(utc, formato);
    pagina.testata(L"Feed RSS");
    pagina.elementi(items);
    return pagina.chiudi();
}
