#include "support/servizi/messaggi_win.h"

#include "support/windows/proprietaria_win.h"
#include "support/windows/tastiTenuti_win.h"

#include <windows.h>

namespace {

UINT stile(Icona icona) noexcept {
    switch (icona) {
    case Icona::Critica:
        return MB_ICONHAND;
    case Icona::Domanda:
        return MB_ICONQUESTION;
    case Icona::Informazione:
        break;
    }
    return MB_ICONINFORMATION;
}

UINT stile(Pulsanti pulsanti) noexcept {
    switch (pulsanti) {
    case Pulsanti::SiNo:
        return MB_YESNO;
    case Pulsanti::SiNoAnnulla:
        return MB_YESNOCANCEL;
    case Pulsanti::Ok:
        break;
    }
    return MB_OK;
}

} // namespace

Risposta MessaggiWindows::mostra(const std::wstring& testo, const std::wstring& titolo, Icona icona,
                                 Pulsanti pulsanti) {
    const SenzaRipetizioni guardia;
    switch (MessageBoxW(proprietariaDiModali(), testo.c_str(), titolo.c_str(),
                        stile(icona) | stile(pulsanti))) {
    case IDYES:
        return Risposta::Si;
    case IDNO:
        return Risposta::No;
    case IDCANCEL:
        return Risposta::Annulla;
    default:
        return Risposta::Ok;
    }
}
