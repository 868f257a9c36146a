// The dialogs on monitors of other resolutions.

#include "res/risorse.h"
#include "tests/aiuti/aspetto_prova_win.h"
#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/dialogs/frmAbout_win.h"

#include <array>
#include <functional>
#include <map>

namespace {

constexpr std::array viaggio{96, 144, 192, 96, 120, 192, 96};

class DialoghiMonitor : public ProvaEditor {
protected:
    DialoghiMonitor() { editor.Elemento().sTitle(L"Un titolo"); }
    void TearDown() override {
        scordaDpi(proprietaria);
        ProvaEditor::TearDown();
    }

    void mostraEditor(int dpi, const std::function<void(HWND)>& azione) {
        tieniDpi(proprietaria, {{dpi}, {dpi}});
        usa([&] {
            azione(finestra);
            SendMessageW(finestra, WM_COMMAND, IDCANCEL, 0);
        });
    }
    void mostraAbout(int dpi, const std::function<void(HWND)>& azione) {
        tieniDpi(proprietaria, {{dpi}, {dpi}});
        frmAbout about(messaggi);
        const QuandoAppare guardia(L"#32770", L"", [&](HWND dialogo) {
            azione(dialogo);
            SendMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
        });
        about.mostra(proprietaria);
    }

    // A caret would blink.
    [[nodiscard]] static Aspetto aspetto(HWND dialogo) {
        SendMessageW(dialogo, WM_NEXTDLGCTL,
                     reinterpret_cast<WPARAM>(GetDlgItem(dialogo, IDCANCEL)), TRUE);
        // What lies beyond the screen has no pixels.
        SetWindowPos(dialogo, nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
        RedrawWindow(dialogo, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return aspettoDi(dialogo);
    }
    [[nodiscard]] static SIZE fuori(HWND dialogo) {
        RECT r{};
        GetWindowRect(dialogo, &r);
        return {r.right - r.left, r.bottom - r.top};
    }

    // What a journey leaves at each stop is what a dialog made there looks like.
    void viaggia(const std::function<void(int, const std::function<void(HWND)>&)>& mostra) {
        std::map<int, Aspetto> nati;
        std::map<int, SIZE> misure;
        for (const int dpi : {96, 120, 144, 192}) {
            mostra(dpi, [&](HWND dialogo) {
                nati[dpi] = aspetto(dialogo);
                misure[dpi] = fuori(dialogo);
            });
        }
        EXPECT_GT(misure[192].cx, misure[144].cx);
        EXPECT_GT(misure[144].cy, misure[96].cy);
        mostra(96, [&](HWND dialogo) {
            for (const int dpi : viaggio) {
                SCOPED_TRACE(dpi);
                portaSuMonitor(dialogo, dpi, misure[96]);
                confronta(aspetto(dialogo), nati[dpi]);
                EXPECT_EQ(fuori(dialogo).cx, misure[dpi].cx);
                EXPECT_EQ(fuori(dialogo).cy, misure[dpi].cy);
            }
        });
    }
};

} // namespace

TEST_F(DialoghiMonitor, LEditorSuOgniMonitorECosiComeSarebbeNatoLi) {
    viaggia([this](int dpi, const auto& azione) { mostraEditor(dpi, azione); });
}

TEST_F(DialoghiMonitor, LEditorIngranditoRestaIngrandito) {
    std::map<int, SIZE> nati;
    for (const int dpi : {96, 192}) {
        mostraEditor(dpi, [&](HWND dialogo) { nati[dpi] = fuori(dialogo); });
    }
    mostraEditor(96, [&](HWND dialogo) {
        SetWindowPos(dialogo, nullptr, 0, 0, nati[96].cx + 60, nati[96].cy + 40,
                     SWP_NOZORDER | SWP_NOMOVE);
        const SIZE descrizione = fuori(controllo(IDC_EDITDESCRIZIONE));
        portaSuMonitor(dialogo, 192, fuori(dialogo));
        EXPECT_EQ(fuori(dialogo).cx, nati[192].cx + 120);
        EXPECT_EQ(fuori(dialogo).cy, nati[192].cy + 80);
        portaSuMonitor(dialogo, 96, fuori(dialogo));
        EXPECT_EQ(fuori(dialogo).cx, nati[96].cx + 60);
        EXPECT_EQ(fuori(controllo(IDC_EDITDESCRIZIONE)).cx, descrizione.cx);
        EXPECT_EQ(fuori(controllo(IDC_EDITDESCRIZIONE)).cy, descrizione.cy);
        // An odd size comes back from where it has no half.
        SetWindowPos(dialogo, nullptr, 0, 0, nati[96].cx + 5, nati[96].cy + 7,
                     SWP_NOZORDER | SWP_NOMOVE);
        for (const int dpi : {144, 192, 96}) {
            portaSuMonitor(dialogo, dpi, fuori(dialogo));
        }
        EXPECT_EQ(fuori(dialogo).cx, nati[96].cx + 5);
        EXPECT_EQ(fuori(dialogo).cy, nati[96].cy + 7);
    });
}

TEST_F(DialoghiMonitor, LeInformazioniSuOgniMonitorSonoComeSarebberoNateLi) {
    viaggia([this](int dpi, const auto& azione) { mostraAbout(dpi, azione); });
}

TEST_F(DialoghiMonitor, OgniParteDelleInformazioniCresce) {
    std::map<int, std::map<int, SIZE>> parti;
    for (const int dpi : {96, 192}) {
        mostraAbout(dpi, [&](HWND dialogo) {
            for (const int id : {IDC_PICICON, IDC_IMAGE1, IDC_LBLSITO, IDC_LBLTITLE, IDC_CMDOK}) {
                parti[dpi][id] = fuori(GetDlgItem(dialogo, id));
            }
        });
    }
    for (const auto& [id, prima] : parti[96]) {
        EXPECT_NEAR(parti[192][id].cx, 2 * prima.cx, prima.cx / 4.0) << id;
        EXPECT_NEAR(parti[192][id].cy, 2 * prima.cy, prima.cy / 4.0) << id;
    }
    EXPECT_EQ(parti[192][IDC_PICICON].cx, 2 * parti[96][IDC_PICICON].cx);
    EXPECT_EQ(parti[192][IDC_IMAGE1].cx, 2 * parti[96][IDC_IMAGE1].cx);
}

TEST_F(DialoghiMonitor, CioCheVieneScrittoResta) {
    mostraEditor(96, [&](HWND dialogo) {
        imposta(IDC_EDITDESCRIZIONE, L"scritto");
        SetFocus(controllo(IDC_EDITDESCRIZIONE));
        SendMessageW(controllo(IDC_EDITDESCRIZIONE), EM_SETSEL, 2, 5);
        portaSuMonitor(dialogo, 192, {700, 400});
        EXPECT_EQ(testo(IDC_EDITDESCRIZIONE), L"scritto");
        EXPECT_EQ(GetFocus(), controllo(IDC_EDITDESCRIZIONE));
        EXPECT_EQ(selezioneDi(controllo(IDC_EDITDESCRIZIONE)), std::pair(DWORD{2}, DWORD{5}));
    });
}
