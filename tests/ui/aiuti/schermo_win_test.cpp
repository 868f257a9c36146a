#include "tests/aiuti/schermo_win.h"

#include <chrono>

#include <gtest/gtest.h>

// The tests' own hands: what they claim to do must really arrive.

namespace {

class Campo {
public:
    Campo()
        : hwnd(CreateWindowExW(0, L"EDIT", L"", WS_POPUP | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL,
                               100, 100, 300, 30, nullptr, nullptr, GetModuleHandleW(nullptr),
                               nullptr)) {
        portaAvanti(hwnd);
        SetFocus(hwnd);
    }
    Campo(const Campo&) = delete;
    Campo& operator=(const Campo&) = delete;
    ~Campo() { DestroyWindow(hwnd); }

    HWND hwnd;
};

} // namespace

TEST(Vocabolario, ScriveEPreme) {
    const Campo campo;
    scrivi(L"città €");
    EXPECT_EQ(testoDi(campo.hwnd), L"città €");
    premi(VK_BACK);
    premi(VK_HOME);
    scrivi(L"x");
    EXPECT_EQ(testoDi(campo.hwnd), L"xcittà ");
}

TEST(Vocabolario, IlFiltroPrendeIMessaggi) {
    const Campo campo;
    const ConFiltro filtro([](MSG& m) { return m.message == WM_KEYDOWN; });
    scrivi(L"x");
    EXPECT_EQ(testoDi(campo.hwnd), L"");
}

TEST(Vocabolario, IlMouseCadeSulPunto) {
    const Campo campo;
    POINT punto{};
    muoviMouse(campo.hwnd, {7, 9});
    GetCursorPos(&punto);
    ScreenToClient(campo.hwnd, &punto);
    EXPECT_EQ(punto.x, 7);
    EXPECT_EQ(punto.y, 9);
    muoviMouse(campo.hwnd, {290, 20});
    GetCursorPos(&punto);
    ScreenToClient(campo.hwnd, &punto);
    EXPECT_EQ(punto.x, 290);
    EXPECT_EQ(punto.y, 20);
}

TEST(Vocabolario, GliAppuntiVannoETornano) {
    testoAppunti(L"perché");
    EXPECT_EQ(testoAppunti(), L"perché");
}

TEST(Vocabolario, AttendereHaUnaScadenza) {
    EXPECT_FALSE(attendi([] { return false; }, std::chrono::milliseconds(30)));
    int volte = 0;
    EXPECT_TRUE(attendi([&] { return ++volte == 3; }));
}
