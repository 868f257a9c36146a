#include "support/utilita/koUtilita.h"

#include "support/testi/numeri.h"
#include "support/windows/errori_win.h"

namespace {

// What a message box says of an error.
std::wstring descrizioneDi(const Errore& errore) {
    return errore.numero() == errori::nomeFileNonValido
               ? L"Impossibile leggere l'unità specificata."
               : errore.descrizione();
}

} // namespace

void koUtilita::PrintErrore() const {
    const Errore errore = erroreCorrente();
    messaggi_.avvisa(descrizioneDi(errore), L"Errore " + testoConSegno(errore.numero()),
                     Icona::Informazione);
}

void koUtilita::PrintErroreEx(std::wstring_view dove) const {
    const Errore errore = erroreCorrente();
    const std::wstring titolo = L"Errore " + std::to_wstring(errore.numero());
    std::wstring testo = titolo;
    if (!dove.empty()) {
        testo += L" in ";
        testo += dove;
    }
    messaggi_.avvisa(testo + L": " + descrizioneDi(errore), titolo, Icona::Critica);
}
