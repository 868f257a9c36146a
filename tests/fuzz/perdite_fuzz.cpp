// The pass over a feed's bytes: any bytes, no crash, and limits that hold.

#include "document/perdite.h"

#include "tests/fuzz/ingresso.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const EsameFeed esame = esaminaFeed(std::as_bytes(std::span(dati, quanti)));
    std::int32_t prima = esame.perdite.empty() ? 0 : esame.perdite.front().volte;
    for (const Perdita& perdita : esame.perdite) {
        esigi(perdita.volte > 0 && perdita.volte <= prima);
        esigi(static_cast<std::size_t>(perdita.volte) <= quanti);
        prima = perdita.volte;
    }
    return 0;
}
