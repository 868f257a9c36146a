#include "support/testi/sistema.h"

#include "support/windows/errori_win.h"

#include <windows.h>

#include <oleauto.h>

namespace {

// One of Windows' conversions of a text, which ends at a character 0 for it.
template <class Numero, class Chiamata>
HRESULT converti(Chiamata chiamata, std::wstring_view testo, Lingua lingua, Numero& numero) {
    if (testo.find(L'\0') != std::wstring_view::npos) {
        return DISP_E_TYPEMISMATCH;
    }
    // MinGW's declarations want a text that can be written.
    std::wstring copia(testo);
    // What the user changed counts for the user's locale alone.
    const ULONG opzioni = lingua == Lingua::Utente ? 0 : LOCALE_NOUSEROVERRIDE;
    return chiamata(copia.data(), static_cast<LCID>(lingua), opzioni, &numero);
}

std::wstring conMaiuscole(std::wstring_view testo, DWORD come) {
    std::wstring risultato(testo);
    const auto lunghezza = static_cast<int>(risultato.size());
    // In place, as these two mappings may be.
    LCMapStringEx(LOCALE_NAME_INVARIANT, come, risultato.data(), lunghezza, risultato.data(),
                  lunghezza, nullptr, nullptr, 0);
    return risultato;
}

} // namespace

std::optional<double> testoADouble(std::wstring_view testo, Lingua lingua) {
    double numero = 0;
    return SUCCEEDED(converti(VarR8FromStr, testo, lingua, numero)) ? std::optional(numero)
                                                                    : std::nullopt;
}

std::int16_t testoAInt16(std::wstring_view testo, Lingua lingua) {
    SHORT numero = 0;
    verifica(converti(VarI2FromStr, testo, lingua, numero));
    return numero;
}

std::wstring maiuscolo(std::wstring_view testo) {
    return conMaiuscole(testo, LCMAP_UPPERCASE);
}

std::wstring minuscolo(std::wstring_view testo) {
    return conMaiuscole(testo, LCMAP_LOWERCASE);
}
