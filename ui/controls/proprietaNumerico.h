#pragma once

#include "ui/controls/borsaProprieta.h"
#include "ui/controls/valoreNumerico.h"

#include <cstdint>
#include <span>
#include <string_view>

// System colours as 32-bit colour values.
inline constexpr std::uint32_t coloreSfondoFinestra = 0x80000005U;
inline constexpr std::uint32_t coloreTestoFinestra = 0x80000008U;
inline constexpr std::uint32_t coloreSuperficiePulsante = 0x8000000FU;

// All that a numeric control stores, as its defaults have it.
struct ProprietaNumerico {
    std::int16_t CifreDecimali = ValoreNumerico::cifrePredefinite;
    bool VisualizzaZero = true;
    double Massimo = ValoreNumerico::massimoPredefinito;
    double Incremento = ValoreNumerico::incrementoPredefinito;
    double Minimo = ValoreNumerico::minimoPredefinito;
    // The default is the container's font.
    FontProprieta Font;
    double Valore = 0;
    std::uint32_t ForeColor = coloreTestoFinestra;
    bool Enabled = true;
    bool Locked = false;
};

// Each in its own order of the keys. `ambiente` is the container's font.
[[nodiscard]] ProprietaNumerico leggiProprieta(const BorsaProprieta& borsa,
                                               const FontProprieta& ambiente);
void scriviProprieta(BorsaProprieta& borsa, const ProprietaNumerico& proprieta,
                     const FontProprieta& ambiente);

// What the control says of a property; an empty text where it says nothing.
struct DescrizioneProprieta {
    std::wstring_view nome;
    std::wstring_view descrizione;
    std::wstring_view categoria;
};
[[nodiscard]] std::span<const DescrizioneProprieta> descrizioniNumerico() noexcept;
