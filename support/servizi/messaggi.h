#pragma once

#include <cstdint>
#include <string>

// Message boxes as a service: they are modal, so tests put a fake in their place.

enum class Icona : std::uint8_t { Critica, Domanda, Informazione };
enum class Pulsanti : std::uint8_t { Ok, SiNo, SiNoAnnulla };
enum class Risposta : std::uint8_t { Ok, Si, No, Annulla };

// The titles that more than one box has.
namespace titoli {
inline constexpr const wchar_t* attenzione = L"Attenzione";
inline constexpr const wchar_t* errore = L"Errore";
[[nodiscard]] inline std::wstring erroreNumero(std::int32_t numero) {
    return L"Errore n° " + std::to_wstring(numero);
}
} // namespace titoli

class Messaggi {
public:
    Messaggi() = default;
    Messaggi(const Messaggi&) = delete;
    Messaggi& operator=(const Messaggi&) = delete;
    virtual ~Messaggi() = default;

    // Shows a box over the active window and waits for the answer; the first button is default.
    virtual Risposta mostra(const std::wstring& testo, const std::wstring& titolo, Icona icona,
                            Pulsanti pulsanti) = 0;

    void avvisa(const std::wstring& testo, const std::wstring& titolo, Icona icona) {
        static_cast<void>(mostra(testo, titolo, icona, Pulsanti::Ok));
    }
};
