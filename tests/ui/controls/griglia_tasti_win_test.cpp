// The grid's keys: which row they make the current one.

#include "tests/aiuti/griglia_prova_win.h"
#include "ui/controls/griglia_win.h"

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include <gtest/gtest.h>

namespace {

bool tuttaInVista(const GrigliaProva& p, int riga) {
    RECT r{};
    RECT lista{};
    RECT testata{};
    ListView_GetItemRect(p.lista(), riga - 1, &r, LVIR_BOUNDS);
    GetClientRect(p.lista(), &lista);
    GetClientRect(ListView_GetHeader(p.lista()), &testata);
    return r.top >= testata.bottom && r.bottom <= lista.bottom;
}

} // namespace

TEST(GrigliaTasti, ITastiMuovonoLaRigaCorrente) {
    GrigliaProva p(200);
    p.premiTasto(VK_DOWN);
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    EXPECT_EQ(p.selezionate(), std::vector<int>{2});
    p.premiTasto(VK_END);
    EXPECT_EQ(p.griglia.rigaCorrente(), 200);
    p.premiTasto(VK_HOME);
    EXPECT_EQ(p.griglia.rigaCorrente(), 1);
    EXPECT_EQ(p.griglia.rigaInCima(), 1);
    p.premiTasto(VK_NEXT);
    EXPECT_GT(p.griglia.rigaCorrente(), 5);
    EXPECT_EQ(p.selezionate(), std::vector<int>{p.griglia.rigaCorrente()});
    // One row further than what is in sight scrolls by one row.
    while (p.griglia.rigaInCima() == 1 && p.griglia.rigaCorrente() < 199) {
        p.premiTasto(VK_DOWN);
    }
    EXPECT_EQ(p.griglia.rigaInCima(), 2);
}

TEST(GrigliaTasti, NemmenoConCtrlUnaRigaRestaSenzaSelezione) {
    GrigliaProva p(20);
    p.premiTasto(VK_SPACE, VK_CONTROL);
    EXPECT_EQ(p.selezionate(), std::vector<int>{1});
    p.premiTasto(VK_DOWN, VK_CONTROL);
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    EXPECT_EQ(p.selezionate(), std::vector<int>{2});
    p.premiTasto(VK_ADD, VK_CONTROL);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
}

TEST(GrigliaTasti, FineEPaginaGiuSiFermanoAllUltimoElemento) {
    GrigliaProva p(20);
    const int intere = ListView_GetCountPerPage(p.lista());
    ASSERT_LT(intere, 20);
    for (const WORD tasto : {WORD{VK_END}, WORD{VK_NEXT}}) {
        for (const WORD con : {WORD{0}, WORD{VK_SHIFT}, WORD{VK_CONTROL}}) {
            SCOPED_TRACE(tasto * 1000 + con);
            p.griglia.rigaInCima(1);
            p.griglia.seleziona(1);
            for (int i = 0; i < 20 / (intere - 1) + 2; ++i) {
                p.premiTasto(tasto, con);
                EXPECT_LE(p.griglia.rigaCorrente(), 20);
            }
            EXPECT_EQ(p.griglia.rigaCorrente(), 20);
            EXPECT_EQ(p.selezionate(), std::vector<int>{20});
            // The last in sight: the view went down no further than it had to.
            EXPECT_TRUE(tuttaInVista(p, 20));
            EXPECT_FALSE(tuttaInVista(p, 21));
            // Below are rows without items, for the arrows only.
            p.premiTasto(VK_DOWN);
            EXPECT_EQ(p.griglia.rigaCorrente(), 21);
            p.premiTasto(tasto, con);
            EXPECT_EQ(p.griglia.rigaCorrente(), 20);
        }
    }
}

TEST(GrigliaTasti, SenzaElementiFineEPaginaGiuNonVannoDaNessunaParte) {
    GrigliaProva p(0);
    for (const WORD tasto : {WORD{VK_END}, WORD{VK_NEXT}}) {
        p.premiTasto(tasto);
        EXPECT_EQ(p.griglia.rigaCorrente(), 1);
        EXPECT_EQ(p.griglia.rigaInCima(), 1);
    }
}

TEST(GrigliaTasti, PaginaGiuVaPrimaInFondoAllaVistaEPoiDiUnaPagina) {
    GrigliaProva p(200);
    const int intere = ListView_GetCountPerPage(p.lista());
    p.premiTasto(VK_NEXT);
    EXPECT_EQ(p.griglia.rigaCorrente(), intere);
    EXPECT_EQ(p.griglia.rigaInCima(), 1);
    p.premiTasto(VK_NEXT);
    EXPECT_EQ(p.griglia.rigaCorrente(), 2 * intere - 1);
    EXPECT_EQ(p.griglia.rigaInCima(), intere);
    // A current row that is not in sight is where the page starts, or above it.
    p.griglia.rigaInCima(100);
    p.premiTasto(VK_NEXT);
    EXPECT_EQ(p.griglia.rigaCorrente(), 100 + intere - 1);
    p.griglia.rigaInCima(1);
    p.premiTasto(VK_NEXT);
    EXPECT_EQ(p.griglia.rigaCorrente(), 100 + 2 * (intere - 1));
    EXPECT_TRUE(tuttaInVista(p, p.griglia.rigaCorrente()));
}
