#include "document/clsFeedRss.h"

#include "datetime/ClsUTC.h"
#include "document/caratteriXml.h"
#include "support/errore.h"
#include "support/numeri.h"
#include "support/prodotto.h"
#include "support/testo.h"
#include "support/xml_win.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace {

constexpr std::int32_t nonCaricabile = 18343;
constexpr std::int32_t formatoNonValido = 18344;
constexpr std::int32_t formatoNonSupportato = 18345;

[[noreturn]] void rifiuta(std::int32_t numero, const std::wstring& percorso,
                          std::wstring_view perche) {
    throw Errore(numero, maiuscolo(percorso).append(perche));
}

template <class Azione>
void perOgniFiglio(const NodoXml& nodo, Azione azione) {
    for (NodoXml figlio = nodo.primoFiglio(); figlio; figlio = figlio.fratello()) {
        azione(figlio, figlio.nome());
    }
}

// The place of a name in a list of names.
template <std::size_t quanti>
std::optional<std::size_t> posto(const std::array<std::wstring_view, quanti>& nomi,
                                 std::wstring_view nome) {
    const auto* const trovato = std::ranges::find(nomi, nome);
    return trovato == nomi.end() ? std::nullopt
                                 : std::optional(static_cast<std::size_t>(trovato - nomi.begin()));
}

// The first child element of each name, from one walk.
template <std::size_t quanti>
class PrimiFigli {
public:
    explicit PrimiFigli(const std::array<std::wstring_view, quanti>& nomi) : nomi_(nomi) {}

    void considera(const NodoXml& figlio, std::wstring_view nome) {
        const auto dove = posto(nomi_, nome);
        if (dove && !trovati_[*dove] && figlio.elemento()) {
            trovati_[*dove] = figlio;
        }
    }
    [[nodiscard]] const NodoXml& operator[](std::size_t indice) const { return trovati_[indice]; }

private:
    const std::array<std::wstring_view, quanti>& nomi_;
    std::array<NodoXml, quanti> trovati_;
};

constexpr std::array<std::wstring_view, 7> nomiCanale{
    L"title", L"link", L"description", L"language", L"copyright", L"lastBuildDate", L"webMaster"};
constexpr std::size_t postoData = 5;
constexpr std::array<std::wstring_view, 5> nomiImmagine{L"title", L"url", L"link", L"width",
                                                        L"height"};
// In the order of CampoElemento.
constexpr std::array<std::wstring_view, numeroCampi> nomiElemento{
    L"title", L"link", L"description", L"author", L"pubDate", L"guid"};

// What counts of the channel, gathered in one walk: a query for each field would go through the
// whole document each time.
struct CanaleLetto {
    PrimiFigli<nomiCanale.size()> campi{nomiCanale};
    std::vector<NodoXml> immagini;
    std::vector<NodoXml> elementi;
};

CanaleLetto percorriCanale(const NodoXml& nodo) {
    CanaleLetto canale;
    perOgniFiglio(nodo, [&](const NodoXml& figlio, const Bstr& nome) {
        if (nome.vista() == L"item") {
            if (figlio.elemento()) {
                canale.elementi.push_back(figlio);
            }
        } else if (nome.vista() == L"image") {
            if (figlio.elemento()) {
                canale.immagini.push_back(figlio);
            }
        } else {
            canale.campi.considera(figlio, nome.vista());
        }
    });
    return canale;
}

struct Feed {
    NodoXml rss;
    NodoXml channel;
};

Feed trovaFeed(const DocumentoXml& documento, const std::wstring& percorso) {
    const auto radici = documento.elementi(L"rss");
    std::vector<NodoXml> canali;
    if (radici.size() == 1) {
        perOgniFiglio(radici.front(), [&](const NodoXml& figlio, const Bstr& nome) {
            if (nome.vista() == L"channel" && figlio.elemento()) {
                canali.push_back(figlio);
            }
        });
    }
    if (canali.size() != 1) {
        rifiuta(formatoNonValido, percorso, L": formato non valido.");
    }
    return {radici.front(), canali.front()};
}

std::int32_t misura(const NodoXml& nodo) {
    return aInt32(valoreIniziale(nodo.testo().vista()));
}

} // namespace

void clsFeedRss::LeggiDocumentoRSS(const std::wstring& path, std::wstring& title,
                                   std::wstring& link, std::wstring& description,
                                   std::wstring& language, std::wstring& copyright,
                                   std::wstring& lastBuildDate, std::wstring& webMaster,
                                   clsImgRss& image, TabellaElementi& items) const {
    const std::array<std::wstring*, nomiCanale.size()> campi{
        &title, &link, &description, &language, &copyright, &lastBuildDate, &webMaster};
    for (auto* const campo : campi) {
        campo->clear();
    }
    items.svuota();
    image = clsImgRss();

    const ClsUTC utc;
    const std::wstring adesso = utc.GetDataUtc(utc.adessoLocale(), true);
    const DocumentoXml documento;
    if (!documento.carica(path)) {
        rifiuta(nonCaricabile, path, L": impossibile caricare il documento.");
    }
    const Feed feed = trovaFeed(documento, path);
    const CanaleLetto canale = percorriCanale(feed.channel);
    for (std::size_t i = 0; i < campi.size(); ++i) {
        if (const NodoXml& nodo = canale.campi[i]) {
            *campi[i] = NormalizzaACapo(nodo.testo().vista());
        } else if (i == postoData) {
            *campi[i] = adesso;
        }
    }
    if (canale.immagini.size() > 1) {
        rifiuta(formatoNonSupportato, path, L": formato non supportato.");
    }
    if (!canale.immagini.empty()) {
        LeggiImmagine(canale.immagini.front(), image);
    }
    if (canale.elementi.empty()) {
        return;
    }
    items.dimensiona(static_cast<std::int64_t>(canale.elementi.size()));
    const bool nostro = feed.rss.dopoCommento(prodotto::commentoFeed());
    std::wstring appoggio;
    for (int i = 0; i <= items.limiteSuperiore(); ++i) {
        LeggiElemento(canale.elementi[static_cast<std::size_t>(i)], nostro, items, i, appoggio);
        if (auto& data = items(CampoElemento::Data, i); data.empty()) {
            data = adesso;
        }
    }
}

void clsFeedRss::LeggiImmagine(const NodoXml& nodo, clsImgRss& image) {
    PrimiFigli<nomiImmagine.size()> campi(nomiImmagine);
    perOgniFiglio(nodo, [&](const NodoXml& figlio, const Bstr& nome) {
        campi.considera(figlio, nome.vista());
    });
    if (campi[0]) {
        image.sTitle(NormalizzaACapo(campi[0].testo().vista()));
    }
    if (campi[1]) {
        image.sUrl(NormalizzaACapo(campi[1].testo().vista()));
    }
    if (campi[2]) {
        image.sLink(NormalizzaACapo(campi[2].testo().vista()));
    }
    if (campi[3]) {
        image.nWidth(misura(campi[3]));
    }
    if (campi[4]) {
        image.nHeight(misura(campi[4]));
    }
}

// A later child of the same name overwrites an earlier one.
void clsFeedRss::LeggiElemento(const NodoXml& nodo, bool nostro, TabellaElementi& items, int indice,
                               std::wstring& appoggio) {
    perOgniFiglio(nodo, [&](const NodoXml& figlio, const Bstr& nome) {
        const auto dove = posto(nomiElemento, nome.vista());
        if (!dove) {
            return;
        }
        const auto campo = static_cast<CampoElemento>(*dove);
        const bool descrizione = campo == CampoElemento::Descrizione;
        const Bstr letto = descrizione ? figlio.testoPrimoFiglio() : figlio.testo();
        const bool riferimenti = descrizione && nostro;
        const auto testo = riferimenti ? conCaratteri(letto.vista(), appoggio) : letto.vista();
        // The link keeps its line breaks as they are.
        items(campo, indice) =
            campo == CampoElemento::Link ? std::wstring(testo) : NormalizzaACapo(testo);
    });
}
