#include "support/numeri.h"

#include "support/errore.h"
#include "support/testo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {

constexpr bool cifra(wchar_t c) noexcept {
    return c >= L'0' && c <= L'9';
}
constexpr bool spazio(wchar_t c) noexcept {
    return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n';
}

// Gathers decimal digits and an exponent into a number. 19 digits fill a 64-bit mantissa; those
// beyond only move the exponent.
class Mantissa {
public:
    void intero(wchar_t c) noexcept {
        if (!aggiungi(c)) {
            ++scala_;
        }
    }
    void decimale(wchar_t c) noexcept {
        if (aggiungi(c)) {
            --scala_;
        }
    }
    void esponente(int valore) noexcept { scala_ += valore; }

    [[nodiscard]] double valore() const noexcept {
        if (cifre_ == 0) {
            return 0;
        }
        // In steps, so that neither factor overflows on its own.
        auto v = static_cast<long double>(cifre_);
        int resto = std::clamp(scala_, -5000, 5000);
        while (resto != 0) {
            const int passo = std::clamp(resto, -27, 27);
            const long double fattore = std::pow(10.0L, std::abs(passo));
            v = passo > 0 ? v * fattore : v / fattore;
            resto -= passo;
        }
        return static_cast<double>(v);
    }

private:
    bool aggiungi(wchar_t c) noexcept {
        if (cifre_ > (std::numeric_limits<std::uint64_t>::max() - 9) / 10) {
            return false;
        }
        cifre_ = cifre_ * 10 + static_cast<std::uint64_t>(c - L'0');
        return true;
    }

    std::uint64_t cifre_ = 0;
    int scala_ = 0;
};

// One character of what Val scans; 0 at the end.
class Scansione {
public:
    explicit Scansione(std::wstring_view testo) noexcept : testo_(testo) { salta(); }
    [[nodiscard]] wchar_t guarda() const noexcept {
        return dove_ < testo_.size() ? testo_[dove_] : L'\0';
    }
    void avanti() noexcept {
        ++dove_;
        salta();
    }

private:
    void salta() noexcept {
        while (dove_ < testo_.size() && spazio(testo_[dove_])) {
            ++dove_;
        }
    }

    std::wstring_view testo_;
    std::size_t dove_ = 0;
};

template <class Intero>
Intero aIntero(double valore) {
    const double arrotondato = std::nearbyint(valore);
    if (!(arrotondato >= std::numeric_limits<Intero>::min() &&
          arrotondato <= std::numeric_limits<Intero>::max())) {
        solleva(errori::overflow);
    }
    return static_cast<Intero>(arrotondato);
}

} // namespace

double valoreIniziale(std::wstring_view testo) noexcept {
    Scansione s(testo);
    bool negativo = false;
    if (s.guarda() == L'+' || s.guarda() == L'-') {
        negativo = s.guarda() == L'-';
        s.avanti();
    }
    Mantissa mantissa;
    bool lette = false;
    for (; cifra(s.guarda()); s.avanti()) {
        mantissa.intero(s.guarda());
        lette = true;
    }
    if (s.guarda() == L'.') {
        for (s.avanti(); cifra(s.guarda()); s.avanti()) {
            mantissa.decimale(s.guarda());
            lette = true;
        }
    }
    if (lette && (s.guarda() == L'e' || s.guarda() == L'E')) {
        s.avanti();
        bool meno = false;
        if (s.guarda() == L'+' || s.guarda() == L'-') {
            meno = s.guarda() == L'-';
            s.avanti();
        }
        int esponente = 0;
        for (; cifra(s.guarda()); s.avanti()) {
            esponente = std::min(esponente * 10 + (s.guarda() - L'0'), 5000);
        }
        mantissa.esponente(meno ? -esponente : esponente);
    }
    return negativo ? -mantissa.valore() : mantissa.valore();
}

std::int16_t aInt16(double valore) {
    return aIntero<std::int16_t>(valore);
}

std::int32_t aInt32(double valore) {
    return aIntero<std::int32_t>(valore);
}

std::optional<double> testoADouble(std::wstring_view testo, const FormatoLocale& formato) {
    const auto bianco = [](wchar_t c) { return spazio(c) || c == L'\v' || c == L'\f'; };
    const auto saltaBianchi = [&] {
        while (!testo.empty() && bianco(testo.front())) {
            testo.remove_prefix(1);
        }
    };
    bool segno = false;
    bool negativo = false;
    bool parentesi = false;
    // Before the digits: blanks, one sign, one parenthesis, in any order.
    for (saltaBianchi(); !testo.empty(); saltaBianchi()) {
        const wchar_t c = testo.front();
        if ((c == L'+' || c == L'-') && !segno) {
            segno = true;
            negativo = c == L'-';
        } else if (c == L'(' && !parentesi) {
            parentesi = true;
            negativo = true;
        } else {
            break;
        }
        testo.remove_prefix(1);
    }
    Mantissa mantissa;
    bool lette = false;
    while (!testo.empty() &&
           (cifra(testo.front()) || (lette && testo.front() == formato.migliaia))) {
        if (cifra(testo.front())) {
            mantissa.intero(testo.front());
            lette = true;
        }
        testo.remove_prefix(1);
    }
    if (!testo.empty() && testo.front() == formato.decimale) {
        testo.remove_prefix(1);
        while (!testo.empty() && cifra(testo.front())) {
            mantissa.decimale(testo.front());
            lette = true;
            testo.remove_prefix(1);
        }
    }
    if (!lette) {
        return std::nullopt;
    }
    if (!testo.empty() && (testo.front() == L'e' || testo.front() == L'E')) {
        testo.remove_prefix(1);
        bool meno = false;
        if (!testo.empty() && (testo.front() == L'+' || testo.front() == L'-')) {
            meno = testo.front() == L'-';
            testo.remove_prefix(1);
        }
        if (testo.empty() || !cifra(testo.front())) {
            return std::nullopt;
        }
        int esponente = 0;
        for (; !testo.empty() && cifra(testo.front()); testo.remove_prefix(1)) {
            esponente = std::min(esponente * 10 + (testo.front() - L'0'), 5000);
        }
        mantissa.esponente(meno ? -esponente : esponente);
    }
    // After them: blanks, a sign if there was none, the closing parenthesis.
    for (saltaBianchi(); !testo.empty(); saltaBianchi()) {
        const wchar_t c = testo.front();
        if ((c == L'+' || c == L'-') && !segno && !parentesi) {
            segno = true;
            negativo = c == L'-';
        } else if (c == L')' && parentesi) {
            parentesi = false;
        } else {
            return std::nullopt;
        }
        testo.remove_prefix(1);
    }
    const double valore = mantissa.valore();
    if (parentesi || !std::isfinite(valore)) {
        return std::nullopt;
    }
    return negativo ? -valore : valore;
}

std::int16_t testoAInt16(std::wstring_view testo, const FormatoLocale& formato) {
    const auto valore = testoADouble(testo, formato);
    if (!valore) {
        solleva(errori::tipoNonCorrispondente);
    }
    return aInt16(*valore);
}

std::wstring formattaNumero(double valore, int cifreIntere, int decimali, wchar_t separatore) {
    // The decimal value the user sees has 15 digits; rounding goes on from those, so that 1.005
    // is a half although its binary form lies below.
    constexpr int significative = 15;
    std::array<char, 32> scritto{};
    std::snprintf(scritto.data(), scritto.size(), "%.*e", significative - 1, std::fabs(valore));
    const std::string_view cifreScritte(scritto.data());
    const auto posizioneE = cifreScritte.find('e');
    if (posizioneE == std::string_view::npos) {
        return L"";
    }
    std::wstring cifre;
    for (const char c : cifreScritte.substr(0, posizioneE)) {
        if (c >= '0' && c <= '9') {
            cifre += static_cast<wchar_t>(c);
        }
    }
    int esponente = 0;
    for (const char c : cifreScritte.substr(posizioneE + 2)) {
        esponente = esponente * 10 + (c - '0');
    }
    if (cifreScritte[posizioneE + 1] == '-') {
        esponente = -esponente;
    }

    // `cifre` with the decimal point after `punto` digits; keep `punto + decimali` of them.
    int punto = esponente + 1;
    if (punto < 1) {
        cifre.insert(0, static_cast<std::size_t>(1 - punto), L'0');
        punto = 1;
    }
    const auto tenute = static_cast<std::size_t>(punto + std::max(decimali, 0));
    const bool su = tenute < cifre.size() && cifre[tenute] >= L'5';
    cifre.resize(tenute, L'0');
    if (su) {
        auto i = cifre.size();
        while (i > 0 && cifre[i - 1] == L'9') {
            cifre[--i] = L'0';
        }
        if (i > 0) {
            ++cifre[i - 1];
        } else {
            cifre.insert(cifre.begin(), L'1');
            ++punto;
        }
    }

    const bool nullo = cifre.find_first_not_of(L'0') == std::wstring::npos;
    // The pattern's optional digits show no leading zeros.
    while (punto > cifreIntere && punto > 0 && cifre.front() == L'0') {
        cifre.erase(0, 1);
        --punto;
    }
    if (punto < cifreIntere) {
        cifre.insert(0, static_cast<std::size_t>(cifreIntere - punto), L'0');
        punto = cifreIntere;
    }
    if (decimali > 0) {
        cifre.insert(static_cast<std::size_t>(punto), 1, separatore);
    }
    return valore < 0 && !nullo ? L'-' + cifre : cifre;
}

std::wstring testoConSegno(std::int32_t numero) {
    return (numero < 0 ? L"" : L" ") + std::to_wstring(numero);
}
