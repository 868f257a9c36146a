#include "document/clsFeedRss.h"

#include "document/caratteriXml.h"
#include "document/clsItemRss.h"
#include "document/salvataggio_win.h"
#include "support/prodotto.h"
#include "support/xml_win.h"

#include <array>

namespace {

// A text and how its element and the messages name it.
struct Campo {
    std::wstring_view nodo;
    std::wstring_view nome;
    const std::wstring& testo;
};

constexpr std::array<std::wstring_view, numeroCampi> nomiCampi{L"titolo", L"link", L"descrizione",
                                                               L"autore", L"data", L"guid"};

void verificaImmagine(const clsImgRss& image, const std::wstring& percorso) {
    verificaTesto(image.sTitle(), {L"titolo dell'immagine"}, percorso);
    verificaTesto(image.sUrl(), {L"indirizzo dell'immagine"}, percorso);
    verificaTesto(image.sLink(), {L"link dell'immagine"}, percorso);
}

void verificaElementi(const TabellaElementi& items, const std::wstring& percorso) {
    for (int i = 0; i <= items.limiteSuperiore(); ++i) {
        for (std::size_t c = 0; c < nomiCampi.size(); ++c) {
            const auto campo = static_cast<CampoElemento>(c);
            const auto verifica =
                campo == CampoElemento::Descrizione ? verificaCData : verificaTesto;
            verifica(items(campo, i), {nomiCampi[c], i + 1}, percorso);
        }
    }
}

} // namespace

void clsFeedRss::CreaDocumentoRSS(const std::wstring& path, const std::wstring& title,
                                  const std::wstring& link, const std::wstring& description,
                                  const std::wstring& language, const std::wstring& copyright,
                                  const std::wstring& lastBuildDate, const std::wstring& webMaster,
                                  const clsImgRss& image, const TabellaElementi& items) const {
    const std::array campi{
        Campo{L"title", L"titolo del canale", title},
        Campo{L"link", L"link del canale", link},
        Campo{L"description", L"descrizione del canale", description},
        Campo{L"language", L"lingua del canale", language},
        Campo{L"copyright", L"copyright del canale", copyright},
        Campo{L"lastBuildDate", L"data del canale", lastBuildDate},
        Campo{L"webMaster", L"webmaster del canale", webMaster},
    };
    for (const auto& campo : campi) {
        verificaTesto(campo.testo, {campo.nome}, path);
    }
    if (image.Modificato()) {
        verificaImmagine(image, path);
    }
    verificaElementi(items, path);

    const DocumentoXml documento;
    documento.aggiungi(
        documento.creaIstruzione(L"xml", L" version=\"1.0\" encoding=\"ISO-8859-1\" "));
    documento.aggiungi(documento.creaCommento(prodotto::commentoFeed()));
    const ElementoXml rss = documento.creaElemento(L"rss");
    documento.creaAttributo(rss, L"version", L"2.0");
    const ElementoXml channel = documento.creaElemento(L"channel");
    rss.aggiungi(channel);
    for (const auto& campo : campi) {
        channel.aggiungi(documento.creaElemento(campo.nodo, campo.testo));
    }
    if (image.Modificato()) {
        channel.aggiungi(image.getNodoImg(documento));
    }
    clsItemRss elemento;
    for (int i = 0; i <= items.limiteSuperiore(); ++i) {
        elemento.Svuota();
        elemento.sTitle(items(CampoElemento::Titolo, i));
        elemento.sLink(items(CampoElemento::Link, i));
        elemento.sDescription(items(CampoElemento::Descrizione, i));
        elemento.sAuthor(items(CampoElemento::Autore, i));
        elemento.sPubDate(items(CampoElemento::Data, i));
        elemento.sGuid(items(CampoElemento::Guid, i));
        channel.aggiungi(elemento.getNodoItem(documento));
    }
    documento.aggiungi(rss);
    sostituisciFile(documento, path);
}
