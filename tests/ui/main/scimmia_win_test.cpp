// A monkey: random work with a fixed seed on the real window, against a plain model of the items.

#include "tests/aiuti/giri.h"
#include "tests/aiuti/maniglieGui_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/scimmia_win.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <gtest/gtest.h>

namespace {

constexpr int passiDiProva = 700;
// Long enough for the about box to come by: what the system makes when it first shows it stays.
constexpr int passiDiRiscaldamento = 300;

int passiVoluti() {
    return std::max(1, static_cast<int>(daAmbiente("OSTRELLE_SCIMMIA", passiDiProva)));
}

// Makes the system's own pointers: it does so when one is first shown, and keeps its bitmaps for
// good. Which of them the monkey comes by, and when, is chance.
void mostraPuntatori() {
    for (const wchar_t* const nome : {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_NO, IDC_HAND, IDC_SIZEWE,
                                      IDC_SIZENS, IDC_SIZENWSE, IDC_SIZENESW, IDC_SIZEALL}) {
        SetCursor(LoadCursorW(nullptr, nome));
        pompa();
    }
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

} // namespace

TEST(Scimmia, LaTabellaRestaQuellaDelModelloENienteSiPerde) {
    const std::uint32_t seme = daAmbiente("OSTRELLE_SEME", 20051117);
    Scimmia scimmia(seme);
    mostraPuntatori();
    testoAppunti(L""); // no item that another test left
    scimmia.scalda();
    for (int i = 0; i < passiDiRiscaldamento; ++i) {
        scimmia.passo();
        ASSERT_EQ(scimmia.guasto(), "") << "warm-up step " << i << ": " << scimmia.fatto();
    }
    scimmia.riposa();
    const DWORD persi = persiPerFigura();
    const ManiglieGui prima = ManiglieGui::adesso();
    const int cambiPrima = scimmia.conti().cambiDpi;
    ASSERT_GT(prima.gdi, 0U);
    ASSERT_GT(prima.user, 0U);

    const int passi = passiVoluti();
    for (int i = 0; i < passi; ++i) {
        const auto inizio = std::chrono::steady_clock::now();
        scimmia.passo();
        ASSERT_EQ(scimmia.guasto(), "") << "step " << i << ": " << scimmia.fatto();
        // A step that blocks would never come back; one that takes so long is as good as blocked.
        ASSERT_LT(std::chrono::steady_clock::now() - inizio, std::chrono::seconds(20))
            << "step " << i << ": " << scimmia.fatto();
    }
    scimmia.riposa();
    const ManiglieGui dopo = ManiglieGui::adesso();
    // At each change the strip's cross is made anew.
    EXPECT_EQ(dopo.gdi,
              prima.gdi + static_cast<DWORD>(scimmia.conti().cambiDpi - cambiPrima) * persi);
    EXPECT_EQ(dopo.user, prima.user);
    // Of the kernel's the system may keep a few that it first needed meanwhile.
    EXPECT_LE(dopo.nucleo, prima.nucleo + 4);
    // Given the time, the monkey does reach what it is for.
    if (passi < passiDiProva) {
        return;
    }
    const Scimmia::Conti& conti = scimmia.conti();
    EXPECT_GT(conti.aggiunti, passi / 200);
    EXPECT_GT(conti.modificati, passi / 500);
    EXPECT_GT(conti.cancellati, passi / 500);
    EXPECT_GT(conti.spostati, passi / 500);
    EXPECT_GT(conti.salvati, passi / 500);
    EXPECT_GT(conti.aperti, passi / 1000);
    EXPECT_GT(conti.annullati, passi / 100);
    EXPECT_GT(conti.incollati, passi / 500);
    EXPECT_GT(conti.lasciati, passi / 500);
    EXPECT_GT(conti.trovati, passi / 100);
    EXPECT_GT(conti.avvisi, 0);
    EXPECT_GT(conti.monitor, passi / 100);
    RecordProperty("aggiunti", conti.aggiunti);
    RecordProperty("spostati", conti.spostati);
    RecordProperty("salvati", conti.salvati);
}
