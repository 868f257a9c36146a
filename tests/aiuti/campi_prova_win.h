#pragma once

#include "support/tempo/dataora.h"
#include "ui/controls/KOInputNumerico_win.h"
#include "ui/controls/finestra_win.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>

// The parts of a numeric control, found as a user finds them.
[[nodiscard]] inline HWND txtnumeroDi(const KOInputNumerico& numero) noexcept {
    return FindWindowExW(numero.hwnd(), nullptr, L"EDIT", nullptr);
}
[[nodiscard]] inline HWND UPNumDi(const KOInputNumerico& numero) noexcept {
    return FindWindowExW(numero.hwnd(), nullptr, UPDOWN_CLASSW, nullptr);
}

// The channel's frame of a main window, found as a user finds it.
class CampiProva {
public:
    explicit CampiProva(const Finestra& finestra) noexcept : finestra_(finestra) {}

    [[nodiscard]] HWND hwnd() const noexcept {
        return FindWindowExW(finestra_.hwnd(), nullptr, L"#32770", nullptr);
    }
    [[nodiscard]] HWND controllo(int id) const noexcept { return GetDlgItem(hwnd(), id); }

    // Writing tells the frame of it, as typing does.
    [[nodiscard]] std::wstring testo(int id) const;
    void testo(int id, std::wstring_view valore) const;

    [[nodiscard]] KOInputNumerico& txtLarghezza() const;
    [[nodiscard]] KOInputNumerico& txtAltezza() const;
    void dimensioni(double larghezza, double altezza) const;

    // The date of one picker with the time of the other; writing fails the test when it is refused.
    [[nodiscard]] DataOra dataOra() const;
    void dataOra(DataOra valore) const;

private:
    const Finestra& finestra_;
};
