#include "support/testi/sistema.h"

#include "support/windows/errori_win.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// One of Windows' conversions of a text, which ends at a character 0 for it.
template <class Numero, class Chiamata>
HRESULT leggi(Chiamata chiamata, std::wstring_view testo, Lingua lingua, Numero& numero) {
    if (testo.find(L'\0') != std::wstring_view::npos) {
        return DISP_E_TYPEMISMATCH;
    }
    // MinGW's declarations want a text that can be written.
    std::wstring copia(testo);
    // What the user changed counts for the user's locale alone.
    const ULONG opzioni = lingua == Lingua::Utente ? 0 : LOCALE_NOUSEROVERRIDE;
    return chiamata(copia.data(), static_cast<LCID>(lingua), opzioni, &numero);
}

void converti(std::wstring& testo, DWORD come) {
    const auto lunghezza = static_cast<int>(testo.size());
    // In place, as these two mappings may be.
    LCMapStringEx(LOCALE_NAME_INVARIANT, come, testo.data(), lunghezza, testo.data(), lunghezza,
                  nullptr, nullptr, 0);
}

std::wstring conMaiuscole(std::wstring_view testo, DWORD come) {
    std::wstring risultato(testo);
    converti(risultato, come);
    return risultato;
}

// What cannot be taken apart, half a pair of surrogates for one, stays as it is.
void scomponi(std::wstring& testo, DWORD come) {
    // No letter has more parts.
    constexpr std::size_t massimo = 4;
    std::wstring scomposto(massimo * testo.size(), L'\0');
    const int lunghezza = FoldStringW(come, testo.data(), static_cast<int>(testo.size()),
                                      scomposto.data(), static_cast<int>(scomposto.size()));
    if (lunghezza > 0) {
        scomposto.resize(static_cast<std::size_t>(lunghezza));
        testo = std::move(scomposto);
    }
}

void togliAccenti(std::wstring& testo) {
    std::vector<WORD> tipi(testo.size());
    if (!GetStringTypeW(CT_CTYPE3, testo.data(), static_cast<int>(testo.size()), tipi.data())) {
        return;
    }
    // A letter that its accent cannot be taken from counts as a mark too.
    constexpr WORD segno = C3_NONSPACING;
    constexpr WORD lettera = C3_ALPHA;
    std::size_t tenuti = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        if ((tipi[i] & (segno | lettera)) != segno) {
            testo[tenuti++] = testo[i];
        }
    }
    testo.resize(tenuti);
}

} // namespace

std::optional<double> testoADouble(std::wstring_view testo, Lingua lingua) {
    double numero = 0;
    return SUCCEEDED(leggi(VarR8FromStr, testo, lingua, numero)) ? std::optional(numero)
                                                                 : std::nullopt;
}

std::int16_t testoAInt16(std::wstring_view testo, Lingua lingua) {
    SHORT numero = 0;
    verifica(leggi(VarI2FromStr, testo, lingua, numero));
    return numero;
}

std::wstring maiuscolo(std::wstring_view testo) {
    return conMaiuscole(testo, LCMAP_UPPERCASE);
}

std::wstring minuscolo(std::wstring_view testo) {
    return conMaiuscole(testo, LCMAP_LOWERCASE);
}

void piega(std::wstring_view testo, Maiuscole maiuscole, std::wstring& piegato) {
    piegato = testo;
    // Most texts are ASCII, which has neither ligatures nor accents.
    if (std::ranges::any_of(testo, [](wchar_t c) { return c >= 0x80; })) {
        scomponi(piegato, MAP_EXPAND_LIGATURES);
        scomponi(piegato, MAP_COMPOSITE);
        togliAccenti(piegato);
    }
    if (maiuscole == Maiuscole::Ignora) {
        converti(piegato, LCMAP_LOWERCASE);
    }
}
