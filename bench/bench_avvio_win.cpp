// Starts a program and tells how long it takes until its window is shown and idle:
//   bench_avvio PROGRAM

#include "bench/misure_win.h"

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

constexpr DWORD scadenza = 60000; // ms

struct Ricerca {
    DWORD processo;
    HWND finestra;
};

BOOL CALLBACK guarda(HWND finestra, LPARAM parametro) noexcept {
    auto& ricerca = *reinterpret_cast<Ricerca*>(parametro);
    DWORD processo = 0;
    GetWindowThreadProcessId(finestra, &processo);
    if (processo == ricerca.processo && IsWindowVisible(finestra) != FALSE &&
        GetWindow(finestra, GW_OWNER) == nullptr) {
        ricerca.finestra = finestra;
        return FALSE;
    }
    return TRUE;
}

HWND finestraVisibile(DWORD processo) noexcept {
    Ricerca ricerca{processo, nullptr};
    EnumWindows(guarda, reinterpret_cast<LPARAM>(&ricerca));
    return ricerca.finestra;
}

// Idle is idle with the window up: a program may wait for messages before.
HWND attendiPronta(const PROCESS_INFORMATION& processo, const Cronometro& tempo) noexcept {
    while (tempo.millisecondi() < scadenza) {
        if (WaitForInputIdle(processo.hProcess, scadenza) != 0) {
            return nullptr;
        }
        if (const HWND finestra = finestraVisibile(processo.dwProcessId)) {
            // Answered when the window's thread takes messages.
            DWORD_PTR esito = 0;
            if (SendMessageTimeoutW(finestra, WM_NULL, 0, 0, SMTO_NORMAL, scadenza, &esito) != 0 &&
                GetUpdateRect(finestra, nullptr, FALSE) == FALSE) {
                return finestra;
            }
        }
        Sleep(1);
    }
    return nullptr;
}

} // namespace

int wmain(int quanti, wchar_t** argomenti) {
    if (quanti < 2) {
        return 2;
    }
    std::wstring comando = std::wstring(L"\"") + argomenti[1] + L"\"";
    STARTUPINFOW inizio{};
    inizio.cb = sizeof(inizio);
    PROCESS_INFORMATION processo{};
    const Cronometro tempo;
    if (CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &inizio, &processo) == FALSE) {
        std::fprintf(stderr, "cannot start\n");
        return 1;
    }
    const HWND finestra = attendiPronta(processo, tempo);
    const double ms = tempo.millisecondi();
    if (finestra == nullptr) {
        std::fprintf(stderr, "no window\n");
        TerminateProcess(processo.hProcess, 1);
        return 1;
    }
    riporta("ms", ms);
    PostMessageW(finestra, WM_CLOSE, 0, 0);
    const DWORD fine = WaitForSingleObject(processo.hProcess, scadenza);
    CloseHandle(processo.hThread);
    CloseHandle(processo.hProcess);
    return fine == WAIT_OBJECT_0 ? 0 : 1;
}
