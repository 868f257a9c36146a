#include "support/utilita/koUtilitaVersioni.h"

#include <algorithm>

namespace {

constexpr std::uint32_t primaBuildDi11 = 22000;

std::wstring nomeNumerico(const VersioneSO& versione) {
    return L"Windows " + std::to_wstring(versione.maggiore) + L'.' +
           std::to_wstring(versione.minore);
}

// The digits the text begins with, without leading zeros, and the text behind the next ".".
std::wstring_view primoNumero(std::wstring_view& testo) noexcept {
    auto pezzo = testo.substr(0, testo.find(L'.'));
    testo.remove_prefix(std::min(testo.size(), pezzo.size() + 1));
    pezzo.remove_prefix(std::min(pezzo.size(), pezzo.find_first_not_of(L' ')));
    pezzo.remove_prefix(std::min(pezzo.size(), pezzo.find_first_not_of(L'0')));
    return pezzo.substr(0, pezzo.find_first_not_of(L"0123456789"));
}

} // namespace

std::wstring nomeSistema(const VersioneSO& versione, std::wstring_view prodotto) {
    const auto& v = versione;
    if (!v.nt) {
        return v.minore >= 90   ? L"Windows Millennium"
               : v.minore >= 10 ? L"Windows 98"
                                : L"Windows 95";
    }
    if (v.maggiore < 5) {
        return L"Windows NT";
    }
    if (v.maggiore == 5) {
        return v.minore == 0 ? L"Windows 2000" : L"Windows XP";
    }
    constexpr std::wstring_view marca = L"Microsoft ";
    constexpr std::wstring_view dieci = L"Windows 10";
    if (prodotto.starts_with(marca)) {
        prodotto.remove_prefix(marca.size());
    }
    if (prodotto.empty()) {
        return nomeNumerico(v);
    }
    if (v.build >= primaBuildDi11 && prodotto.starts_with(dieci)) {
        return L"Windows 11" + std::wstring(prodotto.substr(dieci.size()));
    }
    return std::wstring(prodotto);
}

int koUtilitaVersioni::ConfrontaVersione(std::wstring_view VersioneA,
                                         std::wstring_view VersioneB) noexcept {
    while (!VersioneA.empty() || !VersioneB.empty()) {
        const auto a = primoNumero(VersioneA);
        const auto b = primoNumero(VersioneB);
        if (a.size() != b.size()) {
            return a.size() < b.size() ? -1 : 1;
        }
        if (const int esito = a.compare(b); esito != 0) {
            return esito;
        }
    }
    return 0;
}
