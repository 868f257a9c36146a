#include "document/clsFeedRss.h"

#include "document/caratteriXml.h"
#include "document/clsItemRss.h"
#include "document/salvataggio_win.h"
#include "support/programma/prodotto.h"
#include "support/windows/xml_win.h"

namespace {

void verificaImmagine(const clsImgRss& image, const std::wstring& percorso) {
    verificaTesto(image.sTitle(), {L"titolo dell'immagine"}, percorso);
    verificaTesto(image.sUrl(), {L"indirizzo dell'immagine"}, percorso);
    verificaTesto(image.sLink(), {L"link dell'immagine"}, percorso);
}

void verificaElementi(const TabellaElementi& items, const std::wstring& percorso) {
    for (int i = 0; i <= items.limiteSuperiore(); ++i) {
        for (std::size_t c = 0; c < vociElemento.size(); ++c) {
            const auto campo = static_cast<CampoElemento>(c);
            verificaCampo(campo, items(campo, i), i + 1, percorso);
        }
    }
}

} // namespace

void clsFeedRss::CreaDocumentoRSS(const std::wstring& path, const Canale& canale,
                                  const TabellaElementi& items, CustodeFile* custode) const {
    for (const VoceCanale& voce : vociCanale) {
        verificaTesto(canale.*voce.membro, {voce.nome}, path);
    }
    const clsImgRss& image = canale.image;
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
    for (const VoceCanale& voce : vociCanale) {
        channel.aggiungi(documento.creaElemento(voce.nodo, canale.*voce.membro));
    }
    if (image.Modificato()) {
        channel.aggiungi(image.getNodoImg(documento));
    }
    clsItemRss elemento;
    for (int i = 0; i <= items.limiteSuperiore(); ++i) {
        elemento.riempi(*items.elemento(i));
        channel.aggiungi(elemento.getNodoItem(documento));
    }
    documento.aggiungi(rss);
    sostituisciFile(documento, path, custode);
}
