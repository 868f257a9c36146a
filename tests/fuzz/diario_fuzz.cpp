#include "document/byteDiario.h"
#include "document/diario.h"

#include "tests/fuzz/ingresso.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace {

// The bytes as they are, and as the contents of records whose checksums are right: those alone
// would never be guessed. What reads is written again and must read as the same.
void prova(const std::string& byte) {
    const auto lettura = leggiDiario(std::as_bytes(std::span(byte)));
    if (!lettura.lavoro) {
        return;
    }
    std::string rifatto;
    ScrittoreDiario scrittore([&](std::string_view nuovi) { rifatto += nuovi; });
    scrittore.inizia(*lettura.lavoro);
    const auto riletto = leggiDiario(std::as_bytes(std::span(rifatto)));
    esigi(riletto.intero && riletto.lavoro.has_value());
    esigi(riletto.lavoro->canale == lettura.lavoro->canale);
    esigi(riletto.lavoro->bozza == lettura.lavoro->bozza);
    esigi(riletto.lavoro->modifiche == lettura.lavoro->modifiche);
    esigi(riletto.lavoro->elementi.conteggio() == lettura.lavoro->elementi.conteggio());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const std::string byte(reinterpret_cast<const char*>(dati), quanti);
    prova(byte);
    std::string diario = "OSTRELLE DIARIO 1";
    std::uint64_t catena = 0;
    for (std::size_t i = 0; i + 1 < byte.size();) {
        const auto tipo = static_cast<TipoRecord>(byte[i] & 0x0F);
        const auto lungo =
            std::min<std::size_t>(static_cast<unsigned char>(byte[i + 1]), byte.size() - i - 2);
        diario += record(tipo, ContenutoRecord(byte.substr(i + 2, lungo)), catena);
        i += 2 + lungo;
    }
    prova(diario);
    return 0;
}
