#include "ui/controls/KOInputNumerico_win.h"

#include "support/errori/errore.h"
#include "support/windows/dpi_win.h"
#include "support/windows/gdi_win.h"

#include <windowsx.h>

#include <algorithm>
#include <iterator>

// The numeric control's properties, and how they go to a bag of properties and back.

namespace {

constexpr double twipsPerPunto = 20;

FontProprieta descrivi(HFONT font, Risoluzione verticale) {
    const auto dati = datiDi<LOGFONTW>(font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    if (!dati) {
        solleva(errori::valoreProprieta);
    }
    FontProprieta descrizione;
    descrizione.nome = static_cast<const wchar_t*>(dati->lfFaceName);
    descrizione.punti = -verticale.twips(dati->lfHeight) / twipsPerPunto;
    descrizione.peso = dati->lfWeight;
    descrizione.corsivo = dati->lfItalic != 0;
    descrizione.sottolineato = dati->lfUnderline != 0;
    descrizione.barrato = dati->lfStrikeOut != 0;
    return descrizione;
}

Carattere fai(const FontProprieta& descrizione, Risoluzione verticale) {
    LOGFONTW dati{};
    const auto lunghezza = std::min(descrizione.nome.size(), std::size(dati.lfFaceName) - 1);
    std::copy_n(descrizione.nome.begin(), lunghezza, std::begin(dati.lfFaceName));
    dati.lfHeight = -verticale.pixelVicini(descrizione.punti * twipsPerPunto);
    dati.lfWeight = descrizione.peso;
    dati.lfItalic = descrizione.corsivo ? TRUE : FALSE;
    dati.lfUnderline = descrizione.sottolineato ? TRUE : FALSE;
    dati.lfStrikeOut = descrizione.barrato ? TRUE : FALSE;
    dati.lfCharSet = DEFAULT_CHARSET;
    return Carattere(CreateFontIndirectW(&dati));
}

} // namespace

void KOInputNumerico::Massimo(double valore) {
    regole_.Massimo(valore);
    notifica(L"Massimo");
}

void KOInputNumerico::Minimo(double valore) {
    regole_.Minimo(valore);
    notifica(L"Minimo");
}

void KOInputNumerico::Incremento(double valore) {
    regole_.Incremento(valore);
    notifica(L"Incremento");
}

void KOInputNumerico::VisualizzaZero(bool valore) {
    const Trattenuta trattenuta(*this);
    regole_.VisualizzaZero(valore);
    Valore(Valore());
    notifica(L"VisualizzaZero");
}

void KOInputNumerico::CifreDecimali(std::int16_t valore) {
    const Trattenuta trattenuta(*this);
    regole_.CifreDecimali(valore);
    Valore(Valore());
    notifica(L"CifreDecimali");
}

void KOInputNumerico::Text(std::wstring_view /*valore*/) {
    const Trattenuta trattenuta(*this);
    impostaTesto({});
    notifica(L"Text");
}

HFONT KOInputNumerico::Font() const noexcept {
    return GetWindowFont(txtnumero_);
}

void KOInputNumerico::Font(HFONT font) {
    SetWindowFont(txtnumero_, font, TRUE);
    notifica(L"Font");
}

void KOInputNumerico::ForeColor(std::uint32_t colore) {
    coloreTesto_ = colore;
    InvalidateRect(txtnumero_, nullptr, TRUE);
    notifica(L"ForeColor");
}

bool KOInputNumerico::Enabled() const noexcept {
    return IsWindowEnabled(txtnumero_) != FALSE;
}

void KOInputNumerico::Enabled(bool valore) {
    EnableWindow(txtnumero_, valore ? TRUE : FALSE);
    EnableWindow(UPNum_, IsWindowEnabled(txtnumero_));
    coloreSfondo_ = valore ? coloreSfondoFinestra : coloreSuperficiePulsante;
    InvalidateRect(txtnumero_, nullptr, TRUE);
    notifica(L"Enabled");
}

bool KOInputNumerico::Locked() const noexcept {
    return (GetWindowStyle(txtnumero_) & ES_READONLY) != 0;
}

void KOInputNumerico::Locked(bool valore) {
    Edit_SetReadOnly(txtnumero_, valore ? TRUE : FALSE);
    notifica(L"Locked");
}

FontProprieta KOInputNumerico::fontAmbiente() const {
    return descrivi(GetWindowFont(GetParent(hwnd())), dpiDi(hwnd()).y);
}

void KOInputNumerico::leggi(const BorsaProprieta& borsa) {
    const Trattenuta trattenuta(*this);
    const FontProprieta ambiente = fontAmbiente();
    const ProprietaNumerico p = leggiProprieta(borsa, ambiente);
    regole_.CifreDecimali(p.CifreDecimali);
    regole_.VisualizzaZero(p.VisualizzaZero);
    regole_.limiti(p.Massimo, p.Minimo);
    regole_.Incremento(p.Incremento);
    Carattere nuovo;
    HFONT font = GetWindowFont(GetParent(hwnd()));
    if (p.Font != ambiente) {
        nuovo = fai(p.Font, dpiDi(hwnd()).y);
        font = nuovo.get();
    }
    SetWindowFont(txtnumero_, font, TRUE);
    // The box uses the new font from here on; the old one may go.
    font_ = std::move(nuovo);
    Valore(p.Valore);
    coloreTesto_ = p.ForeColor;
    Enabled(p.Enabled);
    Edit_SetReadOnly(txtnumero_, p.Locked ? TRUE : FALSE);
}

void KOInputNumerico::scrivi(BorsaProprieta& borsa) const {
    ProprietaNumerico p;
    p.CifreDecimali = CifreDecimali();
    p.VisualizzaZero = VisualizzaZero();
    p.Massimo = Massimo();
    p.Incremento = Incremento();
    p.Minimo = Minimo();
    p.Font = descrivi(Font(), dpiDi(hwnd()).y);
    p.Valore = Valore();
    p.ForeColor = coloreTesto_;
    p.Enabled = Enabled();
    p.Locked = Locked();
    scriviProprieta(borsa, p, fontAmbiente());
}
