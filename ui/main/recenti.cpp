#include "ui/main/recenti.h"

#include "support/servizi/impostazioni.h"
#include "support/testi/testo.h"

#include <algorithm>

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
    std::vector<std::wstring> scritti;
    const auto scritto = [&](std::wstring_view voce) {
        return std::ranges::find(scritti, rifila(voce)) != scritti.end();
    };
    const auto scrivi = [&](const std::wstring& voce) {
        impostazioni_.scrivi(sezione, chiave(scritti.size() + 1), voce);
        scritti.emplace_back(rifila(voce));
    };
    scrivi(minuscolo(path));
    for (const std::wstring& voce : voci_) {
        if (scritti.size() < massimo && !scritto(voce)) {
            scrivi(voce);
        }
    }
    // What stands further down may be another copy of the program's, and stays; only what would be
    // listed twice goes.
    for (std::size_t i = scritti.size() + 1; i <= massimo; ++i) {
        if (scritto(minuscolo(impostazioni_.leggi(sezione, chiave(i), L"")))) {
            impostazioni_.scrivi(sezione, chiave(i), L"");
        }
    }
    CaricaRecenti();
}

std::wstring didascaliaMenu(std::wstring_view path) {
    return sostituisci(path, L"&", L"&&");
}
