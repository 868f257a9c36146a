#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/puntatore_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/controls/griglia_win.h"
#include "ui/main/GUI_win.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

using Testi = std::vector<std::wstring>;

TEST(GrigliaTrascina, IlPrimoSulTerzo) {
    GrigliaProva p(4);
    p.trascina(p.punto(1), p.punto(3));
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 0 2"});
    EXPECT_EQ(p.titoli(), (Testi{L"titolo 1", L"titolo 2", L"titolo 0", L"titolo 3"}));
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
    EXPECT_EQ(p.selezionate(), std::vector<int>{3});
    EXPECT_EQ(p.testo(3, 1), L"titolo 0\r\ndescrizione 0");
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(GrigliaTrascina, LUltimoSulSecondo) {
    GrigliaProva p(4);
    p.trascina(p.punto(4), p.punto(2));
    EXPECT_EQ(p.titoli(), (Testi{L"titolo 0", L"titolo 3", L"titolo 1", L"titolo 2"}));
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
}

TEST(GrigliaTrascina, PuntatoreERigaCorrenteSeguonoIlMouse) {
    GrigliaProva p(4);
    p.vai(p.punto(2));
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Trascina);
    EXPECT_EQ(GetCapture(), p.lista());
    p.vai(p.punto(3));
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
    EXPECT_EQ(p.selezionate(), std::vector<int>{3});
    p.vai(p.punto(6));
    EXPECT_EQ(p.griglia.rigaCorrente(), 6);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Vietato);
    p.vai(p.punto(4));
    EXPECT_EQ(puntatoreVisto(), Puntatore::Trascina);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 1 3"});
}

TEST(GrigliaTrascina, IlPuntatoreEQuelloDisegnatoPerLaRiga) {
    constexpr COLORREF sfondo = RGB(255, 0, 0);
    GrigliaProva p(4);
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    const Immagine allaPressione = puntatore(sfondo);
    p.vai(p.punto(3));
    const Immagine inMovimento = puntatore(sfondo);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    const Puntatori puntatori(dpiDi(nullptr));
    puntatori.mostra(Puntatore::Trascina);
    const Immagine disegnato = puntatore(sfondo);
    puntatori.mostra(Puntatore::Predefinito);
    EXPECT_EQ(allaPressione, disegnato);
    EXPECT_EQ(inMovimento, disegnato);
    EXPECT_NE(puntatore(sfondo), disegnato);
}

TEST(GrigliaTrascina, IlPuntatoreCambiaAllaPressioneETornaAlRilascioSenzaAltriMovimenti) {
    GrigliaProva p(4);
    const HCURSOR freccia = LoadCursorW(nullptr, IDC_ARROW);
    const HCURSOR vietato = LoadCursorW(nullptr, IDC_NO);
    p.vai(p.punto(2));
    ASSERT_EQ(GetCursor(), freccia);
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    EXPECT_NE(GetCursor(), freccia);
    EXPECT_NE(GetCursor(), vietato);
    // Not through the queue, where the system's own setting of the pointer would come after it.
    SendMessageW(p.lista(), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(GetCursor(), freccia);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    // On a row that is no item.
    p.vai(p.punto(7));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Vietato);
    EXPECT_EQ(GetCursor(), vietato);
    p.vai(p.punto(3));
    EXPECT_EQ(puntatoreVisto(), Puntatore::Trascina);
    SendMessageW(p.lista(), WM_CANCELMODE, 0, 0);
    EXPECT_EQ(GetCursor(), freccia);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(GrigliaTrascina, SuSeStessoOSuUnaRigaVuotaNonCambiaNulla) {
    GrigliaProva p(4);
    const Testi prima = p.titoli();
    p.trascina(p.punto(2), p.punto(3), p.punto(2));
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    p.trascina(p.punto(2), p.punto(7));
    EXPECT_EQ(p.griglia.rigaCorrente(), 7);
    EXPECT_EQ(p.griglia.ElementoSelezionato(), -1);
    p.trascina(p.punto(7), p.punto(2));
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    EXPECT_EQ(p.titoli(), prima);
    EXPECT_TRUE(p.osservatore.mosse().empty());
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
}

TEST(GrigliaTrascina, NonDaiBordiNeDallIntestazione) {
    GrigliaProva p(40);
    const POINT fine = p.punto(3);
    POINT sinistra = p.punto(1);
    sinistra.x = p.sinistra() + 4;
    p.trascina(sinistra, fine);
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
    RECT r{};
    GetWindowRect(p.lista(), &r);
    p.trascina({fine.x, r.bottom - 4}, fine);
    // Nor of the row that happens to be the current one.
    p.griglia.seleziona(5);
    p.trascina(p.puntoTestata(), fine);
    EXPECT_EQ(p.griglia.rigaCorrente(), 5);
    EXPECT_TRUE(p.osservatore.mosse().empty());
    // Without a scroll bar rows reach the right edge.
    p.nascondiBarra();
    p.trascina({r.right - 5, p.punto(1).y}, fine);
    EXPECT_TRUE(p.osservatore.mosse().empty());
    p.trascina({r.right - 12, p.punto(1).y}, fine);
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 0 2"});
}

TEST(GrigliaTrascina, SottoLUltimaRigaNonCENessunaRiga) {
    // A grid higher than its rows.
    GrigliaProva p(3);
    GUI::IntestaGriglia(p.griglia);
    p.griglia.elenca(ClsUTC(), FormatoLocale());
    p.griglia.seleziona(2);
    p.osservatore.eventi.clear();
    POINT sotto = p.punto(3);
    sotto.y += 100;
    p.trascina(sotto, p.punto(1));
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    p.doppioClic(sotto);
    EXPECT_EQ(p.osservatore.eventi, Testi{L"doppio 0"});
    p.pulsante(MOUSEEVENTF_RIGHTDOWN);
    p.pulsante(MOUSEEVENTF_RIGHTUP);
    EXPECT_EQ(p.osservatore.menu.size(), 1U);
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    // For a pointer that drags, the last row is the nearest.
    p.trascina(p.punto(1), sotto);
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 0 2"});
}

TEST(GrigliaTrascina, UnDoppioClicACavalloDiDueRigheParlaDellaSeconda) {
    GrigliaProva p(5);
    RECT r{};
    ListView_GetItemRect(p.lista(), 2, &r, LVIR_BOUNDS);
    POINT sopra{0, r.top - 1};
    MapWindowPoints(p.lista(), nullptr, &sopra, 1);
    sopra.x = p.punto(3).x;
    p.nuovoClic();
    p.clic(sopra);
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    p.clic({sopra.x, sopra.y + 1});
    EXPECT_EQ(p.osservatore.doppi(), Testi{L"doppio 3"});
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
}

TEST(GrigliaTrascina, EscLoAbbandonaETornaLaRigaCheEraSelezionata) {
    GrigliaProva p(4);
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.vai(p.punto(4));
    p.premiTasto(VK_ESCAPE);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    EXPECT_EQ(p.selezionate(), std::vector<int>{2});
    p.vai(p.punto(3));
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(p.osservatore.mosse().empty());
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
}

TEST(GrigliaTrascina, ConEscTornaAncheLaVista) {
    GrigliaProva p(200);
    RECT r{};
    GetWindowRect(p.lista(), &r);
    p.griglia.rigaInCima(50);
    p.vai(p.punto(52));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    const int x = p.punto(52).x;
    for (int i = 0; i < 10; ++i) {
        p.vai({x + i, r.bottom - 4});
    }
    p.rotella(-5);
    ASSERT_FALSE(rigaVisibile(p.griglia.lista(), 52));
    p.premiTasto(VK_ESCAPE);
    EXPECT_EQ(p.griglia.rigaInCima(), 50);
    EXPECT_EQ(p.griglia.rigaCorrente(), 52);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(p.griglia.rigaInCima(), 50);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(GrigliaTrascina, EscArrivaAllaGrigliaAncheInUnDialogo) {
    GrigliaProva p(4);
    const ConFiltro dialogo(
        [&p](MSG& msg) { return IsDialogMessageW(p.cornice(), &msg) != FALSE; });
    p.vai(p.punto(1));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.vai(p.punto(3));
    p.premiTasto(VK_TAB);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Trascina);
    EXPECT_EQ(GetFocus(), p.lista());
    p.premiTasto(VK_ESCAPE);
    EXPECT_NE(puntatoreVisto(), Puntatore::Trascina);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(GrigliaTrascina, GliAltriTastiNonContano) {
    GrigliaProva p(4);
    p.vai(p.punto(1));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.vai(p.punto(3));
    for (const int tasto : {VK_DOWN, VK_HOME, VK_END, VK_RETURN, VK_DELETE, VK_SPACE}) {
        p.premiTasto(static_cast<WORD>(tasto));
        EXPECT_EQ(p.griglia.rigaCorrente(), 3);
        EXPECT_EQ(puntatoreVisto(), Puntatore::Trascina);
    }
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 0 2"});
}

TEST(GrigliaTrascina, DopoEscUnaPressioneSulBordoNonLoRiprende) {
    GrigliaProva p(4);
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.vai(p.punto(4));
    p.premiTasto(VK_ESCAPE);
    {
        // Let go over another program.
        const ConFiltro perso([](MSG& msg) { return msg.message == WM_LBUTTONUP; });
        p.pulsante(MOUSEEVENTF_LEFTUP);
    }
    POINT bordo = p.punto(1);
    bordo.x = p.sinistra() + 4;
    p.trascina(bordo, p.punto(3));
    EXPECT_TRUE(p.osservatore.mosse().empty());
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
}

TEST(GrigliaTrascina, CatturaPersaFuocoPersoOComandoLoAbbandonano) {
    using Modo = void (*)(GrigliaProva&);
    for (const Modo modo :
         {Modo([](GrigliaProva&) { ReleaseCapture(); }),
          Modo([](GrigliaProva& p) { SetCapture(p.cornice()); }),
          Modo([](GrigliaProva& p) { SetFocus(p.cornice()); }),
          Modo([](GrigliaProva& p) { SendMessageW(p.lista(), WM_CANCELMODE, 0, 0); }),
          Modo([](GrigliaProva& p) { GUI::RiempiGriglia(p.griglia, false); }),
          Modo([](GrigliaProva& p) { p.pulsante(MOUSEEVENTF_RIGHTDOWN); })}) {
        GrigliaProva p(4);
        p.vai(p.punto(1));
        p.pulsante(MOUSEEVENTF_LEFTDOWN);
        p.vai(p.punto(3));
        ASSERT_EQ(puntatoreVisto(), Puntatore::Trascina);
        modo(p);
        EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
        p.pulsante(MOUSEEVENTF_LEFTUP);
        p.pulsante(MOUSEEVENTF_RIGHTUP);
        EXPECT_TRUE(p.osservatore.mosse().empty());
        ReleaseCapture();
    }
}

TEST(GrigliaTrascina, RiempireDopoLoSpostamentoTieneLaPrimaRigaInVista) {
    GrigliaProva p(200);
    p.griglia.rigaInCima(100);
    p.trascina(p.punto(101), p.punto(104));
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 100 103"});
    EXPECT_EQ(p.griglia.rigaInCima(), 100);
    EXPECT_EQ(p.griglia.rigaCorrente(), 104);
}

TEST(GrigliaTrascina, LaRotellaScorreEIlRilascioUsaLaRigaSottoIlPuntatore) {
    GrigliaProva p(200);
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.rotella(-1);
    const int cima = p.griglia.rigaInCima();
    EXPECT_GT(cima, 1);
    EXPECT_EQ(p.griglia.rigaCorrente(), cima + 1);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Trascina);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 1 " + std::to_wstring(cima)});
    EXPECT_EQ(p.griglia.rigaInCima(), cima);
}

TEST(GrigliaTrascina, VicinoAlBordoOgniMovimentoScorreDiUnaRiga) {
    GrigliaProva p(200);
    RECT r{};
    GetWindowRect(p.lista(), &r);
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    const int x = p.punto(2).x;
    for (int i = 0; i < 5; ++i) {
        p.vai({x + i, r.bottom - 4});
    }
    EXPECT_EQ(p.griglia.rigaInCima(), 6);
    EXPECT_GT(p.griglia.rigaCorrente(), 8);
    // Beyond the edge, too; and back up over the header.
    p.vai({x, r.bottom + 30});
    EXPECT_EQ(p.griglia.rigaInCima(), 7);
    p.vai({x, r.top + 5});
    p.vai({x + 1, r.top + 5});
    EXPECT_EQ(p.griglia.rigaInCima(), 5);
    EXPECT_EQ(p.griglia.rigaCorrente(), 5);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 1 4"});
    EXPECT_EQ(p.griglia.rigaCorrente(), 5);
}

TEST(GrigliaTrascina, UnMovimentoRipetutoNonScorre) {
    // Windows repeats the last move when what is under the pointer changes, and scrolling does.
    GrigliaProva p(200);
    RECT r{};
    GetWindowRect(p.lista(), &r);
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    POINT dove{p.punto(2).x, r.bottom - 4};
    p.vai(dove);
    ASSERT_EQ(p.griglia.rigaInCima(), 2);
    ScreenToClient(p.lista(), &dove);
    for (int i = 0; i < 3; ++i) {
        SendMessageW(p.lista(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(dove.x, dove.y));
    }
    EXPECT_EQ(p.griglia.rigaInCima(), 2);
    p.premiTasto(VK_ESCAPE);
    p.pulsante(MOUSEEVENTF_LEFTUP);
}

TEST(GrigliaTrascina, UnRilascioCheNessunoHaVistoLoAbbandona) {
    GrigliaProva p(4);
    p.vai(p.punto(1));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.vai(p.punto(3));
    {
        const ConFiltro perso([](MSG& msg) { return msg.message == WM_LBUTTONUP; });
        p.pulsante(MOUSEEVENTF_LEFTUP);
    }
    ASSERT_EQ(puntatoreVisto(), Puntatore::Trascina);
    p.vai(p.punto(2));
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(GrigliaTrascina, IlRilascioFuoriDallaGrigliaUsaLaRigaCorrente) {
    GrigliaProva p(4);
    RECT r{};
    GetWindowRect(p.lista(), &r);
    p.trascina(p.punto(1), p.punto(3), POINT{r.right + 25, p.punto(4).y});
    EXPECT_EQ(p.osservatore.mosse(), Testi{L"sposta 0 3"});
}

TEST(GrigliaTrascina, UnTrascinamentoDuranteUnaFinestraModale) {
    // The box that a control shows when it loses the focus runs before the press is over.
    GrigliaProva p(4);
    SetFocus(p.cornice());
    p.quandoPerdeIlFuoco([&p] { p.pulsante(MOUSEEVENTF_LEFTUP); });
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    EXPECT_NE(puntatoreVisto(), Puntatore::Trascina);
    EXPECT_EQ(GetCapture(), nullptr);
    p.vai(p.punto(4));
    EXPECT_EQ(p.griglia.rigaCorrente(), 2);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(GrigliaTrascina, UnErroreDelProprietarioNonEsceDallaGriglia) {
    GrigliaProva p(4);
    p.osservatore.fallisce = true;
    p.trascina(p.punto(1), p.punto(3));
    EXPECT_EQ(p.osservatore.eccezioni, 1);
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    p.osservatore.fallisce = false;
    p.trascina(p.punto(1), p.punto(3));
    EXPECT_EQ(p.osservatore.mosse(), (Testi{L"sposta 0 2", L"sposta 0 2"}));
}
