#include "ui/dialogs/frmAbout_win.h"

#include "res/risorse.h"
#include "support/programma/prodotto.h"
#include "tests/aiuti/accessibile_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/proprietariaShell_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The box beside the test, so that the test can look at it and press keys.
class frmAboutAperta : public testing::Test {
protected:
    void SetUp() override {
        about.crea(IDD_FRMABOUT, nullptr);
        ShowWindow(about.hwnd(), SW_SHOW);
        portaAvanti(about.hwnd());
        UpdateWindow(about.hwnd());
        ASSERT_EQ(fuoco(), IDC_CMDOK);
    }

    [[nodiscard]] HWND controllo(int id) const { return GetDlgItem(about.hwnd(), id); }
    [[nodiscard]] std::wstring testo(int id) const { return testoDi(controllo(id)); }
    [[nodiscard]] static int fuoco() { return GetDlgCtrlID(GetFocus()); }
    [[nodiscard]] RECT posto(int id) const {
        RECT r{};
        GetWindowRect(controllo(id), &r);
        MapWindowPoints(nullptr, about.hwnd(), reinterpret_cast<POINT*>(&r), 2);
        return r;
    }
    // The colours of a control as the screen shows them.
    [[nodiscard]] std::vector<COLORREF> colori(int id) const {
        RECT r{};
        GetWindowRect(controllo(id), &r);
        const HDC schermo = GetDC(nullptr);
        std::vector<COLORREF> visti;
        for (int y = r.top; y < r.bottom; ++y) {
            for (int x = r.left; x < r.right; ++x) {
                visti.push_back(GetPixel(schermo, x, y));
            }
        }
        ReleaseDC(nullptr, schermo);
        return visti;
    }

    // Of the control's rows the one with most pixels of a colour: how many in a hundred.
    [[nodiscard]] long rigaPiuLunga(int id, COLORREF colore) const {
        RedrawWindow(controllo(id), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        pompa();
        const auto visti = colori(id);
        const RECT r = posto(id);
        const long larghezza = r.right - r.left;
        std::ptrdiff_t massimo = 0;
        for (auto riga = visti.begin(); riga != visti.end(); riga += larghezza) {
            massimo = std::max(massimo, std::count(riga, riga + larghezza, colore));
        }
        return static_cast<long>(massimo) * 100 / larghezza;
    }

    MessaggiFinti messaggi;
    frmAbout about{messaggi};
    const ConFiltro filtro{
        [this](MSG& msg) { return IsDialogMessageW(about.hwnd(), &msg) != FALSE; }};
};

// The first column with a pixel that is not of the background.
long inizioInchiostro(const std::vector<COLORREF>& visti, std::size_t larghezza) {
    std::size_t primo = larghezza;
    for (std::size_t i = 0; i < visti.size(); ++i) {
        if (visti[i] != GetSysColor(COLOR_3DFACE)) {
            primo = std::min(primo, i % larghezza);
        }
    }
    return static_cast<long>(primo);
}

// The box as the program shows it, closed by `azione`.
void mostraE(std::function<void(HWND)> azione) {
    MessaggiFinti messaggi;
    const QuandoAppare guardia(L"#32770", L"Informazioni su Ostrelle", std::move(azione));
    frmAbout(messaggi).mostra(nullptr);
}

} // namespace

TEST(frmAboutTesti, LaRigaDellaVersioneHaSetteBlanksEAnno) {
    EXPECT_EQ(frmAbout::rigaVersione(L"1.0.5"), L"Versione 1.0.5       Anno: 2005");
}

TEST_F(frmAboutAperta, MostraITestiDelProdotto) {
    EXPECT_EQ(testoDi(about.hwnd()), L"Informazioni su Ostrelle");
    EXPECT_EQ(testo(IDC_LBLTITLE), L"Ostrelle");
    EXPECT_EQ(testo(IDC_LBLVERSION), L"Versione " + prodotto::versione() + L"       Anno: 2005");
    EXPECT_EQ(testo(IDC_LBLPRODOTTO), L"Autore:");
    EXPECT_EQ(testo(IDC_LBLAUTORE), prodotto::autore);
    EXPECT_EQ(testo(IDC_LBLSITO), prodotto::sito);
    EXPECT_EQ(testo(IDC_CMDOK), L"OK");
    EXPECT_EQ(testo(IDC_CMDSYSINFO), L"&System Info...");
}

TEST_F(frmAboutAperta, IlTitoloSpicca) {
    const auto carattere = [this](int id) {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(controllo(id), WM_GETFONT, 0, 0)),
                   sizeof(font), &font);
        return font;
    };
    EXPECT_EQ(carattere(IDC_LBLTITLE).lfWeight, FW_BOLD);
    EXPECT_EQ(carattere(IDC_LBLTITLE).lfHeight, MulDiv(carattere(IDC_LBLAUTORE).lfHeight, 3, 2));
}

TEST_F(frmAboutAperta, SulCollegamentoSiVedeIlFuoco) {
    const auto bordo = [this] {
        pompa();
        auto visti = colori(IDC_LBLSITO);
        const RECT r = posto(IDC_LBLSITO);
        visti.resize(static_cast<std::size_t>(r.right - r.left));
        return visti;
    };
    // As if the keyboard had been used already: else the mouse hides the focus.
    SendMessageW(about.hwnd(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    const auto prima = bordo();
    SetFocus(controllo(IDC_LBLSITO));
    EXPECT_NE(bordo(), prima);
    SetFocus(controllo(IDC_CMDOK));
    EXPECT_EQ(bordo(), prima);
}

TEST_F(frmAboutAperta, IlRiquadroRaccoglieLeEtichette) {
    const RECT riquadro = posto(IDC_FRAME1);
    for (const int id :
         {IDC_LBLTITLE, IDC_LBLVERSION, IDC_LBLPRODOTTO, IDC_LBLAUTORE, IDC_LBLSITO}) {
        const RECT r = posto(id);
        RECT comune{};
        IntersectRect(&comune, &r, &riquadro);
        EXPECT_TRUE(EqualRect(&comune, &r)) << id;
    }
}

TEST_F(frmAboutAperta, TabPassaPerCollegamentoOkEInformazioni) {
    premi(VK_TAB);
    EXPECT_EQ(fuoco(), IDC_CMDSYSINFO);
    premi(VK_TAB);
    EXPECT_EQ(fuoco(), IDC_LBLSITO);
    premi(VK_TAB);
    EXPECT_EQ(fuoco(), IDC_CMDOK);
    premi(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(fuoco(), IDC_LBLSITO);
}

TEST_F(frmAboutAperta, InvioSuOkChiude) {
    premi(VK_RETURN);
    EXPECT_TRUE(attendi([this] { return about.hwnd() == nullptr; }));
}

TEST_F(frmAboutAperta, EscChiudeDaOgniControllo) {
    SetFocus(controllo(IDC_LBLSITO));
    premi(VK_ESCAPE);
    EXPECT_TRUE(attendi([this] { return about.hwnd() == nullptr; }));
}

TEST_F(frmAboutAperta, UnClicSuOkChiude) {
    clic(controllo(IDC_CMDOK));
    EXPECT_TRUE(attendi([this] { return about.hwnd() == nullptr; }));
}

TEST_F(frmAboutAperta, IlCollegamentoSiApreColMouseEConLaTastiera) {
    Registratore registratore;
    registratore.protocollo(L"https");
    const ProprietariaShell proprietarie;
    clic(controllo(IDC_LBLSITO));
    EXPECT_EQ(registratore.attendi().obiettivo, prodotto::sito);
    premi(VK_RETURN);
    EXPECT_EQ(registratore.attendi().obiettivo, prodotto::sito);
    premi(VK_SPACE);
    EXPECT_EQ(registratore.attendi().obiettivo, prodotto::sito);
    ASSERT_NE(about.hwnd(), nullptr);
    EXPECT_EQ(ProprietariaShell::viste(), std::vector<HWND>(3, about.hwnd()));
    EXPECT_EQ(fuoco(), IDC_LBLSITO);
}

TEST_F(frmAboutAperta, DopoIlCollegamentoInvioTornaAOk) {
    SetFocus(controllo(IDC_LBLSITO));
    EXPECT_EQ(LOWORD(SendMessageW(about.hwnd(), DM_GETDEFID, 0, 0)), IDC_LBLSITO);
    SetFocus(controllo(IDC_CMDOK));
    EXPECT_EQ(LOWORD(SendMessageW(about.hwnd(), DM_GETDEFID, 0, 0)), IDC_CMDOK);
    premi(VK_RETURN);
    EXPECT_TRUE(attendi([this] { return about.hwnd() == nullptr; }));
}

TEST_F(frmAboutAperta, UnSitoCheNonSiApreSiDice) {
    SetWindowTextW(controllo(IDC_LBLSITO), L"Z:\\non c'è.htm");
    messaggi.attendi(std::wstring(L"Z:\\non c'è.htm") + testi::fileNonTrovato, testi::errore,
                     Icona::Critica);
    clic(controllo(IDC_LBLSITO));
    EXPECT_NE(about.hwnd(), nullptr);
}

TEST_F(frmAboutAperta, SulCollegamentoIlPuntatoreEUnaMano) {
    const HWND sito = controllo(IDC_LBLSITO);
    SendMessageW(sito, WM_SETCURSOR, reinterpret_cast<WPARAM>(sito),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_HAND));
    const HWND ok = controllo(IDC_CMDOK);
    SendMessageW(ok, WM_SETCURSOR, reinterpret_cast<WPARAM>(ok),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(frmAboutAperta, IlCollegamentoEDelColoreDelSistemaESottolineato) {
    const ColoriSistema blu(COLOR_HOTLIGHT, RGB(0, 0, 200));
    EXPECT_GT(rigaPiuLunga(IDC_LBLSITO, RGB(0, 0, 200)), 80);
}

TEST_F(frmAboutAperta, UnColoreCheNonSiLeggeLasciaIlPostoAQuelloDelTesto) {
    // One that vanishes, one that is only too pale.
    for (const COLORREF colore : {GetSysColor(COLOR_3DFACE), COLORREF{RGB(51, 102, 255)}}) {
        const ColoriSistema sfondo(COLOR_HOTLIGHT, colore);
        EXPECT_GT(rigaPiuLunga(IDC_LBLSITO, GetSysColor(COLOR_BTNTEXT)), 80) << colore;
    }
}

TEST_F(frmAboutAperta, IlCollegamentoELargoComeIlSuoTesto) {
    const RECT r = posto(IDC_LBLSITO);
    const RECT autore = posto(IDC_LBLAUTORE);
    EXPECT_LT(r.right, autore.right);
    EXPECT_GT(r.right - r.left, 50);
}

TEST_F(frmAboutAperta, IlCollegamentoSiVedeFinoAllUltimaLettera) {
    pompa();
    const auto visti = colori(IDC_LBLSITO);
    const RECT r = posto(IDC_LBLSITO);
    const auto larghezza = static_cast<std::size_t>(r.right - r.left);
    std::size_t inchiostro = 0;
    for (std::size_t i = 0; i < visti.size(); ++i) {
        const std::size_t x = i % larghezza;
        if (visti[i] != GetSysColor(COLOR_3DFACE)) {
            EXPECT_GT(x, 1U);
            EXPECT_LT(x, larghezza - 1);
            ++inchiostro;
        }
    }
    EXPECT_GT(inchiostro, 100U);
    // It begins where the other labels do.
    EXPECT_NEAR(r.left + inizioInchiostro(visti, larghezza), posto(IDC_LBLVERSION).left, 3);
}

TEST_F(frmAboutAperta, LeFigureHannoUnNomePerChiLeLegge) {
    EXPECT_EQ(nomeAccessibile(controllo(IDC_PICICON)), L"Icona");
    EXPECT_EQ(nomeAccessibile(controllo(IDC_IMAGE1)), L"Logo");
    EXPECT_EQ(nomeAccessibile(controllo(IDC_LBLSITO)), prodotto::sito);
}

TEST_F(frmAboutAperta, IlLogoSiVedeNellaSuaMisura) {
    pompa();
    const RECT r = posto(IDC_IMAGE1);
    EXPECT_LT(r.bottom, posto(IDC_FRAME1).top);
    const HDC schermo = GetDC(nullptr);
    const int dpi = GetDeviceCaps(schermo, LOGPIXELSX);
    ReleaseDC(nullptr, schermo);
    EXPECT_EQ(r.right - r.left, MulDiv(160, dpi, 96));
    EXPECT_EQ(r.bottom - r.top, MulDiv(80, dpi, 96));
    // Its sky above, its sea below: the picture is there and not upside down.
    const auto visti = colori(IDC_IMAGE1);
    EXPECT_EQ(visti.front(), RGB(0x1b, 0x3f, 0x5c));
    EXPECT_EQ(visti.back(), RGB(0x2f, 0x73, 0x97));
}

TEST_F(frmAboutAperta, LIconaEQuellaDelProgramma) {
    pompa();
    const RECT r = posto(IDC_PICICON);
    EXPECT_EQ(r.right - r.left, GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(r.bottom - r.top, GetSystemMetrics(SM_CYICON));
    const auto visti = colori(IDC_PICICON);
    EXPECT_GT(std::count(visti.begin(), visti.end(), RGB(0x1b, 0x3f, 0x5c)), 50);
}

TEST_F(frmAboutAperta, SystemInfoSenzaProgrammaLoDice) {
    const ChiaveSalvata msinfo(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO");
    const ChiaveSalvata luogo(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools Location");
    messaggi.attendi(testi::senzaInfoSistema, testi::errore, Icona::Critica);
    clic(controllo(IDC_CMDSYSINFO));
    EXPECT_NE(about.hwnd(), nullptr);
}

TEST_F(frmAboutAperta, AltSAvviaLeInformazioni) {
    const ChiaveSalvata msinfo(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO");
    Registratore registratore;
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"MSINFO32.EXE");
    Registratore::copiaIn(programma);
    msinfo.testo(L"PATH", programma);
    premi(L'S', {VK_MENU});
    EXPECT_EQ(registratore.attendi().programma, programma);
    EXPECT_TRUE(attendi([&] { return DeleteFileW(programma.c_str()) != FALSE; }));
}

TEST(frmAboutModale, EscInvioELaCrocettaChiudono) {
    // Posted, so that the box's own message loop takes them.
    mostraE([](HWND box) { PostMessageW(box, WM_KEYDOWN, VK_ESCAPE, 0); });
    mostraE([](HWND box) { PostMessageW(box, WM_KEYDOWN, VK_RETURN, 0); });
    mostraE([](HWND box) { PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); });
}

TEST(frmAboutModale, LaProprietariaAspetta) {
    const HWND proprietaria = CreateWindowW(L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200,
                                            nullptr, nullptr, nullptr, nullptr);
    std::optional<bool> abilitata;
    MessaggiFinti messaggi;
    const QuandoAppare guardia(L"#32770", L"Informazioni su Ostrelle", [&](HWND box) {
        abilitata = IsWindowEnabled(proprietaria) != FALSE;
        SendMessageW(box, WM_COMMAND, IDOK, 0);
    });
    frmAbout(messaggi).mostra(proprietaria);
    EXPECT_EQ(abilitata, false);
    EXPECT_TRUE(IsWindowEnabled(proprietaria));
    DestroyWindow(proprietaria);
}

TEST(Disegni, LeStrisceDellaBarraHannoCinqueFigureConTrasparenza) {
    for (const auto& [numero, lato] :
         {std::pair{IDB_BARRA16, 16L}, std::pair{IDB_BARRA24, 24L}, std::pair{IDB_BARRA32, 32L}}) {
        const auto bitmap =
            static_cast<HBITMAP>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(numero),
                                            IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
        ASSERT_NE(bitmap, nullptr);
        DIBSECTION dib{};
        ASSERT_EQ(GetObjectW(bitmap, sizeof(dib), &dib), static_cast<int>(sizeof(dib)));
        EXPECT_EQ(dib.dsBm.bmWidth, 5 * lato);
        EXPECT_EQ(dib.dsBm.bmHeight, lato);
        ASSERT_EQ(dib.dsBm.bmBitsPixel, 32);
        // Clear pixels in every picture, and opaque ones.
        const auto* const punti = static_cast<const DWORD*>(dib.dsBm.bmBits);
        for (long figura = 0; figura < 5; ++figura) {
            long chiari = 0;
            long pieni = 0;
            for (long y = 0; y < lato; ++y) {
                for (long x = figura * lato; x < (figura + 1) * lato; ++x) {
                    const DWORD alfa = punti[y * 5 * lato + x] >> 24;
                    chiari += alfa == 0 ? 1 : 0;
                    pieni += alfa == 0xff ? 1 : 0;
                }
            }
            EXPECT_GT(chiari, lato * lato / 20) << lato << ' ' << figura;
            EXPECT_GT(pieni, lato * lato / 4) << lato << ' ' << figura;
        }
        DeleteObject(bitmap);
    }
}
