#include "tests/aiuti/documento_win.h"

#include "support/errore.h"

void Documento::leggi(const std::wstring& percorso) {
    clsFeedRss().LeggiDocumentoRSS(percorso, title, link, description, language, copyright,
                                   lastBuildDate, webMaster, image, items);
}

void Documento::scrivi(const std::wstring& percorso) const {
    clsFeedRss().CreaDocumentoRSS(percorso, title, link, description, language, copyright,
                                  lastBuildDate, webMaster, image, items);
}

std::array<std::wstring*, 7> Documento::canale() {
    return {&title, &link, &description, &language, &copyright, &lastBuildDate, &webMaster};
}

Sollevato sollevatoDa(const std::function<void()>& azione) {
    try {
        azione();
    } catch (const Errore& errore) {
        return {errore.numero(), errore.descrizione()};
    }
    return {};
}

std::string rssCon(std::string_view contenutoCanale) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><rss version=\"2.0\"><channel>" +
           std::string(contenutoCanale) + "</channel></rss>";
}
