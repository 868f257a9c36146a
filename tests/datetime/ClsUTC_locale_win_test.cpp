#include "datetime/ClsUTC.h"

#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

DataOra dataDi(const SYSTEMTIME& tempo) {
    return DataOra::daParti(tempo.wYear, tempo.wMonth, tempo.wDay, tempo.wHour, tempo.wMinute,
                            tempo.wSecond);
}

} // namespace

TEST(ClsUTCDiWindows, PrendeLOraDiAdessoELoScartoDellUtente) {
    SYSTEMTIME prima{};
    SYSTEMTIME locale{};
    SYSTEMTIME dopo{};
    DataOra adesso;
    DataOra allaUna;
    // Within one hour, or the offset may be counted before it and after.
    do {
        GetSystemTime(&prima);
        const ClsUTC utc;
        adesso = utc.adessoLocale();
        allaUna = utc.ToDate(L"Tue, 15 Nov 2005 01:00:00 UTC");
        GetLocalTime(&locale);
        GetSystemTime(&dopo);
    } while (prima.wHour != dopo.wHour);
    EXPECT_GE(dataDi(locale).secondi(), adesso.secondi());
    EXPECT_LE(dataDi(locale).secondi(), adesso.secondi() + 60);
    EXPECT_EQ(allaUna,
              DataOra::daParti(2005, 11, 15, 1 + differenzaOre(dataDi(prima), dataDi(locale))));
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
