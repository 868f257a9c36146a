#include "ui/controls/dialogo_win.h"

#include "res/risorse.h"
#include "support/windows/errori_win.h"
#include "tests/aiuti/sollevato.h"
#include "ui/controls/KOInputNumerico_win.h"

#include <optional>

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

class Prova final : public Dialogo {
public:
    Prova(int& messaggi, std::int32_t errore) : messaggi_(messaggi), errore_(errore) {}

protected:
    bool inizializza() override {
        if (errore_ != 0) {
            solleva(errore_);
        }
        return false;
    }
    INT_PTR messaggio(UINT /*msg*/, WPARAM /*w*/, LPARAM /*l*/) override {
        ++messaggi_;
        return FALSE;
    }
    void onEccezione() noexcept override { ADD_FAILURE(); }

private:
    int& messaggi_;
    std::int32_t errore_;
};

class DialogoBase : public testing::Test {
protected:
    DialogoBase()
        : madre(CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 1500, 900, nullptr, nullptr,
                                nullptr, nullptr)) {
        KOInputNumerico::registraClasse();
    }
    void TearDown() override { DestroyWindow(madre); }

    void nasci(std::int32_t errore = 0) { dialogo.emplace(messaggi, errore); }

    HWND madre;
    int messaggi = 0;
    std::optional<Prova> dialogo;
};

} // namespace

TEST_F(DialogoBase, ConLOggettoFinisceLaFinestraENienteGliArrivaPiu) {
    nasci();
    dialogo->crea(IDD_FRADATI, madre);
    const HWND finestra = dialogo->hwnd();
    SendMessageW(finestra, WM_APP, 0, 0);
    const int prima = messaggi;
    EXPECT_GE(prima, 1);
    dialogo.reset();
    EXPECT_FALSE(IsWindow(finestra));
    EXPECT_EQ(messaggi, prima);
}

TEST_F(DialogoBase, ConLaFinestraLOggettoNonNeHaPiu) {
    nasci();
    dialogo->crea(IDD_FRADATI, madre);
    DestroyWindow(dialogo->hwnd());
    EXPECT_EQ(dialogo->hwnd(), nullptr);
}

TEST_F(DialogoBase, UnErroreNascendoArrivaAChiCreaESenzaFinestra) {
    nasci(errori::overflow);
    EXPECT_EQ(erroreDi([&] { dialogo->crea(IDD_FRADATI, madre); }), errori::overflow);
    EXPECT_EQ(dialogo->hwnd(), nullptr);
    EXPECT_EQ(GetWindow(madre, GW_CHILD), nullptr);
    EXPECT_EQ(erroreDi([&] { dialogo->mostraModale(IDD_FRMABOUT, madre); }), errori::overflow);
    EXPECT_EQ(dialogo->hwnd(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(madre));
}

TEST_F(DialogoBase, UnModelloCheNonCESiSolleva) {
    nasci();
    EXPECT_ANY_THROW(dialogo->crea(4242, madre));
    EXPECT_ANY_THROW(dialogo->mostraModale(4242, madre));
}
