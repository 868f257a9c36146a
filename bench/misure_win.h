#pragma once

#include <windows.h>

#include <cstdint>

// Time since it was made, in milliseconds.
class Cronometro {
public:
    Cronometro() noexcept;
    [[nodiscard]] double millisecondi() const noexcept;

private:
    LARGE_INTEGER inizio_{};
};

// The most memory that this process ever had resident, in KiB.
[[nodiscard]] std::uint64_t piccoMemoria() noexcept;

// One figure, as bench/misura reads it: a name and a number on a line of the standard output.
void riporta(const char* nome, double valore) noexcept;
