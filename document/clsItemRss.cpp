#include "document/clsItemRss.h"

#include "document/campo.h"

#include <utility>

void clsItemRss::sTitle(std::wstring valore) {
    assegna(sTitle_, std::move(valore), modificato_);
}

void clsItemRss::sLink(std::wstring valore) {
    assegna(sLink_, std::move(valore), modificato_);
}

void clsItemRss::sDescription(std::wstring valore) {
    assegna(sDescription_, std::move(valore), modificato_);
}

void clsItemRss::sAuthor(std::wstring valore) {
    assegna(sAuthor_, std::move(valore), modificato_);
}

void clsItemRss::sPubDate(std::wstring valore) {
    assegna(sPubDate_, std::move(valore), modificato_);
}

void clsItemRss::sGuid(std::wstring valore) {
    assegna(sGuid_, std::move(valore), modificato_);
}

void clsItemRss::Svuota() noexcept {
    for (auto* const campo : {&sTitle_, &sLink_, &sDescription_, &sAuthor_, &sPubDate_, &sGuid_}) {
        campo->clear();
    }
    modificato_ = false;
}
