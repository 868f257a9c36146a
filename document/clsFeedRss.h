#pragma once

#include "document/canale.h"
#include "document/tabellaElementi.h"

#include <string>
#include <string_view>

class ClsCodaEliminazione;
class CustodeFile;
class NodoXml;
struct EsitoLettura;

// Reads and writes the feed document. Keeps nothing between calls. Each operation has a form that
// takes the channel whole and one that takes its strings apart: title, link, description, language,
// copyright, lastBuildDate (RFC 822 text), webMaster.
class clsFeedRss {
public:
    // Fills all that follows `path` from the file; the channel's image is a new one. Raises 18343
    // (cannot be loaded), 18344 (no RSS document), 18345 (more than one image), 6 (more than 32767
    // items, a width beyond 32 bits); what was filled until then stays, and a file that cannot be
    // loaded leaves everything empty.
    // `esito` is filled when the file could be loaded.
    void LeggiDocumentoRSS(const std::wstring& path, Canale& canale, TabellaElementi& items,
                           EsitoLettura* esito = nullptr) const;
    void LeggiDocumentoRSS(const std::wstring& path, std::wstring& title, std::wstring& link,
                           std::wstring& description, std::wstring& language,
                           std::wstring& copyright, std::wstring& lastBuildDate,
                           std::wstring& webMaster, clsImgRss& image, TabellaElementi& items) const;

    // Writes every item up to the table's upper bound. The file on disk is touched once the tree is
    // complete: deleted, then saved. Raises 5 for a text that a feed cannot hold, 61 when the
    // disk was full, else what kept a file from being deleted or made there, or the DOM's failure.
    // `custode` may keep the file that is deleted.
    void CreaDocumentoRSS(const std::wstring& path, const Canale& canale,
                          const TabellaElementi& items, CustodeFile* custode = nullptr) const;
    void CreaDocumentoRSS(const std::wstring& path, const std::wstring& title,
                          const std::wstring& link, const std::wstring& description,
                          const std::wstring& language, const std::wstring& copyright,
                          const std::wstring& lastBuildDate, const std::wstring& webMaster,
                          const clsImgRss& image, const TabellaElementi& items) const;

    // Writes the whole feed as an HTML page in the ANSI code page; the language is not shown. A
    // file of that name is deleted first; a page that cannot be written whole is not left on disk.
    // Raises the run-time error of the failure.
    void CreaDocumentoHTML(const std::wstring& path, const Canale& canale,
                           const TabellaElementi& items, CustodeFile* custode = nullptr) const;
    void CreaDocumentoHTML(const std::wstring& path, const std::wstring& title,
                           const std::wstring& link, const std::wstring& description,
                           const std::wstring& language, const std::wstring& copyright,
                           const std::wstring& lastBuildDate, const std::wstring& webMaster,
                           const clsImgRss& image, const TabellaElementi& items) const;

    // Writes the items as a page of a new temporary name and gives its path. That page and the
    // empty file it is named after are the queue's to delete, also when an error is raised.
    [[nodiscard]] std::wstring VisualizzaItemHTML(const TabellaElementi& items,
                                                  ClsCodaEliminazione& coda) const;

private:
    static void LeggiImmagine(const NodoXml& nodo, clsImgRss& image);
    // Every line break as CR LF: CR LF becomes LF, then each LF becomes CR LF. A lone CR stays.
    [[nodiscard]] static std::wstring NormalizzaACapo(std::wstring_view testo);
};
