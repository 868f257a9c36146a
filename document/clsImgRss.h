#pragma once

#include <cstdint>
#include <string>

// The XML layer's types: only the bodies that build elements need to know them.
class DocumentoXml;
class ElementoXml;

// The image of a channel. Each setter raises Modificato when it is given a value that differs from
// the one held (strings to the letter); setting the old value back does not lower it again.
class clsImgRss {
public:
    [[nodiscard]] const std::wstring& sTitle() const noexcept { return sTitle_; }
    [[nodiscard]] const std::wstring& sUrl() const noexcept { return sUrl_; }
    [[nodiscard]] const std::wstring& sLink() const noexcept { return sLink_; }
    // Pixels.
    [[nodiscard]] std::int32_t nWidth() const noexcept { return nWidth_; }
    [[nodiscard]] std::int32_t nHeight() const noexcept { return nHeight_; }
    [[nodiscard]] bool Modificato() const noexcept { return modificato_; }

    void sTitle(std::wstring valore);
    void sUrl(std::wstring valore);
    void sLink(std::wstring valore);
    void nWidth(std::int32_t valore) noexcept;
    void nHeight(std::int32_t valore) noexcept;
    void Modificato(bool valore) noexcept { modificato_ = valore; }

    // A new `image` element made in the document, attached to nothing. Raises what the DOM raises.
    [[nodiscard]] ElementoXml getNodoImg(const DocumentoXml& doc) const;

private:
    std::wstring sTitle_;
    std::wstring sUrl_;
    std::wstring sLink_;
    std::int32_t nWidth_ = 0;
    std::int32_t nHeight_ = 0;
    bool modificato_ = false;
};
