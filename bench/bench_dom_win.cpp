// The yardstick of opening, saving and memory: the XML DOM, called with nothing in between.
//   bench_dom genera FILE ITEMS [LENGTH [varia]]
//                                  writes the feed that the others read; with a length every
//                                  description has that many characters, or about as many
//   bench_dom apri FILE [TIMES]    loads its bytes, asks once for `rss`, walks down reading six
//                                  texts; the median
//   bench_dom salva FILE TO        builds the tree of that feed anew and saves it, the median of a
//   few

#include "bench/feedProva.h"
#include "bench/misure_win.h"
#include "support/windows/heap_win.h"

#include <windows.h>

#include <msxml2.h>
#include <ole2.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

void controlla(HRESULT hr) {
    if (FAILED(hr)) {
        std::fprintf(stderr, "0x%08lx\n", static_cast<unsigned long>(hr));
        std::exit(1);
    }
}

struct Rilascia {
    void operator()(IUnknown* oggetto) const noexcept { oggetto->Release(); }
};
template <class Interfaccia>
using Com = std::unique_ptr<Interfaccia, Rilascia>;

struct LiberaBstr {
    void operator()(wchar_t* testo) const noexcept { SysFreeString(testo); }
};
using Testo = std::unique_ptr<wchar_t, LiberaBstr>;

constexpr std::array<const wchar_t*, 6> nomi{L"title",  L"link",    L"description",
                                             L"author", L"pubDate", L"guid"};
using Elemento = std::array<std::wstring, 6>;

Com<IXMLDOMDocument> creaDocumento() {
    CLSID classe{};
    controlla(CLSIDFromProgID(L"MSXML2.DomDocument", &classe));
    void* oggetto = nullptr;
    controlla(
        CoCreateInstance(classe, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument, &oggetto));
    Com<IXMLDOMDocument> documento(static_cast<IXMLDOMDocument*>(oggetto));
    controlla(documento->put_async(VARIANT_FALSE));
    controlla(documento->put_validateOnParse(VARIANT_FALSE));
    controlla(documento->put_resolveExternals(VARIANT_FALSE));
    return documento;
}

struct LiberaVettore {
    void operator()(SAFEARRAY* vettore) const noexcept { SafeArrayDestroy(vettore); }
};

// The parser gives up on some large files unless there is more behind their end.
constexpr DWORD fileGrande = 9'000'000;
constexpr std::string_view commento = "<!---->";
constexpr DWORD riserva = 200 * static_cast<DWORD>(commento.size());

std::unique_ptr<SAFEARRAY, LiberaVettore> leggi(const wchar_t* percorso) {
    const HANDLE file = CreateFileW(percorso, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    controlla(file != INVALID_HANDLE_VALUE ? S_OK : E_FAIL);
    const DWORD quanti = GetFileSize(file, nullptr);
    const DWORD inFondo = quanti >= fileGrande ? riserva : 0;
    std::unique_ptr<SAFEARRAY, LiberaVettore> vettore(
        SafeArrayCreateVector(VT_UI1, 0, quanti + inFondo));
    controlla(vettore != nullptr ? S_OK : E_OUTOFMEMORY);
    auto* const dati = static_cast<char*>(vettore->pvData);
    DWORD letti = 0;
    controlla(ReadFile(file, dati, quanti, &letti, nullptr) != FALSE && letti == quanti ? S_OK
                                                                                        : E_FAIL);
    CloseHandle(file);
    for (DWORD i = 0; i < inFondo; ++i) {
        dati[quanti + i] = commento[i % commento.size()];
    }
    return vettore;
}

// By its bytes: given a path, the DOM takes several times as long.
Com<IXMLDOMDocument> carica(const wchar_t* percorso) {
    auto documento = creaDocumento();
    const auto vettore = leggi(percorso);
    VARIANT byte{};
    byte.vt = VT_ARRAY | VT_UI1;
    byte.parray = vettore.get();
    VARIANT_BOOL riuscito = VARIANT_FALSE;
    controlla(documento->load(byte, &riuscito));
    controlla(riuscito != VARIANT_FALSE ? S_OK : E_FAIL);
    return documento;
}

Com<IXMLDOMNode> radice(IXMLDOMDocument& documento) {
    const Testo nome(SysAllocString(L"rss"));
    IXMLDOMNodeList* trovati = nullptr;
    controlla(documento.getElementsByTagName(nome.get(), &trovati));
    const Com<IXMLDOMNodeList> lista(trovati);
    IXMLDOMNode* nodo = nullptr;
    controlla(lista->nextNode(&nodo));
    return Com<IXMLDOMNode>(nodo);
}

template <class Azione>
void perOgniFiglio(IXMLDOMNode& nodo, Azione azione) {
    IXMLDOMNode* figlio = nullptr;
    controlla(nodo.get_firstChild(&figlio));
    while (figlio != nullptr) {
        const Com<IXMLDOMNode> questo(figlio);
        BSTR nome = nullptr;
        controlla(questo->get_nodeName(&nome));
        azione(*questo, std::wstring_view(nome, SysStringLen(nome)));
        SysFreeString(nome);
        controlla(questo->get_nextSibling(&figlio));
    }
}

// One walk: the texts of each item. Without `dove` they are read and dropped.
std::size_t percorri(IXMLDOMNode& rss, std::vector<Elemento>* dove) {
    std::size_t quanti = 0;
    perOgniFiglio(rss, [&](IXMLDOMNode& canale, std::wstring_view nomeCanale) {
        if (nomeCanale != L"channel") {
            return;
        }
        perOgniFiglio(canale, [&](IXMLDOMNode& figlio, std::wstring_view nome) {
            if (nome != L"item") {
                return;
            }
            ++quanti;
            if (dove != nullptr) {
                dove->emplace_back();
            }
            perOgniFiglio(figlio, [&](IXMLDOMNode& campo, std::wstring_view nomeCampo) {
                for (std::size_t i = 0; i < nomi.size(); ++i) {
                    if (nomeCampo == nomi[i]) {
                        BSTR testo = nullptr;
                        controlla(campo.get_text(&testo));
                        if (dove != nullptr) {
                            dove->back()[i].assign(testo, SysStringLen(testo));
                        }
                        SysFreeString(testo);
                        break;
                    }
                }
            });
        });
    });
    return quanti;
}

int apri(const wchar_t* percorso, int volte) {
    std::vector<double> tempi;
    std::vector<double> caricati;
    std::uint64_t memoria = 0;
    for (int i = 0; i < volte; ++i) {
        const Cronometro tempo;
        auto documento = carica(percorso);
        caricati.push_back(tempo.millisecondi());
        memoria = memoria == 0 ? piccoMemoria() : memoria;
        static_cast<void>(percorri(*radice(*documento), nullptr));
        // A document that was read is let go.
        documento.reset();
        tempi.push_back(tempo.millisecondi());
    }
    riporta("ms", mediana(std::move(tempi)));
    riporta("load", mediana(std::move(caricati)));
    riporta("kib", static_cast<double>(memoria));
    return 0;
}

Com<IXMLDOMElement> creaElemento(IXMLDOMDocument& documento, const wchar_t* nome) {
    const Testo bstr(SysAllocString(nome));
    IXMLDOMElement* elemento = nullptr;
    controlla(documento.createElement(bstr.get(), &elemento));
    return Com<IXMLDOMElement>(elemento);
}

void aggiungi(IXMLDOMDocument& documento, IXMLDOMNode& padre, const wchar_t* nome,
              const std::wstring& testo) {
    const auto elemento = creaElemento(documento, nome);
    const Testo bstr(SysAllocStringLen(testo.data(), static_cast<UINT>(testo.size())));
    controlla(elemento->put_text(bstr.get()));
    controlla(padre.appendChild(elemento.get(), nullptr));
}

void aggiungiCData(IXMLDOMDocument& documento, IXMLDOMNode& padre, const wchar_t* nome,
                   const std::wstring& testo) {
    const auto elemento = creaElemento(documento, nome);
    const Testo bstr(SysAllocStringLen(testo.data(), static_cast<UINT>(testo.size())));
    IXMLDOMCDATASection* sezione = nullptr;
    controlla(documento.createCDATASection(bstr.get(), &sezione));
    const Com<IXMLDOMCDATASection> proprietaria(sezione);
    controlla(elemento->appendChild(sezione, nullptr));
    controlla(padre.appendChild(elemento.get(), nullptr));
}

void costruisci(IXMLDOMDocument& documento, const std::vector<Elemento>& elementi) {
    const Testo istruzione(SysAllocString(L"xml"));
    const Testo dati(SysAllocString(L" version=\"1.0\" encoding=\"ISO-8859-1\" "));
    IXMLDOMProcessingInstruction* testa = nullptr;
    controlla(documento.createProcessingInstruction(istruzione.get(), dati.get(), &testa));
    const Com<IXMLDOMProcessingInstruction> proprietaria(testa);
    controlla(documento.appendChild(testa, nullptr));
    const auto rss = creaElemento(documento, L"rss");
    const auto canale = creaElemento(documento, L"channel");
    controlla(rss->appendChild(canale.get(), nullptr));
    for (const wchar_t* nome : {L"title", L"link", L"description", L"language", L"copyright",
                                L"lastBuildDate", L"webMaster"}) {
        aggiungi(documento, *canale, nome, L"testo del canale");
    }
    for (const auto& elemento : elementi) {
        const auto item = creaElemento(documento, L"item");
        for (std::size_t i = 0; i < nomi.size(); ++i) {
            (i == 2 ? aggiungiCData : aggiungi)(documento, *item, nomi[i], elemento[i]);
        }
        controlla(canale->appendChild(item.get(), nullptr));
    }
    controlla(documento.appendChild(rss.get(), nullptr));
}

int salva(const wchar_t* percorso, const wchar_t* destinazione) {
    std::vector<Elemento> elementi;
    percorri(*radice(*carica(percorso)), &elementi);
    std::vector<double> tempi;
    for (int i = 0; i < ripetizioni; ++i) {
        const Cronometro tempo;
        {
            const auto documento = creaDocumento();
            costruisci(*documento, elementi);
            const Testo nome(SysAllocString(destinazione));
            VARIANT file{};
            file.vt = VT_BSTR;
            file.bstrVal = nome.get();
            controlla(documento->save(file));
        }
        tempi.push_back(tempo.millisecondi());
    }
    riporta("ms", mediana(std::move(tempi)));
    return 0;
}

int genera(const wchar_t* percorso, int elementi, int lunghezza, bool varia) {
    const std::string feed = feedProva(elementi, static_cast<std::size_t>(lunghezza), varia);
    std::ofstream file(std::filesystem::path(percorso), std::ios::binary);
    file.write(feed.data(), static_cast<std::streamsize>(feed.size()));
    file.close();
    return file ? 0 : 1;
}

} // namespace

int wmain(int quanti, wchar_t** argomenti) {
    heapPerPiccoliBlocchi();
    controlla(OleInitialize(nullptr));
    const std::wstring_view cosa = quanti > 2 ? argomenti[1] : L"";
    const auto numero = [&](int quale) {
        return static_cast<int>(std::wcstol(argomenti[quale], nullptr, 10));
    };
    int esito = 2;
    if (cosa == L"apri") {
        esito = apri(argomenti[2], quanti > 3 ? numero(3) : 1);
    } else if (cosa == L"salva" && quanti > 3) {
        esito = salva(argomenti[2], argomenti[3]);
    } else if (cosa == L"genera" && quanti > 3) {
        esito = genera(argomenti[2], numero(3), quanti > 4 ? numero(4) : 0, quanti > 5);
    }
    OleUninitialize();
    return esito;
}
