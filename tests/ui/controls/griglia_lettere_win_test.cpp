// Letters typed in the grid: they go to the item whose title begins with them.

#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/main/GUI_win.h"

#include <windows.h>

#include <commctrl.h>

#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

class GrigliaLettere : public testing::Test {
protected:
    GrigliaLettere() {
        for (const wchar_t* const titolo :
             {L"alfa", L"Beta", L"\u00E8 vero", L"benzina", L"Erba", L"  gamma"}) {
            p.aggiungi(titolo, L"zeta");
        }
        GUI::RiempiGriglia(p.griglia, false);
    }

    // All in one go, as quickly as a list takes them for one word.
    void digita(std::wstring_view lettere) {
        std::vector<INPUT> eventi;
        for (const wchar_t lettera : lettere) {
            INPUT evento{};
            evento.type = INPUT_KEYBOARD;
            evento.ki.wScan = static_cast<WORD>(lettera);
            for (const DWORD come : {KEYEVENTF_UNICODE, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP}) {
                evento.ki.dwFlags = come;
                eventi.push_back(evento);
            }
        }
        SendInput(static_cast<UINT>(eventi.size()), eventi.data(), sizeof(INPUT));
        pompa();
    }
    // A new word begins: the list has forgotten the last one.
    static void pausa() {
        const DWORD inizio = GetTickCount();
        EXPECT_TRUE(attendi([&] { return GetTickCount() - inizio > dimentica; }));
    }
    [[nodiscard]] int dopo(std::wstring_view lettere) {
        // On a busy machine the letters may come too far apart to be a word: once more, then.
        const int prima = p.griglia.rigaCorrente();
        for (DWORD inizio = GetTickCount() - 2 * insieme; GetTickCount() - inizio > insieme;) {
            p.griglia.seleziona(prima);
            pausa();
            inizio = GetTickCount();
            digita(lettere);
        }
        EXPECT_EQ(p.selezionate(), std::vector<int>{p.griglia.rigaCorrente()});
        EXPECT_EQ(ListView_GetNextItem(p.lista(), -1, LVNI_FOCUSED) + 1, p.griglia.rigaCorrente());
        return p.griglia.rigaCorrente();
    }

    // A list joins letters to a word within less than this, in milliseconds.
    static constexpr DWORD dimentica = 600;
    // Within this it surely does.
    static constexpr DWORD insieme = 400;

    GrigliaProva p{0};
};

} // namespace

TEST_F(GrigliaLettere, VannoAlProssimoTitoloCheIniziaCosi) {
    EXPECT_EQ(dopo(L"b"), 2);
    EXPECT_EQ(dopo(L"b"), 4);
    // Around the end.
    EXPECT_EQ(dopo(L"b"), 2);
    EXPECT_EQ(dopo(L"E"), 3);
    EXPECT_EQ(dopo(L"\u00E9"), 5);
    EXPECT_EQ(dopo(L"g"), 6);
    EXPECT_EQ(dopo(L"a"), 1);
}

TEST_F(GrigliaLettere, PiuLettereInFrettaSonoUnaParola) {
    EXPECT_EQ(dopo(L"ben"), 4);
    EXPECT_EQ(dopo(L"be"), 2);
    EXPECT_EQ(dopo(L"er"), 5);
    // The first letter has gone to a title before the second one fits no more.
    EXPECT_EQ(dopo(L"ev"), 3);
    EXPECT_EQ(dopo(L"bbb"), 4);
}

TEST_F(GrigliaLettere, LettereConCuiNessunTitoloIniziaNonMuovonoNulla) {
    p.griglia.seleziona(3);
    EXPECT_EQ(dopo(L"z"), 3);
    EXPECT_EQ(dopo(L"lfa"), 3);
    EXPECT_EQ(dopo(L"1"), 3);
    // Rows without an item have no title.
    p.griglia.seleziona(20);
    EXPECT_EQ(dopo(L"z"), 20);
    EXPECT_EQ(dopo(L"b"), 2);
}

TEST_F(GrigliaLettere, PortanoInVistaLaRigaTrovata) {
    for (int i = 0; i < 100; ++i) {
        p.aggiungi(L"riga " + std::to_wstring(i), L"");
    }
    p.aggiungi(L"ultima", L"");
    GUI::RiempiGriglia(p.griglia, false);
    EXPECT_EQ(dopo(L"u"), 107);
    EXPECT_TRUE(rigaVisibile(p.lista(), 107));
    EXPECT_EQ(dopo(L"a"), 1);
    EXPECT_TRUE(rigaVisibile(p.lista(), 1));
}

TEST_F(GrigliaLettere, DuranteUnTrascinamentoNonContano) {
    p.vai(p.punto(2));
    p.pulsante(MOUSEEVENTF_LEFTDOWN);
    p.vai(p.punto(4));
    digita(L"a");
    EXPECT_EQ(p.griglia.rigaCorrente(), 4);
    p.pulsante(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(p.osservatore.mosse(), std::vector<std::wstring>{L"sposta 1 3"});
}

TEST_F(GrigliaLettere, ChiCercaAltroCheUnInizioNonTrova) {
    LVFINDINFOW intero{};
    intero.flags = LVFI_STRING;
    intero.psz = L"alfa";
    LVFINDINFOW inizio = intero;
    inizio.flags |= LVFI_PARTIAL;
    EXPECT_EQ(ListView_FindItem(p.lista(), -1, &intero), -1);
    EXPECT_GE(ListView_FindItem(p.lista(), -1, &inizio), 0);
}
