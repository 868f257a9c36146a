#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

// A walk over the markup of an XML document as it stands in its bytes, before any parser has seen
// it. It does not judge: what is not well formed ends the walk or passes as something else, and is
// for the parser to refuse.

// An attribute of a start tag, the value without its quotes and with its references unresolved.
struct AttributoXml {
    std::string_view nome;
    std::string_view valore;
};

// Hears of each piece in the order of the document. Texts are bytes of the document, UTF-8 where it
// is in UTF-16, and live until the walk ends.
class LettoreMarcatori {
public:
    LettoreMarcatori() = default;
    LettoreMarcatori(const LettoreMarcatori&) = delete;
    LettoreMarcatori& operator=(const LettoreMarcatori&) = delete;

    virtual void apre(std::string_view nome, std::span<const AttributoXml> attributi) = 0;
    // Also right after `apre` for an element without content.
    virtual void chiude() = 0;
    // Between two tags; never empty.
    virtual void testo(std::string_view testo) = 0;
    virtual void cdata() = 0;
    virtual void commento(std::string_view testo) = 0;
    // The XML declaration is none.
    virtual void istruzione() = 0;
    // A DOCTYPE, with the text between its brackets.
    virtual void tipoDocumento(std::string_view interno) = 0;
    // Asked after each piece: whether the walk may end here.
    [[nodiscard]] virtual bool basta() const noexcept = 0;

protected:
    ~LettoreMarcatori() = default;
};

// Walks the bytes of a document in UTF-8, in UTF-16 of either order or in an encoding whose ASCII
// characters stand for themselves.
void scorriMarcatori(std::span<const std::byte> documento, LettoreMarcatori& lettore);

// Where a declaration of the kind `<!... >` or a start tag that begins at `da` ends: the place of
// its ">" outside quotes and inner brackets; npos when it never ends.
[[nodiscard]] std::size_t fineMarcatore(std::string_view testo, std::size_t da) noexcept;

// White space in the sense of XML.
[[nodiscard]] constexpr bool spazioXml(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
