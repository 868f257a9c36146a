#include "tests/aiuti/feedACaso_win.h"

#include "document/caratteriXml.h"
#include "support/caratteri/codifica.h"
#include "support/testi/testo.h"
#include "tests/aiuti/cartella_win.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace {

// Texts over all that XML allows, with what is delicate more often than its share.
class Testi {
public:
    // Seeds beside each other would begin alike.
    explicit Testi(std::uint32_t seme) : caso_(seme * 2654435761U) {}

    std::wstring operator()() {
        std::wstring testo;
        for (int n = fra(0, 12) * fra(0, 3); n > 0; --n) {
            aggiungiPezzo(testo);
        }
        // In a description it ends the section; there it is refused, which another test shows.
        return sostituisci(testo, L"]]>", L"]] >");
    }
    int fra(int minimo, int massimo) {
        return std::uniform_int_distribution(minimo, massimo)(caso_);
    }

private:
    void aggiungiPezzo(std::wstring& testo) {
        static constexpr std::array<std::wstring_view, 27> delicati{
            L" ",    L"\t",        L"\n",       L"\r",       L"\r\n",     L"<",      L">",
            L"&",    L"\"",        L"'",        L"]]",       L"]",        L"&#10;",  L"€",
            L"“",    L"<![CDATA[", L"&amp;",    L"<p>",      L"\u00A0",   L"\x85",   L"%20",
            L"<!--", L"&#",        L"&#08364;", L"&#x20AC;", L"&#55357;", L"&#8364;"};
        switch (fra(0, 4)) {
        case 0:
            testo += delicati[static_cast<std::size_t>(fra(0, delicati.size() - 1))];
            break;
        case 1:
            testo += static_cast<wchar_t>(fra(0x20, 0xFF));
            break;
        case 2:
            aggiungiAmmesso(testo, fra(0x100, 0xFFFF));
            break;
        case 3:
            aggiungiAmmesso(testo, fra(0x10000, 0x10FFFF));
            break;
        default:
            testo += L"testo";
            break;
        }
    }
    static void aggiungiAmmesso(std::wstring& testo, int codice) {
        std::wstring carattere;
        aggiungiCarattere(carattere, static_cast<char32_t>(codice));
        if (!primoVietato(carattere)) {
            testo += carattere;
        }
    }

    // Not mt19937: to set it up takes longer than to make a document.
    std::minstd_rand caso_;
};

} // namespace

FeedDiProva feedACaso(std::uint32_t seme) {
    Testi testi(seme);
    FeedDiProva d;
    for (auto* const campo : d.canale()) {
        *campo = testi();
    }
    if (testi.fra(0, 2) > 0) {
        d.image.sTitle(testi());
        d.image.sUrl(testi());
        d.image.sLink(testi());
        constexpr int massimo = std::numeric_limits<std::int32_t>::max();
        d.image.nWidth(testi.fra(-massimo - 1, massimo));
        d.image.nHeight(testi.fra(-3, 3));
    }
    // Most feeds are short.
    std::vector<ElementoCondiviso> elementi;
    for (int n = testi.fra(0, 9) == 0 ? testi.fra(1, 50) : testi.fra(1, 5); n > 0; --n) {
        std::array<std::wstring, numeroCampi> campi;
        std::ranges::generate(campi, testi);
        elementi.push_back(
            creaElemento({campi[0], campi[1], campi[2], campi[3], campi[4], campi[5]}));
    }
    d.items.riempi(std::move(elementi));
    return d;
}

namespace {

// A DOM may write the CR of a pair as a reference or leave it out.
std::wstring nelFile(std::wstring_view testo) {
    return sostituisci(testo, L"\r\n", L"\n");
}

// In a section what Latin 1 lacks is a reference of the text's own.
std::wstring nellaSezione(std::wstring_view testo) {
    std::wstring scritto;
    const std::wstring lf = sostituisci(nelFile(testo), L"\r", L"\n");
    for (std::size_t i = 0; i < lf.size(); ++i) {
        std::uint32_t c = lf[i];
        if (c <= 0xFF) {
            scritto += lf[i];
            continue;
        }
        if (c >= 0xD800 && c < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10U) + (lf[++i] - 0xDC00U);
        }
        scritto += L"&#" + std::to_wstring(c) + L";";
    }
    return scritto;
}

// The children of an element that should be there, one after the other.
class Figli {
public:
    Figli(const NodoLetto& nodo, std::string dove) : nodo_(nodo), dove_(std::move(dove)) {
        if (!nodo.attributi.empty()) {
            nota("has attributes");
        }
    }

    const NodoLetto* prossimo(const std::string& nome) {
        if (posto_ == nodo_.figli.size() || nodo_.figli[posto_].nome != nome) {
            nota("lacks " + nome);
            return nullptr;
        }
        return &nodo_.figli[posto_++];
    }
    void testo(const std::string& nome, const std::wstring& atteso) {
        const NodoLetto* const figlio = prossimo(nome);
        if (figlio != nullptr && (!figlio->figli.empty() || !figlio->attributi.empty() ||
                                  nelFile(figlio->testo) != atteso)) {
            nota(nome + ": \"" + inUtf8(figlio->testo) + "\" instead of \"" + inUtf8(atteso) + '"');
        }
    }
    // All that differed; nothing may follow, nor stand between the children but line breaks.
    std::string fine() {
        if (posto_ != nodo_.figli.size()) {
            nota("has more than it should");
        }
        if (nodo_.testo.find_first_not_of(L" \n") != std::wstring::npos) {
            nota("has a text");
        }
        return differenze_;
    }
    void nota(const std::string& cosa) { differenze_ += dove_ + ' ' + cosa + '\n'; }
    void aggiungi(const std::string& altre) { differenze_ += altre; }

private:
    const NodoLetto& nodo_;
    std::string dove_;
    std::size_t posto_ = 0;
    std::string differenze_;
};

std::string differenzaImmagine(const NodoLetto& nodo, const clsImgRss& attesa) {
    Figli figli(nodo, "image");
    figli.testo("title", nelFile(attesa.sTitle()));
    figli.testo("url", nelFile(attesa.sUrl()));
    figli.testo("link", nelFile(attesa.sLink()));
    figli.testo("width", std::to_wstring(attesa.nWidth()));
    figli.testo("height", std::to_wstring(attesa.nHeight()));
    return figli.fine();
}

std::string differenzaElemento(const NodoLetto& nodo, const Elemento& atteso, int indice) {
    using enum CampoElemento;
    Figli figli(nodo, "item " + std::to_string(indice));
    figli.testo("title", nelFile(atteso[Titolo]));
    figli.testo("link", nelFile(atteso[Link]));
    figli.testo("description", nellaSezione(atteso[Descrizione]));
    figli.testo("author", nelFile(atteso[Autore]));
    figli.testo("pubDate", nelFile(atteso[Data]));
    figli.testo("guid", nelFile(atteso[Guid]));
    return figli.fine();
}

std::string differenzaCanale(const NodoLetto& nodo, const FeedDiProva& scritto) {
    Figli figli(nodo, "channel");
    figli.testo("title", nelFile(scritto.title));
    figli.testo("link", nelFile(scritto.link));
    figli.testo("description", nelFile(scritto.description));
    figli.testo("language", nelFile(scritto.language));
    figli.testo("copyright", nelFile(scritto.copyright));
    figli.testo("lastBuildDate", nelFile(scritto.lastBuildDate));
    figli.testo("webMaster", nelFile(scritto.webMaster));
    if (scritto.image.Modificato()) {
        if (const NodoLetto* const immagine = figli.prossimo("image")) {
            figli.aggiungi(differenzaImmagine(*immagine, scritto.image));
        }
    }
    for (int i = 0; i <= scritto.items.limiteSuperiore(); ++i) {
        if (const NodoLetto* const elemento = figli.prossimo("item")) {
            figli.aggiungi(differenzaElemento(*elemento, *scritto.items.elemento(i), i));
        }
    }
    return figli.fine();
}

} // namespace

std::string differenza(const DocumentoLetto& letto, const FeedDiProva& scritto) {
    NodoLetto radice = letto.radice;
    if (letto.dichiarazione != AttributiLetti{{"version", L"1.0"}, {"encoding", L"ISO-8859-1"}} ||
        letto.commenti != std::vector<std::wstring>{L"Feed RSS creato con Ostrelle di Quorvex "
                                                    L"(https://www.quorvex.example)"} ||
        radice.nome != "rss" || radice.attributi != AttributiLetti{{"version", L"2.0"}}) {
        return "another head\n";
    }
    radice.attributi.clear();
    Figli figli(radice, "rss");
    if (const NodoLetto* const canale = figli.prossimo("channel")) {
        figli.aggiungi(differenzaCanale(*canale, scritto));
    }
    return figli.fine();
}
