#include "support/testi/numeri.h"

#include "support/errori/errore.h"
#include "tests/fuzz/ingresso.h"

#include <cmath>
#include <cstring>

namespace {

void perIlTesto(const std::wstring& testo) {
    const double iniziale = valoreIniziale(testo);
    esigi(!std::isnan(iniziale));
    // Blanks count nowhere, and what follows a stranger does not count.
    esigi(valoreIniziale(L" \t" + testo) == iniziale);
    esigi(valoreIniziale(testo + L"x9") == iniziale);
}

void perIlReale(double valore, int intere, int decimali) {
    if (!std::isfinite(valore)) {
        return;
    }
    const std::wstring testo = formattaNumero(valore, intere, decimali, L'.');
    const bool meno = testo.starts_with(L'-');
    const auto punto = testo.find(L'.');
    const auto interi = (decimali > 0 ? punto : testo.size()) - (meno ? 1 : 0);
    esigi(interi >= static_cast<std::size_t>(intere));
    esigi(decimali == 0 ? punto == std::wstring::npos
                        : testo.size() - punto - 1 == static_cast<std::size_t>(decimali));
    esigi(testo.find_first_not_of(L"-.0123456789") == std::wstring::npos);
    if (meno) {
        esigi(valore < 0 && testo.find_first_of(L"123456789") != std::wstring::npos);
    }
    // Half a unit of the last place, and the 15 digits that a double shows; rounded up to those,
    // the very largest doubles are none any more.
    if (std::fabs(valore) < 1e308) {
        const double errore = std::fabs(valoreIniziale(testo) - valore);
        esigi(errore <= 0.5 * std::pow(10.0, -decimali) + std::fabs(valore) * 1e-14);
    }
    try {
        const std::int32_t intero = aInt32(valore);
        esigi(std::fabs(valore - intero) <= 0.5);
    } catch (const Errore& e) {
        esigi(e.numero() == errori::overflow && std::fabs(valore) >= 2147483647.5);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const std::wstring testo = testoDa(dati, quanti);
    perIlTesto(testo);
    if (quanti >= sizeof(double) + 1) {
        double valore = 0;
        std::memcpy(&valore, dati + 1, sizeof valore);
        perIlReale(valore, dati[0] & 7, (dati[0] >> 3) & 7);
        perIlReale(valoreIniziale(testo), dati[0] & 7, (dati[0] >> 3) & 7);
    }
    return 0;
}
