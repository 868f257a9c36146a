#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>

// The tooltip of the rows of a list, for the one under the pointer.
class SuggerimentoRiga {
public:
    // Longer texts end in an ellipsis: a tooltip shows no more. The end included.
    static constexpr std::size_t massimo = 1024;

    // The pointer moved over the list, or a button was used there, as the list's message says; the
    // row under it (0 for none) has that place in the list. The list then is asked for the text by
    // TTN_GETDISPINFO, should the pointer rest.
    void segui(const MSG& messaggio, int riga, const RECT& posto) noexcept;
    // What it is written with, the caller's.
    void carattere(HFONT carattere) noexcept;
    // Away with it: the rows are not where they were.
    void nascondi() noexcept;

    // The row that the tooltip is for.
    [[nodiscard]] int riga() const noexcept { return riga_; }
    // Answers TTN_GETDISPINFO; no text, no tooltip. Wider than `larghezza` pixels it goes on in
    // another line.
    void rispondi(NMTTDISPINFOW& richiesta, std::wstring testo, int larghezza);

private:
    void posa(HWND lista, const RECT& posto) const noexcept;

    // Belongs to the list's top-level window.
    HWND finestra_ = nullptr;
    HFONT carattere_ = nullptr;
    int riga_ = 0;
    std::wstring testo_;
};
