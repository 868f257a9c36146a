#pragma once

#include "support/windows/maniglie_win.h"
#include "ui/controls/campoTesto_win.h"
#include "ui/controls/eventiNumerico.h"
#include "ui/controls/finestra_win.h"
#include "ui/controls/sottoclasse_win.h"

#include <cstdint>
#include <string>
#include <utility>

// The input control for one number: the text box `txtnumero` with the spin button `UPNum` at its
// right. A window class that dialog templates name; the focus is the text box's. Its container
// reaches it with `Finestra::da<KOInputNumerico>(hwnd)`.
//
// The label is the STATIC before the control in its container.
class KOInputNumerico final : public Finestra, private GestoreSottoclasse, private EventiLimite {
public:
    static constexpr const wchar_t* classe = L"KOInputNumerico";
    // Makes the class known; once, before the first template that names it.
    static void registraClasse();

    // Who hears the events; null for nobody. Not owned: it stays, or takes itself off.
    void osserva(EventiNumerico* eventi) noexcept { eventi_ = eventi; }

    // The number in the box; 0 when there is none. Writing raises 380 outside the limits and
    // changes nothing then; a text that changed under the user's hands is selected.
    [[nodiscard]] double Valore() const;
    void Valore(double valore);
    // Raises 380 unless the maximum stays above the minimum. The value stays as it is.
    [[nodiscard]] double Massimo() const noexcept { return regole_.Massimo(); }
    void Massimo(double valore);
    [[nodiscard]] double Minimo() const noexcept { return regole_.Minimo(); }
    void Minimo(double valore);
    [[nodiscard]] double Incremento() const noexcept { return regole_.Incremento(); }
    void Incremento(double valore);
    // These two write the value again, with what `Valore` raises.
    [[nodiscard]] bool VisualizzaZero() const noexcept { return regole_.VisualizzaZero(); }
    void VisualizzaZero(bool valore);
    [[nodiscard]] std::int16_t CifreDecimali() const noexcept { return regole_.CifreDecimali(); }
    void CifreDecimali(std::int16_t valore);
    // Whatever is written, the box is emptied.
    [[nodiscard]] std::wstring Text() const { return campo_.testo(); }
    void Text(std::wstring_view valore);
    // The font is the caller's, and must outlive its use here.
    [[nodiscard]] HFONT Font() const noexcept;
    void Font(HFONT font);
    // An RGB value, or 0x80000000 with the number of a system colour.
    [[nodiscard]] std::uint32_t ForeColor() const noexcept { return coloreTesto_; }
    void ForeColor(std::uint32_t colore);
    [[nodiscard]] bool Enabled() const noexcept;
    void Enabled(bool valore);
    [[nodiscard]] bool Locked() const noexcept;
    void Locked(bool valore);

    // Takes the properties from a bag; limits are not checked against each other,
    // the value is checked against them.
    void leggi(const BorsaProprieta& borsa);
    void scrivi(BorsaProprieta& borsa) const;

    // The rule on leaving the box, on demand; the focus stays where it is.
    void lascia();
    // The same for the numeric box that has the focus, if one has: commands come from menus and
    // accelerators, which leave the focus alone.
    static void lasciaQuelloColFuoco();

protected:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override;

private:
    LRESULT messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) override;
    void MassimoSuperato(double vmassimo) override;
    void MinimoSuperato(double vminimo) override;

    void creaParti();
    void disponi() noexcept;
    void aggiornaEtichetta();
    void selezionaTutto() noexcept;
    // These two give whether the text changed.
    bool assegna(double valore);
    bool impostaTesto(std::wstring_view testo);
    [[nodiscard]] std::pair<DWORD, DWORD> selezione() const noexcept;
    void cambioValore();
    void notifica(std::wstring_view nome);
    void scatta(Verso verso);
    void gira(int delta);
    bool tastoGiu(WPARAM tasto);
    [[nodiscard]] wchar_t filtra(wchar_t tasto) const;
    [[nodiscard]] LRESULT colori(HDC dc) const noexcept;
    [[nodiscard]] FontProprieta fontAmbiente() const;

    ValoreNumerico regole_;
    EventiNumerico* eventi_ = nullptr;
    HWND etichetta_ = nullptr;
    HWND txtnumero_ = nullptr;
    HWND UPNum_ = nullptr;
    CampoTesto campo_;
    Sottoclasse tasti_;
    Carattere font_;
    std::uint32_t coloreTesto_ = coloreTestoFinestra;
    std::uint32_t coloreSfondo_ = coloreSfondoFinestra;
    int resto_ = 0;
    bool uscendo_ = false;
};
