#include "ui/controls/aspettoGriglia_win.h"

#include "support/windows/gdi_win.h"
#include "ui/controls/contrasto.h"

#include <algorithm>
#include <string>

namespace {

int altezza(HDC dc, HFONT carattere) noexcept {
    const Selezione selezione(dc, carattere);
    TEXTMETRICW misure{};
    GetTextMetricsW(dc, &misure);
    return misure.tmHeight;
}

void scrivi(HDC dc, HFONT carattere, const std::wstring& testo, RECT posto) noexcept {
    // The rows that fill the grid have none: there are many, in sight at every start.
    if (testo.find_first_not_of(L' ') == std::wstring::npos) {
        return;
    }
    const Selezione selezione(dc, carattere);
    DrawTextW(dc, testo.c_str(), static_cast<int>(testo.size()), &posto,
              DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// The colour that tells the selected row from the others in any scheme: in some the fill of a
// selection without the focus is the window's own, in some that of one with it hardly differs.
int coloreSegno() noexcept {
    constexpr double bastante = 3;
    return contrasto(GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_WINDOW)) >= bastante
               ? COLOR_HIGHLIGHT
               : COLOR_WINDOWTEXT;
}

void incornicia(HDC dc, RECT r, int spessore, int colore) noexcept {
    for (int i = 0; i < spessore; ++i) {
        FrameRect(dc, &r, GetSysColorBrush(colore));
        InflateRect(&r, -1, -1);
    }
}

} // namespace

AspettoGriglia::AspettoGriglia(Risoluzione verticale) {
    LOGFONTW font = metriche(verticale).lfMessageFont;
    normale_ = Carattere(CreateFontIndirectW(&font));
    font.lfWeight = FW_BOLD;
    grassetto_ = Carattere(CreateFontIndirectW(&font));
    const DcFinestra schermo(nullptr);
    altezzaTesto_ =
        std::max(altezza(schermo.get(), normale_.get()), altezza(schermo.get(), grassetto_.get()));
    margine_ = verticale.pixelPerEccesso(60);
    cornice_ = verticale.pixelPerEccesso(30);
    // Two lines, the margins, and the line that ends the row.
    altezzaRiga_ = 2 * altezzaTesto_ + 2 * margine_ + 1;
}

void AspettoGriglia::disegna(HDC dc, const RigheGriglia& righe, int riga,
                             const Posto& posto) const {
    RECT tutta = posto.data;
    tutta.right = std::max(posto.data.right, posto.contenuto.right);
    const int sfondo = !posto.selezionata ? COLOR_WINDOW
                       : posto.fuoco      ? COLOR_HIGHLIGHT
                                          : COLOR_BTNFACE;
    const int testo = !posto.selezionata ? COLOR_WINDOWTEXT
                      : posto.fuoco      ? COLOR_HIGHLIGHTTEXT
                                         : COLOR_BTNTEXT;
    FillRect(dc, &tutta, GetSysColorBrush(sfondo));
    const RECT linea{tutta.left, tutta.bottom - 1, tutta.right, tutta.bottom};
    FillRect(dc, &linea, GetSysColorBrush(COLOR_3DLIGHT));
    const RECT divisione{posto.data.right - 1, tutta.top, posto.data.right, tutta.bottom};
    FillRect(dc, &divisione, GetSysColorBrush(COLOR_3DLIGHT));

    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(testo));
    const int rientro = 2 * margine_;
    const auto riquadro = [&](const RECT& colonna, int riga_) {
        RECT r = colonna;
        r.left += rientro;
        r.right -= rientro;
        r.top += margine_ + riga_ * altezzaTesto_;
        r.bottom = r.top + altezzaTesto_;
        return r;
    };
    // A character is rarely narrower than a pixel: what is cut off here would not fit anyway.
    const auto massimo =
        static_cast<std::size_t>(std::max(1L, posto.contenuto.right - posto.contenuto.left));
    scrivi(dc, normale_.get(), inUnaRiga(righe.cella(riga, 0), massimo), riquadro(posto.data, 0));
    const auto contenuto = righe.contenuto(riga, massimo);
    scrivi(dc, grassetto_.get(), contenuto.titolo, riquadro(posto.contenuto, 0));
    scrivi(dc, normale_.get(), contenuto.descrizione, riquadro(posto.contenuto, 1));
    if (posto.selezionata) {
        RECT cornice = tutta;
        --cornice.bottom;
        incornicia(dc, cornice, cornice_, coloreSegno());
        if (posto.fuoco) {
            DrawFocusRect(dc, &cornice);
        }
    }
}
