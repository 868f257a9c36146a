#pragma once

#include <windows.h>

#include <string>
#include <string_view>

// The whole text of a window, whatever its length.
[[nodiscard]] std::wstring testoFinestra(HWND finestra);

// The text of an edit or combo box as a property. The control's own notifications tell neither
// whether the text really changed nor who changed it, and a multi-line box sends none for an
// assignment: this keeps the last text seen and compares.
class CampoTesto {
public:
    CampoTesto() = default;
    // Takes the control over and lifts its text limit to what fits in memory.
    explicit CampoTesto(HWND controllo);

    [[nodiscard]] std::wstring testo() const { return testoFinestra(controllo_); }

    // Assigns; gives whether the text changed. The notifications of the assignment are to be asked
    // of cambiato(), which answers no to them.
    bool testo(std::wstring_view valore);

    // For EN_CHANGE or CBN_EDITCHANGE: whether the text differs from the last one seen.
    [[nodiscard]] bool cambiato();

    // For CBN_SELCHANGE, which comes before the text follows the list.
    [[nodiscard]] bool sceltoDiverso();

    [[nodiscard]] HWND hwnd() const noexcept { return controllo_; }

private:
    HWND controllo_ = nullptr;
    std::wstring ultimo_;
    bool assegnando_ = false;
};
