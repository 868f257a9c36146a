#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

// Time since it was made, in milliseconds.
class Cronometro {
public:
    Cronometro() noexcept;
    [[nodiscard]] double millisecondi() const noexcept;

private:
    LARGE_INTEGER inizio_{};
};

// How often what is short is repeated in one process: a single one is too short for a machine that
// is at times slower.
inline constexpr int ripetizioni = 5;

// The middle one of at least one figure.
[[nodiscard]] double mediana(std::vector<double> valori);

// The most memory that this process ever had resident, in KiB.
[[nodiscard]] std::uint64_t piccoMemoria() noexcept;

// A mark that whoever traces Wine's server finds among the requests of this thread.
void segna(const char* nome);

// One figure, as bench/misura reads it: a name and a number on a line of the standard output.
void riporta(const char* nome, double valore) noexcept;
