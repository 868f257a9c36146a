#include "ui/controls/griglia_win.h"

#include "support/windows/errori_win.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/puntatore_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/tabella_prova.h"
#include "ui/main/GUI_win.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

using enum CampoElemento;

TEST(Griglia, VuotaMostra49RigheSenzaElemento) {
    GrigliaProva p(0);
    EXPECT_EQ(ListView_GetItemCount(p.lista()), 49);
    EXPECT_EQ(p.griglia.rigaCorrente(), 1);
    EXPECT_EQ(p.griglia.ElementoSelezionato(), -1);
    EXPECT_EQ(p.testo(1, 0), L" ");
    EXPECT_EQ(p.testo(1, 1), L" ");
    EXPECT_EQ(p.testo(49, 2), L"-1");
    EXPECT_EQ(p.titolo(0), L"Data/Orario");
    EXPECT_EQ(p.titolo(1), L"Contenuto");
    EXPECT_EQ(p.titolo(2), L"");
}

TEST(Griglia, LeCelleVengonoDallaTabella) {
    GrigliaProva p(2);
    metti(p.documento, Titolo, 1, L" Due ");
    metti(p.documento, Descrizione, 1, L"a\tb");
    metti(p.documento, Data, 1, L"ieri");
    EXPECT_EQ(p.testo(1, 0), L"15/11/2005 10:00:00");
    EXPECT_EQ(p.testo(1, 1), L"titolo 0\r\ndescrizione 0");
    EXPECT_EQ(p.testo(1, 2), L"0");
    EXPECT_EQ(p.testo(2, 0), L"ieri");
    EXPECT_EQ(p.testo(2, 1), L"Due\r\na    b");
    EXPECT_EQ(p.testo(3, 2), L"-1");
}

TEST(Griglia, NumeroDiRigheAttornoA50EAlMassimo) {
    for (const auto& [elementi, righe] :
         {std::pair{1, 49}, {49, 49}, {50, 50}, {51, 51}, {32767, 32767}}) {
        GrigliaProva p(0);
        dimensiona(p.documento, elementi);
        GUI::RiempiGriglia(p.griglia, false);
        EXPECT_EQ(ListView_GetItemCount(p.lista()), righe);
        EXPECT_EQ(p.griglia.ElementoSelezionato(), 0);
        p.griglia.seleziona(elementi);
        EXPECT_EQ(p.griglia.ElementoSelezionato(), elementi - 1);
        GUI::RiempiGriglia(p.griglia, true);
        EXPECT_EQ(ListView_GetItemCount(p.lista()), 49);
        EXPECT_EQ(p.griglia.ElementoSelezionato(), -1);
    }
}

TEST(Griglia, LeColonneHannoLaLarghezzaDetta) {
    GrigliaProva p(3);
    RECT r{};
    GetClientRect(p.griglia.hwnd(), &r);
    const auto resto = larghezzeColonne(r.right * 15.0, 3, 2000.0)[1];
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
    EXPECT_NEAR(ListView_GetColumnWidth(p.lista(), 1), resto / 15, 0.51);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 2), ListView_GetColumnWidth(p.lista(), 1));
    // They follow the grid's width, down to none.
    p.allarga(600);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 1), 600 - 133 - 20);
    p.allarga(100);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 1), 0);
}

TEST(Griglia, NessunaBarraOrizzontale) {
    GrigliaProva p(500);
    EXPECT_EQ(GetWindowLongPtrW(p.lista(), GWL_STYLE) & WS_HSCROLL, 0);
    EXPECT_NE(GetWindowLongPtrW(p.lista(), GWL_STYLE) & WS_VSCROLL, 0);
    p.allarga(300);
    pompa();
    EXPECT_EQ(GetWindowLongPtrW(p.lista(), GWL_STYLE) & WS_HSCROLL, 0);
    p.premiTasto(VK_RIGHT);
    p.premiTasto(VK_RIGHT);
    RECT r{};
    ListView_GetItemRect(p.lista(), 0, &r, LVIR_BOUNDS);
    EXPECT_EQ(r.left, 0);
}

TEST(Griglia, UnaRigaFuoriVistaDiventaLaPrimaInAlto) {
    GrigliaProva p(200);
    GUI::SelezionaRiga(p.griglia, 100);
    EXPECT_EQ(p.griglia.rigaInCima(), 100);
    GUI::SelezionaRiga(p.griglia, 102);
    EXPECT_EQ(p.griglia.rigaInCima(), 100);
    GUI::SelezionaRiga(p.griglia, 50);
    EXPECT_EQ(p.griglia.rigaInCima(), 50);
    GUI::SelezionaRiga(p.griglia, 200);
    EXPECT_TRUE(rigaVisibile(p.griglia.lista(), 200));
    EXPECT_LT(p.griglia.rigaInCima(), 200);
    // Rows that are none change nothing.
    for (const int riga : {0, -1, 201, 100000}) {
        GUI::SelezionaRiga(p.griglia, riga);
        EXPECT_EQ(p.griglia.rigaCorrente(), 200);
    }
}

TEST(Griglia, UnaRigaDiCuiNonSiVedeNullaNonEVisibile) {
    GrigliaProva p(200);
    RECT r{};
    ListView_GetItemRect(p.lista(), 0, &r, LVIR_BOUNDS);
    const int altezza = r.bottom - r.top;
    p.alta(r.top + 5 * altezza);
    EXPECT_TRUE(rigaVisibile(p.griglia.lista(), 5));
    EXPECT_FALSE(rigaVisibile(p.griglia.lista(), 6));
    p.griglia.seleziona(6);
    EXPECT_EQ(p.griglia.rigaInCima(), 6);
    EXPECT_FALSE(rigaVisibile(p.griglia.lista(), 5));
    // One pixel is enough.
    p.griglia.rigaInCima(1);
    p.alta(r.top + 5 * altezza + 1);
    EXPECT_TRUE(rigaVisibile(p.griglia.lista(), 6));
    p.griglia.seleziona(1);
    p.griglia.seleziona(6);
    EXPECT_EQ(p.griglia.rigaInCima(), 1);
}

TEST(Griglia, RiempireDiNuovoTornaAllaPrimaRiga) {
    GrigliaProva p(200);
    p.griglia.seleziona(150);
    GUI::RiempiGriglia(p.griglia, false);
    EXPECT_EQ(p.griglia.rigaCorrente(), 1);
    EXPECT_EQ(p.griglia.rigaInCima(), 1);
    EXPECT_EQ(p.selezionate(), std::vector<int>{1});
}

TEST(Griglia, UnClicSelezionaTuttaLaRigaSoltanto) {
    GrigliaProva p(5);
    p.clic(p.punto(3));
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
    EXPECT_EQ(p.selezionate(), std::vector<int>{3});
    EXPECT_EQ(GetFocus(), p.lista());
    p.clic(p.punto(8));
    EXPECT_EQ(p.griglia.rigaCorrente(), 8);
    EXPECT_EQ(p.griglia.ElementoSelezionato(), -1);
    EXPECT_EQ(p.selezionate(), std::vector<int>{8});
    EXPECT_TRUE(p.osservatore.eventi.empty());
}

TEST(Griglia, UnClicSullaRigaVisibileAMetaNonScorre) {
    GrigliaProva p(200);
    RECT r{};
    GetClientRect(p.lista(), &r);
    RECT prima{};
    ListView_GetItemRect(p.lista(), 0, &prima, LVIR_BOUNDS);
    const int altezza = prima.bottom - prima.top;
    const int ultima = (r.bottom - prima.top) / altezza + 1;
    // Half of the last row is in sight, or the height of the list is made to show it so.
    p.alta(prima.top + (ultima - 1) * altezza + altezza / 2 + 4);
    ASSERT_TRUE(rigaVisibile(p.griglia.lista(), ultima));
    ASSERT_FALSE(rigaVisibile(p.griglia.lista(), ultima + 1));
    p.clic(p.punto(ultima, -altezza / 4));
    EXPECT_EQ(p.griglia.rigaCorrente(), ultima);
    EXPECT_EQ(p.griglia.rigaInCima(), 1);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(Griglia, ChiSelezionaDaFuoriCambiaLaRigaCorrente) {
    GrigliaProva p(20);
    ListView_SetItemState(p.lista(), 6, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(p.griglia.rigaCorrente(), 7);
    EXPECT_EQ(p.selezionate(), std::vector<int>{7});
}

TEST(Griglia, IlDoppioClicDiceLaRiga) {
    GrigliaProva p(3);
    p.doppioClic(p.punto(2));
    p.doppioClic(p.punto(7));
    p.doppioClic(p.puntoTestata());
    // Near the left edge a row is a row.
    POINT bordo = p.punto(3);
    bordo.x = p.sinistra() + 3;
    p.doppioClic(bordo);
    EXPECT_EQ(p.osservatore.doppi(),
              (std::vector<std::wstring>{L"doppio 2", L"doppio 7", L"doppio 0", L"doppio 3"}));
    EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
    EXPECT_TRUE(p.osservatore.mosse().empty());
}

TEST(Griglia, IlPulsanteDestroSelezionaEPoiApreIlMenu) {
    GrigliaProva p(5);
    const POINT dove = p.punto(4);
    p.vai(dove);
    p.pulsante(MOUSEEVENTF_RIGHTDOWN);
    EXPECT_EQ(p.griglia.rigaCorrente(), 4);
    EXPECT_TRUE(p.osservatore.menu.empty());
    p.pulsante(MOUSEEVENTF_RIGHTUP);
    ASSERT_EQ(p.osservatore.menu.size(), 1U);
    EXPECT_EQ(p.osservatore.menu[0].x, dove.x);
    EXPECT_EQ(p.osservatore.menu[0].y, dove.y);
    EXPECT_EQ(p.osservatore.righeMenu, std::vector{4});
}

TEST(Griglia, IlMenuDiceDoveNonCiSonoRighe) {
    GrigliaProva p(5);
    p.griglia.seleziona(3);
    // The header; below the only rows left.
    const POINT testata = p.puntoTestata();
    const POINT sotto = p.punto(5);
    GUI::ImpostaColonne(p.griglia, {L"Uno", L"Due"}, 3, std::nullopt);
    for (const POINT& dove : {testata, sotto}) {
        p.vai(dove);
        p.pulsante(MOUSEEVENTF_RIGHTDOWN);
        p.pulsante(MOUSEEVENTF_RIGHTUP);
    }
    EXPECT_EQ(p.osservatore.righeMenu, (std::vector{0, 0}));
}

TEST(Griglia, IlMenuDaTastieraSiApreAllaRigaCorrente) {
    GrigliaProva p(5);
    p.griglia.seleziona(3);
    p.premiTasto(VK_APPS);
    p.premiTasto(VK_F10, VK_SHIFT);
    ASSERT_EQ(p.osservatore.menu.size(), 2U);
    for (const POINT& m : p.osservatore.menu) {
        EXPECT_EQ(m.y, p.punto(3).y);
        EXPECT_GT(m.x, p.sinistra());
    }
    EXPECT_EQ(p.osservatore.righeMenu, (std::vector{3, 3}));
}

TEST(Griglia, IlMenuDaTastieraSiApreNellaGrigliaAncheSeLaRigaNonSiVede) {
    GrigliaProva p(200);
    RECT r{};
    GetWindowRect(p.lista(), &r);
    for (const int cima : {100, 1}) {
        p.griglia.seleziona(50);
        p.griglia.rigaInCima(cima);
        ASSERT_FALSE(rigaVisibile(p.griglia.lista(), 50));
        p.premiTasto(VK_APPS);
        ASSERT_FALSE(p.osservatore.menu.empty());
        EXPECT_TRUE(PtInRect(&r, p.osservatore.menu.back()));
        EXPECT_EQ(p.griglia.rigaCorrente(), 50);
    }
    EXPECT_EQ(p.osservatore.menu.size(), 2U);
}

TEST(Griglia, IlPulsanteDestroSullIntestazioneApreIlMenuELasciaLaRiga) {
    GrigliaProva p(5);
    p.griglia.seleziona(3);
    SetFocus(p.cornice());
    const POINT dove = p.puntoTestata();
    p.vai(dove);
    p.pulsante(MOUSEEVENTF_RIGHTDOWN);
    p.pulsante(MOUSEEVENTF_RIGHTUP);
    ASSERT_EQ(p.osservatore.menu.size(), 1U);
    EXPECT_EQ(p.osservatore.menu[0].x, dove.x);
    EXPECT_EQ(p.osservatore.menu[0].y, dove.y);
    EXPECT_EQ(p.griglia.rigaCorrente(), 3);
    EXPECT_EQ(GetFocus(), p.lista());
}

TEST(Griglia, LaRotellaScorreSoloInVerticale) {
    GrigliaProva p(200);
    p.vai(p.punto(2));
    p.rotella(-1);
    const int cima = p.griglia.rigaInCima();
    EXPECT_GT(cima, 1);
    // The current row stays, in sight or not.
    EXPECT_EQ(p.griglia.rigaCorrente(), 1);
    SendMessageW(p.lista(), WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -WHEEL_DELTA), 0);
    SendMessageW(p.lista(), WM_MOUSEHWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    for (int i = 0; i < 20; ++i) {
        SendMessageW(p.lista(), WM_HSCROLL, SB_LINERIGHT, 0);
    }
    EXPECT_EQ(p.griglia.rigaInCima(), cima);
    RECT r{};
    ListView_GetItemRect(p.lista(), cima - 1, &r, LVIR_BOUNDS);
    EXPECT_EQ(r.left, 0);
}

TEST(Griglia, LIntestazioneNonSiTrascinaENonSiAllarga) {
    GrigliaProva p(3);
    POINT divisione = p.puntoTestata();
    divisione.x = p.sinistra() + 133;
    p.trascina(divisione, {divisione.x + 60, divisione.y});
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
    p.doppioClic(divisione);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
    p.trascina({divisione.x - 60, divisione.y}, {divisione.x + 90, divisione.y});
    EXPECT_EQ(p.titolo(0), L"Data/Orario");
    EXPECT_TRUE(p.osservatore.mosse().empty());
    // Nor from a header that would not keep its style.
    NMHEADERW avviso{};
    avviso.hdr.hwndFrom = ListView_GetHeader(p.lista());
    const auto avvisa = [&](UINT codice) {
        avviso.hdr.code = codice;
        return SendMessageW(p.lista(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&avviso));
    };
    EXPECT_TRUE(avvisa(HDN_BEGINTRACKW));
    EXPECT_TRUE(avvisa(HDN_BEGINTRACKA));
    avvisa(HDN_DIVIDERDBLCLICKW);
    avvisa(HDN_DIVIDERDBLCLICKA);
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
}

TEST(Griglia, HaUnNomePerChiLaLegge) {
    GrigliaProva p(0);
    std::array<wchar_t, 100> testo{};
    GetWindowTextW(p.lista(), testo.data(), static_cast<int>(testo.size()));
    EXPECT_STREQ(testo.data(), L"Elementi del feed");
}

TEST(Griglia, DueRigheDiTestoEntranoInOgniRiga) {
    const AspettoGriglia aspetto(dpiDi(nullptr).y);
    GrigliaProva p(1);
    RECT r{};
    ListView_GetItemRect(p.lista(), 0, &r, LVIR_BOUNDS);
    EXPECT_EQ(r.bottom - r.top, aspetto.altezzaRiga());
    const HDC dc = GetDC(p.lista());
    const HGDIOBJ prima = SelectObject(dc, aspetto.carattere());
    TEXTMETRICW misure{};
    GetTextMetricsW(dc, &misure);
    SelectObject(dc, prima);
    ReleaseDC(p.lista(), dc);
    EXPECT_GT(r.bottom - r.top, 2 * misure.tmHeight);
    p.griglia.aggiornaAspetto();
    ListView_GetItemRect(p.lista(), 0, &r, LVIR_BOUNDS);
    EXPECT_EQ(r.bottom - r.top, aspetto.altezzaRiga());
}

TEST(Griglia, TestiEnormiSiDipingonoInFretta) {
    GrigliaProva p(0);
    std::wstring righe;
    for (int i = 0; i < 10000; ++i) {
        righe += L"riga\r\n";
    }
    for (int i = 0; i < 40; ++i) {
        p.aggiungi(std::wstring(1 << 20, i % 2 == 0 ? L'\u65E5' : L'\t'),
                   i % 3 == 0 ? righe : std::wstring(1 << 20, L' ') + L"\xD800\u0301\u202E");
    }
    GUI::RiempiGriglia(p.griglia, false);
    const ULONGLONG inizio = GetTickCount64();
    for (int r = 1; r <= 10; ++r) {
        p.griglia.seleziona(4 * r);
        RedrawWindow(p.lista(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    // A tenth of a second when the machine is idle, minutes if whole texts were measured.
    EXPECT_LT(GetTickCount64() - inizio, 30000U);
    EXPECT_EQ(p.testo(1, 1).substr(0, 3), L"\u65E5\u65E5\u65E5");
}

TEST(Griglia, PuoSparirePrimaLaFinestraMadre) {
    GrigliaProva p(5);
    DestroyWindow(p.cornice());
    EXPECT_EQ(p.griglia.hwnd(), nullptr);
    EXPECT_EQ(p.griglia.lista(), nullptr);
    p.griglia.seleziona(2);
    p.griglia.abbandona();
}

TEST(Griglia, NonPerdeOggettiDiWindows) {
    { const GrigliaProva p(100); }
    const DWORD gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    for (int i = 0; i < 10; ++i) {
        GrigliaProva p(100);
        p.griglia.aggiornaAspetto();
        p.trascina(p.punto(1), p.punto(3));
        pompa();
    }
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), gdi);
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), user);
}
