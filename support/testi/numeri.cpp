#include "support/testi/numeri.h"

#include "support/errori/errore.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {

constexpr bool spazio(wchar_t c) noexcept {
    return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n';
}

// Where a text from a place on has no digits any more, and where it has none behind a sign.
std::size_t dopoLeCifre(std::wstring_view testo, std::size_t da) noexcept {
    return std::min(testo.find_first_not_of(L"0123456789", da), testo.size());
}
std::size_t dopoIlSegno(std::wstring_view testo, std::size_t da) noexcept {
    return da < testo.size() && (testo[da] == L'+' || testo[da] == L'-') ? da + 1 : da;
}

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

double valoreIniziale(std::wstring_view testo) {
    std::wstring numero(testo);
    std::erase_if(numero, spazio);
    const auto inizio = dopoIlSegno(numero, 0);
    auto fine = dopoLeCifre(numero, inizio);
    bool lette = fine > inizio;
    if (fine < numero.size() && numero[fine] == L'.') {
        const auto punto = fine;
        fine = dopoLeCifre(numero, punto + 1);
        lette = lette || fine > punto + 1;
    }
    if (!lette) {
        return 0;
    }
    if (fine < numero.size() && (numero[fine] == L'e' || numero[fine] == L'E')) {
        const auto esponente = dopoIlSegno(numero, fine + 1);
        const auto dopo = dopoLeCifre(numero, esponente);
        fine = dopo > esponente ? dopo : fine;
    }
    numero.resize(fine);
    // Cut like this it is a number: what Windows refuses is too great.
    return testoADouble(numero, Lingua::Inglese).value_or(std::numeric_limits<double>::infinity());
}

std::int16_t aInt16(double valore) {
    return aIntero<std::int16_t>(valore);
}

std::int32_t aInt32(double valore) {
    return aIntero<std::int32_t>(valore);
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
