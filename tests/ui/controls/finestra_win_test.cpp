#include "ui/controls/finestra_win.h"

#include "support/windows/errori_win.h"
#include "ui/controls/sottoclasse_win.h"

#include <commctrl.h>

#include <memory>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr UINT lancia = WM_APP + 1;
constexpr UINT distruggiti = WM_APP + 2;
constexpr RECT posto{0, 0, 100, 50};

class Prova final : public Finestra {
public:
    Prova() = default;
    Prova(const Prova&) = delete;
    Prova& operator=(const Prova&) = delete;
    ~Prova() override { distruggi(); }

    static void registraProva() {
        WNDCLASSEXW descrizione{};
        descrizione.lpszClassName = L"ProvaFinestra";
        registra(descrizione);
    }
    void apri() { crea(L"ProvaFinestra", L"prova", WS_POPUP, 0, posto, nullptr); }

    std::vector<UINT> visti;
    std::vector<std::int32_t> errori;
    UINT lanciaIn = 0;

protected:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override {
        visti.push_back(codice);
        if (codice == lanciaIn) {
            solleva(errori::overflow);
        }
        if (codice == lancia) {
            solleva(static_cast<std::int32_t>(w));
        }
        return predefinito(codice, w, l);
    }
    void onEccezione() noexcept override { errori.push_back(erroreCorrente().numero()); }
};

struct Vita {
    int fatte = 0;
    int vive = 0;
    bool vivaDopoDistruzione = false;
    bool rifiuta = false;
};
Vita& vita() {
    static Vita v;
    return v;
}

class Propria final : public Finestra {
public:
    static constexpr const wchar_t* classe = L"ProvaPropria";
    Propria() {
        if (vita().rifiuta) {
            solleva(errori::memoriaEsaurita);
        }
        ++vita().fatte;
        ++vita().vive;
    }
    Propria(const Propria&) = delete;
    Propria& operator=(const Propria&) = delete;
    ~Propria() override { --vita().vive; }

    void chiudiDalDiFuori() {
        const Trattenuta trattenuta(*this);
        DestroyWindow(hwnd());
        vita().vivaDopoDistruzione = vita().vive == 1 && hwnd() == nullptr;
    }

protected:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override {
        if (codice == distruggiti) {
            DestroyWindow(hwnd());
            vita().vivaDopoDistruzione = vita().vive == 1 && hwnd() == nullptr;
            return 7;
        }
        return predefinito(codice, w, l);
    }
    void onEccezione() noexcept override { ADD_FAILURE(); }
};

HWND creaPropria() {
    Finestra::registraPropria<Propria>(WNDCLASSEXW{});
    return CreateWindowExW(0, Propria::classe, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

class Spia final : public GestoreSottoclasse {
public:
    LRESULT messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) override {
        visti.push_back(codice);
        if (codice == lancia) {
            solleva(static_cast<std::int32_t>(w));
        }
        return DefSubclassProc(hwnd, codice, w, l);
    }
    void onEccezione() noexcept override { errori.push_back(erroreCorrente().numero()); }

    std::vector<UINT> visti;
    std::vector<std::int32_t> errori;
};

bool visto(const std::vector<UINT>& visti, UINT codice) {
    return std::find(visti.begin(), visti.end(), codice) != visti.end();
}

} // namespace

TEST(FinestraBase, DalPrimoAllUltimoMessaggio) {
    Prova::registraProva();
    Prova prova;
    EXPECT_EQ(prova.hwnd(), nullptr);
    prova.apri();
    const HWND hwnd = prova.hwnd();
    ASSERT_TRUE(IsWindow(hwnd));
    EXPECT_TRUE(visto(prova.visti, WM_NCCREATE));
    EXPECT_TRUE(visto(prova.visti, WM_CREATE));
    prova.distruggi();
    EXPECT_TRUE(visto(prova.visti, WM_NCDESTROY));
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_EQ(prova.hwnd(), nullptr);
}

TEST(FinestraBase, IlDistruttoreDistruggeLaFinestra) {
    Prova::registraProva();
    HWND hwnd = nullptr;
    {
        Prova prova;
        prova.apri();
        hwnd = prova.hwnd();
        ASSERT_TRUE(IsWindow(hwnd));
    }
    EXPECT_FALSE(IsWindow(hwnd));
}

TEST(FinestraBase, SuDiLeiIlPuntatoreELaFreccia) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    SetCursor(LoadCursorW(nullptr, IDC_IBEAM));
    SendMessageW(prova.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(prova.hwnd()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST(FinestraBase, UnEccezioneSiFermaAlConfine) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    EXPECT_EQ(SendMessageW(prova.hwnd(), lancia, 380, 0), 0);
    EXPECT_EQ(prova.errori, std::vector<std::int32_t>{380});
}

TEST(FinestraBase, UnErroreNellaCreazioneArrivaAChiCrea) {
    Prova::registraProva();
    for (const UINT codice : {WM_NCCREATE, WM_CREATE, WM_NCCALCSIZE}) {
        Prova prova;
        prova.lanciaIn = codice;
        try {
            prova.apri();
            ADD_FAILURE() << codice;
        } catch (const Errore& errore) {
            EXPECT_EQ(errore.numero(), errori::overflow);
        }
        EXPECT_EQ(prova.hwnd(), nullptr) << codice;
        EXPECT_TRUE(prova.errori.empty()) << codice;
    }
}

TEST(FinestraBase, UnaClasseNonRegistrataSolleva) {
    Prova prova;
    EXPECT_THROW(prova.crea(L"ClasseCheNonEsiste", L"", WS_POPUP, 0, posto, nullptr), Errore);
    EXPECT_EQ(prova.hwnd(), nullptr);
}

TEST(FinestraBase, LaFinestraPossiedeIlSuoOggetto) {
    vita() = {};
    const HWND hwnd = creaPropria();
    ASSERT_NE(hwnd, nullptr);
    ASSERT_NE(Finestra::da<Propria>(hwnd), nullptr);
    EXPECT_EQ(Finestra::da<Propria>(hwnd)->hwnd(), hwnd);
    EXPECT_EQ(vita().vive, 1);
    DestroyWindow(hwnd);
    EXPECT_EQ(vita().vive, 0);
    EXPECT_EQ(vita().fatte, 1);
    EXPECT_EQ(Finestra::da<Propria>(hwnd), nullptr);
}

TEST(FinestraBase, LOggettoViveFinoAllaFineDellaSuaChiamata) {
    vita() = {};
    EXPECT_EQ(SendMessageW(creaPropria(), distruggiti, 0, 0), 7);
    EXPECT_TRUE(vita().vivaDopoDistruzione);
    EXPECT_EQ(vita().vive, 0);

    vita() = {};
    Finestra::da<Propria>(creaPropria())->chiudiDalDiFuori();
    EXPECT_TRUE(vita().vivaDopoDistruzione);
    EXPECT_EQ(vita().vive, 0);
}

TEST(FinestraBase, SenzaOggettoLaFinestraNonNasce) {
    vita() = {};
    vita().rifiuta = true;
    EXPECT_EQ(creaPropria(), nullptr);
    vita().rifiuta = false;
    EXPECT_EQ(vita().vive, 0);
}

TEST(FinestraBase, DaConosceSoloLaSuaClasse) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    EXPECT_EQ(Finestra::da<Propria>(prova.hwnd()), nullptr);
    EXPECT_EQ(Finestra::da<Propria>(nullptr), nullptr);
    EXPECT_EQ(Finestra::da<Propria>(GetDesktopWindow()), nullptr);
}

TEST(SottoclasseFinestra, VedeIMessaggiFinoAllaFineDellOggetto) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    Spia spia;
    {
        const Sottoclasse sottoclasse(prova.hwnd(), spia);
        SendMessageW(prova.hwnd(), WM_APP, 0, 0);
        EXPECT_TRUE(visto(spia.visti, WM_APP));
        EXPECT_TRUE(visto(prova.visti, WM_APP));
    }
    spia.visti.clear();
    SendMessageW(prova.hwnd(), WM_APP, 0, 0);
    EXPECT_TRUE(spia.visti.empty());
}

TEST(SottoclasseFinestra, LaFinestraPuoFinirePrima) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    Spia spia;
    const Sottoclasse sottoclasse(prova.hwnd(), spia);
    prova.distruggi();
    EXPECT_TRUE(visto(spia.visti, WM_NCDESTROY));
}

TEST(SottoclasseFinestra, UnEccezioneSiFermaAlConfine) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    Spia spia;
    const Sottoclasse sottoclasse(prova.hwnd(), spia);
    EXPECT_EQ(SendMessageW(prova.hwnd(), lancia, 6, 0), 0);
    EXPECT_EQ(spia.errori, std::vector<std::int32_t>{6});
    EXPECT_TRUE(prova.errori.empty());
}

TEST(SottoclasseFinestra, SiSpostaConLOggetto) {
    Prova::registraProva();
    Prova prova;
    prova.apri();
    Spia spia;
    Sottoclasse prima(prova.hwnd(), spia);
    {
        const Sottoclasse seconda(std::move(prima));
        SendMessageW(prova.hwnd(), WM_APP, 0, 0);
        EXPECT_TRUE(visto(spia.visti, WM_APP));
    }
    spia.visti.clear();
    SendMessageW(prova.hwnd(), WM_APP, 0, 0);
    EXPECT_TRUE(spia.visti.empty());
}

TEST(SottoclasseFinestra, SenzaFinestraSolleva) {
    Spia spia;
    EXPECT_THROW(Sottoclasse(nullptr, spia), Errore);
}
