#include "ui/controls/campoTesto_win.h"

#include "support/windows/guardia_win.h"

#include <windowsx.h>

std::wstring testoFinestra(HWND finestra) {
    std::wstring testo(static_cast<std::size_t>(GetWindowTextLengthW(finestra)), L'\0');
    // The length may be an upper bound.
    const int letti = GetWindowTextW(finestra, testo.data(), static_cast<int>(testo.size()) + 1);
    testo.resize(static_cast<std::size_t>(letti));
    return testo;
}

CampoTesto::CampoTesto(HWND controllo) : controllo_(controllo), ultimo_(testo()) {
    // Each of the two kinds of control ignores the other's message.
    SendMessageW(controllo_, EM_SETLIMITTEXT, 0x7FFFFFFE, 0);
    SendMessageW(controllo_, CB_LIMITTEXT, 0x7FFFFFFE, 0);
}

bool CampoTesto::testo(std::wstring_view valore) {
    if (ultimo_ == valore && testo() == valore) {
        return false;
    }
    {
        const Alzata assegnando(assegnando_);
        SetWindowTextW(controllo_, std::wstring(valore).c_str());
    }
    std::wstring adesso = testo();
    const bool diverso = adesso != ultimo_;
    ultimo_ = std::move(adesso);
    return diverso;
}

bool CampoTesto::cambiato() {
    if (assegnando_) {
        return false;
    }
    std::wstring adesso = testo();
    if (adesso == ultimo_) {
        return false;
    }
    ultimo_ = std::move(adesso);
    return true;
}

bool CampoTesto::sceltoDiverso() {
    const int scelto = ComboBox_GetCurSel(controllo_);
    if (scelto < 0) {
        return false;
    }
    std::wstring voce(static_cast<std::size_t>(ComboBox_GetLBTextLen(controllo_, scelto)), L'\0');
    ComboBox_GetLBText(controllo_, scelto, voce.data());
    if (voce == ultimo_) {
        return false;
    }
    ultimo_ = std::move(voce);
    return true;
}
