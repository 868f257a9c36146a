#include "ui/controls/strisciaAvvisi_win.h"

#include "tests/aiuti/accessibile_win.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/spia_win.h"
#include "tests/aiuti/suggerimenti_prova_win.h"
#include "ui/controls/contrasto.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace {

// A window with a strip at its bottom, and its owner.
class StrisciaAvvisiProva : public testing::Test, private Finestra, private OsservatoreAvvisi {
protected:
    StrisciaAvvisiProva() {
        WNDCLASSEXW descrizione{};
        descrizione.lpszClassName = L"ProvaStrisciaAvvisi";
        descrizione.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        registra(descrizione);
        crea(L"ProvaStrisciaAvvisi", L"", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0,
             {20, 20, 700, 200}, nullptr);
        NONCLIENTMETRICSW misure{};
        misure.cbSize = sizeof(misure);
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(misure), &misure, 0);
        carattere = Carattere(CreateFontIndirectW(&misure.lfMessageFont));
        dpi = dpiDi(nullptr).y.dpi;
        striscia.prepara(hwnd(), carattere.get(), {dpi});
        portaAvanti(hwnd());
        // Where no tooltip is: it comes when the pointer does.
        muoviMouse(hwnd(), {350, 50});
    }

    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override {
        return predefinito(codice, w, l);
    }
    void onEccezione() noexcept override { ++eccezioni; }
    void avvisiCambiati() override {
        ++cambi;
        striscia.disponi({0, 200 - striscia.altezza(), larghezza, striscia.altezza()});
    }
    void avvisoAzione(const std::function<void()>& azione) override { azione(); }

    [[nodiscard]] Immagine vista(HWND finestra) {
        pompa();
        return sulloSchermo(finestra);
    }

    int cambi = 0;
    int eccezioni = 0;
    int dpi = 96;
    int larghezza = 700;
    Carattere carattere;
    StrisciaAvvisi striscia{*this};
    AvvisiProva avvisi{*this};
};

using StrisciaDegliAvvisi = StrisciaAvvisiProva;

// The best contrast that any pixel has with the colour of the first one.
double migliore(const Immagine& immagine) {
    const COLORREF fondo = immagine.colore(0, 0);
    double massimo = 1;
    for (std::ptrdiff_t y = 0; y < immagine.altezza(); ++y) {
        for (std::ptrdiff_t x = 0; x < immagine.larghezza; ++x) {
            massimo = std::max(massimo, contrasto(immagine.colore(x, y), fondo));
        }
    }
    return massimo;
}

constexpr const wchar_t* lungo =
    L"Salvando, di questo feed non restano: enclosure (82), category (45), itunes:author (12), "
    L"itunes:duration (12), itunes:explicit (12), commenti (3), guid isPermaLink (58) & altri 3.";

} // namespace

TEST_F(StrisciaDegliAvvisi, SenzaAvvisiNonCEUnaFinestraNeUnAltezza) {
    EXPECT_EQ(striscia.hwnd(), nullptr);
    EXPECT_EQ(striscia.altezza(), 0);
    EXPECT_FALSE(striscia.inVista());
    EXPECT_EQ(cambi, 0);
}

TEST_F(StrisciaDegliAvvisi, LAltezzaCambiaSoloQuandoSiMostraESiNasconde) {
    striscia.avvisa(avvisoProva(L"uno"));
    const int altezza = striscia.altezza();
    EXPECT_GE(altezza, MulDiv(25, dpi, 96));
    EXPECT_EQ(cambi, 1);
    striscia.avvisa(avvisoProva(L"due", {L"Recupera", {}}));
    striscia.ritira(L"uno");
    EXPECT_EQ(avvisi.detto(), L"due");
    EXPECT_EQ(striscia.altezza(), altezza);
    EXPECT_EQ(cambi, 1);
    striscia.ritira(L"due");
    EXPECT_EQ(striscia.altezza(), 0);
    EXPECT_FALSE(striscia.inVista());
    EXPECT_FALSE(avvisi.inVista());
    EXPECT_EQ(cambi, 2);
}

TEST_F(StrisciaDegliAvvisi, LAltezzaSegueCarattereERisoluzione) {
    striscia.avvisa(avvisoProva(L"uno", {L"Recupera", {}}));
    const int altezza = striscia.altezza();
    LOGFONTW doppio{};
    GetObjectW(carattere.get(), sizeof(doppio), &doppio);
    doppio.lfHeight *= 2;
    const Carattere grande(CreateFontIndirectW(&doppio));
    striscia.prepara(GetParent(striscia.hwnd()), grande.get(), {2 * dpi});
    EXPECT_NEAR(striscia.altezza(), 2 * altezza, 2);
    const HWND pulsante = avvisi.pulsante(L"Recupera");
    RECT r{};
    GetClientRect(pulsante, &r);
    EXPECT_GE(r.right, MulDiv(150, dpi, 96));
    for (const HWND c : {pulsante, avvisi.testo(), avvisi.chiudi()}) {
        EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageW(c, WM_GETFONT, 0, 0)), grande.get());
    }
}

TEST_F(StrisciaDegliAvvisi, ChiAscoltaSaCheCEUnAvvisoEComSiChiamanoLeCose) {
    const AscoltoEventi ascolto(EVENT_SYSTEM_ALERT);
    striscia.avvisa(avvisoProva(L"Lavoro non salvato", {L"Recupera", {}}, {L"Elimina", {}}));
    ASSERT_TRUE(attendi([&] { return !ascolto.uditi().empty(); }));
    EXPECT_EQ(ascolto.uditi().front().quale, DWORD{EVENT_SYSTEM_ALERT});
    EXPECT_EQ(ascolto.uditi().front().finestra, striscia.hwnd());
    EXPECT_EQ(ascolto.uditi().front().oggetto, OBJID_CLIENT);
    EXPECT_EQ(ascolto.uditi().front().figlio, CHILDID_SELF);
    EXPECT_EQ(nomeAccessibile(striscia.hwnd()), L"Lavoro non salvato");
    EXPECT_EQ(nomeAccessibile(avvisi.testo()), L"Lavoro non salvato");
    EXPECT_EQ(nomeAccessibile(avvisi.pulsante(L"Recupera")), L"Recupera");
    EXPECT_EQ(nomeAccessibile(avvisi.pulsante(L"Elimina")), L"Elimina");
    EXPECT_EQ(nomeAccessibile(avvisi.chiudi()), L"Chiudi avviso");

    // One that waits is not told before its turn; the one that takes a place is.
    striscia.avvisa(avvisoProva(L"due"));
    pompa();
    EXPECT_EQ(ascolto.uditi().size(), 1U);
    striscia.ritira(L"Lavoro non salvato");
    EXPECT_TRUE(attendi([&] { return ascolto.uditi().size() == 2; }));
    EXPECT_EQ(nomeAccessibile(striscia.hwnd()), L"due");
    Avviso altro = avvisoProva(L"tre");
    altro.argomento = L"due";
    striscia.avvisa(altro);
    EXPECT_TRUE(attendi([&] { return ascolto.uditi().size() == 3; }));
    EXPECT_EQ(avvisi.detto(), L"tre");
    striscia.ritira(L"due");
    pompa();
    EXPECT_EQ(ascolto.uditi().size(), 3U);
}

TEST_F(StrisciaDegliAvvisi, SiVedonoSoloIPulsantiCheLAvvisoHa) {
    striscia.avvisa(avvisoProva(L"uno", {L"Recupera", {}}, {L"Elimina", {}}));
    striscia.avvisa(avvisoProva(L"due", {L"Apri le copie", {}}));
    striscia.avvisa(avvisoProva(L"tre"));
    const auto visibili = [this] {
        std::wstring didascalie;
        for (HWND c = GetWindow(striscia.hwnd(), GW_CHILD); c != nullptr;
             c = GetWindow(c, GW_HWNDNEXT)) {
            if (IsWindowVisible(c)) {
                didascalie += testoDi(c) + L';';
            }
        }
        return didascalie;
    };
    EXPECT_EQ(visibili(), L"uno;Recupera;Elimina;Chiudi avviso;");
    // None has the border of the one that Invio presses from anywhere.
    for (const HWND c : {avvisi.pulsante(L"Recupera"), avvisi.chiudi()}) {
        EXPECT_EQ(SendMessageW(c, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON, 0);
    }
    striscia.ritira(L"uno");
    EXPECT_EQ(visibili(), L"due;Apri le copie;Chiudi avviso;");
    striscia.ritira(L"due");
    EXPECT_EQ(visibili(), L"tre;Chiudi avviso;");
}

TEST_F(StrisciaDegliAvvisi, UnComandoCheNonEDiUnPulsanteNonFaNiente) {
    striscia.avvisa(avvisoProva(L"uno", {L"Recupera", {}}));
    SendMessageW(striscia.hwnd(), WM_COMMAND, 4242, 0);
    EXPECT_EQ(avvisi.detto(), L"uno");
    EXPECT_EQ(eccezioni, 0);
}

TEST_F(StrisciaDegliAvvisi, UnTestoLungoFinisceConTrePuntiEHaUnSuggerimento) {
    striscia.avvisa(avvisoProva(lungo, {L"Apri le copie", {}}));
    const HWND testo = avvisi.testo();
    RECT r{};
    GetClientRect(testo, &r);
    EXPECT_EQ(nomeAccessibile(testo), lungo);
    const auto scritto = [&](UINT come) {
        return dipinta(r.right, r.bottom, [&](HDC dc) {
            FillRect(dc, &r, GetSysColorBrush(COLOR_INFOBK));
            SelectObject(dc, carattere.get());
            SetBkMode(dc, TRANSPARENT);
            SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
            RECT dove = r;
            DrawTextW(dc, lungo, -1, &dove, DT_SINGLELINE | DT_NOPREFIX | come);
        });
    };
    EXPECT_EQ(vista(testo).diversi(scritto(DT_END_ELLIPSIS)), 0);
    EXPECT_GT(vista(testo).diversi(scritto(0)), 0);
    EXPECT_TRUE(suggerisce(testo, {5, 5}, lungo));
}

TEST_F(StrisciaDegliAvvisi, UnTestoCheCiStaNonHaSuggerimentoELaCroceLoHa) {
    striscia.avvisa(avvisoProva(lungo));
    EXPECT_TRUE(suggerisce(avvisi.testo(), {5, 5}, lungo));
    EXPECT_TRUE(suggerisce(avvisi.chiudi(), {5, 5}, L"Chiudi avviso"));
    Avviso corto = avvisoProva(L"corto");
    corto.argomento = lungo;
    striscia.avvisa(corto);
    EXPECT_FALSE(suggerisce(avvisi.testo(), {6, 5}, L"corto", std::chrono::milliseconds(500)));
}

TEST_F(StrisciaDegliAvvisi, UnaECommercialeSiVedeESiSente) {
    striscia.avvisa(avvisoProva(L"Tom & Jerry"));
    const HWND testo = avvisi.testo();
    EXPECT_EQ(nomeAccessibile(testo), L"Tom & Jerry");
    EXPECT_EQ(nomeAccessibile(striscia.hwnd()), L"Tom & Jerry");
    const Immagine con = vista(testo);
    Avviso senza = avvisoProva(L"Tom  Jerry");
    senza.argomento = L"Tom & Jerry";
    striscia.avvisa(senza);
    EXPECT_GT(con.diversi(vista(testo)), 20);
}

TEST_F(StrisciaDegliAvvisi, TestoECroceSiLeggonoInOgniSchema) {
    striscia.avvisa(avvisoProva(L"Lavoro non salvato", {L"Recupera", {}}));
    auto tutti = schemi();
    // One whose notices cannot be read.
    tutti.push_back({{COLOR_INFOBK, RGB(200, 200, 200)}, {COLOR_INFOTEXT, RGB(160, 160, 160)}});
    for (std::size_t i = 0; i < tutti.size(); ++i) {
        const ColoriSistema schema(tutti[i]);
        SendMessageW(striscia.hwnd(), WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_GE(migliore(vista(avvisi.testo())), 4.5) << "scheme " << i;
        RECT r{};
        GetClientRect(avvisi.chiudi(), &r);
        InflateRect(&r, -4, -4);
        EXPECT_GE(migliore(vista(avvisi.chiudi()).ritaglio(r)), 4.5) << "scheme " << i;
        // Behind the text and around it is the same.
        const Immagine tutta = vista(striscia.hwnd());
        EXPECT_EQ(tutta.colore(2, tutta.altezza() - 2), vista(avvisi.testo()).colore(0, 0));
        EXPECT_EQ(tutta.colore(2, tutta.altezza() - 2),
                  GetSysColor(i + 1 < tutti.size() ? COLOR_INFOBK : COLOR_WINDOW));
    }
}

TEST_F(StrisciaDegliAvvisi, NessunoCancellaCioCheIControlliCoprono) {
    striscia.avvisa(avvisoProva(L"Lavoro non salvato", {L"Recupera", {}}));
    pompa();
    const Immagine prima = sulloSchermo(striscia.hwnd());
    int cancellazioni = 0;
    {
        const Spia spia([&](const CWPSTRUCT& m) {
            if (m.message == WM_ERASEBKGND && m.hwnd == striscia.hwnd()) {
                ++cancellazioni;
            }
        });
        RedrawWindow(striscia.hwnd(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ERASENOW | RDW_NOCHILDREN);
        // Erased, and nothing painted since.
        EXPECT_EQ(prima.diversi(sulloSchermo(striscia.hwnd())), 0);
    }
    EXPECT_EQ(cancellazioni, 1);
}
