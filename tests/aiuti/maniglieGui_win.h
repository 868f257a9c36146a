#pragma once

#include <windows.h>

#include <ostream>

// How many GDI objects and windows this process holds. Wine's GetGuiResources knows no answer and
// gives 0: there they are counted one by one.
struct ManiglieGui {
    DWORD gdi = 0;
    DWORD user = 0;

    [[nodiscard]] static ManiglieGui adesso();
    friend bool operator==(const ManiglieGui&, const ManiglieGui&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const ManiglieGui& m) {
        return uscita << m.gdi << " GDI objects, " << m.user << " USER objects";
    }
};
