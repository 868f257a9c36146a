#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

// The one error type of the program: a run-time error's number and its Italian description, as a
// message box shows them.
class Errore : public std::exception {
public:
    Errore(std::int32_t numero, std::wstring descrizione);

    [[nodiscard]] std::int32_t numero() const noexcept { return numero_; }
    [[nodiscard]] const std::wstring& descrizione() const noexcept { return descrizione_; }
    // Number and description in UTF-8, for whoever reports exceptions of any kind.
    [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

private:
    std::int32_t numero_;
    std::wstring descrizione_;
    std::string what_;
};

// The numbers that the code raises by name. Those below 1000 are the run time's.
namespace errori {
inline constexpr std::int32_t chiamataNonValida = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t memoriaEsaurita = 7;
inline constexpr std::int32_t indiceFuoriIntervallo = 9;
inline constexpr std::int32_t divisionePerZero = 11;
inline constexpr std::int32_t tipoNonCorrispondente = 13;
inline constexpr std::int32_t nomeFileNonValido = 52;
inline constexpr std::int32_t fileNonTrovato = 53;
inline constexpr std::int32_t fileGiaAperto = 55;
inline constexpr std::int32_t erroreIO = 57;
inline constexpr std::int32_t discoPieno = 61;
inline constexpr std::int32_t unitaNonDisponibile = 68;
inline constexpr std::int32_t autorizzazioneNegata = 70;
inline constexpr std::int32_t discoNonPronto = 71;
inline constexpr std::int32_t accessoAlPercorso = 75;
inline constexpr std::int32_t percorsoNonTrovato = 76;
inline constexpr std::int32_t valoreProprieta = 380;
inline constexpr std::int32_t creazioneOggetto = 429;
inline constexpr std::int32_t proprietaNonSupportata = 438;
inline constexpr std::int32_t automazione = 440;
inline constexpr std::int32_t immagineNonValida = 481;
inline constexpr std::int32_t dialogoAnnullato = 32755;
} // namespace errori

// The run time's text of an error number; empty when the table has none.
[[nodiscard]] std::wstring_view testoErrore(std::int32_t numero) noexcept;

// Raises the run-time error of that number with the table's text.
[[noreturn]] void solleva(std::int32_t numero);
