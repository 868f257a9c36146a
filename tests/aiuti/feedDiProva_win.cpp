#include "tests/aiuti/feedDiProva_win.h"

void FeedDiProva::leggi(const std::wstring& percorso) {
    clsFeedRss().LeggiDocumentoRSS(percorso, title, link, description, language, copyright,
                                   lastBuildDate, webMaster, image, items);
}

void FeedDiProva::scrivi(const std::wstring& percorso) const {
    clsFeedRss().CreaDocumentoRSS(percorso, title, link, description, language, copyright,
                                  lastBuildDate, webMaster, image, items);
}

std::array<std::wstring*, 7> FeedDiProva::canale() {
    return {&title, &link, &description, &language, &copyright, &lastBuildDate, &webMaster};
}

Sollevato FeedDiProva::provaLeggi(const std::wstring& percorso) {
    return sollevatoDa([&] {
        leggi(percorso);
        return true;
    });
}

Sollevato FeedDiProva::provaScrivi(const std::wstring& percorso) const {
    return sollevatoDa([&] {
        scrivi(percorso);
        return true;
    });
}

std::string rssCon(std::string_view contenutoCanale) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><rss version=\"2.0\"><channel>" +
           std::string(contenutoCanale) + "</channel></rss>";
}
