#include "ui/controls/modello_win.h"

#include "res/risorse.h"
#include "tests/aiuti/aspetto_prova_win.h"
#include "ui/controls/KOInputNumerico_win.h"

#include <array>

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

constexpr std::array modelli{IDD_FRADATI, IDD_FRMEDITFEED, IDD_FRMABOUT};

// A template as Windows alone shows it, in a window of its own.
class Dialogo {
public:
    explicit Dialogo(int modello)
        : madre_(CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 1500, 900, nullptr, nullptr,
                                 nullptr, nullptr)) {
        KOInputNumerico::registraClasse();
        finestra = CreateDialogParamW(
            GetModuleHandleW(nullptr), MAKEINTRESOURCEW(modello), madre_,
            [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    }
    Dialogo(const Dialogo&) = delete;
    Dialogo& operator=(const Dialogo&) = delete;
    ~Dialogo() {
        DestroyWindow(finestra);
        DestroyWindow(madre_);
    }

    [[nodiscard]] std::vector<std::string> parti() const { return aspettoDi(finestra).parti; }

    HWND finestra = nullptr;

private:
    HWND madre_;
};

} // namespace

TEST(ModelloDialogo, PerLaRisoluzioneDelloSchermoDisponeComeWindows) {
    for (const int risorsa : modelli) {
        const Dialogo dialogo(risorsa);
        const auto prima = dialogo.parti();
        const ModelloDialogo modello(risorsa);
        const Dpi dpi = dpiDi(dialogo.finestra);
        EXPECT_TRUE(modello.fattoPer(dialogo.finestra, dpi));
        RECT interno{};
        GetClientRect(dialogo.finestra, &interno);
        for (const Dpi via : {Dpi{{150}, {150}}, dpi}) {
            const auto disposto = modello.disponi(dialogo.finestra, via);
            if (via == dpi) {
                EXPECT_EQ(dialogo.parti(), prima) << risorsa;
                EXPECT_EQ(disposto.interno.cx, interno.right) << risorsa;
                EXPECT_EQ(disposto.interno.cy, interno.bottom) << risorsa;
            } else {
                EXPECT_NE(dialogo.parti(), prima) << risorsa;
                EXPECT_FALSE(modello.fattoPer(dialogo.finestra, via)) << risorsa;
            }
        }
    }
}

TEST(ModelloDialogo, UnModelloCheNonCESiSolleva) {
    EXPECT_ANY_THROW(ModelloDialogo(4242));
}
