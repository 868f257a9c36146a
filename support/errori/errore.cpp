#include "support/errori/errore.h"

#include "support/caratteri/codifica.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

struct Voce {
    std::int32_t numero;
    std::wstring_view testo;
};

constexpr std::array tabella{
    Voce{3, L"Return senza GoSub"},
    Voce{5, L"Chiamata di routine o argomento non valido"},
    Voce{6, L"Overflow"},
    Voce{7, L"Memoria esaurita"},
    Voce{9, L"Indice non incluso nell'intervallo"},
    Voce{11, L"Divisione per zero"},
    Voce{13, L"Tipo non corrispondente"},
    Voce{52, L"Nome o numero di file non valido"},
    Voce{53, L"Impossibile trovare il file"},
    Voce{55, L"File già aperto"},
    Voce{57, L"Errore di I/O della periferica"},
    Voce{58, L"File già esistente"},
    Voce{61, L"Disco pieno"},
    Voce{62, L"Input oltre la fine del file"},
    Voce{67, L"Troppi file"},
    Voce{68, L"Periferica non disponibile"},
    Voce{70, L"Autorizzazione negata"},
    Voce{71, L"Disco non pronto"},
    Voce{75, L"Errore di accesso al percorso/file"},
    Voce{76, L"Impossibile trovare il percorso"},
    Voce{91, L"Variabile oggetto o variabile del blocco With non impostata"},
    Voce{380, L"Valore di proprietà non valido"},
    Voce{424, L"Necessario oggetto"},
    Voce{429, L"Il componente ActiveX non può creare l'oggetto"},
    Voce{438, L"Proprietà o metodo non supportati dall'oggetto"},
    Voce{440, L"Errore di automazione"},
    Voce{481, L"Immagine non valida"},
};

// The program's own; before ": " stands what the error befell.
constexpr std::array proprie{
    Voce{errori::dataNonValida,
         L"Formato data/orario non valido (es. Sat, 11 Jun 2005 15:00:00 +0100)."},
    Voce{errori::meseNonValido, L": nome mese non valido."},
    Voce{errori::recenteMancante, L": impossibile trovare il file."},
    Voce{errori::senzaImmagine, L"E' necessario valorizzare la proprietà objImg."},
    Voce{errori::senzaDialogo, L"E' necessario valorizzare la proprietà objDlg."},
    Voce{errori::immagineMancante, L": file non trovato."},
    Voce{errori::nessunElemento,
         L"Per salvare il documento è necessario immettere almeno un contenuto. Salvataggio non "
         L"consentito."},
    Voce{errori::feedNonCaricabile, L": impossibile caricare il documento."},
    Voce{errori::feedNonValido, L": formato non valido."},
    Voce{errori::feedNonSupportato, L": formato non supportato."},
    Voce{errori::dialogoAnnullato, L"Operazione annullata"},
};

static_assert(std::ranges::is_sorted(tabella, {}, &Voce::numero));
static_assert(std::ranges::is_sorted(proprie, {}, &Voce::numero));

template <std::size_t quante>
std::wstring_view cerca(const std::array<Voce, quante>& voci, std::int32_t numero) noexcept {
    const auto* const voce = std::ranges::lower_bound(voci, numero, {}, &Voce::numero);
    return voce != voci.end() && voce->numero == numero ? voce->testo : std::wstring_view{};
}

} // namespace

Errore::Errore(std::int32_t numero, std::wstring descrizione)
    : numero_(numero), descrizione_(std::move(descrizione)),
      what_("error " + std::to_string(numero) + ": " + comeUtf8(descrizione_)) {}

std::wstring_view testoErrore(std::int32_t numero) noexcept {
    return cerca(tabella, numero);
}

void solleva(std::int32_t numero, std::wstring_view chi) {
    const std::wstring_view diSistema = testoErrore(numero);
    throw Errore(numero,
                 std::wstring(chi).append(diSistema.empty() ? cerca(proprie, numero) : diSistema));
}
