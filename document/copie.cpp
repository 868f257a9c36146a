#include "document/copie.h"

#include "support/testi/testo.h"

#include <algorithm>
#include <array>
#include <utility>

namespace copie {

namespace {

constexpr std::size_t nomeMassimo = 100;
// "2026-11-21 13.05.00"
constexpr std::size_t lunghezzaOra = 19;

std::wstring_view soloNome(std::wstring_view percorso) noexcept {
    return percorso.substr(percorso.find_last_of(L"\\/:") + 1);
}

// FNV-1a over the two bytes of each character, the lower one first.
std::uint32_t impronta(std::wstring_view testo) noexcept {
    std::uint32_t somma = 0x811C9DC5;
    const auto aggiungi = [&](std::uint32_t byte) { somma = (somma ^ byte) * 0x01000193U; };
    for (const wchar_t c : testo) {
        const auto unita = static_cast<char32_t>(c);
        aggiungi(unita & 0xFFU);
        aggiungi((unita >> 8U) & 0xFFU);
    }
    return somma;
}

std::wstring esadecimale(std::uint32_t numero) {
    std::wstring testo(8, L'0');
    for (auto cifra = testo.rbegin(); cifra != testo.rend(); ++cifra, numero >>= 4U) {
        *cifra = L"0123456789abcdef"[numero & 0xFU];
    }
    return testo;
}

// The time in a copy's name and its number among those of that time.
std::pair<std::wstring_view, int> chiave(std::wstring_view nome) noexcept {
    const std::wstring_view resto = nome.substr(std::min(nome.size(), lunghezzaOra));
    int numero = 1;
    if (resto.starts_with(L" (")) {
        numero = 0;
        for (std::size_t i = 2; i < resto.size() && resto[i] >= L'0' && resto[i] <= L'9' && i < 9;
             ++i) {
            numero = numero * 10 + (resto[i] - L'0');
        }
    }
    return {nome.substr(0, lunghezzaOra), numero};
}

} // namespace

std::wstring nomeCartella(std::wstring_view percorso) {
    std::wstring_view nome = soloNome(percorso).substr(0, nomeMassimo);
    // Not in the middle of a surrogate pair.
    if (!nome.empty() && nome.back() >= L'\xD800' && nome.back() <= L'\xDBFF') {
        nome.remove_suffix(1);
    }
    return std::wstring(nome) + L" (" + esadecimale(impronta(maiuscolo(percorso))) + L')';
}

std::wstring nomeCopia(std::wstring_view ora, int numero, std::wstring_view percorso) {
    std::wstring nome(ora);
    if (numero > 1) {
        nome += L" (" + std::to_wstring(numero) + L')';
    }
    const std::wstring_view file = soloNome(percorso);
    const std::size_t punto = file.find_last_of(L'.');
    return punto == std::wstring_view::npos ? nome : nome.append(file.substr(punto));
}

bool piuVecchia(std::wstring_view una, std::wstring_view altra) noexcept {
    return chiave(una) < chiave(altra);
}

std::vector<Copia> daEliminare(std::vector<Copia> tutte) {
    std::ranges::sort(tutte,
                      [](const Copia& a, const Copia& b) { return piuVecchia(b.nome, a.nome); });
    // From the newest to the oldest: what stays is counted.
    struct Tenute {
        std::wstring_view cartella;
        std::size_t quante;
    };
    std::vector<Tenute> perCartella;
    std::vector<Copia> vanno;
    std::uint64_t byte = 0;
    bool pieno = false;
    for (const Copia& copia : tutte) {
        auto tenute = std::ranges::find(perCartella, copia.cartella, &Tenute::cartella);
        if (tenute == perCartella.end()) {
            tenute = perCartella.insert(tenute, {copia.cartella, 0});
        }
        // Once one went for lack of room, so do all that are older.
        pieno = pieno || byte + copia.byte > spazio;
        if (tenute->quante > 0 && (pieno || tenute->quante == perFile)) {
            vanno.push_back(copia);
        } else {
            ++tenute->quante;
            byte += copia.byte;
        }
    }
    return vanno;
}

} // namespace copie
