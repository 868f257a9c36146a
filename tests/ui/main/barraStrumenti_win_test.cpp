#include "ui/main/barraStrumenti_win.h"

#include "tests/aiuti/schermo_win.h"
#include "ui/main/comandi.h"

#include <array>
#include <utility>

#include <gtest/gtest.h>

namespace {

// A toolbar for a screen of that many dots an inch, in a window of its own.
class BarraProva {
public:
    explicit BarraProva(int dpi)
        : madre_(CreateWindowExW(0, WC_STATICW, L"", WS_POPUP | WS_VISIBLE, 100, 100, 400, 100,
                                 nullptr, nullptr, nullptr, nullptr)) {
        barra.crea(madre_, 7, {dpi});
    }
    BarraProva(const BarraProva&) = delete;
    BarraProva& operator=(const BarraProva&) = delete;
    ~BarraProva() { DestroyWindow(madre_); }

    [[nodiscard]] HWND finestra() const { return GetDlgItem(madre_, 7); }
    [[nodiscard]] HIMAGELIST figure() const {
        return reinterpret_cast<HIMAGELIST>(SendMessageW(finestra(), TB_GETIMAGELIST, 0, 0));
    }
    // The smallest side of a picture, in pixels.
    [[nodiscard]] std::pair<int, int> lati() const {
        int larghezza = 0;
        int altezza = 0;
        ImageList_GetIconSize(figure(), &larghezza, &altezza);
        return {larghezza, altezza};
    }

    BarraStrumenti barra;

private:
    HWND madre_;
};

} // namespace

TEST(BarraStrumenti, LeFigureSonoQuelleDellaRisoluzione) {
    for (const auto& [dpi, lato] :
         {std::pair{72, 16}, std::pair{96, 16}, std::pair{119, 16}, std::pair{120, 24},
          std::pair{144, 24}, std::pair{167, 24}, std::pair{168, 32}, std::pair{192, 32},
          std::pair{240, 40}, std::pair{288, 48}}) {
        const BarraProva p(dpi);
        EXPECT_EQ(p.lati(), std::pair(lato, lato)) << dpi;
        EXPECT_EQ(ImageList_GetImageCount(p.figure()), 5) << dpi;
        EXPECT_GE(p.barra.disponi(), lato) << dpi;
    }
}

TEST(BarraStrumenti, PerUnAltraRisoluzioneELaBarraCheSarebbeNataPerQuella) {
    const auto pulsante = [](const BarraProva& p) {
        RECT r{};
        SendMessageW(p.finestra(), TB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&r));
        return std::array{r.left, r.top, r.right, r.bottom};
    };
    BarraProva p(96);
    for (const int dpi : {288, 144, 192, 96}) {
        p.barra.figure({dpi});
        const BarraProva nuova(dpi);
        EXPECT_EQ(p.lati(), nuova.lati()) << dpi;
        EXPECT_EQ(p.barra.disponi(), nuova.barra.disponi()) << dpi;
        EXPECT_EQ(pulsante(p), pulsante(nuova)) << dpi;
    }
}

TEST(BarraStrumenti, OgniPulsanteHaLaSuaFiguraNellOrdineDellaTabella) {
    const BarraProva p(96);
    constexpr std::array pulsanti{mnNuovo, mnApri, mnsalva, mnautore, mninfo};
    ASSERT_EQ(SendMessageW(p.finestra(), TB_BUTTONCOUNT, 0, 0),
              static_cast<LRESULT>(pulsanti.size()));
    for (std::size_t i = 0; i < pulsanti.size(); ++i) {
        TBBUTTON pulsante{};
        SendMessageW(p.finestra(), TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&pulsante));
        EXPECT_EQ(pulsante.iBitmap, static_cast<int>(i));
        EXPECT_EQ(pulsante.idCommand, pulsanti[i]);
    }
}

TEST(BarraStrumenti, DoveLaFiguraETrasparenteSiVedeLoSfondo) {
    for (const int dpi : {96, 144, 192, 288}) {
        const BarraProva p(dpi);
        const int lato = p.lati().first;
        const HDC schermo = GetDC(nullptr);
        const HDC dc = CreateCompatibleDC(schermo);
        const HBITMAP bitmap = CreateCompatibleBitmap(schermo, lato, lato);
        const HGDIOBJ prima = SelectObject(dc, bitmap);
        for (int figura = 0; figura < 5; ++figura) {
            constexpr COLORREF sfondo = RGB(255, 0, 255);
            const HBRUSH pennello = CreateSolidBrush(sfondo);
            const RECT tutto{0, 0, lato, lato};
            FillRect(dc, &tutto, pennello);
            DeleteObject(pennello);
            ImageList_Draw(p.figure(), figura, dc, 0, 0, ILD_NORMAL);
            int sfondi = 0;
            for (int y = 0; y < lato; ++y) {
                for (int x = 0; x < lato; ++x) {
                    sfondi += GetPixel(dc, x, y) == sfondo ? 1 : 0;
                }
            }
            EXPECT_GT(sfondi, lato * lato / 20) << dpi << ' ' << figura;
            EXPECT_LT(sfondi, lato * lato * 3 / 4) << dpi << ' ' << figura;
        }
        SelectObject(dc, prima);
        DeleteObject(bitmap);
        DeleteDC(dc);
        ReleaseDC(nullptr, schermo);
    }
}

TEST(BarraStrumenti, SoloIPulsantiHannoUnSuggerimento) {
    NMTTDISPINFOW richiesta{};
    richiesta.hdr.idFrom = mnsalva;
    BarraStrumenti::suggerimento(richiesta);
    EXPECT_STREQ(richiesta.lpszText, L"Salva il Feed RSS");
    richiesta = {};
    richiesta.hdr.idFrom = mnsalvahtm;
    BarraStrumenti::suggerimento(richiesta);
    EXPECT_EQ(richiesta.lpszText, nullptr);
}
