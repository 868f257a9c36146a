#include "document/clsItemRss.h"

#include "document/caratteriXml.h"
#include "support/windows/xml_win.h"

ElementoXml clsItemRss::getNodoItem(const DocumentoXml& doc) const {
    ElementoXml nodo = doc.creaElemento(L"item");
    for (std::size_t i = 0; i < vociElemento.size(); ++i) {
        const VoceElemento& voce = vociElemento[i];
        const std::wstring& testo = (this->*voce.legge)();
        if (static_cast<CampoElemento>(i) == CampoElemento::Descrizione) {
            const ElementoXml descrizione = doc.creaElemento(voce.nodo);
            descrizione.aggiungi(doc.creaCData(conRiferimenti(testo, appoggio_)));
            nodo.aggiungi(descrizione);
        } else {
            nodo.aggiungi(doc.creaElemento(voce.nodo, testo));
        }
    }
    return nodo;
}
