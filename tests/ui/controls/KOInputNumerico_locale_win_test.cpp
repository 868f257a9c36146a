#include "tests/ui/controls/numerico_prova_win.h"

#include <gtest/gtest.h>

using namespace numerico;

TEST_F(NumericoVero, NasceConZeroNelFormatoDellUtente) {
    EXPECT_EQ(testo(), locale(L"0,00"));
    EXPECT_EQ(numero->Valore(), 0);
    EXPECT_TRUE(numero->Enabled());
    EXPECT_FALSE(numero->Locked());
    EXPECT_EQ(numero->Font(), reinterpret_cast<HFONT>(SendMessageW(dialogo, WM_GETFONT, 0, 0)));
    EXPECT_EQ(numero->ForeColor(), 0x80000008U);
    const wchar_t atteso = GetUserDefaultLCID() == 0x0410 ? L',' : L'.';
    EXPECT_EQ(formatoUtente().decimale, atteso);
}

TEST_F(NumericoVero, ScrivereUnValoreAvvisaUnaVoltaSola) {
    numero->Valore(12.5);
    EXPECT_EQ(testo(), locale(L"12,50"));
    EXPECT_EQ(registro.cambi, std::vector<double>{12.5});
    numero->Valore(12.5);
    numero->Valore(12.501);
    EXPECT_EQ(registro.cambi.size(), 1U);
    EXPECT_EQ(registro.proprieta, (std::vector<std::wstring>{L"Valore", L"Valore", L"Valore"}));
}

TEST_F(NumericoVero, FuoriDaiLimitiE380ENullaCambia) {
    numero->Valore(7);
    registro.azzera();
    EXPECT_EQ(numeroDi([&] { numero->Valore(101); }), 380);
    EXPECT_EQ(numeroDi([&] { numero->Valore(-1); }), 380);
    EXPECT_EQ(numeroDi([&] { numero->Massimo(0); }), 380);
    EXPECT_EQ(numeroDi([&] { numero->Minimo(100); }), 380);
    EXPECT_EQ(numeroDi([&] { numero->Massimo(-1); }), 380);
    EXPECT_EQ(numeroDi([&] { numero->Minimo(101); }), 380);
    EXPECT_EQ(numero->Valore(), 7);
    EXPECT_EQ(numero->Massimo(), 100);
    EXPECT_EQ(numero->Minimo(), 0);
    EXPECT_TRUE(registro.cambi.empty());
    EXPECT_TRUE(registro.proprieta.empty());
}

TEST_F(NumericoVero, OgniProprietaSiAnnunciaColSuoNome) {
    numero->Massimo(50);
    numero->Minimo(-5);
    numero->Incremento(2);
    numero->VisualizzaZero(false);
    EXPECT_EQ(testo(), L"");
    numero->CifreDecimali(3);
    numero->Text(L"77");
    numero->Font(static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT)));
    numero->ForeColor(0xFF);
    numero->Enabled(false);
    numero->Locked(true);
    EXPECT_EQ(registro.proprieta,
              (std::vector<std::wstring>{L"Massimo", L"Minimo", L"Incremento", L"Valore",
                                         L"VisualizzaZero", L"Valore", L"CifreDecimali", L"Text",
                                         L"Font", L"ForeColor", L"Enabled", L"Locked"}));
    EXPECT_EQ(numero->Font(), GetStockObject(DEFAULT_GUI_FONT));
}

TEST_F(NumericoVero, LeCifreRiscrivonoIlTesto) {
    numero->Valore(12.7);
    numero->CifreDecimali(0);
    EXPECT_EQ(testo(), L"13");
    numero->Valore(1);
    numero->CifreDecimali(3);
    EXPECT_EQ(testo(), locale(L"1,000"));
}

TEST_F(NumericoVero, MostrareLoZeroRiscriveAncheLaCasellaVuota) {
    numero->Text(L"");
    numero->VisualizzaZero(true);
    EXPECT_EQ(testo(), locale(L"0,00"));
    numero->VisualizzaZero(false);
    EXPECT_EQ(testo(), L"");
    numero->VisualizzaZero(true);
    EXPECT_EQ(testo(), locale(L"0,00"));
}

TEST_F(NumericoVero, UnValoreDatoMentreSiScriveSiSelezionaTutto) {
    entra();
    scrivi(L"7");
    numero->Valore(12);
    EXPECT_EQ(selezione(), (std::pair<DWORD, DWORD>{0, 5}));
    // One that changes nothing leaves the caret.
    premi(VK_END);
    numero->Valore(12);
    EXPECT_EQ(selezione(), (std::pair<DWORD, DWORD>{5, 5}));
}

TEST_F(NumericoVero, QualunqueTestoSvuota) {
    numero->Valore(5);
    EXPECT_EQ(numero->Text(), locale(L"5,00"));
    registro.azzera();
    numero->Text(L"9");
    EXPECT_EQ(testo(), L"");
    EXPECT_EQ(numero->Text(), L"");
    EXPECT_EQ(numero->Valore(), 0);
    EXPECT_EQ(registro.cambi, std::vector<double>{0});
    numero->Text(L"");
    EXPECT_EQ(registro.cambi.size(), 1U);
}

TEST_F(NumericoVero, ITastiPassanoDalFiltro) {
    entra();
    scrivi(L"1x €.5");
    EXPECT_EQ(testo(), locale(L"1,5"));
    scrivi(L"-");
    EXPECT_EQ(testo(), locale(L"1,5-"));
    premi(VK_BACK);
    EXPECT_EQ(testo(), locale(L"1,5"));
    EXPECT_EQ(registro.cambi, (std::vector<double>{1, 1, 1.5, -1.5, 1.5}));
}

TEST_F(NumericoVero, EntrandoSiSelezionaTutto) {
    numero->Valore(100);
    entra();
    EXPECT_EQ(selezione(), (std::pair<DWORD, DWORD>{0, 6}));
    scrivi(L"25");
    EXPECT_EQ(testo(), L"25");
}

TEST_F(NumericoVero, TroppoSiRiportaAlMassimo) {
    entra();
    scrivi(L"2507");
    EXPECT_EQ(testo(), L"250");
    registro.azzera();
    esci();
    EXPECT_EQ(testo(), locale(L"100,00"));
    EXPECT_EQ(registro.eventi, std::vector<std::wstring>{L"massimo 100 letto 250"});
    EXPECT_EQ(registro.cambi, std::vector<double>{100});
}

TEST_F(NumericoVero, TroppoPocoSiRiportaAlMinimo) {
    entra();
    scrivi(L"-4");
    registro.azzera();
    esci();
    EXPECT_EQ(testo(), locale(L"0,00"));
    EXPECT_EQ(registro.eventi, std::vector<std::wstring>{L"minimo 0 letto -4"});
}

TEST_F(NumericoVero, PassareDalCampoNonCambiaNulla) {
    numero->Valore(12);
    registro.azzera();
    entra();
    esci();
    EXPECT_TRUE(registro.cambi.empty());
    EXPECT_TRUE(registro.eventi.empty());
    EXPECT_EQ(testo(), locale(L"12,00"));
}

TEST_F(NumericoVero, UscireVuotoRestaVuoto) {
    entra();
    premi(VK_DELETE);
    EXPECT_EQ(testo(), L"");
    esci();
    EXPECT_EQ(testo(), L"");
    numero->VisualizzaZero(false);
    entra();
    scrivi(L"0");
    esci();
    EXPECT_EQ(testo(), L"");
}

TEST_F(NumericoVero, GliAppuntiFunzionanoDaTastiera) {
    numero->Minimo(10);
    numero->Valore(11);
    entra();
    premi('C', {VK_CONTROL});
    EXPECT_EQ(testoAppunti(), locale(L"11,00"));
    testoAppunti(L"15");
    premi('V', {VK_CONTROL});
    EXPECT_EQ(testo(), L"15");
    premi('Z', {VK_CONTROL});
    EXPECT_EQ(testo(), locale(L"11,00"));
    SendMessageW(casella, EM_SETSEL, 0, -1);
    premi('X', {VK_CONTROL});
    EXPECT_EQ(testo(), L"");
    EXPECT_EQ(testoAppunti(), locale(L"11,00"));
}

// Control and Alt together are AltGr, which makes characters.
TEST_F(NumericoVero, SenzaIlSoloControlLeLettereNonToccanoGliAppunti) {
    numero->Valore(11);
    entra();
    testoAppunti(L"15");
    for (const WORD lettera : {WORD{'C'}, WORD{'V'}, WORD{'X'}, WORD{'Z'}}) {
        premi(lettera);
        premi(lettera, {VK_CONTROL, VK_MENU});
        EXPECT_EQ(testo(), locale(L"11,00")) << lettera;
        EXPECT_EQ(testoAppunti(), L"15") << lettera;
    }
}

TEST_F(NumericoVero, UnTestoIncollatoSiLeggeAllUscita) {
    for (const auto& [incollato, atteso] : std::vector<std::pair<std::wstring, std::wstring>>{
             {L"  7 ", L"7,00"}, {L"ciao \U0001F600", L"0,00"}, {L"999", L"100,00"}}) {
        entra();
        testoAppunti(incollato);
        SendMessageW(casella, EM_SETSEL, 0, -1);
        premi('V', {VK_CONTROL});
        EXPECT_EQ(testo(), incollato);
        esci();
        EXPECT_EQ(testo(), locale(atteso));
    }
}

// A box of one line takes the first line of what is pasted.
TEST_F(NumericoVero, UnMegaIncollatoSiRiportaAlMassimo) {
    std::wstring molto;
    while (molto.size() < 1'000'000) {
        molto.append(100, L'9').append(L"\r\n");
    }
    entra();
    testoAppunti(molto);
    premi('V', {VK_CONTROL});
    EXPECT_EQ(testo(), std::wstring(100, L'9'));
    esci();
    EXPECT_EQ(numero->Valore(), 100);
    EXPECT_EQ(registro.eventi.size(), 1U);
}
