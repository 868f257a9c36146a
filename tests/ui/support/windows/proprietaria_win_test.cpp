#include "support/windows/proprietaria_win.h"

#include <gtest/gtest.h>

namespace {

class ProprietariaDiModali : public testing::Test {
protected:
    // Those that belong to it go with it.
    void TearDown() override { DestroyWindow(principale); }

    static HWND nuova(HWND proprietaria) {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE | WS_CAPTION, 10, 10, 200,
                               100, proprietaria, nullptr, nullptr, nullptr);
    }

    HWND principale = nuova(nullptr);
    HWND dialogo = nuova(principale);
    HWND sopra = nuova(dialogo);
};

} // namespace

TEST_F(ProprietariaDiModali, EQuellaAttiva) {
    SetActiveWindow(principale);
    EXPECT_EQ(proprietariaDiModali(), principale);
}

TEST_F(ProprietariaDiModali, DiUnDialogoNonModaleEQuellaACuiSta) {
    SetActiveWindow(dialogo);
    EXPECT_EQ(proprietariaDiModali(), principale);
    SetActiveWindow(sopra);
    EXPECT_EQ(proprietariaDiModali(), principale);
}

TEST_F(ProprietariaDiModali, UnDialogoModaleLoELuiStesso) {
    EnableWindow(principale, FALSE);
    SetActiveWindow(dialogo);
    EXPECT_EQ(proprietariaDiModali(), dialogo);
    SetActiveWindow(sopra);
    EXPECT_EQ(proprietariaDiModali(), dialogo);
}
