// The grid in a window whose resolution changes.

#include "tests/aiuti/griglia_prova_win.h"

#include <commctrl.h>

#include <gtest/gtest.h>

TEST(GrigliaRisoluzione, RigheEColonneSeguonoQuellaDellaFinestra) {
    GrigliaProva p(3);
    const auto altezza = [&] {
        RECT r{};
        ListView_GetItemRect(p.lista(), 0, &r, LVIR_BOUNDS);
        return r.bottom - r.top;
    };
    const auto misura = [&](int dpi) {
        tieniDpi(p.cornice(), {{dpi}, {dpi}});
        p.griglia.aggiornaAspetto();
        // 2000 twips.
        EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), (2000 * dpi + 720) / 1440) << dpi;
        return altezza();
    };
    const auto prima = misura(96);
    EXPECT_NEAR(misura(192), 2 * prima, 6);
    EXPECT_NEAR(misura(144), 1.5 * prima, 6);
    EXPECT_EQ(misura(96), prima);
    scordaDpi(p.cornice());
}
