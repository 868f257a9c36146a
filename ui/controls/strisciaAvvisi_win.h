#pragma once

#include "support/errori/trappola.h"
#include "support/windows/dpi_win.h"
#include "ui/controls/codaAvvisi.h"
#include "ui/controls/croce_win.h"
#include "ui/controls/finestra_win.h"
#include "ui/controls/sottoclasse_win.h"
#include "ui/controls/suggerimenti_win.h"

#include <windows.h>

#include <array>
#include <functional>
#include <string>

// What the strip of notices tells its owner.
class OsservatoreAvvisi : public Trappola {
public:
    // The strip has another height: it and what stands above it are to be placed anew.
    virtual void avvisiCambiati() = 0;
    // The user answered or closed a notice: runs `azione` as a command and reports what it raises,
    // or leaves it, while a command is at work.
    virtual void avvisoAzione(const std::function<void()>& azione) = 0;
};

// The strip of notices: one notice at a time, its buttons and one that closes it, the others
// waiting behind it. A window only from the first notice on, and in sight only while it has
// something to say. The focus comes by the user's doing, and goes back to where it was whenever
// another notice or none is shown: no key meant for one reaches the next.
class StrisciaAvvisi final : public Finestra, public Avvisi, private GestoreSottoclasse {
public:
    // Not owned; must live as long.
    explicit StrisciaAvvisi(OsservatoreAvvisi& osservatore) : osservatore_(osservatore) {}
    StrisciaAvvisi(const StrisciaAvvisi&) = delete;
    StrisciaAvvisi& operator=(const StrisciaAvvisi&) = delete;
    ~StrisciaAvvisi() override { distruggi(); }

    // Where it is to live, last among its parent's children, in a font that is the caller's, for a
    // resolution. What was said before shows now. Done again, it takes on another
    // font and resolution; the caller then asks for the height.
    void prepara(HWND padre, HFONT carattere, Risoluzione dpi);

    void avvisa(Avviso avviso) override;
    void ritira(std::wstring_view argomento) override;

    // Whether a notice is shown, and what room it takes, in pixels: 0 when none is.
    [[nodiscard]] bool inVista() const noexcept { return mostrato_ != 0; }
    [[nodiscard]] int altezza() const noexcept { return inVista() ? altezza_ : 0; }
    // Left, top, width and height in pixels of the parent.
    void disponi(const RECT& posto) noexcept;

    // What a key of the parent meets before anything else: F6 goes to the first button and back,
    // Esc closes the notice that has the focus. True when it was one of these.
    [[nodiscard]] bool anticipa(const MSG& messaggio);

    // Colours and metrics read anew, after the user changed them.
    void aggiornaAspetto();

private:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    LRESULT messaggioDi(HWND controllo, UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override { osservatore_.onEccezione(); }

    void creaControlli();
    // Shows the first notice of the queue, if it is not shown yet.
    void aggiorna();
    void riempi();
    void premuto(int id);
    void chiudi();

    void misura() noexcept;
    void disponiControlli();
    void dipingi(HDC dc) const noexcept;
    [[nodiscard]] SIZE estensione(const std::wstring& testo) const noexcept;
    [[nodiscard]] int scala(int pixel) const noexcept { return dpi_.daProgetto(pixel); }

    [[nodiscard]] HWND controllo(int id) const noexcept { return GetDlgItem(hwnd(), id); }
    [[nodiscard]] bool haFuoco() const noexcept;
    void rendiFuoco() const noexcept;

    OsservatoreAvvisi& osservatore_;
    CodaAvvisi coda_;
    Suggerimenti suggerimenti_;
    ManigliaIcona croce_;
    std::array<Sottoclasse, 3> sottoclassi_;
    HWND padre_ = nullptr;
    HFONT carattere_ = nullptr;
    Risoluzione dpi_;
    int altezzaTesto_ = 0;
    int altezza_ = 0;
    // The number of the notice that is shown, and of the one that the last press began on.
    int mostrato_ = 0;
    int premuto_ = 0;
    // Where the focus was before it came.
    HWND prima_ = nullptr;
};
