#include "ui/controls/aspettoGriglia_win.h"

#include "document/tabellaElementi.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/tabella_prova.h"
#include "ui/controls/sottoclasse_win.h"
#include "ui/main/GUI_win.h"

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;

// One row with two columns, painted.
class AspettoDellaGriglia : public testing::Test {
protected:
    static constexpr int fineData = 150;
    static constexpr int fineRiga = 400;

    [[nodiscard]] Immagine riga(const std::wstring& titolo, const std::wstring& descrizione,
                                const std::wstring& data = L"ieri", bool selezionata = false,
                                bool fuoco = false) const {
        TabellaElementi tabella;
        tabella.riempi({creaElemento({titolo, L"", descrizione, L"", data, L""})});
        RigheGriglia righe(tabella);
        righe.intesta({L"Data/Orario", L"Contenuto"}, 3);
        righe.elenca(ClsUTC(), FormatoLocale());
        righe.completa();
        return riga(righe, 1, selezionata, fuoco);
    }
    [[nodiscard]] Immagine riga(const RigheGriglia& righe, int quale, bool selezionata = false,
                                bool fuoco = false) const {
        const int alta = aspetto.altezzaRiga();
        return dipinta(fineRiga, alta, [&](HDC dc) {
            aspetto.disegna(
                dc, righe, quale,
                {{0, 0, fineData, alta}, {fineData, 0, fineRiga, alta}, selezionata, fuoco});
        });
    }
    // The inside of the cells: without the lines that divide them.
    [[nodiscard]] RECT cellaData() const { return {0, 0, fineData - 1, aspetto.altezzaRiga() - 1}; }
    [[nodiscard]] RECT metaTitolo() const {
        return {fineData, 0, fineRiga, aspetto.altezzaRiga() / 2};
    }
    [[nodiscard]] RECT metaDescrizione() const {
        return {fineData, aspetto.altezzaRiga() / 2, fineRiga, aspetto.altezzaRiga() - 1};
    }

    const AspettoGriglia aspetto{dpiDi(nullptr).y};
};

} // namespace

TEST_F(AspettoDellaGriglia, IlTitoloRisaltaSullaDescrizione) {
    const Immagine i = riga(L"lo stesso testo", L"lo stesso testo");
    EXPECT_GT(i.inchiostro(metaDescrizione()), 0);
    EXPECT_GT(i.inchiostro(metaTitolo()), i.inchiostro(metaDescrizione()));
    EXPECT_GT(i.inchiostro(cellaData()), 0);
}

TEST_F(AspettoDellaGriglia, OgniTestoStaNelSuoPosto) {
    const Immagine vuota = riga(L"", L"");
    EXPECT_EQ(vuota.inchiostro(metaTitolo()), 0);
    EXPECT_EQ(vuota.inchiostro(metaDescrizione()), 0);
    EXPECT_EQ(riga(L"titolo", L"").inchiostro(metaDescrizione()), 0);
    EXPECT_EQ(riga(L"", L"descrizione").inchiostro(metaTitolo()), 0);
    EXPECT_EQ(riga(L"titolo", L"descrizione", L"ieri").inchiostro(cellaData()),
              riga(L"", L"", L"ieri").inchiostro(cellaData()));
}

TEST_F(AspettoDellaGriglia, UnaRigaSenzaElementoEVuota) {
    const TabellaElementi tabella;
    RigheGriglia righe(tabella);
    righe.intesta({L"Data/Orario", L"Contenuto"}, 3);
    righe.completa();
    const Immagine i = riga(righe, 7);
    for (const RECT& r : {metaTitolo(), metaDescrizione(), cellaData()}) {
        EXPECT_EQ(i.inchiostro(r), 0);
    }
}

TEST_F(AspettoDellaGriglia, LeInterruzioniDiRigaSiVedonoComeSpazi) {
    EXPECT_EQ(riga(L"a\r\nb\nc\rd", L"uno\r\ndue"), riga(L"a b c d", L"uno due"));
    EXPECT_NE(riga(L"a\r\nb", L""), riga(L"ab", L""));
    EXPECT_EQ(riga(L"\ta\tb", L"c\td", L"ie\tri"), riga(L"\ta    b", L"c    d", L"ie    ri"));
}

TEST_F(AspettoDellaGriglia, CioCheNonEntraFinisceConIPuntini) {
    // Where the line ends there is nothing but dots: no ink in the upper half of its letters.
    const auto finisceConIPuntini = [](const Immagine& i, const RECT& meta) {
        RECT lettere = meta;
        const auto colonnaVuota = [&](int x) {
            return i.inchiostro({x, meta.top, x + 1, meta.bottom}) == 0;
        };
        const auto rigaVuota = [&](int y) {
            return i.inchiostro({meta.left, y, meta.right, y + 1}) == 0;
        };
        while (rigaVuota(lettere.top)) {
            ++lettere.top;
        }
        while (rigaVuota(lettere.bottom - 1)) {
            --lettere.bottom;
        }
        while (colonnaVuota(lettere.right - 1)) {
            --lettere.right;
        }
        return i.inchiostro({lettere.right - 7, lettere.top, lettere.right,
                             (lettere.top + lettere.bottom) / 2}) == 0;
    };
    const std::wstring lungo(300, L'H');
    const Immagine tagliata = riga(lungo, lungo);
    EXPECT_TRUE(finisceConIPuntini(tagliata, metaTitolo()));
    EXPECT_TRUE(finisceConIPuntini(tagliata, metaDescrizione()));
    const Immagine intera = riga(L"HHHH", L"HHHH");
    EXPECT_FALSE(finisceConIPuntini(intera, metaTitolo()));
    EXPECT_FALSE(finisceConIPuntini(intera, metaDescrizione()));
}

TEST_F(AspettoDellaGriglia, UnaECommercialeSiVedeComEScritta) {
    const auto quanto = [this](const std::wstring& testo) {
        return riga(testo, L"").inchiostro(metaTitolo());
    };
    EXPECT_GT(quanto(L"&"), 0);
    EXPECT_GT(quanto(L"&&"), quanto(L"&"));
}

TEST_F(AspettoDellaGriglia, LaRigaSceltaHaIColoriDelSistema) {
    const auto sfondo = [this](bool selezionata, bool fuoco) {
        // Inside the frame of the focus, and above the texts.
        return riga(L"titolo", L"descrizione", L"ieri", selezionata, fuoco).colore(fineRiga - 4, 2);
    };
    ASSERT_NE(GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(sfondo(false, false), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(sfondo(false, true), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(sfondo(true, true), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(sfondo(true, false), GetSysColor(COLOR_BTNFACE));
    // The text is to be read on both.
    for (const bool fuoco : {false, true}) {
        const Immagine i = riga(L"titolo", L"descrizione", L"ieri", true, fuoco);
        EXPECT_GT(i.inchiostro({fineData + 4, 2, fineRiga - 4, aspetto.altezzaRiga() / 2},
                               sfondo(true, fuoco)),
                  20);
    }
}

TEST_F(AspettoDellaGriglia, LaRigaSceltaSiDistingueInOgniSchema) {
    for (std::size_t i = 0; i < schemi().size(); ++i) {
        const ColoriSistema schema(schemi()[i]);
        for (const bool fuoco : {false, true}) {
            const auto riga_ = [&](bool selezionata) {
                return riga(L"titolo", L"descrizione", L"ieri", selezionata, fuoco);
            };
            EXPECT_EQ(riga_(false).colore(0, 0), GetSysColor(COLOR_WINDOW));
            EXPECT_LT(distacco(riga_(false)), 1.01);
            EXPECT_GE(distacco(riga_(true)), 3) << "scheme " << i << ", focus " << fuoco;
        }
    }
}

TEST(GrigliaDipinta, RiempireMostraSubitoLaTabellaCheCE) {
    GrigliaProva p(3);
    const Immagine prima = sulloSchermo(p.lista());
    EXPECT_EQ(sulloSchermo(p.lista()), prima);
    metti(p.documento, Titolo, 1, L"un altro titolo");
    GUI::RiempiGriglia(p.griglia, false);
    const Immagine dopo = sulloSchermo(p.lista());
    EXPECT_NE(dopo, prima);
    metti(p.documento, Titolo, 1, L"titolo 1");
    GUI::RiempiGriglia(p.griglia, false);
    EXPECT_EQ(sulloSchermo(p.lista()), prima);
}

TEST(GrigliaDipinta, MentreSiRiempieNonSiDipinge) {
    // The calls that change what the list shows, and those that stop and start its painting.
    class Spia final : public GestoreSottoclasse {
    public:
        LRESULT messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) override {
            if (codice == WM_SETREDRAW) {
                spenta_ = w == FALSE;
                ++volte;
            } else if (codice == LVM_SETITEMCOUNT || codice == LVM_SETCOLUMNWIDTH ||
                       codice == LVM_SCROLL) {
                (spenta_ ? taciute : viste)++;
            }
            return DefSubclassProc(hwnd, codice, w, l);
        }
        void onEccezione() noexcept override { ADD_FAILURE(); }

        int volte = 0;
        int taciute = 0;
        int viste = 0;

        [[nodiscard]] bool spenta() const { return spenta_; }

    private:
        bool spenta_ = false;
    } spia;
    GrigliaProva p(200);
    p.griglia.seleziona(150);
    const Sottoclasse sottoclasse(p.lista(), spia);
    GUI::RiempiGriglia(p.griglia, false);
    EXPECT_EQ(spia.volte, 2);
    EXPECT_FALSE(spia.spenta());
    EXPECT_GT(spia.taciute, 0);
    EXPECT_EQ(spia.viste, 0);
    // One inside the other: the outer one ends it.
    {
        const Griglia::Sospensione esterna(p.griglia);
        GUI::RiempiGriglia(p.griglia, false);
        EXPECT_TRUE(spia.spenta());
    }
    EXPECT_FALSE(spia.spenta());
}

TEST(GrigliaDipinta, IlContenutoArrivaFinoAlBordoAncheSenzaBarra) {
    GrigliaProva p(1);
    // Nothing to scroll.
    GUI::IntestaGriglia(p.griglia);
    p.griglia.elenca(ClsUTC(), FormatoLocale());
    p.griglia.seleziona(1);
    p.allarga(620);
    pompa();
    const Immagine i = sulloSchermo(p.lista());
    RECT r{};
    ListView_GetItemRect(p.lista(), 0, &r, LVIR_BOUNDS);
    // Beyond the second column begins the third, which shows nothing of its own.
    const int fine = ListView_GetColumnWidth(p.lista(), 0) + ListView_GetColumnWidth(p.lista(), 1);
    ASSERT_LT(fine + 4, i.larghezza);
    for (std::ptrdiff_t x = fine - 4; x < i.larghezza - 2; ++x) {
        EXPECT_EQ(i.colore(x, r.top + 2), GetSysColor(COLOR_HIGHLIGHT)) << x;
    }
}
