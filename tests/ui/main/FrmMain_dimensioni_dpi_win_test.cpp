// The main window at its sizes, at the system's resolution.

#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/pixel_win.h"

#include <array>
#include <cstdlib>

namespace {

class FrmMainDimensioni : public ProvaFrmMain {
protected:
    FrmMainDimensioni() {
        if (const char* const voluti = std::getenv("OSTRELLE_DPI")) {
            EXPECT_EQ(dpi(), std::atoi(voluti));
        }
        for (const wchar_t* const titolo : {L"uno", L"due", L"tre"}) {
            metti(titolo);
        }
        for (const int id : {IDC_TXTTITOLO, IDC_TXTDESCRIZIONE, IDC_TXTLOGO, IDC_TXTWEBMASTER}) {
            campi.testo(id, L"Un testo che nel campo si vede");
        }
    }

    [[nodiscard]] static int dpi() {
        const HDC schermo = GetDC(nullptr);
        const int valore = GetDeviceCaps(schermo, LOGPIXELSX);
        ReleaseDC(nullptr, schermo);
        return valore;
    }
    // Pixels at 96 dpi as pixels of this system; twips as pixels.
    [[nodiscard]] static int scala(int pixel) { return MulDiv(pixel, dpi(), 96); }
    [[nodiscard]] static int twips(int quanti) { return quanti * dpi() / 1440; }

    // An outer size at 96 dpi, scaled.
    void misura(int larghezza, int altezza, UINT opzioni = 0) {
        SetWindowPos(finestra.hwnd(), nullptr, 0, 0, scala(larghezza), scala(altezza),
                     SWP_NOZORDER | SWP_NOMOVE | opzioni);
    }
    [[nodiscard]] SIZE misura() {
        RECT r{};
        GetWindowRect(finestra.hwnd(), &r);
        return {r.right - r.left, r.bottom - r.top};
    }
    // Where a control stands inside the window.
    [[nodiscard]] RECT posto(HWND controllo) {
        RECT r{};
        GetWindowRect(controllo, &r);
        MapWindowPoints(nullptr, finestra.hwnd(), reinterpret_cast<POINT*>(&r), 2);
        return r;
    }
    [[nodiscard]] RECT posto(int id) { return posto(campo(id)); }
    [[nodiscard]] RECT postoStriscia() { return posto(GetDlgItem(finestra.hwnd(), IDC_PICCMD)); }
    [[nodiscard]] RECT interno() {
        RECT r{};
        GetClientRect(finestra.hwnd(), &r);
        return r;
    }
    [[nodiscard]] int daRidipingere() {
        // A caret would blink.
        SetFocus(griglia().lista());
        return ::daRidipingere(finestra.hwnd());
    }
};

} // namespace

TEST_F(FrmMainDimensioni, DopoOgniCambioLaFinestraEDipintaTutta) {
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    ASSERT_EQ(daRidipingere(), 0);
    constexpr std::array<SIZE, 14> misure{{{640, 480},
                                           {1000, 700},
                                           {640, 480},
                                           {641, 480},
                                           {642, 481},
                                           {650, 490},
                                           {700, 520},
                                           {760, 480},
                                           {760, 540},
                                           {900, 500},
                                           {880, 540},
                                           {700, 500},
                                           {960, 520},
                                           {800, 500}}};
    for (const SIZE& m : misure) {
        misura(m.cx, m.cy);
        EXPECT_EQ(daRidipingere(), 0) << m.cx << 'x' << m.cy;
    }
    constexpr std::array<int, 8> comandi{SW_MAXIMIZE, SW_RESTORE,  SW_MINIMIZE, SW_RESTORE,
                                         SW_MAXIMIZE, SW_MINIMIZE, SW_RESTORE,  SW_RESTORE};
    for (const int comando : comandi) {
        ShowWindow(finestra.hwnd(), comando);
        EXPECT_EQ(daRidipingere(), 0) << "command " << comando;
    }
}

TEST_F(FrmMainDimensioni, OgniCosaStaAlSuoPosto) {
    for (const SIZE& m : {SIZE{640, 480}, SIZE{700, 500}, SIZE{801, 533}, SIZE{950, 540}}) {
        misura(m.cx, m.cy);
        SCOPED_TRACE(testing::Message() << m.cx << 'x' << m.cy);
        const RECT tutto = interno();
        const RECT barra = posto(GetDlgItem(finestra.hwnd(), IDC_TOOLBAR));
        const RECT stato = posto(GetDlgItem(finestra.hwnd(), IDC_STATUSBAR));
        const RECT dati = posto(campi.hwnd());
        const RECT cornice = posto(IDC_FRADATI);
        const RECT griglia = posto(grigliaDi(finestra).hwnd());
        const RECT striscia = postoStriscia();
        const RECT pulsante = posto(IDC_CMDGETSIZE);

        EXPECT_EQ(dati.left, twips(50));
        EXPECT_EQ(dati.right - dati.left, (tutto.right * 1440 / dpi() - 100) * dpi() / 1440);
        EXPECT_EQ(dati.top - barra.bottom, twips(50));
        EXPECT_TRUE(EqualRect(&cornice, &dati));

        EXPECT_EQ(griglia.left, twips(50));
        // Each edge loses what it has of a pixel.
        EXPECT_NEAR(griglia.top - dati.bottom, twips(50), 1);
        EXPECT_GE(stato.top - griglia.bottom, twips(100));
        EXPECT_LE(stato.top - griglia.bottom, twips(100) + 2);
        EXPECT_NEAR(striscia.left - griglia.right, twips(50), 2);
        EXPECT_EQ(striscia.top, griglia.top);
        EXPECT_EQ(striscia.bottom, griglia.bottom);
        EXPECT_NEAR(tutto.right - striscia.right, twips(150), 1);
        EXPECT_EQ(striscia.right - striscia.left, scala(124));

        EXPECT_TRUE(IsWindowVisible(campo(IDC_CMDGETSIZE)));
        EXPECT_EQ(pulsante.left, striscia.left);
        EXPECT_EQ(pulsante.right, striscia.right);
        EXPECT_EQ(pulsante.top, posto(IDC_TXTLARGHEZZA).top);
        EXPECT_LT(pulsante.right, dati.right);
    }
}

TEST_F(FrmMainDimensioni, PiuPiccolaDellaMisuraMinimaNonDiventa) {
    misura(1, 1);
    EXPECT_EQ(misura().cx, scala(640));
    EXPECT_EQ(misura().cy, scala(480));
    misura(639, 700);
    EXPECT_EQ(misura().cx, scala(640));
    misura(900, 479);
    EXPECT_EQ(misura().cy, scala(480));
}

TEST_F(FrmMainDimensioni, LaMisuraMinimaNonSuperaLAreaDiLavoro) {
    // The work area of this process, until the end of the test.
    struct AreaDiLavoro {
        explicit AreaDiLavoro(RECT area) {
            SystemParametersInfoW(SPI_GETWORKAREA, 0, &prima, 0);
            SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, 0);
        }
        AreaDiLavoro(const AreaDiLavoro&) = delete;
        AreaDiLavoro& operator=(const AreaDiLavoro&) = delete;
        ~AreaDiLavoro() { SystemParametersInfoW(SPI_SETWORKAREA, 0, &prima, 0); }
        RECT prima{};
    };
    const AreaDiLavoro piccola(RECT{30, 20, 530, 420});
    misura(1, 1);
    EXPECT_EQ(misura().cx, 500);
    EXPECT_EQ(misura().cy, 400);
}

TEST_F(FrmMainDimensioni, DeterminaDimensioniNonCopreNulla) {
    for (int larghezza = 640; larghezza <= 960; larghezza += 8) {
        misura(larghezza, 480);
        const RECT pulsante = posto(IDC_CMDGETSIZE);
        const RECT dati = posto(campi.hwnd());
        ASSERT_EQ(pulsante.left, postoStriscia().left) << larghezza;
        for (HWND c = GetWindow(campi.hwnd(), GW_CHILD); c != nullptr;
             c = GetWindow(c, GW_HWNDNEXT)) {
            if (c == campo(IDC_FRADATI) || c == campo(IDC_CMDGETSIZE)) {
                continue;
            }
            const RECT r = posto(c);
            RECT comune{};
            EXPECT_FALSE(IntersectRect(&comune, &r, &pulsante))
                << larghezza << ": " << inUtf8(testoDi(c)) << ' ' << GetDlgCtrlID(c);
            // Nor is anything cut off by the frame.
            EXPECT_LT(r.right, dati.right - twips(50)) << larghezza << ": " << GetDlgCtrlID(c);
            EXPECT_LT(r.bottom, dati.bottom - twips(50)) << larghezza << ": " << GetDlgCtrlID(c);
        }
    }
}

TEST_F(FrmMainDimensioni, SenzaPostoPerLaGrigliaIlPulsanteRestaSullaStriscia) {
    misura(900, 540);
    const RECT prima = posto(griglia().hwnd());
    // Where nobody asks what the least size is.
    for (const SIZE& m : {SIZE{640, 220}, SIZE{900, 100}, SIZE{480, 200}, SIZE{960, 240}}) {
        misura(m.cx, m.cy, SWP_NOSENDCHANGING);
        ASSERT_EQ(misura().cy, scala(static_cast<int>(m.cy)));
        SCOPED_TRACE(testing::Message() << m.cx << 'x' << m.cy);
        const RECT striscia = postoStriscia();
        EXPECT_EQ(posto(IDC_CMDGETSIZE).left, striscia.left);
        EXPECT_EQ(posto(IDC_CMDGETSIZE).right, striscia.right);
        EXPECT_NEAR(interno().right - striscia.right, twips(150), 1);
        const RECT griglia = posto(grigliaDi(finestra).hwnd());
        EXPECT_EQ(griglia.bottom - griglia.top, prima.bottom - prima.top);
        EXPECT_EQ(striscia.bottom, griglia.bottom);
    }
}
