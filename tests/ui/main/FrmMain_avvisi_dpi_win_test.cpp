// The strip of notices in the main window at the system's resolution: where everything stands and
// what is painted.

#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/pixel_win.h"

#include <map>

namespace {

class FrmMainAvvisiPosto : public ProvaFrmMain {
protected:
    FrmMainAvvisiPosto() {
        for (const wchar_t* const titolo : {L"uno", L"due", L"tre"}) {
            metti(titolo);
        }
        SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    }

    [[nodiscard]] static int scala(int pixel) {
        const HDC schermo = GetDC(nullptr);
        const int dpi = GetDeviceCaps(schermo, LOGPIXELSX);
        ReleaseDC(nullptr, schermo);
        return MulDiv(pixel, dpi, 96);
    }
    void misura(const SIZE& m) {
        SetWindowPos(finestra.hwnd(), nullptr, 0, 0, scala(m.cx), scala(m.cy),
                     SWP_NOZORDER | SWP_NOMOVE);
    }
    [[nodiscard]] RECT posto(HWND controllo) {
        RECT r{};
        GetWindowRect(controllo, &r);
        MapWindowPoints(nullptr, finestra.hwnd(), reinterpret_cast<POINT*>(&r), 2);
        return r;
    }
    // Where each window inside stands that is seen, but for the strip.
    [[nodiscard]] std::map<HWND, std::vector<LONG>> tutti() {
        struct Giro {
            FrmMainAvvisiPosto* prova;
            std::map<HWND, std::vector<LONG>> posti;
        } giro{this, {}};
        EnumChildWindows(
            finestra.hwnd(),
            [](HWND c, LPARAM l) noexcept -> BOOL {
                auto& g = *reinterpret_cast<Giro*>(l);
                const HWND striscia = g.prova->avvisi.striscia();
                if (c != striscia && !IsChild(striscia, c)) {
                    const RECT r = g.prova->posto(c);
                    g.posti[c] = {r.left, r.top, r.right, r.bottom, IsWindowVisible(c)};
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&giro));
        return giro.posti;
    }
    void avvisa() {
        finestra.avvisi().avvisa(avvisoProva(
            L"Lavoro non salvato su «notizie.xml», 21/11/2026 13:05: 3 elementi cambiati.",
            {L"Recupera", {}}, {L"Elimina", {}}));
    }
    [[nodiscard]] int daRidipingere() {
        // A caret would blink, and a button under the pointer glow.
        SetFocus(griglia().lista());
        muoviMouse(griglia().lista(), {2, 2});
        return ::daRidipingere(finestra.hwnd());
    }

    AvvisiProva avvisi{finestra};
    static constexpr std::array<SIZE, 4> misure{{{640, 480}, {701, 511}, {950, 540}, {640, 481}}};
};

} // namespace

TEST_F(FrmMainAvvisiPosto, LaSuaAltezzaSiAggiungeAQuellaDellaBarraDiStatoETuttoTornaComEra) {
    for (const SIZE& m : misure) {
        misura(m);
        SCOPED_TRACE(testing::Message() << m.cx << 'x' << m.cy);
        const auto prima = tutti();
        const RECT griglia1 = posto(griglia().hwnd());
        avvisa();
        const RECT striscia = posto(avvisi.striscia());
        const LONG altezza = striscia.bottom - striscia.top;
        RECT interno{};
        GetClientRect(finestra.hwnd(), &interno);
        EXPECT_EQ(striscia.left, 0);
        EXPECT_EQ(striscia.right, interno.right);
        EXPECT_EQ(striscia.bottom, posto(GetDlgItem(finestra.hwnd(), IDC_STATUSBAR)).top);
        EXPECT_GE(altezza, scala(25));
        EXPECT_LE(altezza, scala(40));

        const HWND comandi = FindWindowExW(finestra.hwnd(), nullptr, L"OstrellePicCmd", nullptr);
        for (const auto& [controllo, dove] : tutti()) {
            auto atteso = prima.at(controllo);
            if (controllo == griglia().hwnd() || controllo == griglia().lista() ||
                controllo == comandi) {
                atteso[3] -= altezza;
            }
            if (!IsChild(griglia().lista(), controllo)) {
                EXPECT_EQ(dove, atteso) << inUtf8(testoDi(controllo));
            }
        }
        EXPECT_GT(posto(griglia().hwnd()).bottom - griglia1.top, scala(60));
        finestra.avvisi().ritira(avvisi.detto());
        EXPECT_EQ(tutti(), prima);
    }
}

TEST_F(FrmMainAvvisiPosto, ConLaStrisciaCambiareMisuraELoStessoCheCambiarlaPrima) {
    for (const SIZE& m : misure) {
        misura(m);
        const auto prima = tutti();
        misura({880, 530});
        avvisa();
        misura(m);
        const auto con = tutti();
        finestra.avvisi().ritira(avvisi.detto());
        EXPECT_EQ(tutti(), prima);
        avvisa();
        EXPECT_EQ(tutti(), con);
        finestra.avvisi().ritira(avvisi.detto());
    }
}

TEST_F(FrmMainAvvisiPosto, IControlliStannoNellaStrisciaUnoAccantoAllAltro) {
    avvisa();
    for (const SIZE& m : misure) {
        misura(m);
        const RECT striscia = posto(avvisi.striscia());
        LONG prima = striscia.left;
        LONG alto = 0;
        for (const HWND c : {avvisi.testo(), avvisi.pulsante(L"Recupera"),
                             avvisi.pulsante(L"Elimina"), avvisi.chiudi()}) {
            const RECT r = posto(c);
            EXPECT_GE(r.left - prima, scala(4)) << inUtf8(testoDi(c));
            EXPECT_GT(r.top, striscia.top + scala(1));
            EXPECT_LE(r.bottom, striscia.bottom - scala(4));
            EXPECT_GT(r.right, r.left);
            prima = r.right;
            alto = r.bottom - r.top;
            // In the middle but for the line above and a pixel.
            EXPECT_NEAR(r.top - striscia.top - scala(1), striscia.bottom - r.bottom, 1);
        }
        EXPECT_EQ(striscia.right - prima, scala(4));
        const RECT chiude = posto(avvisi.chiudi());
        EXPECT_EQ(chiude.right - chiude.left, alto);
    }
}

TEST_F(FrmMainAvvisiPosto, DopoOgniCambioLaFinestraEDipintaTutta) {
    misura({700, 500});
    ASSERT_EQ(daRidipingere(), 0);
    avvisa();
    EXPECT_EQ(daRidipingere(), 0) << "shown";
    for (const SIZE& m : misure) {
        misura(m);
        EXPECT_EQ(daRidipingere(), 0) << m.cx << 'x' << m.cy;
    }
    finestra.avvisi().avvisa(avvisoProva(L"Un altro", {L"Apri le copie", {}}));
    finestra.avvisi().ritira(avvisi.detto());
    EXPECT_EQ(avvisi.detto(), L"Un altro");
    EXPECT_EQ(daRidipingere(), 0) << "another";
    for (const int comando : {SW_MAXIMIZE, SW_RESTORE, SW_MINIMIZE, SW_RESTORE}) {
        ShowWindow(finestra.hwnd(), comando);
        EXPECT_EQ(daRidipingere(), 0) << "command " << comando;
    }
    finestra.avvisi().ritira(L"Un altro");
    EXPECT_EQ(daRidipingere(), 0) << "gone";
}

TEST_F(FrmMainAvvisiPosto, NascostaLaFinestraSiVedeComeSeNonCiFosseMaiStata) {
    misura({700, 500});
    SetFocus(griglia().lista());
    pompa();
    const Immagine prima = tuttaSulloSchermo(finestra.hwnd());
    avvisa();
    pompa();
    EXPECT_GT(prima.diversi(tuttaSulloSchermo(finestra.hwnd())), 100);
    finestra.avvisi().ritira(avvisi.detto());
    pompa();
    EXPECT_EQ(prima.diversi(tuttaSulloSchermo(finestra.hwnd())), 0);
}
