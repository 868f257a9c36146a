#include "support/errori/errore.h"
#include "tests/aiuti/formati.h"
#include "ui/controls/valoreNumerico.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Any keys into any text: the filter lets through only what may form a number, the value is always
// one, and what leaves the box is within its limits and reads as it was written.

namespace {

void pretendi(bool vero) {
    if (!vero) {
        std::abort();
    }
}

class Conta final : public EventiLimite {
public:
    void MassimoSuperato(double /*vmassimo*/) override { ++massimi; }
    void MinimoSuperato(double /*vminimo*/) override { ++minimi; }
    int massimi = 0;
    int minimi = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    if (quanti < 4) {
        return 0;
    }
    const FormatoLocale& formato = dati[0] % 2 == 0 ? italiano : inglese;
    const auto codice = [](std::uint8_t scelta) {
        return static_cast<std::uint8_t>(scelta % 3 == 0 ? 0 : scelta % 3 == 1 ? ',' : '.');
    };
    const Separatori separatori{codice(dati[0] / 2), codice(dati[0] / 8)};
    ValoreNumerico regole;
    const double massimo = dati[1] * 100.0 + 1;
    const double minimo = -static_cast<double>(dati[2]);
    regole.Minimo(minimo);
    regole.Massimo(massimo);
    constexpr int decimali = 3;
    regole.CifreDecimali(decimali);
    regole.VisualizzaZero(dati[3] % 2 == 0);

    std::wstring testo;
    std::wstring libero;
    for (std::size_t i = 4; i + 1 < quanti; i += 2) {
        const auto tasto = static_cast<wchar_t>(dati[i] | (dati[i + 1] % 4) << 8);
        libero += tasto;
        const bool fermo = !testo.empty() && (ValoreNumerico::leggi(testo, formato) >= massimo ||
                                              ValoreNumerico::leggi(testo, formato) < minimo);
        const wchar_t fatto = regole.filtra(tasto, testo, 0, separatori, formato);
        pretendi(fatto == 0 || fatto == 8 || fatto == L'-' || (fatto >= L'0' && fatto <= L'9') ||
                 (separatori.decimale != 0 && fatto == wchar_t{separatori.decimale}));
        pretendi(!fermo || fatto == 0 || fatto == 8 || fatto == L'-');
        if (fatto == 8) {
            if (!testo.empty()) {
                testo.pop_back();
            }
        } else if (fatto != 0) {
            testo += fatto;
        }
    }
    for (const auto& t : {testo, libero}) {
        const double valore = ValoreNumerico::leggi(t, formato);
        pretendi(std::isfinite(valore));
        Conta conta;
        const auto uscito = regole.esci(t, formato, conta);
        pretendi(uscito.has_value() == !t.empty());
        if (uscito) {
            pretendi(*uscito >= minimo && *uscito <= massimo);
            pretendi(conta.massimi == (valore > massimo ? 1 : 0));
            pretendi(conta.minimi == (valore < minimo ? 1 : 0));
            const std::wstring scritto = regole.scrivi(*uscito, formato);
            pretendi(scritto.empty() == (*uscito == 0 && !regole.VisualizzaZero()));
            const double riletto = ValoreNumerico::leggi(scritto, formato);
            pretendi(std::abs(riletto - *uscito) <= 0.00050001);
        }
        for (const auto verso : {Verso::Su, Verso::Giu}) {
            const double scattato = regole.scatta(t, verso, formato);
            pretendi(scattato >= minimo && scattato <= massimo);
        }
    }
    return 0;
}
