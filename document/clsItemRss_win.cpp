#include "document/clsItemRss.h"

#include "document/caratteriXml.h"
#include "support/xml_win.h"

ElementoXml clsItemRss::getNodoItem(const DocumentoXml& doc) const {
    ElementoXml nodo = doc.creaElemento(L"item");
    nodo.aggiungi(doc.creaElemento(L"title", sTitle_));
    nodo.aggiungi(doc.creaElemento(L"link", sLink_));
    const ElementoXml descrizione = doc.creaElemento(L"description");
    descrizione.aggiungi(doc.creaCData(conRiferimenti(sDescription_, appoggio_)));
    nodo.aggiungi(descrizione);
    nodo.aggiungi(doc.creaElemento(L"author", sAuthor_));
    nodo.aggiungi(doc.creaElemento(L"pubDate", sPubDate_));
    nodo.aggiungi(doc.creaElemento(L"guid", sGuid_));
    return nodo;
}
