#pragma once

#include "support/testi/formato.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The codes of the user's separators as the key filter asks for them; 0 matches no key.
struct Separatori {
    std::uint8_t decimale = 0;
    std::uint8_t migliaia = 0;
};

enum class Verso : std::uint8_t { Su, Giu };

// Who is told that a box was left with a value outside its limits; the argument is the limit.
class EventiLimite {
public:
    EventiLimite() noexcept = default;
    EventiLimite(const EventiLimite&) = delete;
    EventiLimite& operator=(const EventiLimite&) = delete;
    virtual ~EventiLimite() = default;

    virtual void MassimoSuperato(double vmassimo) = 0;
    virtual void MinimoSuperato(double vminimo) = 0;
};

// The rules of a numeric box: its limits, step and format, and what they make of the text in it.
// The value has no life of its own, it is always read from the text; so every question takes the
// text, and every answer that changes the box is a text or a value to write.
class ValoreNumerico {
public:
    static constexpr double massimoPredefinito = 100;
    static constexpr double minimoPredefinito = 0;
    static constexpr double incrementoPredefinito = 1;
    static constexpr std::int16_t cifrePredefinite = 2;

    [[nodiscard]] double Massimo() const noexcept { return massimo_; }
    [[nodiscard]] double Minimo() const noexcept { return minimo_; }
    [[nodiscard]] double Incremento() const noexcept { return incremento_; }
    [[nodiscard]] bool VisualizzaZero() const noexcept { return visualizzaZero_; }
    [[nodiscard]] std::int16_t CifreDecimali() const noexcept { return cifreDecimali_; }

    // Raises 380 unless the maximum stays above the minimum; stores nothing then.
    void Massimo(double valore);
    void Minimo(double valore);
    void Incremento(double valore) noexcept { incremento_ = valore; }
    void VisualizzaZero(bool valore) noexcept { visualizzaZero_ = valore; }
    // None when 0 or less.
    void CifreDecimali(std::int16_t valore) noexcept { cifreDecimali_ = valore; }
    // Both limits as they were stored, without a check.
    void limiti(double massimo, double minimo) noexcept;

    // The number in a text; 0 when it is none.
    [[nodiscard]] static double leggi(std::wstring_view testo, const FormatoLocale& formato);

    // The text of a value. Raises 380 when it is outside the limits or no number.
    [[nodiscard]] std::wstring scrivi(double valore, const FormatoLocale& formato) const;

    // What a pressed key becomes; 0 when it is swallowed. `selezione` counts the characters
    // selected. Reaching the maximum already blocks, and so does standing below the minimum.
    [[nodiscard]] wchar_t filtra(wchar_t tasto, std::wstring_view testo, std::size_t selezione,
                                 Separatori separatori, const FormatoLocale& formato) const;

    // The rule on leaving the box: tells of a limit passed and gives the value to write; nothing
    // when the box is empty. What an event raises comes through.
    [[nodiscard]] std::optional<double> esci(std::wstring_view testo, const FormatoLocale& formato,
                                             EventiLimite& eventi) const;

    // The value one step up or down, held within the limits.
    [[nodiscard]] double scatta(std::wstring_view testo, Verso verso,
                                const FormatoLocale& formato) const;

private:
    double massimo_ = massimoPredefinito;
    double minimo_ = minimoPredefinito;
    double incremento_ = incrementoPredefinito;
    bool visualizzaZero_ = true;
    std::int16_t cifreDecimali_ = cifrePredefinite;
};
