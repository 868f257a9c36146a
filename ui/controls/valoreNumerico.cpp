#include "ui/controls/valoreNumerico.h"

#include "support/errori/errore.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"

#include <cmath>

namespace {

constexpr wchar_t cancellaIndietro = 8;

// The characters that may form a number, one by one.
wchar_t filtraCarattere(wchar_t tasto, Separatori separatori) noexcept {
    const auto uguale = [](wchar_t c, std::uint8_t codice) {
        return codice != 0 && c == wchar_t{codice};
    };
    if (uguale(tasto, separatori.migliaia)) {
        tasto = static_cast<wchar_t>(separatori.decimale);
    }
    const bool ammesso = tasto == L'-' || (tasto >= L'0' && tasto <= L'9') ||
                         tasto == cancellaIndietro || uguale(tasto, separatori.decimale);
    return ammesso ? tasto : L'\0';
}

} // namespace

void ValoreNumerico::Massimo(double valore) {
    if (!(valore > minimo_)) {
        solleva(errori::valoreProprieta);
    }
    massimo_ = valore;
}

void ValoreNumerico::Minimo(double valore) {
    if (!(valore < massimo_)) {
        solleva(errori::valoreProprieta);
    }
    minimo_ = valore;
}

void ValoreNumerico::limiti(double massimo, double minimo) noexcept {
    massimo_ = massimo;
    minimo_ = minimo;
}

double ValoreNumerico::leggi(std::wstring_view testo, const FormatoLocale& formato) {
    return testoADouble(rifila(testo), formato.lingua).value_or(0);
}

std::wstring ValoreNumerico::scrivi(double valore, const FormatoLocale& formato) const {
    if (!std::isfinite(valore) || valore > massimo_ || valore < minimo_) {
        solleva(errori::valoreProprieta);
    }
    if (valore == 0 && !visualizzaZero_) {
        return {};
    }
    return formattaNumero(valore, 1, cifreDecimali_, formato.decimale);
}

wchar_t ValoreNumerico::filtra(wchar_t tasto, std::wstring_view testo, std::size_t selezione,
                               Separatori separatori, const FormatoLocale& formato) const {
    if (tasto != cancellaIndietro && tasto != L'-' && selezione == 0 && !rifila(testo).empty()) {
        const double valore = leggi(testo, formato);
        if (valore >= massimo_ || valore < minimo_) {
            return L'\0';
        }
    }
    return filtraCarattere(tasto, separatori);
}

std::optional<double> ValoreNumerico::esci(std::wstring_view testo, const FormatoLocale& formato,
                                           EventiLimite& eventi) const {
    if (testo.empty()) {
        return std::nullopt;
    }
    double valore = leggi(testo, formato);
    if (valore > massimo_) {
        valore = massimo_;
        eventi.MassimoSuperato(valore);
    }
    if (valore < minimo_) {
        valore = minimo_;
        eventi.MinimoSuperato(valore);
    }
    return valore;
}

double ValoreNumerico::scatta(std::wstring_view testo, Verso verso,
                              const FormatoLocale& formato) const {
    const double valore = leggi(testo, formato);
    const double nuovo = verso == Verso::Su ? valore + incremento_ : valore - incremento_;
    if (nuovo > massimo_) {
        return massimo_;
    }
    return nuovo < minimo_ ? minimo_ : nuovo;
}
