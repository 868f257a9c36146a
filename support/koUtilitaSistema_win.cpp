#include "support/koUtilitaSistema.h"

#include "support/errori_win.h"
#include "support/maniglie_win.h"
#include "support/registro_win.h"

#include <windows.h>

#include <algorithm>
#include <array>
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

std::wstring koUtilitaSistema::InfoSO() {
    return nomeSistema(InfoSOVersione(),
                       leggiTesto(HKEY_LOCAL_MACHINE,
                                  L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                                  L"ProductName")
                           .value_or(L""));
}

bool koUtilitaSistema::IsWindowsNT() {
    return InfoSOVersione().nt;
}

VersioneSO koUtilitaSistema::InfoSOVersione() {
    const auto v = versioneVera();
    return {v.dwMajorVersion, v.dwMinorVersion, v.dwBuildNumber,
            v.dwPlatformId == VER_PLATFORM_WIN32_NT};
}

std::wstring koUtilitaSistema::GetVersione(const std::wstring& file) {
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

void koUtilitaSistema::WaitSecondi(std::uint32_t secondi) {
    const ULONGLONG scadenza = GetTickCount64() + secondi * 1000ULL;
    for (;;) {
        MSG messaggio{};
        while (PeekMessageW(&messaggio, nullptr, 0, 0, PM_REMOVE)) {
            if (messaggio.message == WM_QUIT) {
                // The program's own loop must see it.
                PostQuitMessage(static_cast<int>(messaggio.wParam));
                return;
            }
            TranslateMessage(&messaggio);
            DispatchMessageW(&messaggio);
        }
        const ULONGLONG adesso = GetTickCount64();
        if (adesso >= scadenza) {
            return;
        }
        const auto resta = std::min<ULONGLONG>(scadenza - adesso, INFINITE - 1);
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(resta), QS_ALLINPUT,
                                    MWMO_INPUTAVAILABLE);
    }
}

void koUtilitaSistema::Sleep(std::uint32_t millisecondi) noexcept {
    ::Sleep(millisecondi);
}

std::optional<std::uint32_t> koUtilitaSistema::ShellSospensiva(const std::wstring& comando,
                                                               std::uint32_t millisecondi) {
    if (comando.find_first_not_of(L' ') == std::wstring::npos) {
        solleva(errori::chiamataNonValida);
    }
    // CreateProcess writes into its command line.
    std::wstring riga = comando;
    STARTUPINFOW avvio{};
    avvio.cb = sizeof(avvio);
    PROCESS_INFORMATION processo{};
    if (!CreateProcessW(nullptr, riga.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &avvio,
                        &processo)) {
        sollevaWin32();
    }
    const ManigliaFile filo(processo.hThread);
    const ManigliaFile vivo(processo.hProcess);
    const DWORD attesa = WaitForSingleObject(vivo.get(), millisecondi);
    if (attesa == WAIT_TIMEOUT) {
        return std::nullopt;
    }
    DWORD codice = 0;
    if (attesa != WAIT_OBJECT_0 || !GetExitCodeProcess(vivo.get(), &codice)) {
        sollevaWin32();
    }
    return codice;
}
