#include "document/ricerca.h"

#include "support/testi/testo.h"

#include <algorithm>

namespace {

constexpr bool primaMeta(wchar_t c) noexcept {
    return c >= 0xD800 && c <= 0xDBFF;
}

// Whether a text begins with a folded one. Folds no more of it than that takes: a title may be as
// long as it likes.
bool comincia(std::wstring_view testo, std::wstring_view piegate, std::wstring& memoria) {
    for (std::size_t quanti = piegate.size();; quanti *= 2) {
        // A pair of surrogates is one character.
        quanti += quanti < testo.size() && primaMeta(testo[quanti - 1]) ? 1 : 0;
        piega(testo.substr(0, quanti), Maiuscole::Ignora, memoria);
        if (memoria.size() >= piegate.size() || quanti >= testo.size()) {
            return memoria.starts_with(piegate);
        }
    }
}

// The nth of `quanti` places from one on, around the end.
constexpr int giro(int da, int n, int quanti) noexcept {
    return (da + n) % quanti;
}

int primoTitolo(const TabellaElementi& tabella, std::wstring_view lettere, int da) {
    std::wstring piegate;
    std::wstring memoria;
    piega(lettere, Maiuscole::Ignora, piegate);
    const int quanti = tabella.conteggio();
    const int prima = da < quanti ? da : 0;
    for (int n = 0; n < quanti && !piegate.empty(); ++n) {
        const int indice = giro(prima, n, quanti);
        if (comincia(rifila(tabella(CampoElemento::Titolo, indice)), piegate, memoria)) {
            return indice;
        }
    }
    return -1;
}

} // namespace

std::optional<Trovato> cerca(const TabellaElementi& tabella, const Criterio& criterio, int corrente,
                             Direzione verso) {
    std::wstring piegato;
    std::wstring memoria;
    piega(criterio.testo, criterio.maiuscole, piegato);
    const int quanti = tabella.conteggio();
    const bool avanti = verso == Direzione::Avanti;
    const int prima = avanti ? corrente + 1 : (corrente < 0 ? quanti : corrente) - 1;
    for (int n = 0; n < quanti && !piegato.empty(); ++n) {
        const int indice = avanti ? giro(prima, n, quanti) : giro(prima, quanti - n, quanti);
        const Elemento& elemento = *tabella.elemento(indice);
        if (std::ranges::any_of(campiCercati, [&](CampoElemento campo) {
                piega(elemento[campo], criterio.maiuscole, memoria);
                return memoria.find(piegato) != std::wstring::npos;
            })) {
            return Trovato{indice, avanti ? indice < prima : indice > prima};
        }
    }
    return std::nullopt;
}

int iniziaCon(const TabellaElementi& tabella, std::wstring_view lettere, int da) {
    const int trovato = primoTitolo(tabella, lettere, da);
    const bool ripetuta =
        lettere.size() > 1 && lettere.find_first_not_of(lettere.front()) == std::wstring_view::npos;
    return trovato >= 0 || !ripetuta ? trovato : primoTitolo(tabella, lettere.substr(0, 1), da + 1);
}
