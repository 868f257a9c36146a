#pragma once

#include <windows.h>

#include <ostream>

// How many GDI objects, windows and handles of the kernel this process holds. Where the system
// knows no answer and gives 0, as Wine does, they are counted one by one.
struct ManiglieGui {
    DWORD gdi = 0;
    DWORD user = 0;
    DWORD nucleo = 0;

    [[nodiscard]] static ManiglieGui adesso();
    friend bool operator==(const ManiglieGui&, const ManiglieGui&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const ManiglieGui& m) {
        return uscita << m.gdi << " GDI objects, " << m.user << " USER objects, " << m.nucleo
                      << " kernel handles";
    }
};

// How many GDI objects the system loses each time a button gets a picture anew: Wine copies it and
// forgets the copy before.
[[nodiscard]] DWORD persiPerFigura();
