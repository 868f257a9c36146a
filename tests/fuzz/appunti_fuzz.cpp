#include "document/appunti.h"
#include "document/byteDiario.h"

#include "tests/fuzz/ingresso.h"

#include <cstdint>
#include <string>

namespace {

// What reads is written again and must read as the same.
void prova(const std::string& byte) {
    const auto letto = leggiAppunti(std::as_bytes(std::span(byte)));
    if (!letto) {
        return;
    }
    const std::string rifatto = byteAppunti(*letto);
    const auto riletto = leggiAppunti(std::as_bytes(std::span(rifatto)));
    esigi(riletto && *riletto->elemento == *letto->elemento &&
          riletto->tagliato == letto->tagliato);
    const std::string html = htmlAppunti(*letto->elemento);
    esigi(html.ends_with("<!--EndFragment-->\r\n</body></html>"));
    esigi(testoAppunti(*letto->elemento).size() <=
          (*letto->elemento)[CampoElemento::Titolo].size() +
              (*letto->elemento)[CampoElemento::Link].size() + 2);
}

} // namespace

// The bytes as they are, and as the contents of a record whose checksum is right: that alone would
// never be guessed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const std::string byte(reinterpret_cast<const char*>(dati), quanti);
    prova(byte);
    std::uint64_t catena = 0;
    prova("OSTRELLE APPUNTI 1" + record(TipoRecord::Appunti, ContenutoRecord(byte), catena));
    // Six texts of their own length, which bytes at random seldom are.
    ContenutoRecord contenuto;
    contenuto.numero(quanti % 2);
    const std::wstring testo = testoDa(dati, quanti);
    for (std::size_t i = 0; i < numeroCampi; ++i) {
        contenuto.testo(std::wstring_view(testo).substr(testo.size() * i / numeroCampi));
    }
    catena = 0;
    prova("OSTRELLE APPUNTI 1" + record(TipoRecord::Appunti, contenuto, catena));
    return 0;
}
