#include "document/clsImgRss.h"

#include "document/campo.h"

#include <utility>

void clsImgRss::sTitle(std::wstring valore) {
    assegna(sTitle_, std::move(valore), modificato_);
}

void clsImgRss::sUrl(std::wstring valore) {
    assegna(sUrl_, std::move(valore), modificato_);
}

void clsImgRss::sLink(std::wstring valore) {
    assegna(sLink_, std::move(valore), modificato_);
}

void clsImgRss::nWidth(std::int32_t valore) noexcept {
    assegna(nWidth_, valore, modificato_);
}

void clsImgRss::nHeight(std::int32_t valore) noexcept {
    assegna(nHeight_, valore, modificato_);
}
