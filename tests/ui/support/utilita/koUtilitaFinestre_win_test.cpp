#include "support/utilita/koUtilita.h"

#include "support/errori/errore.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <objbase.h>

#include <thread>
#include <utility>

#include <gtest/gtest.h>

namespace {

// A plain window of Windows' own class, gone at the end.
class FinestraProva {
public:
    explicit FinestraProva(const wchar_t* titolo, HWND padre = nullptr, DWORD stile = WS_POPUP,
                           const wchar_t* classe = L"STATIC")
        : hWnd_(CreateWindowExW(0, classe, titolo, stile | WS_VISIBLE, 300, 200, 200, 100, padre,
                                nullptr, nullptr, nullptr)) {
        EXPECT_NE(hWnd_, nullptr);
        pompa();
    }
    FinestraProva(const FinestraProva&) = delete;
    FinestraProva& operator=(const FinestraProva&) = delete;
    ~FinestraProva() { DestroyWindow(hWnd_); }

    [[nodiscard]] HWND get() const noexcept { return hWnd_; }

private:
    HWND hWnd_;
};

RECT rettangolo(HWND hWnd) {
    RECT r{};
    GetWindowRect(hWnd, &r);
    return r;
}

void mettiIn(HWND hWnd, int x, int y, int larghezza, int altezza) {
    SetWindowPos(hWnd, nullptr, x, y, larghezza, altezza, SWP_NOZORDER | SWP_NOACTIVATE);
}

std::pair<LONG, LONG> angolo(HWND hWnd) {
    const RECT r = rettangolo(hWnd);
    return {r.left, r.top};
}

bool sopraTutti(HWND hWnd) {
    return (GetWindowLongW(hWnd, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

COLORREF colore(HWND hWnd, int x, int y) {
    const HDC dc = GetDC(hWnd);
    const COLORREF c = GetPixel(dc, x, y);
    ReleaseDC(hWnd, dc);
    return c;
}

HWND nessuna() {
    HWND chiusa = nullptr;
    {
        const FinestraProva finestra(L"chiusa");
        chiusa = finestra.get();
    }
    return chiusa;
}

} // namespace

TEST(KoUtilitaFinestre, UnaFinestraSiMostraPerTitolo) {
    const FinestraProva altra(L"Altra finestra di prova");
    const FinestraProva finestra(L"Finestra di prova Ω", nullptr, WS_OVERLAPPEDWINDOW);
    ShowWindow(finestra.get(), SW_HIDE);
    EXPECT_TRUE(koUtilita::ShowFinestraConTitolo(L"Finestra di prova Ω"));
    EXPECT_TRUE(IsWindowVisible(finestra.get()));
    EXPECT_TRUE(attendi([&] { return GetForegroundWindow() == finestra.get(); }));
    ShowWindow(finestra.get(), SW_MINIMIZE);
    pompa();
    EXPECT_TRUE(koUtilita::ShowFinestraConTitolo(L"Finestra di prova Ω"));
    EXPECT_FALSE(IsIconic(finestra.get()));
}

TEST(KoUtilitaFinestre, UnTitoloCheNessunaPortaNonMostraNulla) {
    const FinestraProva finestra(L"");
    ShowWindow(finestra.get(), SW_HIDE);
    EXPECT_FALSE(koUtilita::ShowFinestraConTitolo(L""));
    EXPECT_FALSE(IsWindowVisible(finestra.get()));
    EXPECT_FALSE(koUtilita::ShowFinestraConTitolo(L"Nessuna finestra si chiama così"));
    EXPECT_FALSE(koUtilita::ShowFinestraConTitolo(std::wstring(1000, L'x')));
}

TEST(KoUtilitaFinestre, UnFiglioSiCentraDentroIlPadre) {
    const FinestraProva padre(L"padre");
    mettiIn(padre.get(), 100, 100, 600, 400);
    const FinestraProva figlio(L"figlio", padre.get(), WS_CHILD);
    mettiIn(figlio.get(), 0, 0, 200, 100);
    koUtilita::CentraFormFiglio(figlio.get(), padre.get());
    EXPECT_EQ(angolo(figlio.get()), std::make_pair(300L, 250L));
    const FinestraProva libera(L"libera", padre.get());
    mettiIn(libera.get(), 0, 0, 100, 200);
    koUtilita::CentraFormFiglio(libera.get(), padre.get());
    EXPECT_EQ(angolo(libera.get()), std::make_pair(350L, 200L));
}

TEST(KoUtilitaFinestre, UnaFinestraSopraUnaAlBordoRestaSulloSchermo) {
    const FinestraProva padre(L"padre");
    mettiIn(padre.get(), 0, 0, 100, 100);
    const FinestraProva libera(L"libera", padre.get());
    mettiIn(libera.get(), 500, 500, 400, 300);
    koUtilita::CentraFormFiglio(libera.get(), padre.get());
    EXPECT_EQ(angolo(libera.get()), std::make_pair(0L, 0L));
}

TEST(KoUtilitaFinestre, UnFormSiCentraSulloSchermo) {
    RECT area{};
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0));
    const FinestraProva form(L"form");
    mettiIn(form.get(), 10, 10, 300, 200);
    koUtilita::CentraForm(form.get());
    EXPECT_EQ(angolo(form.get()), std::make_pair((area.left + area.right - 300) / 2,
                                                 (area.top + area.bottom - 200) / 2));
}

TEST(KoUtilitaFinestre, UnaFinestraRestaSopraLeAltreENonPiu) {
    const FinestraProva finestra(L"sopra");
    koUtilita::FinetraTopMost(finestra.get(), true);
    EXPECT_TRUE(sopraTutti(finestra.get()));
    koUtilita::FinetraTopMost(finestra.get(), false);
    EXPECT_FALSE(sopraTutti(finestra.get()));
}

TEST(KoUtilitaFinestre, LoSfondoSfumaDalPrimoPassoAlSecondo) {
    const FinestraProva form(L"form");
    mettiIn(form.get(), 100, 100, 60, 101);
    const FinestraProva figlio(L"", form.get(), WS_CHILD);
    mettiIn(figlio.get(), 0, 0, 10, 10);
    pompa();
    const COLORREF delFiglio = colore(figlio.get(), 5, 5);
    koUtilita::SfumaForm(form.get(), RGB(100, 150, 250), 0, -100);
    EXPECT_EQ(colore(form.get(), 30, 0), RGB(100, 150, 250));
    EXPECT_EQ(colore(form.get(), 30, 50), RGB(50, 100, 200));
    EXPECT_EQ(colore(form.get(), 30, 100), RGB(0, 50, 150));
    EXPECT_EQ(colore(figlio.get(), 5, 5), delFiglio);
    // Beyond the range of a colour it stays at its end.
    koUtilita::SfumaForm(form.get(), RGB(100, 150, 250), 2000000000, -2000000000);
    EXPECT_EQ(colore(form.get(), 30, 0), RGB(255, 255, 255));
    EXPECT_EQ(colore(form.get(), 30, 100), RGB(0, 0, 0));
    koUtilita::SfumaForm(form.get(), 0x80000000U | COLOR_WINDOW, 0, 0);
    EXPECT_EQ(colore(form.get(), 30, 50), GetSysColor(COLOR_WINDOW));
}

TEST(KoUtilitaFinestre, UnColoreCheNonEsisteSiRifiuta) {
    const FinestraProva form(L"form");
    EXPECT_EQ(erroreDi([&] { koUtilita::SfumaForm(form.get(), 0x80FF00FFU, 0, 0); }), 380);
}

TEST(KoUtilitaFinestre, EvidenziaSceglieTuttoIlTesto) {
    const std::wstring lungo(1000, L'x');
    const FinestraProva casella(lungo.c_str(), nullptr, WS_POPUP, L"EDIT");
    koUtilita::Evidenzia(casella.get());
    DWORD inizio = 1;
    DWORD fine = 0;
    SendMessageW(casella.get(), EM_GETSEL, reinterpret_cast<WPARAM>(&inizio),
                 reinterpret_cast<LPARAM>(&fine));
    EXPECT_EQ(inizio, 0U);
    EXPECT_EQ(fine, 1000U);
}

TEST(KoUtilitaFinestre, UnaFinestraCheNonCeEUnErrore) {
    const FinestraProva viva(L"viva");
    for (const HWND finestra : {HWND{nullptr}, nessuna()}) {
        EXPECT_EQ(erroreDi([&] { koUtilita::CentraForm(finestra); }), 5);
        EXPECT_EQ(erroreDi([&] { koUtilita::CentraFormFiglio(finestra, viva.get()); }), 5);
        EXPECT_EQ(erroreDi([&] { koUtilita::CentraFormFiglio(viva.get(), finestra); }), 5);
        EXPECT_EQ(erroreDi([&] { koUtilita::FinetraTopMost(finestra, true); }), 5);
        EXPECT_EQ(erroreDi([&] { koUtilita::SfumaForm(finestra, 0, 0, 0); }), 5);
        EXPECT_EQ(erroreDi([&] { koUtilita::Evidenzia(finestra); }), 5);
    }
}

TEST(KoUtilitaSfoglia, DaLaCartellaSceltaConLaBarra) {
    const FinestraProva padrone(L"padrone");
    bool titoloVisto = false;
    const QuandoAppare quando(L"#32770", L"", [&](HWND dialogo) {
        EnumChildWindows(
            dialogo,
            [](HWND figlio, LPARAM visto) {
                *reinterpret_cast<bool*>(visto) |= testoDi(figlio) == L"Scegli una cartella";
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&titoloVisto));
        // BFFM_SETSELECTION: what a click in the tree does.
        const std::wstring scelta = koUtilita::CartellaWindows();
        SendMessageW(dialogo, WM_USER + 103, TRUE, reinterpret_cast<LPARAM>(scelta.c_str()));
        PostMessageW(dialogo, WM_COMMAND, IDOK, 0);
    });
    const std::wstring cartella =
        koUtilita::Sfoglia_Cartella(padrone.get(), L"Scegli una cartella");
    EXPECT_EQ(koUtilita::koReplace(cartella, L"windows", L"Windows"),
              koUtilita::koReplace(koUtilita::CartellaWindows(), L"windows", L"Windows"));
    EXPECT_TRUE(titoloVisto);
}

TEST(KoUtilitaSfoglia, AnnullareNonDaCartella) {
    const QuandoAppare quando(L"#32770", L"",
                              [](HWND dialogo) { PostMessageW(dialogo, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(koUtilita::Sfoglia_Cartella(nullptr, std::wstring(1000, L'x')), L"");
}

TEST(KoUtilitaSfoglia, InUnFiloSenzaFinestreEUnErrore) {
    std::int32_t codice = 0;
    std::thread([&codice] {
        if (CoInitializeEx(nullptr, COINIT_MULTITHREADED) == S_OK) {
            codice = sollevatoDa([] { return koUtilita::Sfoglia_Cartella(nullptr, L""); }).numero;
            CoUninitialize();
        }
    }).join();
    EXPECT_EQ(codice, static_cast<std::int32_t>(RPC_E_CHANGED_MODE));
}
