#pragma once

#include "support/windows/dpi_win.h"
#include "support/windows/maniglie_win.h"
#include "ui/controls/righeGriglia.h"

#include <windows.h>

#include <array>
#include <string>

// How the grid's rows look: the user's message font, the title in bold over the description, system
// colours only, a frame around the selected row. Measures in pixels.
class AspettoGriglia {
public:
    // Without fonts: draws nothing.
    AspettoGriglia() noexcept = default;
    // With the fonts of now.
    explicit AspettoGriglia(Risoluzione verticale);

    [[nodiscard]] HFONT carattere() const noexcept { return normale_.get(); }
    // Two lines, the margins, and the line that ends the row.
    [[nodiscard]] int altezzaRiga() const noexcept { return 2 * altezzaTesto_ + 2 * margine_ + 1; }

    // Where the visible columns stand, and how the row does.
    struct Posto {
        RECT data;
        RECT contenuto;
        bool selezionata;
        bool fuoco;
    };
    void disegna(HDC dc, const RigheGriglia& righe, int riga, const Posto& posto) const;

    // The texts of a row that have no room there, whole and each on its own line; empty when all
    // are seen.
    [[nodiscard]] std::wstring tagliati(HDC dc, const RigheGriglia& righe, int riga,
                                        const Posto& posto) const;

private:
    // A text of a row, as it is shown there.
    struct Scritta {
        std::wstring testo;
        HFONT carattere;
        RECT posto;
    };
    [[nodiscard]] std::array<Scritta, RigheGriglia::testi>
    scritte(const RigheGriglia& righe, int riga, const Posto& posto) const;

    Carattere normale_;
    Carattere grassetto_;
    int altezzaTesto_ = 0;
    int margine_ = 0;
    int cornice_ = 0;
};
