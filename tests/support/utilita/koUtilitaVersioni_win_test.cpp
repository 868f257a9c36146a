#include "support/utilita/koUtilita.h"

#include "support/programma/prodotto.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"

#include <windows.h>

#include <array>
#include <cstddef>

#include <gtest/gtest.h>

namespace {

// Gives a program a version record that holds the numbers alone.
void daVersione(const std::wstring& file, DWORD alta, DWORD bassa) {
    struct Blocco {
        WORD lunghezza = sizeof(Blocco);
        WORD lunghezzaValore = sizeof(VS_FIXEDFILEINFO);
        WORD tipo = 0;
        std::array<wchar_t, 16> chiave{L"VS_VERSION_INFO"};
        WORD allineamento = 0;
        VS_FIXEDFILEINFO info{};
    };
    static_assert(offsetof(Blocco, info) == 40);
    Blocco blocco;
    blocco.info.dwSignature = VS_FFI_SIGNATURE;
    blocco.info.dwStrucVersion = VS_FFI_STRUCVERSION;
    blocco.info.dwFileVersionMS = alta;
    blocco.info.dwFileVersionLS = bassa;
    const HANDLE risorse = BeginUpdateResourceW(file.c_str(), FALSE);
    ASSERT_NE(risorse, nullptr);
    EXPECT_TRUE(UpdateResourceW(risorse, MAKEINTRESOURCEW(16), MAKEINTRESOURCEW(1),
                                MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL), &blocco,
                                sizeof(blocco)));
    ASSERT_TRUE(EndUpdateResourceW(risorse, FALSE));
}

} // namespace

TEST(KoUtilitaVersione, InfoSODiceIlSistemaCheGira) {
    // The process's own block holds what really runs.
    const auto* const vera = reinterpret_cast<const ULONG*>(0x7FFE026C);
    // Numbers, and before them the build.
    const auto versione = koUtilita::InfoSOVersione();
    EXPECT_EQ(versione.maggiore, vera[0]);
    EXPECT_EQ(versione.minore, vera[1]);
    EXPECT_EQ(versione.build, vera[-3] & 0xFFFF);
    EXPECT_TRUE(koUtilita::IsWindowsNT());
    const std::wstring nome = koUtilita::InfoSO();
    EXPECT_TRUE(nome.starts_with(L"Windows ")) << inUtf8(nome);
    EXPECT_EQ(nome.find(L"XP"), std::wstring::npos) << inUtf8(nome);
}

TEST(KoUtilitaVersione, SenzaNomeNelRegistroInfoSODiceINumeri) {
    const auto versione = koUtilita::InfoSOVersione();
    const MacchinaVuota vuota;
    EXPECT_EQ(koUtilita::InfoSO(), L"Windows " + std::to_wstring(versione.maggiore) + L'.' +
                                       std::to_wstring(versione.minore));
    EXPECT_TRUE(koUtilita::IsWindowsNT());
    EXPECT_EQ(koUtilita::InfoSOVersione().build, versione.build);
}

TEST(KoUtilitaVersione, GetVersioneLeggeIQuattroNumeri) {
    const CartellaProva cartella;
    const std::wstring file = cartella.file(L"è.exe");
    ASSERT_TRUE(CopyFileW((koUtilita::CurDirApp() + L"attesa.exe").c_str(), file.c_str(), TRUE));
    EXPECT_EQ(koUtilita::GetVersione(file), L"0.0.0.0");
    daVersione(file, MAKELONG(2, 65535), MAKELONG(40000, 3));
    EXPECT_EQ(koUtilita::GetVersione(file), L"65535.2.3.40000");
    EXPECT_EQ(koUtilita::GetVersione(koUtilita::CurDirApp() + L"prove_win.exe"),
              prodotto::versione() + L".0");
    EXPECT_NE(koUtilita::GetVersione(koUtilita::GetWindowsSysDir() + L"kernel32.dll"), L"0.0.0.0");
}

TEST(KoUtilitaVersione, SenzaVersioneSonoQuattroZeri) {
    const CartellaProva cartella;
    for (const std::wstring& file :
         {cartella.file(L"manca.exe"), cartella.scrivi(L"a.exe", "MZ"), cartella.percorso(),
          koUtilita::CurDirApp() + L"attesa.exe", std::wstring(), std::wstring(1000, L'x')}) {
        EXPECT_EQ(koUtilita::GetVersione(file), L"0.0.0.0") << inUtf8(file);
    }
}
