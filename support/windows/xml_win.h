#pragma once

#include "support/windows/com_win.h"

#include <msxml2.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A thin layer over the XML DOM: owners of its objects that raise what it fails with.

// A node of a document; also no node, at the end of a walk.
class NodoXml {
public:
    NodoXml() noexcept = default;
    explicit NodoXml(ComPtr<IXMLDOMNode> nodo) noexcept : nodo_(std::move(nodo)) {}

    explicit operator bool() const noexcept { return static_cast<bool>(nodo_); }
    [[nodiscard]] IXMLDOMNode* get() const noexcept { return nodo_.get(); }

    // The exact name, prefix included.
    [[nodiscard]] Bstr nome() const;
    [[nodiscard]] DOMNodeType tipo() const;
    [[nodiscard]] bool elemento() const { return tipo() == NODE_ELEMENT; }
    // The text of the node and its descendants, as the DOM trims it.
    [[nodiscard]] Bstr testo() const;
    // The text of the first child alone, be it a reference; none without children.
    [[nodiscard]] Bstr testoPrimoFiglio() const;

    [[nodiscard]] NodoXml primoFiglio() const;
    [[nodiscard]] NodoXml fratello() const;
    // Whether a comment of that text stands before the node, on its level.
    [[nodiscard]] bool dopoCommento(std::wstring_view testo) const;

    void aggiungi(const NodoXml& figlio) const;

private:
    [[nodiscard]] NodoXml precedente() const;
    // Without what is in it.
    [[nodiscard]] NodoXml copia() const;

    ComPtr<IXMLDOMNode> nodo_;
};

class ElementoXml : public NodoXml {
public:
    using NodoXml::NodoXml;
};

// All the bytes of a file, read into memory once for whoever looks at them.
class ContenutoFile {
public:
    // Raises error 7 when there is no memory for it.
    explicit ContenutoFile(const std::wstring& percorso);

    // Whether the file could be read.
    explicit operator bool() const noexcept { return letto_; }
    [[nodiscard]] std::span<const std::byte> byte() const noexcept { return byte_; }

private:
    friend class DocumentoXml;

    Variante variante_;
    std::span<const std::byte> byte_;
    bool letto_ = false;
};

// A document without any reach outside itself: synchronous, no validation, no external entities.
class DocumentoXml {
public:
    // Raises error 429 when the parser is not installed.
    DocumentoXml();

    // Whether what the file holds could be loaded, with every reference in it replaced.
    [[nodiscard]] bool carica(const ContenutoFile& contenuto) const;
    // Raises the failure, also where the DOM reports a part success.
    void salva(const std::wstring& percorso) const;

    // The elements of exactly that name, anywhere, in document order.
    [[nodiscard]] std::vector<NodoXml> elementi(std::wstring_view nome) const;

    // New nodes of the document, attached to nothing. An element's text is set through the DOM's
    // text property.
    [[nodiscard]] ElementoXml creaElemento(std::wstring_view nome) const;
    [[nodiscard]] ElementoXml creaElemento(std::wstring_view nome, std::wstring_view testo) const;
    [[nodiscard]] NodoXml creaCData(std::wstring_view testo) const;
    [[nodiscard]] NodoXml creaCommento(std::wstring_view testo) const;
    [[nodiscard]] NodoXml creaIstruzione(std::wstring_view nome, std::wstring_view dati) const;

    void creaAttributo(const ElementoXml& elemento, std::wstring_view nome,
                       std::wstring_view valore) const;
    void aggiungi(const NodoXml& figlio) const;

private:
    [[nodiscard]] bool riferimentiNoti() const;

    ComPtr<IXMLDOMDocument> documento_;
};

// Whether the parser is installed: a document can be made.
[[nodiscard]] bool ParserXmlPresente() noexcept;
