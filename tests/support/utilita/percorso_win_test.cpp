#include "support/utilita/percorso_win.h"

#include "tests/aiuti/sollevato.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

TEST(Percorso, CompletoDallUnitaInPoi) {
    EXPECT_EQ(percorsoCompleto(L"C:/a/b c"), L"C:\\a\\b c");
    EXPECT_EQ(percorsoCompleto(L"C:\\a\\..\\b"), L"C:\\b");
    EXPECT_EQ(percorsoCompleto(L"a\\è"), (std::filesystem::current_path() / L"a" / L"è").wstring());
    // Beyond the first buffer.
    const std::wstring lungo = L"C:\\" + std::wstring(1000, L'x');
    EXPECT_EQ(percorsoCompleto(lungo), lungo);
}

TEST(Percorso, IlVuotoEErrore5) {
    EXPECT_EQ(erroreDi([] { static_cast<void>(percorsoCompleto(L"")); }), 5);
}

TEST(Percorso, ChiedeFinoACheIlTestoCiSta) {
    int chiamate = 0;
    const auto scrive = [&chiamate](wchar_t* testo, DWORD spazio) -> DWORD {
        ++chiamate;
        // The length with the end's character while it does not fit, without it once it does.
        if (spazio <= MAX_PATH) {
            return MAX_PATH + 1;
        }
        std::fill_n(testo, MAX_PATH, L'y');
        return MAX_PATH;
    };
    EXPECT_EQ(chiediTesto(scrive), std::wstring(MAX_PATH, L'y'));
    EXPECT_EQ(chiamate, 2);
    EXPECT_EQ(chiediTesto([](wchar_t*, DWORD) { return DWORD{0}; }), L"");
}
