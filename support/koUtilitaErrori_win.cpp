#include "support/koUtilita.h"

#include "support/errori_win.h"
#include "support/maniglie_win.h"

#include <windows.h>

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

bool koUtilita::WriteAccess(const std::wstring& cartella) const {
    std::wstring file = cartella;
    AggiungiSepDir(file);
    DWORD esito = ERROR_PATH_NOT_FOUND;
    if (!file.empty()) {
        file += L"120asd12.tmp";
        const auto apri = [&file](DWORD come, DWORD alla) {
            return ManigliaFile(CreateFileW(file.c_str(),
                                            GENERIC_WRITE | (alla != 0 ? DWORD{DELETE} : 0),
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                            nullptr, come, FILE_ATTRIBUTE_NORMAL | alla, nullptr));
        };
        if (apri(CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE)) {
            return true;
        }
        esito = GetLastError();
        if (esito == ERROR_FILE_EXISTS) {
            if (apri(OPEN_EXISTING, 0)) {
                return true;
            }
            esito = GetLastError();
        }
    }
    const Errore errore = erroreWin32(esito);
    messaggi_.avvisa(errore.descrizione(), L"Errore # " + std::to_wstring(errore.numero()),
                     Icona::Critica);
    return false;
}
