#include "ui/controls/suggerimentoRiga_win.h"

#include <algorithm>
#include <utility>

namespace {

// Long enough to read a description, in milliseconds; Windows' own limit is 32,767.
constexpr LPARAM durata = 30000;

TTTOOLINFOW strumento(HWND lista, const RECT& posto) noexcept {
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.hwnd = lista;
    info.rect = posto;
    info.lpszText = LPSTR_TEXTCALLBACKW;
    return info;
}

} // namespace

void SuggerimentoRiga::segui(const MSG& messaggio, int riga, const RECT& posto) noexcept {
    if (finestra_ == nullptr) {
        if (riga == 0) {
            return;
        }
        finestra_ = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0,
                                    0, messaggio.hwnd, nullptr, GetModuleHandleW(nullptr), nullptr);
        TTTOOLINFOW info = strumento(messaggio.hwnd, {});
        SendMessageW(finestra_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
        carattere(carattere_);
        SendMessageW(finestra_, TTM_SETDELAYTIME, TTDT_AUTOPOP, durata);
    }
    MSG copia = messaggio;
    if (std::exchange(riga_, riga) != riga) {
        // Another row is another tool, even where it has the first one's place: the pointer leaves
        // one and comes to the other.
        posa(messaggio.hwnd, {});
        SendMessageW(finestra_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copia));
        posa(messaggio.hwnd, posto);
    }
    SendMessageW(finestra_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copia));
}

void SuggerimentoRiga::posa(HWND lista, const RECT& posto) const noexcept {
    TTTOOLINFOW info = strumento(lista, posto);
    SendMessageW(finestra_, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&info));
}

void SuggerimentoRiga::carattere(HFONT carattere) noexcept {
    carattere_ = carattere;
    if (finestra_ != nullptr) {
        SendMessageW(finestra_, WM_SETFONT, reinterpret_cast<WPARAM>(carattere), FALSE);
    }
}

void SuggerimentoRiga::nascondi() noexcept {
    riga_ = 0;
    if (finestra_ != nullptr) {
        SendMessageW(finestra_, TTM_POP, 0, 0);
    }
}

void SuggerimentoRiga::rispondi(NMTTDISPINFOW& richiesta, std::wstring testo, int larghezza) {
    testo_ = std::move(testo);
    if (testo_.size() >= massimo) {
        // No half of a character.
        testo_.resize(massimo - (IS_HIGH_SURROGATE(testo_[massimo - 3]) ? 3 : 2));
        testo_ += L'\u2026';
    }
    // Without one a line break would be shown as a character.
    SendMessageW(finestra_, TTM_SETMAXTIPWIDTH, 0, std::max(larghezza, 1));
    richiesta.lpszText = testo_.data();
}
