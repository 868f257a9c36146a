#include "support/impostazioni_win.h"

#include "support/errori_win.h"
#include "support/maniglie_win.h"

#include <windows.h>

ImpostazioniRegistro::ImpostazioniRegistro(std::wstring_view applicazione)
    : radice_(L"Software\\VB and VBA Program Settings\\" + std::wstring(applicazione)) {}

std::wstring ImpostazioniRegistro::percorso(std::wstring_view sezione) const {
    return radice_ + L'\\' + std::wstring(sezione);
}

std::wstring ImpostazioniRegistro::leggi(std::wstring_view sezione, std::wstring_view chiave,
                                         std::wstring_view altrimenti) const {
    const std::wstring dove = percorso(sezione);
    const std::wstring nome(chiave);
    // Another program may write between the two calls: ask again while the value grows.
    for (DWORD byte = 0;;) {
        std::wstring valore(byte / sizeof(wchar_t), L'\0');
        const LSTATUS esito =
            RegGetValueW(HKEY_CURRENT_USER, dove.c_str(), nome.c_str(), RRF_RT_REG_SZ, nullptr,
                         byte == 0 ? nullptr : valore.data(), &byte);
        if (esito == ERROR_MORE_DATA || (esito == ERROR_SUCCESS && valore.empty() && byte > 0)) {
            continue;
        }
        if (esito != ERROR_SUCCESS) {
            return std::wstring(altrimenti);
        }
        valore.resize(valore.find(L'\0') == std::wstring::npos ? valore.size()
                                                               : valore.find(L'\0'));
        return valore;
    }
}

void ImpostazioniRegistro::scrivi(std::wstring_view sezione, std::wstring_view chiave,
                                  std::wstring_view valore) {
    const std::wstring testo(valore);
    const LSTATUS esito = RegSetKeyValueW(HKEY_CURRENT_USER, percorso(sezione).c_str(),
                                          std::wstring(chiave).c_str(), REG_SZ, testo.c_str(),
                                          static_cast<DWORD>((testo.size() + 1) * sizeof(wchar_t)));
    if (esito != ERROR_SUCCESS) {
        sollevaWin32(static_cast<DWORD>(esito));
    }
}
