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

// What the system takes for blank around a number.
constexpr bool bianco(wchar_t c) noexcept {
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F ||
           c == 0x205F || c == 0x3000;
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
    // A digit of another base; too great from 32 bits on.
    void inBase(std::uint64_t base, int cifra) noexcept {
        constexpr std::uint64_t limite = 0x80000000;
        cifre_ = std::min(cifre_ * base + static_cast<std::uint64_t>(cifra), limite);
        scala_ = cifre_ == limite ? 5000 : 0;
    }

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

// What the system's conversion of a text to a number reads; see the header for what it leaves out.
class LettoreNumero {
public:
    struct Letto {
        double valore;
        // Written with &H or &O.
        bool inBase;
    };

    LettoreNumero(std::wstring_view testo, const FormatoLocale& formato) noexcept
        : testo_(testo), formato_(formato) {}

    // Infinite when the number is too great.
    [[nodiscard]] std::optional<Letto> leggi() {
        prima();
        const bool inBase = prendi(L'&');
        if (!(inBase ? base() : decimale()) || !dopo()) {
            return std::nullopt;
        }
        const double valore = mantissa_.valore();
        // A sign before &H is read and means nothing.
        return Letto{negativo_ && !inBase ? -valore : valore, inBase};
    }

private:
    [[nodiscard]] wchar_t guarda() const noexcept {
        return testo_.empty() ? L'\0' : testo_.front();
    }
    bool prendi(wchar_t c) noexcept {
        if (testo_.empty() || testo_.front() != c) {
            return false;
        }
        testo_.remove_prefix(1);
        return true;
    }
    void saltaBianchi() noexcept {
        while (bianco(guarda())) {
            testo_.remove_prefix(1);
        }
    }

    // Before the digits: blanks, one sign of each kind, one parenthesis, in any order.
    void prima() noexcept {
        for (;;) {
            saltaBianchi();
            if (!piu_ && prendi(L'+')) {
                piu_ = true;
            } else if (!meno_ && prendi(L'-')) {
                meno_ = negativo_ = true;
            } else if (!aperta_ && prendi(L'(')) {
                aperta_ = negativo_ = true;
            } else {
                return;
            }
        }
    }

    // After them: blanks, signs of a kind that did not stand before, the closing parenthesis.
    [[nodiscard]] bool dopo() noexcept {
        for (;;) {
            saltaBianchi();
            if (!meno_ && prendi(L'-')) {
                negativo_ = true;
            } else if (aperta_ && prendi(L')')) {
                aperta_ = false;
            } else if (piu_ || !prendi(L'+')) {
                return testo_.empty() && !aperta_;
            }
        }
    }

    [[nodiscard]] bool decimale() noexcept {
        bool lette = false;
        bool decimali = false;
        for (; !testo_.empty(); testo_.remove_prefix(1)) {
            const wchar_t c = guarda();
            if (cifra(c)) {
                decimali ? mantissa_.decimale(c) : mantissa_.intero(c);
                lette = true;
            } else if (c == formato_.decimale && !decimali) {
                decimali = true;
            } else if (c != formato_.migliaia || !(lette || decimali)) {
                break;
            }
        }
        return lette && ((!prendi(L'e') && !prendi(L'E')) || esponente());
    }

    [[nodiscard]] bool esponente() noexcept {
        const bool meno = prendi(L'-');
        if (!meno) {
            static_cast<void>(prendi(L'+'));
        }
        if (!cifra(guarda())) {
            return false;
        }
        int valore = 0;
        for (; cifra(guarda()); testo_.remove_prefix(1)) {
            valore = std::min(valore * 10 + (guarda() - L'0'), 5000);
        }
        mantissa_.esponente(meno ? -valore : valore);
        return true;
    }

    // The digits after &H or &O.
    [[nodiscard]] bool base() noexcept {
        const bool esadecimale = prendi(L'H') || prendi(L'h');
        if (!esadecimale && !prendi(L'O') && !prendi(L'o')) {
            return false;
        }
        bool lette = false;
        for (;; lette = true, testo_.remove_prefix(1)) {
            const wchar_t c = guarda();
            if (esadecimale && ((c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F'))) {
                mantissa_.inBase(16, (c | 0x20) - L'a' + 10);
            } else if (cifra(c) && (esadecimale || c < L'8')) {
                mantissa_.inBase(esadecimale ? 16 : 8, c - L'0');
            } else {
                return lette;
            }
        }
    }

    std::wstring_view testo_;
    const FormatoLocale& formato_;
    Mantissa mantissa_;
    bool piu_ = false;
    bool meno_ = false;
    bool aperta_ = false;
    bool negativo_ = false;
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
    const auto letto = LettoreNumero(testo, formato).leggi();
    return letto && std::isfinite(letto->valore) ? std::optional(letto->valore) : std::nullopt;
}

std::int16_t testoAInt16(std::wstring_view testo, const FormatoLocale& formato) {
    const auto letto = LettoreNumero(testo, formato).leggi();
    if (!letto) {
        solleva(errori::tipoNonCorrispondente);
    }
    // &H8000 to &HFFFF are the bits of a negative.
    constexpr double giro = 0x10000;
    const bool bit = letto->inBase && letto->valore >= giro / 2 && letto->valore < giro;
    return aInt16(bit ? letto->valore - giro : letto->valore);
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
