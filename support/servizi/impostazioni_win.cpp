#include "support/servizi/impostazioni_win.h"

#include "support/windows/registro_win.h"

#include <utility>

ImpostazioniRegistro::ImpostazioniRegistro(std::wstring_view applicazione)
    : radice_(L"Software\\VB and VBA Program Settings\\" + std::wstring(applicazione)) {}

std::wstring ImpostazioniRegistro::percorso(std::wstring_view sezione) const {
    return radice_ + L'\\' + std::wstring(sezione);
}

std::wstring ImpostazioniRegistro::leggi(std::wstring_view sezione, std::wstring_view chiave,
                                         std::wstring_view altrimenti) const {
    auto valore = leggiTesto(HKEY_CURRENT_USER, percorso(sezione), std::wstring(chiave));
    return valore ? *std::move(valore) : std::wstring(altrimenti);
}

void ImpostazioniRegistro::scrivi(std::wstring_view sezione, std::wstring_view chiave,
                                  std::wstring_view valore) {
    scriviTesto(HKEY_CURRENT_USER, percorso(sezione), std::wstring(chiave), std::wstring(valore));
}
