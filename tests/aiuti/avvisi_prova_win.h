#pragma once

#include "support/testi/testo.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/controls/avvisi.h"
#include "ui/controls/finestra_win.h"

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

// The strip of notices in a window, found as a user finds it.
class AvvisiProva {
public:
    explicit AvvisiProva(const Finestra& finestra) : finestra_(finestra) {}

    // Null before the first notice.
    [[nodiscard]] HWND striscia() const {
        return FindWindowExW(finestra_.hwnd(), nullptr, L"OstrelleAvvisi", nullptr);
    }
    [[nodiscard]] bool inVista() const { return IsWindowVisible(striscia()) != FALSE; }
    [[nodiscard]] HWND testo() const {
        return FindWindowExW(striscia(), nullptr, L"Static", nullptr);
    }
    // What is said; empty when nothing is.
    [[nodiscard]] std::wstring detto() const {
        return inVista() ? sostituisci(testoDi(testo()), L"&&", L"&") : L"";
    }
    [[nodiscard]] HWND pulsante(const wchar_t* didascalia) const {
        return FindWindowExW(striscia(), nullptr, L"Button", didascalia);
    }
    [[nodiscard]] HWND chiudi() const { return pulsante(L"Chiudi avviso"); }

private:
    const Finestra& finestra_;
};

// A notice of that text, about that text.
[[nodiscard]] inline Avviso avvisoProva(const std::wstring& testo, PulsanteAvviso primo = {},
                                        PulsanteAvviso secondo = {},
                                        std::function<void()> chiuso = {}) {
    return {testo, testo, {{std::move(primo), std::move(secondo)}}, std::move(chiuso)};
}
