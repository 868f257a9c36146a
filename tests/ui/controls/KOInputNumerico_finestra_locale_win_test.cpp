#include "tests/aiuti/accessibile_win.h"
#include "tests/ui/controls/numerico_prova_win.h"

#include <gtest/gtest.h>

using namespace numerico;

namespace {
class NumericoFinestra : public NumericoVero {};
} // namespace

TEST_F(NumericoFinestra, IPulsantiScattanoEntroILimiti) {
    numero->Incremento(60);
    clicPulsante(Verso::Su);
    EXPECT_EQ(numero->Valore(), 60);
    EXPECT_EQ(GetFocus(), casella);
    EXPECT_EQ(selezione(), (std::pair<DWORD, DWORD>{0, 5}));
    clicPulsante(Verso::Su);
    EXPECT_EQ(numero->Valore(), 100);
    clicPulsante(Verso::Su);
    EXPECT_EQ(numero->Valore(), 100);
    clicPulsante(Verso::Giu);
    EXPECT_EQ(numero->Valore(), 40);
    clicPulsante(Verso::Giu);
    EXPECT_EQ(numero->Valore(), 0);
    EXPECT_TRUE(registro.eventi.empty());
}

TEST_F(NumericoFinestra, UnPassoNegativoScambiaIPulsanti) {
    numero->Incremento(-30);
    EXPECT_EQ(numero->Incremento(), -30);
    clicPulsante(Verso::Giu);
    EXPECT_EQ(numero->Valore(), 30);
    clicPulsante(Verso::Su);
    EXPECT_EQ(numero->Valore(), 0);
}

TEST_F(NumericoFinestra, FrecceERotellaScattano) {
    entra();
    premi(VK_UP);
    premi(VK_UP);
    EXPECT_EQ(numero->Valore(), 2);
    premi(VK_DOWN);
    EXPECT_EQ(numero->Valore(), 1);
    rotella(casella, 3);
    EXPECT_EQ(numero->Valore(), 4);
    rotella(casella, -1);
    EXPECT_EQ(numero->Valore(), 3);
}

TEST_F(NumericoFinestra, BloccatoNonScattaENonSiScrive) {
    numero->Locked(true);
    EXPECT_TRUE(numero->Locked());
    clicPulsante(Verso::Su);
    entra();
    premi(VK_UP);
    rotella(casella, 1);
    scrivi(L"5");
    EXPECT_EQ(numero->Valore(), 0);
    EXPECT_TRUE(registro.cambi.empty());
    numero->Locked(false);
    clicPulsante(Verso::Su);
    EXPECT_EQ(numero->Valore(), 1);
}

TEST_F(NumericoFinestra, DisabilitatoCambiaSfondoEPulsanti) {
    EXPECT_EQ(pennello(WM_CTLCOLOREDIT), GetSysColorBrush(COLOR_WINDOW));
    numero->Enabled(false);
    EXPECT_FALSE(IsWindowEnabled(casella));
    EXPECT_FALSE(IsWindowEnabled(UPNumDi(*numero)));
    EXPECT_EQ(pennello(WM_CTLCOLORSTATIC), GetSysColorBrush(COLOR_BTNFACE));
    numero->Enabled(true);
    EXPECT_TRUE(IsWindowEnabled(UPNumDi(*numero)));
    EXPECT_EQ(pennello(WM_CTLCOLOREDIT), GetSysColorBrush(COLOR_WINDOW));
    EnableWindow(numero->hwnd(), FALSE);
    EXPECT_FALSE(numero->Enabled());
}

TEST_F(NumericoFinestra, IlColoreDelTestoArrivaAlDipinto) {
    static_cast<void>(pennello(WM_CTLCOLOREDIT));
    EXPECT_EQ(testoDipinto, GetSysColor(COLOR_WINDOWTEXT));
    numero->ForeColor(0x0000FF);
    static_cast<void>(pennello(WM_CTLCOLOREDIT));
    EXPECT_EQ(testoDipinto, RGB(255, 0, 0));
}

TEST_F(NumericoFinestra, IPulsantiStannoADestraDelTesto) {
    RECT pulsanti{};
    GetWindowRect(UPNumDi(*numero), &pulsanti);
    const int proprio = pulsanti.right - pulsanti.left;
    for (const auto& [largo, alto] : std::vector<std::pair<int, int>>{{200, 30}, {90, 18}}) {
        SetWindowPos(numero->hwnd(), nullptr, 0, 0, largo, alto, SWP_NOZORDER | SWP_NOMOVE);
        RECT controllo{};
        RECT testoR{};
        GetWindowRect(numero->hwnd(), &controllo);
        GetWindowRect(casella, &testoR);
        GetWindowRect(UPNumDi(*numero), &pulsanti);
        EXPECT_EQ(testoR.left, controllo.left);
        EXPECT_EQ(testoR.top, controllo.top);
        EXPECT_EQ(testoR.right - testoR.left, largo - proprio);
        EXPECT_EQ(testoR.bottom - testoR.top, alto);
        EXPECT_EQ(pulsanti.left, testoR.right);
        EXPECT_EQ(pulsanti.bottom - pulsanti.top, alto);
        EXPECT_EQ(pulsanti.right, controllo.right);
    }
    // Too narrow: the box keeps its width.
    SetWindowPos(numero->hwnd(), nullptr, 0, 0, 1, 1, SWP_NOZORDER | SWP_NOMOVE);
    RECT testoR{};
    GetWindowRect(casella, &testoR);
    GetWindowRect(UPNumDi(*numero), &pulsanti);
    EXPECT_EQ(testoR.right - testoR.left, 90 - proprio);
    EXPECT_EQ(pulsanti.left, testoR.right);
    EXPECT_EQ(pulsanti.right - pulsanti.left, proprio);
}

TEST_F(NumericoFinestra, TabEInvioEEscFannoIlLoroLavoro) {
    premi(VK_TAB);
    EXPECT_EQ(GetFocus(), casella);
    premi(VK_TAB);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialogo, idDopo));
    premi(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), casella);
    premi(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), GetDlgItem(dialogo, idPrima));
    entra();
    premi(VK_RETURN);
    EXPECT_EQ(GetPropW(dialogo, L"comando"), reinterpret_cast<HANDLE>(INT_PTR{IDOK}));
    premi(VK_ESCAPE);
    EXPECT_EQ(GetPropW(dialogo, L"comando"), reinterpret_cast<HANDLE>(INT_PTR{IDCANCEL}));
    EXPECT_EQ(testo(), locale(L"0,00"));
}

TEST_F(NumericoFinestra, DareIlFuocoAlControlloLoDaAlTesto) {
    SetFocus(numero->hwnd());
    EXPECT_EQ(GetFocus(), casella);
}

TEST_F(NumericoFinestra, UnComandoFaLasciareIlCampo) {
    entra();
    scrivi(L"250");
    KOInputNumerico::lasciaQuelloColFuoco();
    EXPECT_EQ(testo(), locale(L"100,00"));
    EXPECT_EQ(GetFocus(), casella);
    EXPECT_EQ(registro.eventi.size(), 1U);
    esci();
    EXPECT_EQ(registro.eventi.size(), 1U);
    numero->Massimo(1);
    KOInputNumerico::lasciaQuelloColFuoco();
    EXPECT_EQ(registro.eventi.size(), 1U);
}

TEST_F(NumericoFinestra, UnMessaggioNellEventoNonSiRipete) {
    entra();
    scrivi(L"250");
    registro.durante = [this] {
        const QuandoAppare quando(L"#32770", L"limite",
                                  [](HWND box) { PostMessageW(box, WM_COMMAND, IDOK, 0); });
        MessageBoxW(dialogo, L"troppo", L"limite", MB_OK);
    };
    esci();
    EXPECT_TRUE(attendi([&] { return IsWindowEnabled(dialogo) != FALSE; }));
    EXPECT_EQ(registro.eventi.size(), 1U);
    EXPECT_EQ(testo(), locale(L"100,00"));
}

TEST_F(NumericoFinestra, LEventoPuoChiudereLaFinestra) {
    entra();
    scrivi(L"250");
    registro.durante = [this] { DestroyWindow(dialogo); };
    SetFocus(GetDlgItem(dialogo, idDopo));
    EXPECT_FALSE(IsWindow(casella));
    EXPECT_EQ(registro.eventi.size(), 1U);
    EXPECT_TRUE(registro.errori.empty());
}

TEST_F(NumericoFinestra, UnErroreDiChiAscoltaSiFermaQui) {
    entra();
    scrivi(L"250");
    registro.durante = [] { solleva(errori::overflow); };
    esci();
    EXPECT_EQ(registro.errori, std::vector<std::int32_t>{6});
    registro.durante = {};
    entra();
    esci();
    EXPECT_EQ(testo(), locale(L"100,00"));
}

TEST_F(NumericoFinestra, IlFuocoCheVaViaDuranteLEventoNonLoRipete) {
    entra();
    scrivi(L"2507");
    registro.azzera();
    registro.durante = [this] {
        if (registro.eventi.size() == 1) {
            SetFocus(casella);
            SetFocus(dialogo);
        }
    };
    esci();
    EXPECT_EQ(registro.eventi, std::vector<std::wstring>{L"massimo 100 letto 250"});
    EXPECT_EQ(testo(), locale(L"100,00"));
}

TEST_F(NumericoFinestra, LaBorsaRidaLeProprieta) {
    Borsa borsa;
    numero->scrivi(borsa);
    EXPECT_TRUE(borsa.valori.empty());
    borsa.valori = {
        {L"Massimo", 10000.0},      {L"CifreDecimali", std::int16_t{0}},
        {L"Valore", 640.0},         {L"Font", FontProprieta{L"Arial", 12, 700, true, false, false}},
        {L"Minimo", -1.0},          {L"Incremento", 5.0},
        {L"Enabled", false},        {L"Locked", true},
        {L"VisualizzaZero", false}, {L"ForeColor", std::uint32_t{0x0000FF}}};
    numero->leggi(borsa);
    EXPECT_EQ(testo(), L"640");
    EXPECT_EQ(numero->Massimo(), 10000);
    EXPECT_EQ(numero->Minimo(), -1);
    EXPECT_EQ(numero->Incremento(), 5);
    EXPECT_FALSE(numero->VisualizzaZero());
    EXPECT_EQ(numero->CifreDecimali(), 0);
    EXPECT_EQ(numero->ForeColor(), 0x0000FFU);
    EXPECT_FALSE(numero->Enabled());
    EXPECT_TRUE(numero->Locked());
    Borsa scritta;
    numero->scrivi(scritta);
    EXPECT_EQ(scritta.valori, borsa.valori);
}

TEST_F(NumericoFinestra, UnValoreConservatoSiMisuraSuiLimitiConservati) {
    Borsa borsa;
    borsa.valori = {{L"Massimo", 5.0}, {L"Valore", 6.0}};
    EXPECT_EQ(numeroDi([&] { numero->leggi(borsa); }), 380);
    EXPECT_EQ(testo(), locale(L"0,00"));
}

TEST_F(NumericoFinestra, ILimitiConservatiSiPrendonoComeStanno) {
    Borsa borsa;
    // Both below the minimum there was.
    borsa.valori = {{L"Massimo", -10.0}, {L"Minimo", -20.0}, {L"Valore", -15.0}};
    numero->leggi(borsa);
    EXPECT_EQ(numero->Valore(), -15);
    // No value lies within these, but they are the ones that were stored.
    borsa.valori = {{L"Massimo", 5.0}, {L"Minimo", 10.0}};
    EXPECT_EQ(numeroDi([&] { numero->leggi(borsa); }), 380);
    EXPECT_EQ(numero->Massimo(), 5);
    EXPECT_EQ(numero->Minimo(), 10);
    EXPECT_EQ(numero->Valore(), -15);
}

TEST_F(NumericoFinestra, LoZeroNascostoConservatoNonSiVede) {
    Borsa borsa;
    borsa.valori = {{L"VisualizzaZero", false}};
    numero->leggi(borsa);
    EXPECT_EQ(testo(), L"");
}

TEST_F(NumericoFinestra, LaCasellaHaIlNomeDellaSuaEtichetta) {
    EXPECT_EQ(nomeAccessibile(casella), L"Larghezza:");
    SetWindowTextW(GetWindow(numero->hwnd(), GW_HWNDPREV), L"Altezza:");
    ShowWindow(numero->hwnd(), SW_HIDE);
    ShowWindow(numero->hwnd(), SW_SHOW);
    EXPECT_EQ(nomeAccessibile(casella), L"Altezza:");
}
