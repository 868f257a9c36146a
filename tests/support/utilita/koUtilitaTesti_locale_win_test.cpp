#include "support/utilita/koUtilita.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

bool italiano() {
    return GetUserDefaultLCID() == 0x0410;
}

} // namespace

TEST(KoUtilitaDate, StringaToDateSegueLOrdineDellUtente) {
    const auto data = DataOra::daParti(2005, 11, 4, 10, 30, 15);
    EXPECT_EQ(
        koUtilita::StringaToDate(italiano() ? L"04/11/2005 10:30:15" : L"11/4/2005 10:30:15 AM"),
        data);
    EXPECT_EQ(koUtilita::StringaToDate(italiano() ? L"4 novembre 2005" : L"November 4, 2005"),
              DataOra::daParti(2005, 11, 4));
    EXPECT_EQ(koUtilita::StringaToDate(L"2005-11-04"), DataOra::daParti(2005, 11, 4));
    EXPECT_EQ(koUtilita::StringaToDate(L"10:30"), DataOra::daParti(1899, 12, 30, 10, 30));
}

TEST(KoUtilitaDate, StringaToDateRifiutaCioCheNonEUnaData) {
    for (const std::wstring& testo :
         {std::wstring(), std::wstring(L"   "), std::wstring(L"abc"), std::wstring(L"32/13/2005"),
          std::wstring(L"25:61"), std::wstring(1000, L'1')}) {
        EXPECT_EQ(sollevatoDa([&testo] { return koUtilita::StringaToDate(testo); }).numero, 13)
            << testing::PrintToString(testo);
    }
}
