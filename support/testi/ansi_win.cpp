#include "support/testi/ansi_win.h"

#include "support/caratteri/codifica.h"

#include <windows.h>

#include <array>
#include <cstdint>

namespace {

// Where the code page is UTF-8 Windows refuses the flag, and every character has its bytes.
DWORD senzaSomiglianze() noexcept {
    return GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
}

} // namespace

std::string inAnsi(std::wstring_view testo) {
    if (testo.empty()) {
        return {};
    }
    const auto lunghezza = static_cast<int>(testo.size());
    std::string risultato(
        static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, senzaSomiglianze(), testo.data(),
                                                     lunghezza, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_ACP, senzaSomiglianze(), testo.data(), lunghezza, risultato.data(),
                        static_cast<int>(risultato.size()), nullptr, nullptr);
    return risultato;
}

std::wstring daAnsi(std::string_view testo) {
    if (testo.empty()) {
        return {};
    }
    const auto lunghezza = static_cast<int>(testo.size());
    std::wstring risultato(static_cast<std::size_t>(
                               MultiByteToWideChar(CP_ACP, 0, testo.data(), lunghezza, nullptr, 0)),
                           L'\0');
    MultiByteToWideChar(CP_ACP, 0, testo.data(), lunghezza, risultato.data(),
                        static_cast<int>(risultato.size()));
    return risultato;
}

std::string inAnsiHtml(std::wstring_view testo) {
    if (GetACP() == CP_UTF8) {
        return inAnsi(testo);
    }
    std::string risultato;
    risultato.reserve(testo.size());
    for (std::size_t posizione = 0; posizione < testo.size();) {
        const auto inizio = posizione;
        const char32_t carattere = leggiCarattere(testo, posizione);
        if (carattere < 0x80) {
            risultato += static_cast<char>(carattere);
            continue;
        }
        std::array<char, 8> byte{};
        BOOL manca = FALSE;
        const int lunghezza = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, &testo[inizio],
                                                  static_cast<int>(posizione - inizio), byte.data(),
                                                  static_cast<int>(byte.size()), nullptr, &manca);
        if (manca || lunghezza <= 0) {
            risultato += "&#" + std::to_string(static_cast<std::uint32_t>(carattere)) + ';';
        } else {
            risultato.append(byte.data(), static_cast<std::size_t>(lunghezza));
        }
    }
    return risultato;
}
