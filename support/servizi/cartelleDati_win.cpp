#include "support/servizi/cartelleDati_win.h"

#include "support/windows/com_win.h"

#include <windows.h>

#include <shlobj.h>

namespace {

// FOLDERID_LocalAppData: the library that has it would bring all the identifiers of Windows along.
constexpr GUID datiLocali{
    0xF1B32785, 0x6FBA, 0x4FCF, {0x9D, 0x55, 0x7B, 0x8E, 0x7F, 0x15, 0x70, 0x91}};

} // namespace

CartelleDati cartelleUtente(std::wstring_view applicazione) {
    wchar_t* cartella = nullptr;
    const HRESULT hr = SHGetKnownFolderPath(datiLocali, 0, nullptr, &cartella);
    // To be freed even when the call fails.
    const MemoriaCom<wchar_t> memoria(cartella);
    if (FAILED(hr)) {
        return {};
    }
    const std::wstring radice = std::wstring(cartella).append(L"\\").append(applicazione);
    return {.copie = radice + L"\\copie", .diario = radice + L"\\diario"};
}
