#include "support/koUtilita.h"

#include "tests/aiuti/cartella_win.h"

#include <windows.h>

#include <gtest/gtest.h>

TEST(KoUtilitaVersione, InfoSODiceIlSistemaCheGira) {
    // The process's own block holds what really runs.
    const auto* const vera = reinterpret_cast<const ULONG*>(0x7FFE026C);
    const auto versione = koUtilita::InfoSOVersione();
    EXPECT_EQ(versione.maggiore, vera[0]);
    EXPECT_EQ(versione.minore, vera[1]);
    EXPECT_GT(versione.build, 0U);
    EXPECT_TRUE(koUtilita::IsWindowsNT());
    const std::wstring nome = koUtilita::InfoSO();
    EXPECT_TRUE(nome.starts_with(L"Windows ")) << inUtf8(nome);
    EXPECT_EQ(nome.find(L"XP"), std::wstring::npos) << inUtf8(nome);
}

TEST(KoUtilitaVersione, GetVersioneLeggeIQuattroNumeri) {
    // Known from the file's own resource, read another way by the run time of the system.
    const std::wstring versione =
        koUtilita::GetVersione(koUtilita::GetWindowsSysDir() + L"kernel32.dll");
    EXPECT_GT(koUtilita::ConfrontaVersione(versione, L"4"), 0) << inUtf8(versione);
    EXPECT_EQ(std::count(versione.begin(), versione.end(), L'.'), 3);
    EXPECT_EQ(koUtilita::GetVersione(koUtilita::CurDirApp() + L"prove_win.exe").substr(0, 2),
              L"1.");
}

TEST(KoUtilitaVersione, SenzaVersioneSonoQuattroZeri) {
    const CartellaProva cartella;
    for (const std::wstring& file :
         {cartella.file(L"manca.exe"), cartella.scrivi(L"a.exe", "MZ"), cartella.percorso(),
          koUtilita::CurDirApp() + L"attesa.exe", std::wstring(), std::wstring(1000, L'x')}) {
        EXPECT_EQ(koUtilita::GetVersione(file), L"0.0.0.0") << inUtf8(file);
    }
}
