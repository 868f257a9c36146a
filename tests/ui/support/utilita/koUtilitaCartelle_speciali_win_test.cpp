#include "support/utilita/koUtilita.h"

#include "support/windows/registro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

namespace {

const std::wstring cartelleShell =
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

using Cartella = std::wstring();
struct Speciale {
    const wchar_t* valore;
    Cartella* cartella;
};

using K = koUtilita;
constexpr std::array dellUtente{
    Speciale{L"Personal", K::CartellaDocumenti},
    Speciale{L"AppData", K::CartellaDati},
    Speciale{L"Desktop", K::CartellaDesktop},
    Speciale{L"Startup", K::CartellaEsecuzioneAutomatica},
    Speciale{L"Start Menu", K::CartellaMenuAvvio},
    Speciale{L"SendTo", K::CartellaSendTo},
    Speciale{L"Recent", K::CartellaRecenti},
    Speciale{L"Programs", K::CartellaMenuProgrammi},
    Speciale{L"NetHood", K::CartellaRisorseRete},
    Speciale{L"My Pictures", K::CartellaImmagini},
    Speciale{L"History", K::CartellaCronologia},
    Speciale{L"Fonts", K::CartellaFonts},
    Speciale{L"Favorites", K::CartellaPreferiti},
    Speciale{L"Cookies", K::CartellaCookies},
    Speciale{L"Cache", K::CartellaInternetTemp},
};
constexpr std::array diTutti{
    Speciale{L"Common AppData", K::CartellaDatiCondivisi},
    Speciale{L"Common Desktop", K::CartellaDesktopTuttiUtenti},
    Speciale{L"Common Startup", K::CartellaEsecuzioneAutomaticaTuttiUtenti},
    Speciale{L"Common Favorites", K::CartellaPreferitiTuttiUtenti},
    Speciale{L"Common Start Menu", K::CartellaMenuAvvioTuttiUtenti},
    Speciale{L"Common Programs", K::CartellaMenuProgrammiTuttiUtenti},
    Speciale{L"Common Documents", K::CartellaDocumentiCondivisi},
    Speciale{L"Common Pictures", K::CartellaImmaginiTuttiUtenti},
};

// With the real key, with none, and with values of the test's own.
template <std::size_t N>
void provaSpeciali(HKEY radice, const std::array<Speciale, N>& speciali) {
    std::array<std::wstring, N> vere;
    for (std::size_t i = 0; i < N; ++i) {
        vere[i] = speciali[i].cartella();
        EXPECT_TRUE(vere[i].ends_with(L"\\") && vere[i].size() > 3)
            << inUtf8(speciali[i].valore) << ": " << inUtf8(vere[i]);
        if (const auto valore = leggiTesto(radice, cartelleShell, speciali[i].valore)) {
            EXPECT_EQ(vere[i], *valore + L"\\");
        }
    }
    std::array<std::wstring, N> diverse = vere;
    std::ranges::sort(diverse);
    EXPECT_EQ(std::ranges::adjacent_find(diverse), diverse.end());
    const ChiaveSalvata chiave(radice, cartelleShell);
    for (std::size_t i = 0; i < N; ++i) {
        EXPECT_EQ(speciali[i].cartella(), vere[i]) << inUtf8(speciali[i].valore);
        chiave.testo(speciali[i].valore, L" Z:\\mia " + std::to_wstring(i) + L" ");
        EXPECT_EQ(speciali[i].cartella(), L"Z:\\mia " + std::to_wstring(i) + L"\\");
    }
}

} // namespace

TEST(KoUtilitaSpeciali, LeCartelleDellUtenteVengonoDalRegistroODallaShell) {
    provaSpeciali(HKEY_CURRENT_USER, dellUtente);
}

TEST(KoUtilitaSpeciali, LeCartelleDiTuttiVengonoDalRegistroODallaShell) {
    provaSpeciali(HKEY_LOCAL_MACHINE, diTutti);
}

TEST(KoUtilitaSpeciali, UnValoreCheNonEUnTestoValeComeMancante) {
    const std::wstring vera = koUtilita::CartellaDocumenti();
    const std::wstring diTutti = koUtilita::CartellaDatiCondivisi();
    const ChiaveSalvata utente(HKEY_CURRENT_USER, cartelleShell);
    const ChiaveSalvata macchina(HKEY_LOCAL_MACHINE, cartelleShell);
    utente.grezzo(L"Personal", REG_DWORD, "abcd");
    macchina.testo(L"Common AppData", L"");
    EXPECT_EQ(koUtilita::CartellaDocumenti(), vera);
    EXPECT_EQ(koUtilita::CartellaDatiCondivisi(), diTutti);
    const std::wstring lungo = L"C:\\" + std::wstring(1000, L'x');
    utente.testo(L"Personal", lungo);
    EXPECT_EQ(koUtilita::CartellaDocumenti(), lungo + L"\\");
    // One that may not be read.
    utente.nega(true);
    EXPECT_EQ(koUtilita::CartellaDocumenti(), vera);
}

TEST(KoUtilitaSpeciali, LeChiaviSalvateTornanoOgnunaAlSuoPosto) {
    const auto utente = leggiTesto(HKEY_CURRENT_USER, cartelleShell, L"Desktop");
    const auto macchina = leggiTesto(HKEY_LOCAL_MACHINE, cartelleShell, L"Common Desktop");
    ASSERT_TRUE(utente && macchina);
    {
        const ChiaveSalvata una(HKEY_CURRENT_USER, cartelleShell);
        const ChiaveSalvata altra(HKEY_LOCAL_MACHINE, cartelleShell);
        altra.nega();
        EXPECT_FALSE(leggiTesto(HKEY_CURRENT_USER, cartelleShell, L"Desktop"));
        EXPECT_FALSE(leggiTesto(HKEY_LOCAL_MACHINE, cartelleShell, L"Common Desktop"));
    }
    EXPECT_EQ(leggiTesto(HKEY_CURRENT_USER, cartelleShell, L"Desktop"), utente);
    EXPECT_EQ(leggiTesto(HKEY_LOCAL_MACHINE, cartelleShell, L"Common Desktop"), macchina);
}
