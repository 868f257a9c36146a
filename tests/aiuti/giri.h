#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What whoever runs the tests asks for by the environment: how many rounds, from which seed.
[[nodiscard]] inline std::uint32_t daAmbiente(const char* nome, std::uint32_t predefinito) {
    const char* const valore = std::getenv(nome); // NOLINT(concurrency-mt-unsafe)
    return valore == nullptr ? predefinito
                             : static_cast<std::uint32_t>(std::strtoul(valore, nullptr, 10));
}

// Many rounds say how far they are; in the end how many were done, and how fast.
class Andamento {
public:
    Andamento(const char* cosa, std::uint32_t giri) : cosa_(cosa), giri_(giri) {}
    Andamento(const Andamento&) = delete;
    Andamento& operator=(const Andamento&) = delete;
    ~Andamento() { stampa("conto "); }

    void fatto() {
        constexpr std::uint32_t ogni = 10000;
        if (++fatti_ % ogni == 0) {
            stampa("");
        }
    }

private:
    void stampa(const char* prima) const {
        const std::chrono::duration<double> durata = std::chrono::steady_clock::now() - inizio_;
        std::printf("%s%s: %u di %u, %.0f al secondo\n", prima, cosa_, fatti_, giri_,
                    fatti_ / durata.count());
        std::fflush(stdout);
    }

    const char* cosa_;
    std::uint32_t giri_;
    std::uint32_t fatti_ = 0;
    std::chrono::steady_clock::time_point inizio_ = std::chrono::steady_clock::now();
};
