// Keys that are held down longer than it takes to open or close what they open or close.

#include "tests/aiuti/frmMainVera_win.h"

#include "res/risorse.h"
#include "tests/aiuti/testi.h"

namespace {

class FrmMainRipetizioni : public ProvaFrmMainVera {
protected:
    FrmMainRipetizioni() {
        for (const wchar_t* const t : {L"a", L"b"}) {
            mettiElemento(finestra, documento, t);
        }
    }
    void TearDown() override { lascia(VK_RETURN); }

    // While Enter repeats the box stays; let go and pressed again, it does what Enter does there.
    static void tieniEPoiPremi(HWND box) {
        const ConFiltro tasti([box](MSG& msg) { return IsDialogMessageW(box, &msg) != FALSE; });
        for (int i = 0; i < 5; ++i) {
            ripeti(VK_RETURN);
            ASSERT_TRUE(IsWindowVisible(box)) << i;
        }
        lascia(VK_RETURN);
        premiGiu(VK_RETURN);
    }
    [[nodiscard]] HWND pulsante(int id) {
        return GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), id);
    }
};

} // namespace

TEST_F(FrmMainRipetizioni, InvioTenutoSuCancellaNonRispondeAllaDomanda) {
    SetFocus(pulsante(cmdCancella));
    const QuandoAppare domanda(boxWindows, testi::attenzione, [&](HWND box) {
        tieniEPoiPremi(box);
        EXPECT_FALSE(IsWindowVisible(box));
    });
    premiGiu(VK_RETURN);
    ASSERT_EQ(documento.elementi().conteggio(), 1);
    EXPECT_EQ(documento.elementi()(CampoElemento::Titolo, 0), L"b");
}

TEST_F(FrmMainRipetizioni, InvioTenutoNellaGrigliaNonSalvaNellEditor) {
    SetFocus(grigliaDi(finestra).lista());
    const QuandoAppare dialogo(boxWindows, L"Edit", [&](HWND box) {
        SetWindowTextW(GetDlgItem(box, IDC_EDITTITOLO), L"cambiato");
        tieniEPoiPremi(box);
        EXPECT_FALSE(IsWindowVisible(box));
    });
    premiGiu(VK_RETURN);
    EXPECT_EQ(documento.elementi()(CampoElemento::Titolo, 0), L"cambiato");
}

TEST_F(FrmMainRipetizioni, InvioTenutoNellEditorNonChiudeLAvviso) {
    const QuandoAppare avviso(boxWindows, testi::attenzione, [&](HWND box) {
        tieniEPoiPremi(box);
        EXPECT_FALSE(IsWindowVisible(box));
    });
    const QuandoAppare dialogo(boxWindows, L"Edit", [&](HWND box) {
        {
            const ConFiltro tasti([box](MSG& msg) { return IsDialogMessageW(box, &msg) != FALSE; });
            SetWindowTextW(GetDlgItem(box, IDC_EDITTITOLO), L"");
            premiGiu(VK_RETURN);
            EXPECT_TRUE(avviso.apparsa());
            EXPECT_TRUE(IsWindowEnabled(box));
        }
        PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    });
    finestra.esegui(mnEditFeed);
    EXPECT_EQ(documento.elementi()(CampoElemento::Titolo, 0), L"a");
}

TEST_F(FrmMainRipetizioni, InvioCheChiudeUnMessaggioNonScriveNelCampo) {
    finestra.NuovoDocumento();
    const HWND descrizione = GetDlgItem(campi.hwnd(), IDC_TXTDESCRIZIONE);
    SetFocus(descrizione);
    const QuandoAppare errore(boxWindows, testi::erroreNumero(12883), [&](HWND box) {
        const ConFiltro tasti([box](MSG& msg) { return IsDialogMessageW(box, &msg) != FALSE; });
        premiGiu(VK_RETURN);
        EXPECT_FALSE(IsWindowVisible(box));
    });
    premi('S', {VK_CONTROL});
    ASSERT_TRUE(attendi([&] { return GetFocus() == descrizione; }));
    ripeti(VK_RETURN);
    ripeti(VK_RETURN);
    EXPECT_EQ(testoDi(descrizione), L"");
    lascia(VK_RETURN);
    premiGiu(VK_RETURN);
    EXPECT_EQ(testoDi(descrizione), L"\r\n");
}
