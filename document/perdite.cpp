#include "document/perdite.h"

#include "document/canale.h"
#include "document/clsItemRss.h"
#include "document/scansioneXml.h"
#include "document/sostituzioni.h"
#include "support/caratteri/codifica.h"
#include "support/programma/prodotto.h"

#include <algorithm>
#include <map>

namespace {

// Bytes against a name of the program's own, which is ASCII.
bool uguali(std::string_view byte, std::wstring_view nome) noexcept {
    return std::ranges::equal(byte, nome, [](char a, wchar_t b) {
        return static_cast<wchar_t>(static_cast<unsigned char>(a)) == b;
    });
}

// Counts things by name. A file of nothing but different names is cut off.
class Conta {
public:
    void aggiungi(std::string_view nome, std::string_view dopo = {}) {
        chiave_.assign(nome);
        if (!dopo.empty()) {
            chiave_.append(" ").append(dopo);
        }
        auto trovata = posti_.find(chiave_);
        if (trovata == posti_.end()) {
            if (perdite_.size() == massimo) {
                return;
            }
            trovata = posti_.emplace(chiave_, perdite_.size()).first;
            perdite_.push_back({chiave_, 0});
        }
        ++perdite_[trovata->second].volte;
    }

    [[nodiscard]] std::vector<Perdita> perFrequenza() && {
        std::ranges::stable_sort(perdite_, std::ranges::greater{}, &Perdita::volte);
        return std::move(perdite_);
    }

private:
    static constexpr std::size_t massimo = 1'000;

    std::string chiave_;
    std::map<std::string, std::size_t, std::less<>> posti_;
    std::vector<Perdita> perdite_;
};

// What an element is to the reader of feeds.
enum class Ruolo : std::uint8_t {
    Fuori,
    Rss,
    Canale,
    Immagine,
    Elemento,
    Testo,
    Descrizione,
    Ignoto
};

// The parser makes one node of neighbouring characters, and one of neighbouring CDATA sections.
enum class Nodo : std::uint8_t { Testo, CData, Altro };

struct Livello {
    Ruolo ruolo = Ruolo::Fuori;
    // The known children met so far, a bit each.
    std::uint32_t visti = 0;
    std::size_t figli = 0;
    // Of an item's description: the nodes met so far, and the last of them.
    std::int32_t pezzi = 0;
    Nodo ultimo = Nodo::Altro;
};

// The elements of a table of fields, as the bytes have them, and one more.
template <class Voci>
std::vector<std::string> nomiDi(const Voci& voci, std::vector<std::string> nomi = {}) {
    for (const auto& voce : voci) {
        nomi.push_back(comeUtf8(voce.nodo));
    }
    return nomi;
}

class Esaminatore final : public LettoreMarcatori {
public:
    void apre(std::string_view nome, std::span<const AttributoXml> attributi) override {
        Livello& padre = livelli_.back();
        const Ruolo ruolo = ruoloDi(padre, nome);
        if (padre.ruolo != Ruolo::Canale) {
            smisurato_ = smisurato_ || ++padre.figli > limiti::figli;
        }
        smisurato_ = smisurato_ || attributi.size() > limiti::attributi ||
                     livelli_.size() > limiti::profondita;
        for (const AttributoXml& attributo : attributi) {
            riferimenti(attributo.valore);
            if (ruolo != Ruolo::Ignoto && ruolo != Ruolo::Fuori) {
                perdeAttributo(ruolo, nome, attributo);
            }
        }
        livelli_.push_back({.ruolo = ruolo});
    }

    void chiude() override {
        if (livelli_.size() > 1) {
            livelli_.pop_back();
        }
    }

    void testo(std::string_view testo) override {
        const bool conEntita = riferimenti(testo);
        Livello& livello = livelli_.back();
        if (livello.ruolo != Ruolo::Descrizione) {
            return;
        }
        if (!std::ranges::all_of(testo, spazioXml)) {
            pezzo(livello, Nodo::Testo);
        }
        if (conEntita) {
            // A reference to an entity is a node of its own.
            pezzo(livello, Nodo::Altro);
        }
    }

    void cdata() override {
        Livello& livello = livelli_.back();
        if (livello.ruolo == Ruolo::Descrizione) {
            pezzo(livello, Nodo::CData);
        }
    }

    void commento(std::string_view testo) override {
        const bool nostro = !radice_ && uguali(testo, commentoNostro_);
        if (!nostro) {
            fraINodi("commenti");
        }
    }

    void istruzione() override { fraINodi("istruzioni"); }

    void tipoDocumento(std::string_view interno) override {
        conta_.aggiungi("DOCTYPE");
        sostituzioni_.dichiara(interno);
    }

    [[nodiscard]] bool basta() const noexcept override { return smisurato_; }

    [[nodiscard]] EsameFeed esito() && { return {std::move(conta_).perFrequenza(), smisurato_}; }

private:
    // What the element is, by its parent; counts it when it is lost.
    Ruolo ruoloDi(Livello& padre, std::string_view nome) {
        radice_ = true;
        switch (padre.ruolo) {
        case Ruolo::Fuori:
            if (nome == "rss") {
                return Ruolo::Rss;
            }
            conta_.aggiungi(nome);
            return Ruolo::Fuori;
        case Ruolo::Rss:
            if (nome == "channel") {
                return Ruolo::Canale;
            }
            break;
        case Ruolo::Canale:
            if (nome == "item") {
                return Ruolo::Elemento;
            }
            return figlioNoto(padre, nome, figliCanale_);
        case Ruolo::Immagine:
            return figlioNoto(padre, nome, figliImmagine_);
        case Ruolo::Elemento:
            return figlioNoto(padre, nome, figliElemento_);
        case Ruolo::Descrizione:
            pezzo(padre, Nodo::Altro);
            return Ruolo::Ignoto;
        case Ruolo::Ignoto:
            return Ruolo::Ignoto;
        default:
            break;
        }
        conta_.aggiungi(nome);
        return Ruolo::Ignoto;
    }

    Ruolo figlioNoto(Livello& padre, std::string_view nome, std::span<const std::string> noti) {
        const auto trovato = std::ranges::find(noti, nome);
        if (trovato == noti.end()) {
            conta_.aggiungi(nome);
            return Ruolo::Ignoto;
        }
        const auto segno = std::uint32_t{1} << static_cast<unsigned>(trovato - noti.begin());
        if ((padre.visti & segno) != 0) {
            conta_.aggiungi(nome, "ripetuto");
            return Ruolo::Ignoto;
        }
        padre.visti |= segno;
        if (padre.ruolo == Ruolo::Canale && nome == "image") {
            return Ruolo::Immagine;
        }
        return padre.ruolo == Ruolo::Elemento && nome == "description" ? Ruolo::Descrizione
                                                                       : Ruolo::Testo;
    }

    void perdeAttributo(Ruolo ruolo, std::string_view nome, const AttributoXml& attributo) {
        if (attributo.nome == "xmlns" || attributo.nome.starts_with("xmlns:")) {
            conta_.aggiungi("spazi dei nomi");
        } else if (ruolo != Ruolo::Rss || attributo.nome != "version" ||
                   attributo.valore != "2.0") {
            conta_.aggiungi(nome, attributo.nome);
        }
    }

    // A comment or an instruction: a node among others where an element's first one counts.
    void fraINodi(std::string_view nome) {
        Livello& livello = livelli_.back();
        if (livello.ruolo == Ruolo::Ignoto) {
            return;
        }
        if (livello.ruolo == Ruolo::Descrizione) {
            ++livello.pezzi;
            livello.ultimo = Nodo::Altro;
        }
        conta_.aggiungi(nome);
    }

    void pezzo(Livello& descrizione, Nodo nodo) {
        if (nodo == Nodo::Altro || nodo != descrizione.ultimo) {
            ++descrizione.pezzi;
            if (descrizione.pezzi > 1) {
                conta_.aggiungi("parti di descrizioni");
            }
        }
        descrizione.ultimo = nodo;
    }

    // Whether the text refers to an entity of the document's own.
    bool riferimenti(std::string_view testo) {
        if (sostituzioni_.vuote()) {
            return false;
        }
        const std::size_t quanti = sostituzioni_.lunghezza(testo);
        sostituiti_ += quanti;
        smisurato_ = smisurato_ || sostituiti_ > limiti::sostituzioni;
        return quanti > 0;
    }

    const std::wstring commentoNostro_ = prodotto::commentoFeed();
    const std::vector<std::string> figliCanale_ = nomiDi(vociCanale, {"image"});
    const std::vector<std::string> figliImmagine_{"title", "url", "link", "width", "height"};
    const std::vector<std::string> figliElemento_ = nomiDi(vociElemento);
    std::vector<Livello> livelli_{1};
    Conta conta_;
    Sostituzioni sostituzioni_;
    std::size_t sostituiti_ = 0;
    bool radice_ = false;
    bool smisurato_ = false;
};

} // namespace

EsameFeed esaminaFeed(std::span<const std::byte> documento) {
    Esaminatore esaminatore;
    scorriMarcatori(documento, esaminatore);
    return std::move(esaminatore).esito();
}
