#include "document/appunti.h"

#include "document/byteDiario.h"
#include "support/caratteri/codifica.h"
#include "support/testi/testo.h"

#include <string_view>

namespace {

// The digit is the format's number.
constexpr std::string_view marca = "OSTRELLE APPUNTI 1";

// Appended as an HTML page has it, in quotation marks too.
void aggiungiInHtml(std::wstring& html, std::wstring_view testo) {
    for (const wchar_t c : testo) {
        switch (c) {
        case L'&':
            html += L"&amp;";
            break;
        case L'<':
            html += L"&lt;";
            break;
        case L'>':
            html += L"&gt;";
            break;
        case L'"':
            html += L"&quot;";
            break;
        default:
            html += c;
        }
    }
}

// Writes a position in bytes over the zeros behind a name of the header.
void scriviPosizione(std::string& html, std::string_view nome, std::size_t posizione) {
    constexpr std::size_t cifre = 10;
    for (std::size_t dove = html.find(nome) + nome.size() + cifre; posizione > 0; posizione /= 10) {
        html[--dove] = static_cast<char>('0' + posizione % 10);
    }
}

} // namespace

std::string byteAppunti(const ElementoAppunti& appunti) {
    ContenutoRecord contenuto;
    contenuto.numero(appunti.tagliato ? 1 : 0);
    contenuto.elemento(*appunti.elemento);
    std::uint64_t catena = 0;
    return record(TipoRecord::Appunti, contenuto, catena).insert(0, marca);
}

std::optional<ElementoAppunti> leggiAppunti(std::span<const std::byte> byte) {
    const std::string_view inizio(reinterpret_cast<const char*>(byte.data()), byte.size());
    if (!inizio.starts_with(marca)) {
        return std::nullopt;
    }
    byte = byte.subspan(marca.size());
    std::uint64_t catena = 0;
    const auto letto = leggiRecord(byte, catena);
    if (!letto || letto->tipo != TipoRecord::Appunti) {
        return std::nullopt;
    }
    LettoreRecord lettore(letto->contenuto);
    const auto tagliato = lettore.piccolo(1);
    ElementoCondiviso elemento = lettore.elemento();
    if (!tagliato || !elemento || !lettore.finito()) {
        return std::nullopt;
    }
    return ElementoAppunti{std::move(elemento), *tagliato == 1};
}

std::wstring testoAppunti(const Elemento& elemento) {
    std::wstring testo(rifila(elemento[CampoElemento::Titolo]));
    const std::wstring_view link = rifila(elemento[CampoElemento::Link]);
    if (!testo.empty() && !link.empty()) {
        testo += L"\r\n";
    }
    return testo.append(link);
}

std::string htmlAppunti(const Elemento& elemento) {
    const std::wstring_view titolo = rifila(elemento[CampoElemento::Titolo]);
    const std::wstring_view link = rifila(elemento[CampoElemento::Link]);
    std::wstring frammento;
    if (!link.empty()) {
        frammento = L"<a href=\"";
        aggiungiInHtml(frammento, link);
        frammento += L"\">";
    }
    aggiungiInHtml(frammento, titolo.empty() ? link : titolo);
    if (!link.empty()) {
        frammento += L"</a>";
    }
    std::string html = "Version:0.9\r\nStartHTML:0000000000\r\nEndHTML:0000000000\r\n"
                       "StartFragment:0000000000\r\nEndFragment:0000000000\r\n";
    scriviPosizione(html, "StartHTML:", html.size());
    html += "<html><body>\r\n<!--StartFragment-->";
    scriviPosizione(html, "StartFragment:", html.size());
    html += comeUtf8(frammento);
    scriviPosizione(html, "EndFragment:", html.size());
    html += "<!--EndFragment-->\r\n</body></html>";
    scriviPosizione(html, "EndHTML:", html.size());
    return html;
}
