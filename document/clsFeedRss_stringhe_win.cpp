// The forms that take the channel's strings apart.

#include "document/clsFeedRss.h"

#include <utility>

namespace {

Canale componi(const std::wstring& title, const std::wstring& link, const std::wstring& description,
               const std::wstring& language, const std::wstring& copyright,
               const std::wstring& lastBuildDate, const std::wstring& webMaster,
               const clsImgRss& image) {
    Canale canale;
    canale.title = title;
    canale.link = link;
    canale.description = description;
    canale.language = language;
    canale.copyright = copyright;
    canale.lastBuildDate = lastBuildDate;
    canale.webMaster = webMaster;
    canale.image = image;
    return canale;
}

} // namespace

void clsFeedRss::LeggiDocumentoRSS(const std::wstring& path, std::wstring& title,
                                   std::wstring& link, std::wstring& description,
                                   std::wstring& language, std::wstring& copyright,
                                   std::wstring& lastBuildDate, std::wstring& webMaster,
                                   clsImgRss& image, TabellaElementi& items) const {
    Canale canale;
    const auto consegna = [&]() noexcept {
        title = std::move(canale.title);
        link = std::move(canale.link);
        description = std::move(canale.description);
        language = std::move(canale.language);
        copyright = std::move(canale.copyright);
        lastBuildDate = std::move(canale.lastBuildDate);
        webMaster = std::move(canale.webMaster);
        image = std::move(canale.image);
    };
    try {
        LeggiDocumentoRSS(path, canale, items);
    } catch (...) {
        consegna(); // what was filled until then
        throw;
    }
    consegna();
}

void clsFeedRss::CreaDocumentoRSS(const std::wstring& path, const std::wstring& title,
                                  const std::wstring& link, const std::wstring& description,
                                  const std::wstring& language, const std::wstring& copyright,
                                  const std::wstring& lastBuildDate, const std::wstring& webMaster,
                                  const clsImgRss& image, const TabellaElementi& items) const {
    CreaDocumentoRSS(
        path,
        componi(title, link, description, language, copyright, lastBuildDate, webMaster, image),
        items);
}

void clsFeedRss::CreaDocumentoHTML(const std::wstring& path, const std::wstring& title,
                                   const std::wstring& link, const std::wstring& description,
                                   const std::wstring& language, const std::wstring& copyright,
                                   const std::wstring& lastBuildDate, const std::wstring& webMaster,
                                   const clsImgRss& image, const TabellaElementi& items) const {
    CreaDocumentoHTML(
        path,
        componi(title, link, description, language, copyright, lastBuildDate, webMaster, image),
        items);
}
