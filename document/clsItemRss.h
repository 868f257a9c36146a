#pragma once

#include "document/elemento.h"

#include <array>
#include <string>
#include <string_view>

// The XML layer's types: only the bodies that build elements need to know them.
class DocumentoXml;
class ElementoXml;

// One item, the carrier between the table and XML or the item editor. Setters raise Modificato as
// those of clsImgRss do.
class clsItemRss {
public:
    [[nodiscard]] const std::wstring& sTitle() const noexcept { return sTitle_; }
    [[nodiscard]] const std::wstring& sLink() const noexcept { return sLink_; }
    [[nodiscard]] const std::wstring& sDescription() const noexcept { return sDescription_; }
    [[nodiscard]] const std::wstring& sAuthor() const noexcept { return sAuthor_; }
    // RFC 822 text, as it travels in the file.
    [[nodiscard]] const std::wstring& sPubDate() const noexcept { return sPubDate_; }
    [[nodiscard]] const std::wstring& sGuid() const noexcept { return sGuid_; }
    [[nodiscard]] bool Modificato() const noexcept { return modificato_; }

    void sTitle(std::wstring_view valore);
    void sLink(std::wstring_view valore);
    void sDescription(std::wstring_view valore);
    void sAuthor(std::wstring_view valore);
    void sPubDate(std::wstring_view valore);
    void sGuid(std::wstring_view valore);
    void Modificato(bool valore) noexcept { modificato_ = valore; }

    // Empties the six texts and lowers Modificato.
    void Svuota() noexcept;

    // The one place where a record is filled from an item of the table, and read back into a new
    // one.
    void riempi(const Elemento& elemento);
    [[nodiscard]] ElementoCondiviso elemento() const;

    // A new `item` element made in the document, attached to nothing. Raises what the DOM raises.
    [[nodiscard]] ElementoXml getNodoItem(const DocumentoXml& doc) const;

private:
    std::wstring sTitle_;
    std::wstring sLink_;
    std::wstring sDescription_;
    std::wstring sAuthor_;
    std::wstring sPubDate_;
    std::wstring sGuid_;
    // What getNodoItem works in: kept, as the texts' own memory is, since a writer of thousands of
    // items that allocates for each one leaves the DOM a heap of crumbs.
    mutable std::wstring appoggio_;
    bool modificato_ = false;
};

// A text of an item: its property, its element, and how messages name it.
struct VoceElemento {
    const std::wstring& (clsItemRss::*legge)() const noexcept;
    void (clsItemRss::*scrive)(std::wstring_view);
    std::wstring_view nodo;
    std::wstring_view nome;
};

// In the order of CampoElemento, which is that of the file.
inline constexpr std::array<VoceElemento, numeroCampi> vociElemento{{
    {&clsItemRss::sTitle, &clsItemRss::sTitle, L"title", L"titolo"},
    {&clsItemRss::sLink, &clsItemRss::sLink, L"link", L"link"},
    {&clsItemRss::sDescription, &clsItemRss::sDescription, L"description", L"descrizione"},
    {&clsItemRss::sAuthor, &clsItemRss::sAuthor, L"author", L"autore"},
    {&clsItemRss::sPubDate, &clsItemRss::sPubDate, L"pubDate", L"data"},
    {&clsItemRss::sGuid, &clsItemRss::sGuid, L"guid", L"guid"},
}};

// Raises TestoRifiutato when a feed cannot hold the text in that field of an item. `elemento` is
// the item's position from 1, or 0; `percorso` as in verificaTesto.
void verificaCampo(CampoElemento campo, std::wstring_view testo, int elemento = 0,
                   std::wstring_view percorso = {});
