#include "support/errore.h"
#include "support/numeri.h"

#include "tests/aiuti/cartella_win.h"

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace {

constexpr unsigned seme = 20050611;
constexpr int prove = 100000;

// A text of pieces that mean something to a number parser, most often one that nearly is a number.
std::wstring testoCasuale(std::mt19937& caso) {
    static constexpr std::array pezzi{
        L"0",  L"1",  L"9",  L"5",  L"12", L"7",   L"0100", L"32767", L"32768",  L"40000",  L"1",
        L"2",  L"+",  L"-",  L"(",  L")",  L" ",   L".",    L",",     L":",      L"e",      L"E2",
        L"-3", L"\t", L"\n", L"\r", L"\v", L"\f",  L"a",    L"d",     L"\u00a0", L"\u3000", L"\x85",
        L"&H", L"&O", L"&",  L"FF", L"e+", L"e-1", L"00",   L"0,5",   L"0.5",    L"1,5",    L"2.5"};
    std::uniform_int_distribution<std::size_t> quale(0, pezzi.size() - 1);
    std::wstring testo;
    for (int n = std::uniform_int_distribution(0, 6)(caso); n > 0; --n) {
        testo += pezzi[quale(caso)];
    }
    return testo;
}

// The forms that the system's call lets pass and that ours refuses on purpose.
bool tralasciata(std::wstring_view testo, const FormatoLocale& formato) {
    constexpr std::wstring_view cifre = L"0123456789";
    const auto fine = std::wstring_view::npos;
    if (testo.find(L'(') != fine && testo.find(L')') == fine) {
        return true;
    }
    const auto prima = testo.find_first_of(cifre);
    const auto e = testo.find_first_of(L"eE");
    if (e != fine) {
        const auto coda = testo.substr(e + 1);
        const auto segni = coda.substr(0, coda.find_first_not_of(L"+-"));
        if (prima == fine || prima > e || segni.size() > 1 || coda.find(formato.migliaia) != fine) {
            return true;
        }
        // Wine counts an exponent of many digits wrong.
        if (coda.substr(0, coda.find_first_not_of(L"+-0123456789")).size() > 3) {
            return true;
        }
    }
    // A thousands separator behind the number, after a blank or a sign.
    const auto dopo = testo.find_first_not_of(
        std::wstring(cifre) + formato.migliaia + formato.decimale + L"eE", prima);
    return dopo != fine && testo.find(formato.migliaia, dopo) != fine;
}

bool vicini(double a, double b) {
    return a == b || std::fabs(a - b) <= std::fabs(b) * 1e-14;
}

// Runs `confronta` on texts of which a fair part must be read and another refused; it gives
// whether the system read the text.
template <class Confronto>
void perTestiCasuali(Confronto confronta) {
    const FormatoLocale formato = formatoUtente();
    std::mt19937 caso(seme);
    int letti = 0;
    int rifiutati = 0;
    for (int i = 0; i < prove && !testing::Test::HasFailure(); ++i) {
        const std::wstring testo = testoCasuale(caso);
        SCOPED_TRACE(testing::Message()
                     << "seed " << seme << ", text " << i << ": <" << inUtf8(testo) << ">");
        if (!tralasciata(testo, formato)) {
            ++(confronta(testo, formato) ? letti : rifiutati);
        }
    }
    EXPECT_GT(letti, prove / 50);
    EXPECT_GT(rifiutati, prove / 20);
}

std::int32_t numeroDi(HRESULT hr) {
    return hr == DISP_E_OVERFLOW ? errori::overflow
                                 : (FAILED(hr) ? errori::tipoNonCorrispondente : 0);
}

} // namespace

TEST(NumeriDiWindows, TestoADoubleComeLaChiamataDiSistema) {
    perTestiCasuali([](std::wstring testo, const FormatoLocale& formato) {
        double atteso = 0;
        const HRESULT hr = VarR8FromStr(testo.data(), LOCALE_USER_DEFAULT, 0, &atteso);
        const auto nostro = testoADouble(testo, formato);
        EXPECT_EQ(nostro.has_value(), SUCCEEDED(hr));
        if (nostro && SUCCEEDED(hr)) {
            EXPECT_PRED2(vicini, *nostro, atteso);
        }
        return SUCCEEDED(hr);
    });
}

TEST(NumeriDiWindows, TestoAInt16ComeLaChiamataDiSistema) {
    perTestiCasuali([](std::wstring testo, const FormatoLocale& formato) {
        SHORT atteso = 0;
        HRESULT hr = VarI2FromStr(testo.data(), LOCALE_USER_DEFAULT, 0, &atteso);
        double reale = 0;
        if (SUCCEEDED(VarR8FromStr(testo.data(), LOCALE_USER_DEFAULT, 0, &reale)) &&
            reale != std::trunc(reale)) {
            // Wine rounds a text with decimals by its last digits: 0,06 becomes 1.
            hr = VarI2FromR8(reale, &atteso);
        }
        std::int16_t nostro = 0;
        std::int32_t numero = 0;
        try {
            nostro = testoAInt16(testo, formato);
        } catch (const Errore& errore) {
            numero = errore.numero();
        }
        EXPECT_EQ(numero, numeroDi(hr));
        if (SUCCEEDED(hr)) {
            EXPECT_EQ(nostro, atteso);
        }
        return SUCCEEDED(hr);
    });
}

// What counts as a blank, character by character.
TEST(NumeriDiWindows, OgniCarattereAttornoAUnNumero) {
    const FormatoLocale formato = formatoUtente();
    std::array<wchar_t, 8> valuta{};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SCURRENCY, valuta.data(),
                   static_cast<int>(valuta.size()));
    for (unsigned codice = 1; codice < 0x10000; ++codice) {
        const auto c = static_cast<wchar_t>(codice);
        if (c == valuta.front()) {
            continue; // left out on purpose
        }
        for (std::wstring testo : {std::wstring(1, c) + L'5', L'5' + std::wstring(1, c)}) {
            double atteso = 0;
            const bool letto =
                SUCCEEDED(VarR8FromStr(testo.data(), LOCALE_USER_DEFAULT, 0, &atteso));
            const auto nostro = testoADouble(testo, formato);
            ASSERT_EQ(nostro.has_value(), letto) << codice << " <" << inUtf8(testo) << ">";
            if (letto) {
                ASSERT_EQ(*nostro, atteso) << codice;
            }
        }
    }
}
