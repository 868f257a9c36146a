// The tooltip of a row whose texts have no room.

#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/suggerimenti_prova_win.h"
#include "ui/main/GUI_win.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

#include <gtest/gtest.h>

namespace {

constexpr std::chrono::milliseconds poco{500};

class GrigliaSuggerimento : public testing::Test {
protected:
    void mostra() { GUI::RiempiGriglia(p.griglia, false); }
    // More rows than there is room for, all cut, and the first one's tip.
    void mostraLunghi() {
        for (int i = 0; i < 60; ++i) {
            p.aggiungi(std::to_wstring(i) + L' ' + lungo, L"");
        }
        mostra();
        prepara();
        EXPECT_TRUE(dice(1, L"0 " + lungo));
    }
    [[nodiscard]] POINT punto(int riga, int x = 250) {
        POINT dove = p.punto(riga);
        ScreenToClient(p.lista(), &dove);
        return {x, dove.y};
    }
    // The tooltip is made when the pointer first comes over a row; only then can its delay be cut.
    void prepara() { muoviMouse(p.lista(), punto(10)); }
    [[nodiscard]] bool dice(int riga, std::wstring_view testo) {
        return suggerisce(p.lista(), punto(riga), testo);
    }
    [[nodiscard]] bool tace(int riga) {
        muoviMouse(p.lista(), punto(riga));
        return attendi([] { return !visibile(); }) && !attendi([] { return visibile(); }, poco);
    }
    static bool visibile() {
        for (HWND s = nullptr;
             (s = FindWindowExW(nullptr, s, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
            if (IsWindowVisible(s)) {
                return true;
            }
        }
        return false;
    }

    const std::wstring lungo = L"Un titolo molto lungo, per ogni larghezza della griglia, che non "
                               L"finisce prima del margine destro della colonna";
    GrigliaProva p{0};
};

} // namespace

TEST_F(GrigliaSuggerimento, DiceInteriITestiTagliatiESoloQuelli) {
    p.aggiungi(L"corto", L"corta");
    p.aggiungi(lungo, L"corta");
    p.aggiungi(L"corto", L"descritta: " + lungo);
    p.aggiungi(L"R&S " + lungo, lungo + L"\r\ne poi\taltro");
    mostra();
    prepara();
    EXPECT_TRUE(dice(2, lungo));
    EXPECT_TRUE(dice(3, L"descritta: " + lungo));
    EXPECT_TRUE(dice(4, L"R&S " + lungo + L"\r\n" + lungo + L"\r\ne poi    altro"));
    EXPECT_TRUE(tace(1));
    EXPECT_TRUE(tace(20));
}

TEST_F(GrigliaSuggerimento, AncheUnaDataCheNonSiLegge) {
    const std::wstring data = L"il quindici del mese di novembre";
    p.documento.applica(p.documento.aggiunta(creaElemento({L"titolo", L"", L"", L"", data, L""})));
    mostra();
    prepara();
    EXPECT_TRUE(suggerisce(p.lista(), punto(1, 20), data));
}

TEST_F(GrigliaSuggerimento, SiTaceQuandoLaGrigliaSiAllarga) {
    p.aggiungi(L"Un titolo di una certa lunghezza, ma non poi cos\u00EC lungo da non starci mai",
               L"");
    mostra();
    prepara();
    p.allarga(400);
    EXPECT_TRUE(dice(1, p.titoli().front()));
    p.allarga(680);
    EXPECT_TRUE(tace(2));
    EXPECT_TRUE(tace(1));
}

TEST_F(GrigliaSuggerimento, SegueLaRigaSottoIlPuntatore) {
    mostraLunghi();
    // The same place, another row.
    rotella(p.lista(), -1);
    EXPECT_TRUE(attendi([] { return !visibile(); }));
    const int cima = p.griglia.rigaInCima();
    ASSERT_GT(cima, 1);
    EXPECT_TRUE(dice(cima, std::to_wstring(cima - 1) + L' ' + lungo));
    // What a row shows has changed meanwhile.
    p.documento.applica(p.documento.rimozione(cima - 1), Causa::Trascinamento);
    const int dove = p.griglia.rigaInCima();
    mostra();
    EXPECT_TRUE(attendi([] { return !visibile(); }));
    p.griglia.rigaInCima(dove);
    EXPECT_TRUE(suggerisce(p.lista(), punto(cima, 260), std::to_wstring(cima) + L' ' + lungo));
}

TEST_F(GrigliaSuggerimento, SparisceQuandoLeRigheCambianoOScorronoDaSole) {
    mostraLunghi();
    // As many rows as before, another item in that one.
    p.documento.applica(p.documento.spostamento(0, 1));
    p.griglia.aggiorna({.da = 1, .a = 2, .corrente = 2}, ClsUTC(), formatoUtente());
    EXPECT_FALSE(visibile());
    EXPECT_TRUE(suggerisce(p.lista(), punto(1, 260), L"1 " + lungo));
    p.griglia.seleziona(50);
    EXPECT_FALSE(visibile());
}

TEST_F(GrigliaSuggerimento, UnTestoLunghissimoFinisceConIPuntini) {
    const std::wstring titolo(5000, L'x');
    p.aggiungi(titolo, L"");
    mostra();
    prepara();
    EXPECT_TRUE(dice(1, titolo.substr(0, SuggerimentoRiga::massimo - 2) + L'\u2026'));
}

TEST_F(GrigliaSuggerimento, SparisceConUnTastoETaceDuranteUnTrascinamento) {
    p.aggiungi(lungo, L"");
    p.aggiungi(lungo + L" 2", L"");
    mostra();
    prepara();
    EXPECT_TRUE(dice(1, lungo));
    p.premiTasto(VK_DOWN);
    EXPECT_FALSE(visibile());
    p.vai(p.punto(1));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(tace(2));
    p.pulsante(MOUSEEVENTF_LEFTUP);
}
