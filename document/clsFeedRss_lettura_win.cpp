#include "document/clsFeedRss.h"

#include "datetime/ClsUTC.h"
#include "document/caratteriXml.h"
#include "document/clsItemRss.h"
#include "document/deposito.h"
#include "document/esitoLettura_win.h"
#include "support/errori/errore.h"
#include "support/programma/prodotto.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"
#include "support/windows/xml_win.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

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

constexpr std::array<std::wstring_view, 5> nomiImmagine{L"title", L"url", L"link", L"width",
                                                        L"height"};

// The element names of a table of fields.
template <class Voci>
constexpr auto nomiDi(const Voci& voci) {
    std::array<std::wstring_view, std::tuple_size_v<Voci>> nomi;
    std::ranges::transform(voci, nomi.begin(), [](const auto& voce) { return voce.nodo; });
    return nomi;
}

constexpr auto nomiCanale = nomiDi(vociCanale);
constexpr auto nomiElemento = nomiDi(vociElemento);

// A text as the document keeps it: the link keeps its line breaks as they are.
std::wstring_view conserva(Deposito& deposito, CampoElemento campo, std::wstring_view testo) {
    if (campo == CampoElemento::Link || testo.find(L'\n') == testo.npos) {
        return deposito.conserva(testo);
    }
    return deposito.conserva(aCapoCrLf(testo));
}

// Reads items. In a feed that the program wrote (`nostro`) a description says by
// references what its code page lacked; an item without a date is of `adesso`.
class LettoreElementi {
public:
    LettoreElementi(Deposito& deposito, bool nostro, std::wstring_view adesso)
        : deposito_(deposito), adesso_(deposito.conserva(adesso)), nostro_(nostro) {}

    // A later child of the same name overwrites an earlier one.
    void leggi(const NodoXml& nodo) {
        TestiElemento testi;
        perOgniFiglio(nodo, [&](const NodoXml& figlio, const Bstr& nome) {
            if (const auto dove = posto(nomiElemento, nome.vista())) {
                testi[*dove] = testo(figlio, static_cast<CampoElemento>(*dove));
            }
        });
        if (auto& data = testi[static_cast<std::size_t>(CampoElemento::Data)]; data.empty()) {
            data = adesso_;
        }
        deposito_.aggiungi(testi);
    }

private:
    std::wstring_view testo(const NodoXml& nodo, CampoElemento campo) {
        if (campo != CampoElemento::Descrizione) {
            return conserva(deposito_, campo, nodo.testo().vista());
        }
        const Bstr letto = nodo.testoPrimoFiglio();
        return conserva(deposito_, campo,
                        nostro_ ? conCaratteri(letto.vista(), appoggio_) : letto.vista());
    }

    Deposito& deposito_;
    std::wstring_view adesso_;
    bool nostro_;
    std::wstring appoggio_;
};

// What counts of the channel besides the items, gathered in one walk: a query for each field would
// go through the whole document each time.
struct CanaleLetto {
    PrimiFigli<nomiCanale.size()> campi{nomiCanale};
    std::vector<NodoXml> immagini;
};

CanaleLetto percorriCanale(const NodoXml& nodo, LettoreElementi lettore) {
    CanaleLetto canale;
    perOgniFiglio(nodo, [&](const NodoXml& figlio, const Bstr& nome) {
        if (nome.vista() == L"item") {
            if (figlio.elemento()) {
                lettore.leggi(figlio);
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
        solleva(errori::feedNonValido, maiuscolo(percorso));
    }
    return {radici.front(), canali.front()};
}

// The bytes go as soon as the document is there.
void carica(const DocumentoXml& documento, const std::wstring& percorso, EsitoLettura* esito) {
    const ContenutoFile contenuto(percorso);
    EsameFeed esame = esaminaFeed(contenuto.byte());
    if (esame.smisurato || !documento.carica(contenuto)) {
        solleva(errori::feedNonCaricabile, maiuscolo(percorso));
    }
    if (esito != nullptr) {
        *esito = {std::move(esame.perdite), statoFile(percorso, contenuto.byte())};
    }
}

std::int32_t misura(const NodoXml& nodo) {
    return aInt32(valoreIniziale(nodo.testo().vista()));
}

} // namespace

void clsFeedRss::LeggiDocumentoRSS(const std::wstring& path, Canale& canale, TabellaElementi& items,
                                   EsitoLettura* esito) const {
    canale = Canale();
    items.svuota();

    const ClsUTC utc;
    const std::wstring adesso = utc.GetDataUtc(utc.adessoLocale(), true);
    const auto deposito = std::make_shared<Deposito>();
    {
        const DocumentoXml documento;
        carica(documento, path, esito);
        const Feed feed = trovaFeed(documento, path);
        const bool nostro = feed.rss.dopoCommento(prodotto::commentoFeed());
        const CanaleLetto letto =
            percorriCanale(feed.channel, LettoreElementi(*deposito, nostro, adesso));
        for (std::size_t i = 0; i < vociCanale.size(); ++i) {
            const auto membro = vociCanale[i].membro;
            if (const NodoXml& nodo = letto.campi[i]) {
                canale.*membro = NormalizzaACapo(nodo.testo().vista());
            } else if (membro == &Canale::lastBuildDate) {
                canale.*membro = adesso;
            }
        }
        if (letto.immagini.size() > 1) {
            solleva(errori::feedNonSupportato, maiuscolo(path));
        }
        if (!letto.immagini.empty()) {
            LeggiImmagine(letto.immagini.front(), canale.image);
        }
    }
    // The table is filled when the document is gone.
    items.riempi(Deposito::elementi(deposito));
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
