#include "support/windows/tastiTenuti_win.h"

#include "tests/aiuti/schermo_win.h"

#include <optional>

#include <gtest/gtest.h>

namespace {

// A window with the keyboard, and how often the keys under test got through to it.
class TastiTenuti : public testing::Test {
protected:
    TastiTenuti() { portaAvanti(finestra); }
    void TearDown() override {
        for (const WORD tasto : {uno, altro}) {
            lascia(tasto);
        }
        DestroyWindow(finestra);
    }
    // A key goes down, and what is modal begins on that.
    void apri(std::optional<SenzaRipetizioni>& ciclo, WORD tasto) {
        const ConFiltro arrivo([&](MSG& m) {
            if (m.message == WM_KEYDOWN) {
                ciclo.emplace();
            }
            return false;
        });
        premiGiu(tasto);
        ASSERT_TRUE(ciclo.has_value());
    }
    // How many repeats of a key get through, of three.
    [[nodiscard]] int passano(WORD tasto) {
        arrivati = 0;
        for (int i = 0; i < 3; ++i) {
            ripeti(tasto);
        }
        return arrivati;
    }

    static constexpr WORD uno = VK_F7;
    static constexpr WORD altro = VK_F8;
    HWND finestra = CreateWindowExW(0, L"STATIC", L"tasti", WS_OVERLAPPEDWINDOW, 100, 100, 300, 200,
                                    nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    int arrivati = 0;
    ConFiltro filtro{[this](MSG& m) {
        arrivati += m.message == WM_KEYDOWN ? 1 : 0;
        return false;
    }};
};

} // namespace

TEST_F(TastiTenuti, SenzaNullaDiModaleOgniRipetizioneArriva) {
    premiGiu(uno);
    EXPECT_EQ(passano(uno), 3);
}

TEST_F(TastiTenuti, ChiEraGiuAllAperturaNonSiRipeteFinoAlRilascio) {
    std::optional<SenzaRipetizioni> ciclo;
    apri(ciclo, uno);
    EXPECT_EQ(passano(uno), 0);
    // A key that goes down meanwhile repeats as it likes.
    premiGiu(altro);
    EXPECT_EQ(passano(altro), 3);
    EXPECT_EQ(passano(uno), 0);
    lascia(uno);
    premiGiu(uno);
    EXPECT_EQ(passano(uno), 3);
}

TEST_F(TastiTenuti, ChiEraGiuAllaChiusuraNonSiRipeteFinoAlRilascio) {
    {
        const SenzaRipetizioni ciclo;
        premiGiu(uno);
        EXPECT_EQ(passano(uno), 3);
    }
    EXPECT_EQ(passano(uno), 0);
    premiGiu(altro);
    EXPECT_EQ(passano(altro), 3);
    lascia(uno);
    premiGiu(uno);
    EXPECT_EQ(passano(uno), 3);
}

TEST_F(TastiTenuti, ValeAncheDopoUnRiquadroSopraLAltro) {
    std::optional<SenzaRipetizioni> sotto;
    apri(sotto, uno);
    {
        const SenzaRipetizioni sopra;
        EXPECT_EQ(passano(uno), 0);
        premiGiu(altro);
        EXPECT_EQ(passano(altro), 3);
    }
    EXPECT_EQ(passano(uno), 0);
    EXPECT_EQ(passano(altro), 0);
    lascia(altro);
    premiGiu(altro);
    EXPECT_EQ(passano(altro), 3);
}
