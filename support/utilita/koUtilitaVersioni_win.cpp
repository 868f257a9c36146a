#include "support/utilita/koUtilitaVersioni.h"

#include "support/windows/maniglie_win.h"
#include "support/windows/registro_win.h"

#include <windows.h>

#include <vector>

namespace {

RTL_OSVERSIONINFOW versioneVera() noexcept {
    RTL_OSVERSIONINFOW versione{};
    versione.dwOSVersionInfoSize = sizeof(versione);
    // In no import library: Windows tells it to drivers' builds only.
    using RtlGetVersion = LONG(WINAPI*)(RTL_OSVERSIONINFOW*);
    const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    const auto chiedi =
        ntdll == nullptr ? nullptr : funzione<RtlGetVersion>(ntdll, "RtlGetVersion");
    if (chiedi != nullptr) {
        chiedi(&versione);
    }
    return versione;
}

} // namespace

std::wstring koUtilitaVersioni::InfoSO() {
    return nomeSistema(InfoSOVersione(),
                       leggiTesto(HKEY_LOCAL_MACHINE,
                                  L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                                  L"ProductName")
                           .value_or(L""));
}

bool koUtilitaVersioni::IsWindowsNT() {
    return InfoSOVersione().nt;
}

VersioneSO koUtilitaVersioni::InfoSOVersione() {
    const auto v = versioneVera();
    return {v.dwMajorVersion, v.dwMinorVersion, v.dwBuildNumber,
            v.dwPlatformId == VER_PLATFORM_WIN32_NT};
}

std::wstring koUtilitaVersioni::GetVersione(const std::wstring& file) {
    const DWORD byte = GetFileVersionInfoSizeW(file.c_str(), nullptr);
    std::vector<std::byte> dati(byte);
    void* blocco = nullptr;
    UINT lunghezza = 0;
    if (byte == 0 || !GetFileVersionInfoW(file.c_str(), 0, byte, dati.data()) ||
        !VerQueryValueW(dati.data(), L"\\", &blocco, &lunghezza) ||
        lunghezza < sizeof(VS_FIXEDFILEINFO)) {
        return L"0.0.0.0";
    }
    const auto* const info = static_cast<const VS_FIXEDFILEINFO*>(blocco);
    std::wstring testo;
    for (const DWORD parola : {info->dwFileVersionMS, info->dwFileVersionLS}) {
        testo += testo.empty() ? L"" : L".";
        testo += std::to_wstring(HIWORD(parola)) + L'.' + std::to_wstring(LOWORD(parola));
    }
    return testo;
}
