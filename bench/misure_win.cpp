#include "bench/misure_win.h"

#include <psapi.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>

Cronometro::Cronometro() noexcept {
    QueryPerformanceCounter(&inizio_);
}

double Cronometro::millisecondi() const noexcept {
    LARGE_INTEGER adesso{};
    LARGE_INTEGER frequenza{};
    QueryPerformanceCounter(&adesso);
    QueryPerformanceFrequency(&frequenza);
    return static_cast<double>(adesso.QuadPart - inizio_.QuadPart) * 1000.0 /
           static_cast<double>(frequenza.QuadPart);
}

double mediana(std::vector<double> valori) {
    const auto meta = valori.begin() + static_cast<std::ptrdiff_t>(valori.size() / 2);
    std::nth_element(valori.begin(), meta, valori.end());
    return *meta;
}

std::uint64_t piccoMemoria() noexcept {
    PROCESS_MEMORY_COUNTERS contatori{};
    contatori.cb = sizeof(contatori);
    if (GetProcessMemoryInfo(GetCurrentProcess(), &contatori, sizeof(contatori)) == FALSE) {
        return 0;
    }
    return contatori.PeakWorkingSetSize / 1024;
}

void segna(const char* nome) {
    const std::string evento = std::string("misura-") + nome;
    if (const HANDLE maniglia = CreateEventA(nullptr, FALSE, FALSE, evento.c_str())) {
        CloseHandle(maniglia);
    }
}

void riporta(const char* nome, double valore) noexcept {
    std::printf("%s %.3f\n", nome, valore);
    std::fflush(stdout);
}
