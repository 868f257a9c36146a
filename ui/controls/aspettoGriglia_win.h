#pragma once

#include "support/windows/maniglie_win.h"
#include "ui/controls/righeGriglia.h"

#include <windows.h>

// How the grid's rows look: the user's message font, the title in bold over the description, system
// colours only, a frame around the selected row. Measures in pixels.
class AspettoGriglia {
public:
    // With the fonts of now.
    AspettoGriglia();

    [[nodiscard]] HFONT carattere() const noexcept { return normale_.get(); }
    [[nodiscard]] int altezzaRiga() const noexcept { return altezzaRiga_; }

    // Where the visible columns stand, and how the row does.
    struct Posto {
        RECT data;
        RECT contenuto;
        bool selezionata;
        bool fuoco;
    };
    void disegna(HDC dc, const RigheGriglia& righe, int riga, const Posto& posto) const;

private:
    Carattere normale_;
    Carattere grassetto_;
    int altezzaTesto_ = 0;
    int margine_ = 0;
    int cornice_ = 0;
    int altezzaRiga_ = 0;
};

// The margin that a length in twips makes on a device, rounded up; `asse` is LOGPIXELSX or
// LOGPIXELSY.
[[nodiscard]] int twipsInPixel(double twips, int asse) noexcept;
