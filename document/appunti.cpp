#include "document/appunti.h"

#include "document/byteDiario.h"
#include "support/caratteri/codifica.h"
#include "support/testi/testo.h"

#include <array>
#include <string_view>

namespace {

// The digit is the format's number.
constexpr std::string_view marca = "OSTRELLE APPUNTI 1";

// A text in an HTML page, in quotation marks too.
std::wstring inHtml(std::wstring_view testo) {
    std::wstring risultato(testo);
    for (const auto& [carattere, entita] :
         {std::pair{L"&", L"&amp;"}, {L"<", L"&lt;"}, {L">", L"&gt;"}, {L"\"", L"&quot;"}}) {
        risultato = sostituisci(risultato, carattere, entita);
    }
    return risultato;
}

// A position in bytes, in as many digits whatever it is: the header that it stands in moves by
// none.
std::string posizione(std::size_t byte) {
    std::string cifre = std::to_string(byte);
    return cifre.insert(0, std::string(10 - cifre.size(), '0'));
}

std::string testataHtml(const std::array<std::size_t, 4>& posizioni) {
    constexpr std::array<std::string_view, 4> nomi{"StartHTML", "EndHTML", "StartFragment",
                                                   "EndFragment"};
    std::string testata = "Version:0.9\r\n";
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        testata.append(nomi[i]).append(1, ':').append(posizione(posizioni[i])).append("\r\n");
    }
    return testata;
}

} // namespace

std::string byteAppunti(const ElementoAppunti& appunti) {
    ContenutoRecord contenuto;
    contenuto.numero(appunti.tagliato ? 1 : 0);
    contenuto.elemento(*appunti.elemento);
    std::uint64_t catena = 0;
    return std::string(marca) + record(TipoRecord::Appunti, contenuto, catena);
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
    std::wstring frammento = inHtml(titolo.empty() ? link : titolo);
    if (!link.empty()) {
        frammento = L"<a href=\"" + inHtml(link) + L"\">" + frammento + L"</a>";
    }
    const std::string prima = "<html><body>\r\n<!--StartFragment-->";
    const std::string mezzo = comeUtf8(frammento);
    const std::string dopo = "<!--EndFragment-->\r\n</body></html>";
    const std::size_t inizio = testataHtml({}).size();
    const std::size_t da = inizio + prima.size();
    const std::size_t a = da + mezzo.size();
    return testataHtml({inizio, a + dopo.size(), da, a}) + prima + mezzo + dopo;
}
