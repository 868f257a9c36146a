#include "datetime/ClsUTC.h"

#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <gtest/gtest.h>

TEST(ClsUTCDiWindows, PrendeLOraDiAdessoEIlFormatoDellUtente) {
    SYSTEMTIME prima{};
    GetSystemTime(&prima);
    const ClsUTC utc;
    SYSTEMTIME locale{};
    GetLocalTime(&locale);
    const auto adesso = utc.adessoUtc();
    const auto inizio = DataOra::daParti(prima.wYear, prima.wMonth, prima.wDay, prima.wHour,
                                         prima.wMinute, prima.wSecond);
    EXPECT_GE(adesso.secondi(), inizio.secondi());
    EXPECT_LE(adesso.secondi(), inizio.secondi() + 60);
    const auto oraLocale = DataOra::daParti(locale.wYear, locale.wMonth, locale.wDay, locale.wHour,
                                            locale.wMinute, locale.wSecond);
    EXPECT_GE(oraLocale.secondi(), utc.adessoLocale().secondi());
    EXPECT_LE(oraLocale.secondi(), utc.adessoLocale().secondi() + 60);
    EXPECT_EQ(utc.nDiffOre(), differenzaOre(utc.adessoUtc(), utc.adessoLocale()));
}

TEST(ClsUTCDiWindows, LaZonaSiLeggeConISeparatoriDellUtente) {
    const ClsUTC utc;
    const DataOra attesa = DataOra::daParti(2005, 7, 11, 15, 0, 0);
    EXPECT_EQ(utc.ToDate(L"Sat, 11 Jun 2005 15:00:00 -0500"), attesa);
    // Thousands in the one language, decimals in the other: 40000 is out of range, 40 is not.
    const bool italiano = PRIMARYLANGID(GetUserDefaultLangID()) == LANG_ITALIAN;
    const auto numero = [&](const wchar_t* zona) {
        return sollevatoDa(
                   [&] { return utc.ToDate(std::wstring(L"Sat, 11 Jun 2005 15:00:00 ") + zona); })
            .numero;
    };
    EXPECT_EQ(numero(L"40.000"), italiano ? 6 : 0);
    EXPECT_EQ(numero(L"40,000"), italiano ? 0 : 6);
}
