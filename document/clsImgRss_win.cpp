#include "document/clsImgRss.h"

#include "support/windows/xml_win.h"

ElementoXml clsImgRss::getNodoImg(const DocumentoXml& doc) const {
    ElementoXml nodo = doc.creaElemento(L"image");
    nodo.aggiungi(doc.creaElemento(L"title", sTitle_));
    nodo.aggiungi(doc.creaElemento(L"url", sUrl_));
    nodo.aggiungi(doc.creaElemento(L"link", sLink_));
    nodo.aggiungi(doc.creaElemento(L"width", std::to_wstring(nWidth_)));
    nodo.aggiungi(doc.creaElemento(L"height", std::to_wstring(nHeight_)));
    return nodo;
}
