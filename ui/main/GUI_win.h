#pragma once

#include "support/windows/maniglie_win.h"
#include "ui/controls/griglia_win.h"

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

// A window's background picture; none leaves the plain background.
class Sfondo {
public:
    Sfondo() noexcept = default;
    // Takes the bitmap over; its size in pixels.
    Sfondo(ManigliaBitmap bitmap, SIZE misura) noexcept
        : bitmap_(std::move(bitmap)), misura_(misura) {}

    // Paints the picture in its own size at the upper left corner.
    void disegna(HDC dc) const noexcept;

private:
    ManigliaBitmap bitmap_;
    SIZE misura_{};
};

// The grid's routines. What the grid refuses is ignored, but for a lack of memory.
namespace GUI {

// Makes a whole row the selected one; a row that was not visible becomes the top row.
void SelezionaRiga(Griglia& griglia, int riga);

// Clears the grid to its header of `colonne` columns. `primaLarghezza` in twips; without it all
// columns are equally wide.
void ImpostaColonne(Griglia& griglia, std::vector<std::wstring> titoli, int colonne,
                    std::optional<double> primaLarghezza);

// Filler rows up to 50 rows.
void CompletaRighe(Griglia& griglia);

// The header of the item grid.
void IntestaGriglia(Griglia& griglia);

// Fills the grid from its table anew, or leaves it without items; row 1 is selected.
void RiempiGriglia(Griglia& griglia, bool soloIntestazioni);

// The picture for a window's background: "sfondo.bmp" in that folder, else "sfondo.jpg". Nothing
// when neither exists or the one found cannot be read.
[[nodiscard]] Sfondo ApplicaSfondo(const std::wstring& cartella);

} // namespace GUI
