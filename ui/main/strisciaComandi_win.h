#pragma once

#include "ui/controls/finestra_win.h"

// The strip PicCmd beside the grid: the item buttons, stacked and as wide as the strip. What its
// buttons send goes on to the parent.
class StrisciaComandi final : public Finestra {
public:
    StrisciaComandi() = default;
    StrisciaComandi(const StrisciaComandi&) = delete;
    StrisciaComandi& operator=(const StrisciaComandi&) = delete;
    ~StrisciaComandi() override { distruggi(); }

    // The height of each button, in pixels; before the strip gets its size.
    void altezzaPulsante(int pixel) noexcept { altezzaPulsante_ = pixel; }

    // Makes it with its buttons; the font is the caller's. Raises the failure to make it.
    void crea(HWND padre, HFONT carattere);

private:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override {}

    int altezzaPulsante_ = 0;
};
