#pragma once

#include "document/tabellaElementi.h"
#include "support/testi/sistema.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What is looked for among the items. Accents never count.
struct Criterio {
    std::wstring testo;
    Maiuscole maiuscole = Maiuscole::Ignora;
};

enum class Direzione : std::uint8_t { Avanti, Indietro };

struct Trovato {
    int indice = 0;
    // The search went past the last item, or the first, and on from the other end.
    bool ripresa = false;
};

// The fields that a search reads.
inline constexpr std::array campiCercati{CampoElemento::Titolo, CampoElemento::Descrizione,
                                         CampoElemento::Autore, CampoElemento::Link};

// The nearest item after `corrente`, or before it, one of whose texts has the one looked for; all
// of them are looked at, the current one last. With -1 for `corrente` the search begins at an end.
// A text without any letter but accents is nowhere.
[[nodiscard]] std::optional<Trovato> cerca(const TabellaElementi& tabella, const Criterio& criterio,
                                           int corrente, Direzione verso);

// The first item from index `da` on (from the first where there is none), and around the end, whose
// title begins with these letters, case and accents aside; -1 when there is none. Looks at the
// titles' beginnings only. One letter typed again and again that no title begins with in that
// number goes on by single letters: to the first item after `da`.
[[nodiscard]] int iniziaCon(const TabellaElementi& tabella, std::wstring_view lettere, int da);
