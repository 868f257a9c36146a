#include "support/windows/xml_win.h"

#include "support/testi/entita.h"
#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <algorithm>
#include <limits>
#include <span>

namespace {

ComPtr<IXMLDOMDocument> creaDocumento() {
    CLSID classe{};
    ComPtr<IXMLDOMDocument> documento;
    HRESULT hr = CLSIDFromProgID(L"MSXML2.DomDocument", &classe);
    if (SUCCEEDED(hr)) {
        void* oggetto = nullptr;
        hr = CoCreateInstance(classe, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument, &oggetto);
        documento = ComPtr<IXMLDOMDocument>(static_cast<IXMLDOMDocument*>(oggetto));
    }
    if (FAILED(hr)) {
        solleva(errori::creazioneOggetto);
    }
    return documento;
}

// A node of any kind that the DOM made, as a plain node.
template <class Interfaccia>
ComPtr<IXMLDOMNode> comeNodo(const ComPtr<Interfaccia>& origine) {
    if (origine.get() != nullptr) {
        origine->AddRef();
    }
    return ComPtr<IXMLDOMNode>(origine.get());
}

// Near the end of a large file whose last text is long the parser may look for more of the file
// than there is, and give up: comments past the end are what it finds then.
constexpr DWORD fileGrande = 9'000'000;
constexpr DWORD riservaInFondo = 1400;

// Fills the end of the bytes, in the coding of the file that stands before it.
void scriviRiserva(std::span<char> byte) {
    using namespace std::string_view_literals;
    const std::string_view inizio(byte.data(), 2);
    const bool altoPrima = inizio == "\xFE\xFF"sv || inizio.front() == '\0';
    const bool bassoPrima = inizio == "\xFF\xFE"sv || inizio.back() == '\0';
    std::string commento;
    for (const char c : "<!---->"sv) {
        commento.append(altoPrima ? 1 : 0, '\0');
        commento += c;
        commento.append(bassoPrima ? 1 : 0, '\0');
    }
    // Of either length a whole number goes in.
    for (auto resto = byte.last(riservaInFondo); !resto.empty();
         resto = resto.subspan(commento.size())) {
        std::ranges::copy(commento, resto.begin());
    }
}

// Whether an entity is referred to anywhere in an element. It may be deeper than the stack.
bool contieneRiferimenti(NodoXml elemento) {
    std::vector<NodoXml> daGuardare{std::move(elemento)};
    while (!daGuardare.empty()) {
        NodoXml figlio = daGuardare.back().primoFiglio();
        daGuardare.pop_back();
        for (; figlio; figlio = figlio.fratello()) {
            const DOMNodeType tipo = figlio.tipo();
            if (tipo == NODE_ENTITY_REFERENCE) {
                return true;
            }
            if (tipo == NODE_ELEMENT) {
                daGuardare.push_back(figlio);
            }
        }
    }
    return false;
}

} // namespace

// As an array that the DOM takes: given the path, it would unescape it as if it were an address,
// and take its time to fetch a large file.
ContenutoFile::ContenutoFile(const std::wstring& percorso) {
    const ManigliaFile file(CreateFileW(
        percorso.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    LARGE_INTEGER lunghezza{};
    if (!file || !GetFileSizeEx(file.get(), &lunghezza) ||
        lunghezza.QuadPart > std::numeric_limits<LONG>::max()) {
        return;
    }
    const auto quanti = static_cast<DWORD>(lunghezza.QuadPart);
    const DWORD riserva = quanti >= fileGrande ? riservaInFondo : 0;
    VARIANT* const variante = variante_.riempi();
    variante->parray = SafeArrayCreateVector(VT_UI1, 0, quanti + riserva);
    if (variante->parray == nullptr) {
        solleva(errori::memoriaEsaurita);
    }
    variante->vt = VT_ARRAY | VT_UI1;
    // Nobody else can move the array: its bytes stay where they are.
    auto* const dati = static_cast<char*>(variante->parray->pvData);
    DWORD letti = 0;
    letto_ = ReadFile(file.get(), dati, quanti, &letti, nullptr) != FALSE && letti == quanti;
    byte_ = std::as_bytes(std::span(dati, quanti));
    if (riserva != 0) {
        scriviRiserva({dati, std::size_t{quanti} + riserva});
    }
}

Bstr NodoXml::nome() const {
    Bstr nome;
    verifica(nodo_->get_nodeName(nome.riempi()));
    return nome;
}

DOMNodeType NodoXml::tipo() const {
    DOMNodeType tipo{};
    verifica(nodo_->get_nodeType(&tipo));
    return tipo;
}

Bstr NodoXml::testo() const {
    Bstr testo;
    verifica(nodo_->get_text(testo.riempi()));
    return testo;
}

Bstr NodoXml::testoPrimoFiglio() const {
    const NodoXml figlio = primoFiglio();
    Bstr testo = figlio ? figlio.testo() : Bstr();
    if (figlio && testo.vista().empty() && figlio.tipo() == NODE_ENTITY_REFERENCE) {
        // The DOM may give a reference no text of its own, but what stands around it has it.
        const NodoXml intorno = copia();
        intorno.aggiungi(figlio.copia());
        testo = intorno.testo();
    }
    return testo;
}

NodoXml NodoXml::primoFiglio() const {
    ComPtr<IXMLDOMNode> nodo;
    verifica(nodo_->get_firstChild(nodo.riempi()));
    return NodoXml(std::move(nodo));
}

NodoXml NodoXml::fratello() const {
    ComPtr<IXMLDOMNode> nodo;
    verifica(nodo_->get_nextSibling(nodo.riempi()));
    return NodoXml(std::move(nodo));
}

NodoXml NodoXml::precedente() const {
    ComPtr<IXMLDOMNode> nodo;
    verifica(nodo_->get_previousSibling(nodo.riempi()));
    return NodoXml(std::move(nodo));
}

bool NodoXml::dopoCommento(std::wstring_view testo) const {
    // Not past a DOCTYPE: it may not know what stands before it.
    for (NodoXml nodo = precedente(); nodo && nodo.tipo() != NODE_DOCUMENT_TYPE;
         nodo = nodo.precedente()) {
        if (nodo.tipo() == NODE_COMMENT && nodo.testo().vista() == testo) {
            return true;
        }
    }
    return false;
}

NodoXml NodoXml::copia() const {
    ComPtr<IXMLDOMNode> copia;
    verifica(nodo_->cloneNode(VARIANT_FALSE, copia.riempi()));
    return NodoXml(std::move(copia));
}

void NodoXml::aggiungi(const NodoXml& figlio) const {
    verifica(nodo_->appendChild(figlio.get(), nullptr));
}

DocumentoXml::DocumentoXml() : documento_(creaDocumento()) {
    verifica(documento_->put_async(VARIANT_FALSE));
    verifica(documento_->put_validateOnParse(VARIANT_FALSE));
    verifica(documento_->put_resolveExternals(VARIANT_FALSE));
}

bool DocumentoXml::carica(const ContenutoFile& contenuto) const {
    VARIANT_BOOL riuscito = VARIANT_FALSE;
    return contenuto && documento_->load(contenuto.variante_.get(), &riuscito) == S_OK &&
           riuscito != VARIANT_FALSE && riferimentiNoti();
}

// Where there is a DOCTYPE the DOM passes over what it knows no replacement of. Its declarations it
// shows in the text of the whole document alone, which takes longer than reading it.
bool DocumentoXml::riferimentiNoti() const {
    ComPtr<IXMLDOMDocumentType> tipo;
    verifica(documento_->get_doctype(tipo.riempi()));
    ComPtr<IXMLDOMElement> radice;
    verifica(documento_->get_documentElement(radice.riempi()));
    if (!tipo || !radice || !contieneRiferimenti(NodoXml(comeNodo(radice)))) {
        return true;
    }
    Bstr testo;
    verifica(documento_->get_xml(testo.riempi()));
    return entitaNote(testo.vista());
}

void DocumentoXml::salva(const std::wstring& percorso) const {
    const Variante destinazione(percorso);
    const HRESULT hr = documento_->save(destinazione.get());
    if (hr != S_OK) {
        throw erroreHresult(hr);
    }
}

std::vector<NodoXml> DocumentoXml::elementi(std::wstring_view nome) const {
    ComPtr<IXMLDOMNodeList> lista;
    verifica(documento_->getElementsByTagName(Bstr(nome).get(), lista.riempi()));
    std::vector<NodoXml> trovati;
    for (;;) {
        ComPtr<IXMLDOMNode> nodo;
        verifica(lista->nextNode(nodo.riempi()));
        if (!nodo) {
            return trovati;
        }
        // The query may go by local names.
        if (NodoXml candidato(std::move(nodo)); candidato.nome().vista() == nome) {
            trovati.push_back(std::move(candidato));
        }
    }
}

ElementoXml DocumentoXml::creaElemento(std::wstring_view nome) const {
    ComPtr<IXMLDOMElement> elemento;
    verifica(documento_->createElement(Bstr(nome).get(), elemento.riempi()));
    return ElementoXml(comeNodo(elemento));
}

ElementoXml DocumentoXml::creaElemento(std::wstring_view nome, std::wstring_view testo) const {
    ElementoXml elemento = creaElemento(nome);
    verifica(elemento.get()->put_text(Bstr(testo).get()));
    return elemento;
}

NodoXml DocumentoXml::creaCData(std::wstring_view testo) const {
    ComPtr<IXMLDOMCDATASection> sezione;
    verifica(documento_->createCDATASection(Bstr(testo).get(), sezione.riempi()));
    return NodoXml(comeNodo(sezione));
}

NodoXml DocumentoXml::creaCommento(std::wstring_view testo) const {
    ComPtr<IXMLDOMComment> commento;
    verifica(documento_->createComment(Bstr(testo).get(), commento.riempi()));
    return NodoXml(comeNodo(commento));
}

NodoXml DocumentoXml::creaIstruzione(std::wstring_view nome, std::wstring_view dati) const {
    ComPtr<IXMLDOMProcessingInstruction> istruzione;
    verifica(documento_->createProcessingInstruction(Bstr(nome).get(), Bstr(dati).get(),
                                                     istruzione.riempi()));
    return NodoXml(comeNodo(istruzione));
}

void DocumentoXml::creaAttributo(const ElementoXml& elemento, std::wstring_view nome,
                                 std::wstring_view valore) const {
    ComPtr<IXMLDOMAttribute> attributo;
    verifica(documento_->createAttribute(Bstr(nome).get(), attributo.riempi()));
    verifica(attributo->put_text(Bstr(valore).get()));
    ComPtr<IXMLDOMNamedNodeMap> attributi;
    verifica(elemento.get()->get_attributes(attributi.riempi()));
    ComPtr<IXMLDOMNode> precedente;
    verifica(attributi->setNamedItem(attributo.get(), precedente.riempi()));
}

void DocumentoXml::aggiungi(const NodoXml& figlio) const {
    verifica(documento_->appendChild(figlio.get(), nullptr));
}

bool ParserXmlPresente() noexcept {
    try {
        return static_cast<bool>(creaDocumento());
    } catch (const Errore&) {
        return false;
    }
}
