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

// The numbers that the code raises by name: the run time's below 1000, and the program's own.
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
inline constexpr std::int32_t oggettoNonImpostato = 91;
inline constexpr std::int32_t valoreProprieta = 380;
inline constexpr std::int32_t creazioneOggetto = 429;
inline constexpr std::int32_t proprietaNonSupportata = 438;
inline constexpr std::int32_t automazione = 440;
inline constexpr std::int32_t immagineNonValida = 481;

inline constexpr std::int32_t dataNonValida = 4453;
inline constexpr std::int32_t meseNonValido = 4454;
inline constexpr std::int32_t recenteMancante = 8292;
inline constexpr std::int32_t senzaImmagine = 8874;
inline constexpr std::int32_t senzaDialogo = 8875;
inline constexpr std::int32_t immagineMancante = 8876;
inline constexpr std::int32_t nessunElemento = 12883;
inline constexpr std::int32_t feedNonCaricabile = 18343;
inline constexpr std::int32_t feedNonValido = 18344;
inline constexpr std::int32_t feedNonSupportato = 18345;
inline constexpr std::int32_t dialogoAnnullato = 32755;
} // namespace errori

// The run time's text of an error number; empty when the table has none.
[[nodiscard]] std::wstring_view testoErrore(std::int32_t numero) noexcept;

// Raises the error of that number with its text; of the program's own that name the thing they
// befell, a path or a month in upper case, `chi` begins the text.
[[noreturn]] void solleva(std::int32_t numero, std::wstring_view chi = {});
