#include "support/ansi_win.h"

#include <windows.h>

std::string inAnsi(std::wstring_view testo) {
    if (testo.empty()) {
        return {};
    }
    const auto lunghezza = static_cast<int>(testo.size());
    std::string risultato(
        static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, testo.data(),
                                                     lunghezza, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, testo.data(), lunghezza, risultato.data(),
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
