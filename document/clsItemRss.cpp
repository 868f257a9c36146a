#include "document/clsItemRss.h"

#include "document/campo.h"
#include "document/caratteriXml.h"

void clsItemRss::sTitle(std::wstring_view valore) {
    assegna(sTitle_, valore, modificato_);
}

void clsItemRss::sLink(std::wstring_view valore) {
    assegna(sLink_, valore, modificato_);
}

void clsItemRss::sDescription(std::wstring_view valore) {
    assegna(sDescription_, valore, modificato_);
}

void clsItemRss::sAuthor(std::wstring_view valore) {
    assegna(sAuthor_, valore, modificato_);
}

void clsItemRss::sPubDate(std::wstring_view valore) {
    assegna(sPubDate_, valore, modificato_);
}

void clsItemRss::sGuid(std::wstring_view valore) {
    assegna(sGuid_, valore, modificato_);
}

void clsItemRss::Svuota() noexcept {
    for (auto* const campo : {&sTitle_, &sLink_, &sDescription_, &sAuthor_, &sPubDate_, &sGuid_}) {
        campo->clear();
    }
    modificato_ = false;
}

void clsItemRss::riempi(const Elemento& elemento) {
    Svuota();
    for (std::size_t i = 0; i < vociElemento.size(); ++i) {
        (this->*vociElemento[i].scrive)(elemento.testi()[i]);
    }
}

ElementoCondiviso clsItemRss::elemento() const {
    TestiElemento testi;
    for (std::size_t i = 0; i < vociElemento.size(); ++i) {
        testi[i] = (this->*vociElemento[i].legge)();
    }
    return creaElemento(testi);
}

void verificaCampo(CampoElemento campo, std::wstring_view testo, int elemento,
                   std::wstring_view percorso) {
    const auto regola = campo == CampoElemento::Descrizione ? verificaCData : verificaTesto;
    regola(testo, {vociElemento[static_cast<std::size_t>(campo)].nome, elemento}, percorso);
}
