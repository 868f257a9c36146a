#include "support/servizi/cartelleDati_win.h"

#include "support/windows/com_win.h"

#include <windows.h>

#include <shlobj.h>

CartelleDati cartelleUtente(std::wstring_view applicazione) {
    wchar_t* cartella = nullptr;
    const HRESULT hr = SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &cartella);
    // To be freed even when the call fails.
    const MemoriaCom<wchar_t> memoria(cartella);
    if (FAILED(hr)) {
        return {};
    }
    const std::wstring radice = std::wstring(cartella).append(L"\\").append(applicazione);
    return {.copie = radice + L"\\copie", .diario = radice + L"\\diario"};
}
