#pragma once

#include "support/windows/dpi_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <vector>

// The sizes that a dialog template of ours tells, as Windows reads them when it makes the dialog:
// the same dialog can be laid out again for another resolution.
class ModelloDialogo {
public:
    // Raises the failure to find it. A DIALOGEX with a font.
    explicit ModelloDialogo(int risorsa);

    // Places the dialog's controls, with their font, as they would stand in one made for that
    // resolution. The dialog itself stays as it is.
    struct Disposto {
        // The caller's, as long as the dialog uses it.
        Carattere carattere;
        // The dialog's inside.
        SIZE interno{};
    };
    [[nodiscard]] Disposto disponi(HWND dialogo, Dpi dpi) const;

    // Whether the dialog stands so already, as Windows made it.
    [[nodiscard]] bool fattoPer(HWND dialogo, Dpi dpi) const;

private:
    // In dialog units: quarters and eighths of a character.
    struct Posto {
        short sinistra;
        short alto;
        short larghezza;
        short altezza;
    };
    // What is laid out in it, and how large a character is.
    struct Misura {
        Carattere carattere;
        SIZE unita{};
        [[nodiscard]] RECT pixel(const Posto& posto) const noexcept;
    };
    class Lettore;

    [[nodiscard]] Misura misura(HWND dialogo, Dpi dpi) const;

    int punti_ = 0;
    Posto tutto_{};
    std::vector<Posto> controlli_;
};
