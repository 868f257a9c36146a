#include "ui/controls/campoTesto_win.h"

#include "ui/controls/finestra_win.h"

#include <windowsx.h>

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

// Around a box: counts what it takes for changes.
class Intorno final : public Finestra {
public:
    Intorno() {
        WNDCLASSEXW descrizione{};
        descrizione.lpszClassName = L"ProvaCampoTesto";
        registra(descrizione);
        crea(L"ProvaCampoTesto", L"", WS_POPUP, 0, {0, 0, 200, 100}, nullptr);
        campo = CampoTesto(CreateWindowExW(0, WC_EDITW, L"prima", WS_CHILD, 0, 0, 100, 20, hwnd(),
                                           nullptr, nullptr, nullptr));
    }
    Intorno(const Intorno&) = delete;
    Intorno& operator=(const Intorno&) = delete;
    ~Intorno() override { distruggi(); }

    CampoTesto campo;
    int avvisi = 0;
    int cambi = 0;

protected:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override {
        if (codice == WM_COMMAND && HIWORD(w) == EN_CHANGE) {
            ++avvisi;
            cambi += campo.cambiato() ? 1 : 0;
        }
        return predefinito(codice, w, l);
    }
    void onEccezione() noexcept override { ADD_FAILURE(); }
};

} // namespace

TEST(CampoTesto, UnAssegnazioneNonECambioDiChiScrive) {
    Intorno intorno;
    EXPECT_TRUE(intorno.campo.testo(L"dopo"));
    EXPECT_EQ(intorno.avvisi, 1);
    EXPECT_EQ(intorno.cambi, 0);
    EXPECT_FALSE(intorno.campo.testo(L"dopo"));
    EXPECT_EQ(intorno.campo.testo(), L"dopo");
}

TEST(CampoTesto, ChiScriveCambiaUnaVolta) {
    Intorno intorno;
    SetWindowTextW(intorno.campo.hwnd(), L"scritto");
    EXPECT_EQ(intorno.cambi, 1);
    SetWindowTextW(intorno.campo.hwnd(), L"scritto");
    EXPECT_EQ(intorno.avvisi, 2);
    EXPECT_EQ(intorno.cambi, 1);
}

TEST(CampoTesto, UnaSceltaECambioUnaVoltaAncheLaPrima) {
    const Intorno intorno;
    const HWND combo = CreateWindowExW(0, WC_COMBOBOXW, L"", WS_CHILD | CBS_DROPDOWN, 0, 0, 100, 90,
                                       intorno.hwnd(), nullptr, nullptr, nullptr);
    CampoTesto campo(combo);
    ComboBox_AddString(combo, L"it");
    ComboBox_AddString(combo, L"de");
    EXPECT_FALSE(campo.sceltoDiverso());
    for (const int voce : {0, 1}) {
        ComboBox_SetCurSel(combo, voce);
        EXPECT_TRUE(campo.sceltoDiverso()) << voce;
        EXPECT_FALSE(campo.sceltoDiverso()) << voce;
    }
}
