#include "ui/main/recenti.h"

#include "support/impostazioni.h"
#include "support/testo.h"

namespace {

constexpr std::wstring_view sezione = L"url";

std::wstring chiave(std::size_t posizione) {
    return L"murl" + std::to_wstring(posizione);
}

} // namespace

void ElencoRecenti::CaricaRecenti() {
    voci_.clear();
    for (std::size_t i = 1; i <= massimo; ++i) {
        const std::wstring valore = impostazioni_.leggi(sezione, chiave(i), L"");
        if (const auto path = rifila(valore); !path.empty()) {
            voci_.push_back(minuscolo(path));
        }
    }
}

void ElencoRecenti::AggiungiRecente(std::wstring_view path) {
    const std::wstring primo = minuscolo(path);
    impostazioni_.scrivi(sezione, chiave(1), primo);
    std::size_t k = 2;
    for (const std::wstring& voce : voci_) {
        if (k <= massimo && rifila(voce) != rifila(primo)) {
            impostazioni_.scrivi(sezione, chiave(k), voce);
            ++k;
        }
    }
    // A store with gaps was closed up: what stood further down would stand twice.
    for (; k <= massimo; ++k) {
        if (!impostazioni_.leggi(sezione, chiave(k), L"").empty()) {
            impostazioni_.scrivi(sezione, chiave(k), L"");
        }
    }
    CaricaRecenti();
}

std::wstring didascaliaMenu(std::wstring_view path) {
    return sostituisci(path, L"&", L"&&");
}
