#include "ui/controls/valoreNumerico.h"

#include "support/errori/errore.h"
#include "tests/aiuti/formati.h"
#include "tests/aiuti/testi.h"

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr Separatori virgola{',', '.'};
constexpr Separatori punto{'.', ','};

class Registro final : public EventiLimite {
public:
    void MassimoSuperato(double vmassimo) override { visti.emplace_back(L"massimo", vmassimo); }
    void MinimoSuperato(double vminimo) override { visti.emplace_back(L"minimo", vminimo); }
    std::vector<std::pair<std::wstring, double>> visti;
};

template <class Azione>
std::int32_t numeroDi(Azione azione) {
    try {
        azione();
        return 0;
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.descrizione(), testi::diErrore(380));
        return errore.numero();
    }
}

// What a text becomes when these keys are typed at its end, one by one.
std::wstring digita(const ValoreNumerico& regole, std::wstring testo, std::wstring_view tasti) {
    for (const wchar_t c : tasti) {
        if (const wchar_t fatto = regole.filtra(c, testo, 0, virgola, italiano)) {
            testo += fatto;
        }
    }
    return testo;
}

} // namespace

TEST(ValoreNumerico, NasceConISuoiPredefiniti) {
    const ValoreNumerico regole;
    EXPECT_EQ(regole.Massimo(), 100);
    EXPECT_EQ(regole.Minimo(), 0);
    EXPECT_EQ(regole.Incremento(), 1);
    EXPECT_TRUE(regole.VisualizzaZero());
    EXPECT_EQ(regole.CifreDecimali(), 2);
    EXPECT_EQ(regole.scrivi(0, italiano), L"0,00");
    EXPECT_EQ(regole.scrivi(0, inglese), L"0.00");
}

TEST(ValoreNumerico, LeggeNelFormatoDellUtente) {
    EXPECT_EQ(ValoreNumerico::leggi(L"1.234,5", italiano), 1234.5);
    EXPECT_EQ(ValoreNumerico::leggi(L"1,234.5", inglese), 1234.5);
    EXPECT_EQ(ValoreNumerico::leggi(L"  12  ", italiano), 12);
    EXPECT_EQ(ValoreNumerico::leggi(L"-5", italiano), -5);
}

TEST(ValoreNumerico, CioCheNonENumeroVale0) {
    for (const auto* testo : {L"", L"   ", L"-", L"abc", L"1a", L"--1", L",", L"٣", L"1,2,3"}) {
        EXPECT_EQ(ValoreNumerico::leggi(testo, italiano), 0) << testing::PrintToString(testo);
    }
}

TEST(ValoreNumerico, ScriveSoloEntroILimiti) {
    ValoreNumerico regole;
    EXPECT_EQ(numeroDi([&] { static_cast<void>(regole.scrivi(100.001, italiano)); }), 380);
    EXPECT_EQ(numeroDi([&] { static_cast<void>(regole.scrivi(-0.001, italiano)); }), 380);
    const double nonNumero = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(numeroDi([&] { static_cast<void>(regole.scrivi(nonNumero, italiano)); }), 380);
    const double infinito = std::numeric_limits<double>::infinity();
    regole.Massimo(infinito);
    EXPECT_EQ(numeroDi([&] { static_cast<void>(regole.scrivi(infinito, italiano)); }), 380);
    EXPECT_EQ(regole.scrivi(100.001, italiano), L"100,00");
}

TEST(ValoreNumerico, ArrotondaAlleCifreChieste) {
    ValoreNumerico regole;
    regole.CifreDecimali(0);
    EXPECT_EQ(regole.scrivi(12.7, italiano), L"13");
    EXPECT_EQ(regole.scrivi(2.5, italiano), L"3");
    regole.CifreDecimali(3);
    EXPECT_EQ(regole.scrivi(1, italiano), L"1,000");
    regole.CifreDecimali(-4);
    EXPECT_EQ(regole.scrivi(1.2, italiano), L"1");
    regole.CifreDecimali(2);
    regole.Massimo(20000);
    EXPECT_EQ(regole.scrivi(12345.678, italiano), L"12345,68");
}

TEST(ValoreNumerico, LoZeroSiPuoNascondere) {
    ValoreNumerico regole;
    regole.VisualizzaZero(false);
    EXPECT_EQ(regole.scrivi(0, italiano), L"");
    // Only the value 0 is hidden, not what is shown as zeros.
    EXPECT_EQ(regole.scrivi(0.001, italiano), L"0,00");
}

TEST(ValoreNumerico, ILimitiRestanoInOrdine) {
    ValoreNumerico regole;
    EXPECT_EQ(numeroDi([&] { regole.Massimo(0); }), 380);
    EXPECT_EQ(numeroDi([&] { regole.Massimo(-1); }), 380);
    EXPECT_EQ(numeroDi([&] { regole.Minimo(100); }), 380);
    EXPECT_EQ(numeroDi([&] { regole.Minimo(101); }), 380);
    EXPECT_EQ(numeroDi([&] { regole.Massimo(std::numeric_limits<double>::quiet_NaN()); }), 380);
    EXPECT_EQ(numeroDi([&] { regole.Minimo(std::numeric_limits<double>::quiet_NaN()); }), 380);
    EXPECT_EQ(regole.Massimo(), 100);
    EXPECT_EQ(regole.Minimo(), 0);
    regole.Minimo(99.5);
    regole.Massimo(99.6);
    EXPECT_EQ(regole.Massimo(), 99.6);
    EXPECT_EQ(regole.Minimo(), 99.5);
}

TEST(FiltroTasti, PassanoSoloICaratteriDiUnNumero) {
    const ValoreNumerico regole;
    for (wchar_t c = 1; c < 0x3000; ++c) {
        const bool ammesso = (c >= L'0' && c <= L'9') || c == L'-' || c == 8 || c == L',';
        const wchar_t atteso = ammesso ? c : c == L'.' ? L',' : L'\0';
        ASSERT_EQ(regole.filtra(c, L"", 0, virgola, italiano), atteso) << unsigned(c);
    }
}

TEST(FiltroTasti, LeMigliaiaDiventanoDecimali) {
    const ValoreNumerico regole;
    EXPECT_EQ(regole.filtra(L'.', L"1", 0, virgola, italiano), L',');
    EXPECT_EQ(regole.filtra(L',', L"1", 0, punto, inglese), L'.');
    EXPECT_EQ(regole.filtra(L'.', L"1", 0, punto, inglese), L'.');
}

TEST(FiltroTasti, UnSeparatoreIgnotoNonEUnTasto) {
    const ValoreNumerico regole;
    EXPECT_EQ(regole.filtra(L'\0', L"", 0, {0, 0}, italiano), L'\0');
    EXPECT_EQ(regole.filtra(L',', L"", 0, {0, 0}, italiano), L'\0');
    EXPECT_EQ(regole.filtra(L'.', L"", 0, {0, '.'}, italiano), L'\0');
    EXPECT_EQ(regole.filtra(L',', L"", 0, {',', 0}, italiano), L',');
}

TEST(FiltroTasti, AlMassimoNonSiScrivePiu) {
    const ValoreNumerico regole;
    EXPECT_EQ(regole.filtra(L'1', L"100", 0, virgola, italiano), L'\0');
    EXPECT_EQ(regole.filtra(L',', L"100", 0, virgola, italiano), L'\0');
    EXPECT_EQ(regole.filtra(8, L"100", 0, virgola, italiano), 8);
    EXPECT_EQ(regole.filtra(L'-', L"100", 0, virgola, italiano), L'-');
    EXPECT_EQ(regole.filtra(L'1', L"100", 3, virgola, italiano), L'1');
    EXPECT_EQ(regole.filtra(L'1', L"99,9", 0, virgola, italiano), L'1');
    EXPECT_EQ(regole.filtra(L'1', L"   ", 0, virgola, italiano), L'1');
}

TEST(FiltroTasti, OgniTastoSiMisuraSulValoreDiPrima) {
    const ValoreNumerico regole;
    EXPECT_EQ(digita(regole, L"", L"2507"), L"250");
    EXPECT_EQ(digita(regole, L"", L"1.5x 2"), L"1,52");
    // "1-" reads as -1, which lies below the minimum.
    EXPECT_EQ(digita(regole, L"", L"1-2-"), L"1--");
}

TEST(FiltroTasti, SottoIlMinimoSiFerma) {
    ValoreNumerico regole;
    regole.Minimo(10);
    EXPECT_EQ(digita(regole, L"", L"15"), L"1");
    EXPECT_EQ(regole.filtra(L'5', L"1", 1, virgola, italiano), L'5');
    EXPECT_EQ(regole.filtra(8, L"1", 0, virgola, italiano), 8);
}

TEST(UscitaDalCampo, FuoriDaiLimitiAvvisaERiporta) {
    const ValoreNumerico regole;
    Registro registro;
    EXPECT_EQ(regole.esci(L"250", italiano, registro), 100);
    EXPECT_EQ(registro.visti, (decltype(registro.visti){{L"massimo", 100}}));
    registro.visti.clear();
    EXPECT_EQ(regole.esci(L"-3", italiano, registro), 0);
    EXPECT_EQ(registro.visti, (decltype(registro.visti){{L"minimo", 0}}));
}

TEST(UscitaDalCampo, EntroILimitiNonAvvisa) {
    const ValoreNumerico regole;
    Registro registro;
    EXPECT_EQ(regole.esci(L"100", italiano, registro), 100);
    EXPECT_EQ(regole.esci(L"0", italiano, registro), 0);
    EXPECT_EQ(regole.esci(L"abc", italiano, registro), 0);
    EXPECT_EQ(regole.esci(L" ", italiano, registro), 0);
    EXPECT_EQ(regole.esci(L"", italiano, registro), std::nullopt);
    EXPECT_TRUE(registro.visti.empty());
}

TEST(UscitaDalCampo, UnTestoIllegibileSottoIlMinimoAvvisa) {
    ValoreNumerico regole;
    regole.Minimo(10);
    Registro registro;
    EXPECT_EQ(regole.esci(L"-", italiano, registro), 10);
    EXPECT_EQ(registro.visti, (decltype(registro.visti){{L"minimo", 10}}));
}

// Stored limits are taken as they are: no value lies within these.
TEST(UscitaDalCampo, UnMassimoSottoIlMinimoSiTieneEAvvisaDueVolte) {
    ValoreNumerico regole;
    regole.limiti(5, 10);
    EXPECT_EQ(regole.Massimo(), 5);
    EXPECT_EQ(regole.Minimo(), 10);
    Registro registro;
    EXPECT_EQ(regole.esci(L"7", italiano, registro), 10);
    EXPECT_EQ(registro.visti, (decltype(registro.visti){{L"massimo", 5}, {L"minimo", 10}}));
    for (const double valore : {4.0, 5.0, 7.0, 10.0, 11.0}) {
        EXPECT_EQ(numeroDi([&] { static_cast<void>(regole.scrivi(valore, italiano)); }), 380)
            << valore;
    }
}

TEST(ScattoDeiPulsanti, RestaEntroILimiti) {
    ValoreNumerico regole;
    regole.Incremento(30);
    EXPECT_EQ(regole.scatta(L"50", Verso::Su, italiano), 80);
    EXPECT_EQ(regole.scatta(L"80", Verso::Su, italiano), 100);
    EXPECT_EQ(regole.scatta(L"100", Verso::Su, italiano), 100);
    EXPECT_EQ(regole.scatta(L"50", Verso::Giu, italiano), 20);
    EXPECT_EQ(regole.scatta(L"20", Verso::Giu, italiano), 0);
    EXPECT_EQ(regole.scatta(L"500", Verso::Su, italiano), 100);
    EXPECT_EQ(regole.scatta(L"", Verso::Su, italiano), 30);
}

TEST(ScattoDeiPulsanti, UnPassoNegativoScambiaIVersi) {
    ValoreNumerico regole;
    regole.Incremento(-30);
    EXPECT_EQ(regole.Incremento(), -30);
    EXPECT_EQ(regole.scatta(L"50", Verso::Su, italiano), 20);
    EXPECT_EQ(regole.scatta(L"20", Verso::Su, italiano), 0);
    EXPECT_EQ(regole.scatta(L"50", Verso::Giu, italiano), 80);
    EXPECT_EQ(regole.scatta(L"80", Verso::Giu, italiano), 100);
}
