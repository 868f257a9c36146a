#include "ui/controls/aspettoGriglia_win.h"

#include "support/windows/gdi_win.h"
#include "ui/controls/contrasto.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

int altezza(HDC dc, HFONT carattere) noexcept {
    const Selezione selezione(dc, carattere);
    TEXTMETRICW misure{};
    GetTextMetricsW(dc, &misure);
    return misure.tmHeight;
}

// The rows that fill the grid have no text: there are many, in sight at every start.
bool vuota(const std::wstring& testo) noexcept {
    return testo.find_first_not_of(L' ') == std::wstring::npos;
}

void scrivi(HDC dc, HFONT carattere, const std::wstring& testo, RECT posto) noexcept {
    if (vuota(testo)) {
        return;
    }
    const Selezione selezione(dc, carattere);
    DrawTextW(dc, testo.c_str(), static_cast<int>(testo.size()), &posto,
              DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

int larghezza(HDC dc, HFONT carattere, const std::wstring& testo) noexcept {
    const Selezione selezione(dc, carattere);
    SIZE misura{};
    GetTextExtentPoint32W(dc, testo.c_str(), static_cast<int>(testo.size()), &misura);
    return misura.cx;
}

// The colour that tells the selected row from the others in any scheme: in some the fill of a
// selection without the focus is the window's own, in some that of one with it hardly differs.
int coloreSegno() noexcept {
    constexpr double bastante = 3;
    return contrasto(GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_WINDOW)) >= bastante
               ? COLOR_HIGHLIGHT
               : COLOR_WINDOWTEXT;
}

// That of the texts on a background: the one that goes with it, where it can be read there.
int coloreTesti(int proprio, int sfondo) noexcept {
    return siLegge(GetSysColor(proprio), GetSysColor(sfondo)) ? proprio : COLOR_WINDOWTEXT;
}

void incornicia(HDC dc, RECT r, int spessore, int colore) noexcept {
    for (int i = 0; i < spessore; ++i) {
        FrameRect(dc, &r, GetSysColorBrush(colore));
        InflateRect(&r, -1, -1);
    }
}

} // namespace

AspettoGriglia::AspettoGriglia(Risoluzione verticale)
    : margine_(verticale.pixelPerEccesso(60)), cornice_(verticale.pixelPerEccesso(30)) {
    LOGFONTW font = metriche(verticale).lfMessageFont;
    normale_ = Carattere(CreateFontIndirectW(&font));
    font.lfWeight = FW_BOLD;
    grassetto_ = Carattere(CreateFontIndirectW(&font));
    const DcFinestra schermo(nullptr);
    altezzaTesto_ =
        std::max(altezza(schermo.get(), normale_.get()), altezza(schermo.get(), grassetto_.get()));
}

void AspettoGriglia::disegna(HDC dc, const RigheGriglia& righe, int riga,
                             const Posto& posto) const {
    RECT tutta = posto.data;
    tutta.right = std::max(posto.data.right, posto.contenuto.right);
    const int sfondo = !posto.selezionata ? COLOR_WINDOW
                       : posto.fuoco      ? COLOR_HIGHLIGHT
                                          : COLOR_BTNFACE;
    const int testo = !posto.selezionata ? COLOR_WINDOWTEXT
                      : posto.fuoco      ? coloreTesti(COLOR_HIGHLIGHTTEXT, sfondo)
                                         : COLOR_BTNTEXT;
    FillRect(dc, &tutta, GetSysColorBrush(sfondo));
    const RECT linea{tutta.left, tutta.bottom - 1, tutta.right, tutta.bottom};
    FillRect(dc, &linea, GetSysColorBrush(COLOR_3DLIGHT));
    const RECT divisione{posto.data.right - 1, tutta.top, posto.data.right, tutta.bottom};
    FillRect(dc, &divisione, GetSysColorBrush(COLOR_3DLIGHT));

    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(testo));
    for (const Scritta& scritta : scritte(righe, riga, posto)) {
        scrivi(dc, scritta.carattere, scritta.testo, scritta.posto);
    }
    if (posto.selezionata) {
        RECT cornice = tutta;
        --cornice.bottom;
        incornicia(dc, cornice, cornice_, coloreSegno());
        if (posto.fuoco) {
            DrawFocusRect(dc, &cornice);
        }
    }
}

std::array<AspettoGriglia::Scritta, RigheGriglia::testi>
AspettoGriglia::scritte(const RigheGriglia& righe, int riga, const Posto& posto) const {
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
    auto contenuto = righe.contenuto(riga, massimo);
    return {{{inUnaRiga(righe.cella(riga, 0), massimo), normale_.get(), riquadro(posto.data, 0)},
             {std::move(contenuto.titolo), grassetto_.get(), riquadro(posto.contenuto, 0)},
             {std::move(contenuto.descrizione), normale_.get(), riquadro(posto.contenuto, 1)}}};
}

std::wstring AspettoGriglia::tagliati(HDC dc, const RigheGriglia& righe, int riga,
                                      const Posto& posto) const {
    std::wstring interi;
    const auto testi = scritte(righe, riga, posto);
    for (std::size_t i = 0; i < testi.size(); ++i) {
        const auto& [testo, carattere, dove] = testi[i];
        if (!vuota(testo) && larghezza(dc, carattere, testo) > dove.right - dove.left) {
            interi.append(interi.empty() ? L"" : L"\r\n").append(righe.intero(riga, i));
        }
    }
    return interi;
}
