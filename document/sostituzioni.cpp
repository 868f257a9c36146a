#include "document/sostituzioni.h"

#include "document/scansioneXml.h"

#include <algorithm>

namespace {

constexpr auto npos = std::string_view::npos;

// Entities within entities that are followed; a parser gives up long before.
constexpr int annidate = 200;

// Names beyond this are not looked for: many references without an end would cost its square.
constexpr std::size_t nomeMassimo = 1'000;

// The next word and the text behind it.
std::string_view parola(std::string_view& testo) noexcept {
    const auto* inizio = std::ranges::find_if_not(testo, spazioXml);
    const auto* fine = std::find_if(inizio, testo.end(), spazioXml);
    const std::string_view trovata(inizio, static_cast<std::size_t>(fine - inizio));
    testo.remove_prefix(static_cast<std::size_t>(fine - testo.begin()));
    return trovata;
}

} // namespace

void Sostituzioni::dichiara(std::string_view interno) {
    std::size_t da = interno.find("<!");
    while (da != npos) {
        const bool commento = interno.substr(da, 4) == "<!--";
        const std::size_t fine =
            commento ? interno.find("-->", da + 4) : fineMarcatore(interno, da);
        if (fine == npos) {
            return;
        }
        std::string_view resto = interno.substr(da + 2, fine - da - 2);
        if (parola(resto) == "ENTITY") {
            const std::string_view nome = parola(resto);
            const std::size_t apre = resto.find_first_not_of(" \t\r\n");
            // The first declaration of a name holds.
            if (nome != "%" && apre != npos && (resto[apre] == '"' || resto[apre] == '\'')) {
                const std::size_t chiude = resto.find(resto[apre], apre + 1);
                entita_.emplace(nome, Entita{resto.substr(apre + 1, chiude - apre - 1)});
            }
        }
        da = interno.find("<!", fine);
    }
}

std::size_t Sostituzioni::lunghezza(std::string_view testo) {
    return lunghezza(testo, 0);
}

std::size_t Sostituzioni::lunghezza(std::string_view testo, int profondita) {
    std::size_t somma = 0;
    for (std::size_t da = testo.find('&'); da != npos; da = testo.find('&', da + 1)) {
        const std::string_view nome = testo.substr(da + 1, nomeMassimo);
        const auto trovata = entita_.find(nome.substr(0, nome.find(';')));
        if (trovata != entita_.end()) {
            somma = std::min(massima, somma + lunghezzaDi(trovata->second, profondita));
        }
    }
    return somma;
}

std::size_t Sostituzioni::lunghezzaDi(Entita& entita, int profondita) {
    if (entita.nota || entita.inCorso || profondita > annidate) {
        return entita.lunghezza;
    }
    entita.inCorso = true;
    entita.lunghezza =
        std::min(massima, entita.valore.size() + lunghezza(entita.valore, profondita + 1));
    entita.inCorso = false;
    entita.nota = true;
    return entita.lunghezza;
}
