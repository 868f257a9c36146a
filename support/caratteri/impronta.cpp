#include "support/caratteri/impronta.h"

#include <cstring>

namespace {

// Those of FNV-1a; eight bytes go in at a time, since whole files do.
constexpr std::uint64_t base = 0xCBF29CE484222325;
constexpr std::uint64_t primo = 0x00000100000001B3;

constexpr std::uint64_t mescola(std::uint64_t somma, std::uint64_t parola) noexcept {
    somma = (somma ^ parola) * primo;
    // A product carries upwards only.
    return somma ^ (somma >> 29U);
}

} // namespace

std::uint64_t impronta(std::span<const std::byte> byte, std::uint64_t da) noexcept {
    std::uint64_t somma = mescola(base, da);
    const std::size_t lunghezza = byte.size();
    std::uint64_t parola = 0;
    while (byte.size() >= sizeof parola) {
        std::memcpy(&parola, byte.data(), sizeof parola);
        somma = mescola(somma, parola);
        byte = byte.subspan(sizeof parola);
    }
    parola = 0;
    if (!byte.empty()) {
        std::memcpy(&parola, byte.data(), byte.size());
    }
    // With the length, zeros at the end count too.
    return mescola(mescola(somma, parola), lunghezza);
}
