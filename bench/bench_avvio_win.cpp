// Starts two programs by turns and tells how long each takes until its window is shown and idle:
//   bench_avvio PROGRAM YARDSTICK TIMES

#include "bench/misure_win.h"
#include "support/windows/heap_win.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
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

// Milliseconds until a program is ready; it is closed again. Ends the measure when it is not.
double avvia(const wchar_t* programma, const char* nome) {
    std::wstring comando = std::wstring(L"\"") + programma + L"\"";
    STARTUPINFOW inizio{};
    inizio.cb = sizeof(inizio);
    PROCESS_INFORMATION processo{};
    segna(nome);
    const Cronometro tempo;
    if (CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &inizio, &processo) == FALSE) {
        std::fputs("cannot start\n", stderr);
        std::exit(1);
    }
    const HWND finestra = attendiPronta(processo, tempo);
    const double ms = tempo.millisecondi();
    segna("fine");
    if (finestra == nullptr) {
        std::fputs("no window\n", stderr);
        TerminateProcess(processo.hProcess, 1);
        std::exit(1);
    }
    PostMessageW(finestra, WM_CLOSE, 0, 0);
    WaitForSingleObject(processo.hProcess, scadenza);
    CloseHandle(processo.hThread);
    CloseHandle(processo.hProcess);
    return ms;
}

} // namespace

int wmain(int quanti, wchar_t** argomenti) {
    heapPerPiccoliBlocchi();
    if (quanti < 4) {
        return 2;
    }
    // The system's windows, and what this process needs to look for windows, before any clock runs.
    static_cast<void>(finestraVisibile(0));
    static_cast<void>(avvia(argomenti[2], "caldo"));
    for (long n = std::wcstol(argomenti[3], nullptr, 10); n > 0; --n) {
        riporta("nostro", avvia(argomenti[1], "nostro"));
        riporta("finestra", avvia(argomenti[2], "finestra"));
    }
    return 0;
}
