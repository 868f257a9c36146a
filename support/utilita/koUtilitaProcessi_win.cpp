#include "support/utilita/koUtilitaProcessi.h"

#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <algorithm>

void koUtilitaProcessi::WaitSecondi(std::uint32_t secondi) {
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

void koUtilitaProcessi::Sleep(std::uint32_t millisecondi) noexcept {
    ::Sleep(millisecondi);
}

std::optional<std::uint32_t> koUtilitaProcessi::ShellSospensiva(const std::wstring& comando,
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
