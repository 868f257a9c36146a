#include "support/windows/registro_win.h"

#include "support/windows/errori_win.h"

std::optional<std::wstring> leggiTesto(HKEY radice, const std::wstring& chiave,
                                       const std::wstring& nome) {
    // Most values are found at once. Another program may write meanwhile: ask again while the value
    // grows.
    for (DWORD byte = MAX_PATH * sizeof(wchar_t);;) {
        std::wstring valore(byte / sizeof(wchar_t), L'\0');
        const LSTATUS esito =
            RegGetValueW(radice, chiave.empty() ? nullptr : chiave.c_str(), nome.c_str(),
                         RRF_RT_REG_SZ, nullptr, valore.data(), &byte);
        if (esito == ERROR_MORE_DATA) {
            continue;
        }
        if (esito != ERROR_SUCCESS) {
            return std::nullopt;
        }
        valore.resize(valore.find(L'\0') == std::wstring::npos ? valore.size()
                                                               : valore.find(L'\0'));
        return valore;
    }
}

void scriviTesto(HKEY radice, const std::wstring& chiave, const std::wstring& nome,
                 const std::wstring& valore) {
    const LSTATUS esito =
        RegSetKeyValueW(radice, chiave.empty() ? nullptr : chiave.c_str(), nome.c_str(), REG_SZ,
                        valore.c_str(), static_cast<DWORD>((valore.size() + 1) * sizeof(wchar_t)));
    if (esito != ERROR_SUCCESS) {
        sollevaWin32(static_cast<DWORD>(esito));
    }
}
