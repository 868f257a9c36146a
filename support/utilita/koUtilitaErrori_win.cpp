#include "support/utilita/koUtilita.h"

#include "support/windows/errori_win.h"

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
