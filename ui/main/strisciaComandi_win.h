#pragma once

#include "ui/controls/finestra_win.h"

#include <vector>

// The strip PicCmd beside the grid: the item buttons, stacked and as wide as the strip. What its
// buttons send goes on to the parent.
class StrisciaComandi final : public Finestra {
public:
    StrisciaComandi() = default;
    StrisciaComandi(const StrisciaComandi&) = delete;
    StrisciaComandi& operator=(const StrisciaComandi&) = delete;
    ~StrisciaComandi() override { distruggi(); }

    // Makes it with its buttons. Raises the failure to make it.
    void crea(HWND padre);

    // The font of the buttons, which is the caller's, and the height that each has from
    // the next size on, in pixels.
    void adatta(HFONT carattere, int altezzaPulsante) noexcept;

private:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override {}

    void disponi() noexcept;

    std::vector<HWND> pulsanti_;
    int altezzaPulsante_ = 0;
};
