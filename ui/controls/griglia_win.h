#pragma once

#include "support/errori/trappola.h"
#include "support/windows/dpi_win.h"
#include "ui/controls/aspettoGriglia_win.h"
#include "ui/controls/finestra_win.h"
#include "ui/controls/puntatori_win.h"
#include "ui/controls/righeGriglia.h"
#include "ui/controls/sottoclasse_win.h"
#include "ui/controls/suggerimentoRiga_win.h"
#include "ui/controls/trascinamento.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

// What the grid tells its owner; what these calls raise too. Rows are the grid's: 0 is the header,
// r shows item r - 1. The calls are the last thing the grid does for an event, so that a box may be
// shown in them.
class OsservatoreGriglia : public Trappola {
public:
    // A double click, on that row; 0 on the header and below the last row. Outside the header the
    // row has become the current one.
    virtual void grigliaDoppioClic(int riga) = 0;
    // A dragged item was released on another. The table has to be changed and the grid filled
    // again, or neither; the grid then brings back its top row and selects the row of `a`.
    virtual void grigliaSposta(int da, int a) = 0;
    // The context menu is asked for, at a point of the screen in pixels and on that row; 0 on the
    // header and below the last row. Any other row means the current one.
    virtual void grigliaMenu(POINT punto, int riga) = 0;
};

// The item grid: a list view that asks for its texts when it shows them, in a window of its own, so
// that it lives in any parent without duties for it. One row is always the current one, and the
// only one selected. The left button drags rows. GUI_win.h fills it.
class Griglia final : public Finestra, private GestoreSottoclasse {
public:
    static constexpr const wchar_t* classe = L"OstrelleGriglia";

    // Neither is owned; both must live as long.
    Griglia(const TabellaElementi& tabella, OsservatoreGriglia& osservatore);
    Griglia(const Griglia&) = delete;
    Griglia& operator=(const Griglia&) = delete;
    ~Griglia() override;

    // Makes the windows, `posto` in pixels of the parent (left, top, width, height). `nome` is the
    // name that assistive programs give the list. Raises the run-time error of a failure.
    void creaIn(HWND padre, int id, const wchar_t* nome, const RECT& posto);

    // The list view itself.
    [[nodiscard]] HWND lista() const noexcept { return lista_; }
    // The item of a row, or -1.
    [[nodiscard]] int elemento(int riga) const noexcept { return righe_.elemento(riga); }

    // Only the header is left, with these captions; no row is the current one. The columns' widths
    // are those of `larghezzeColonne`, the first's in twips, and kept up with the grid's own.
    void intesta(std::vector<std::wstring> titoli, int colonne,
                 std::optional<double> primaLarghezza);
    void elenca(const ClsUTC& utc, FormatoLocale formato);
    void completa();
    // What a change of the table does to the rows.
    struct Cambiamento {
        // The first and the last row that show another item than before.
        int da = 1;
        int a = 1;
        int elementiInPiu = 0;
        // The row that becomes the current one, and the top row then, if it is visible below it.
        int corrente = 1;
        int cima = 1;
    };
    // Afterwards the grid is as if it had been filled anew; no more of it is painted than changed.
    void aggiorna(const Cambiamento& cambiamento, const ClsUTC& utc, FormatoLocale formato);

    // The current row; 0 when there is none.
    [[nodiscard]] int rigaCorrente() const noexcept { return rigaCorrente_; }
    // The item of the current row, or -1.
    [[nodiscard]] int ElementoSelezionato() const noexcept { return elemento(rigaCorrente_); }
    // Makes a row the current and selected one; when no part of it was visible it becomes the top
    // row (the rows below permitting). A row outside the grid changes nothing.
    void seleziona(int riga);
    // The first row in sight under the header, at least 1.
    [[nodiscard]] int rigaInCima() const noexcept;
    void rigaInCima(int riga) noexcept;

    // Gives up a drag, if there is one; for a command that begins during it.
    void abbandona() noexcept;

    // Fonts, metrics and resolution read anew, after they changed.
    void aggiornaAspetto();

    // While one lives, the grid does not redraw. They nest.
    class Sospensione {
    public:
        explicit Sospensione(Griglia& griglia) noexcept;
        Sospensione(const Sospensione&) = delete;
        Sospensione& operator=(const Sospensione&) = delete;
        ~Sospensione();

    private:
        Griglia& griglia_;
    };

private:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    LRESULT messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override { osservatore_.onEccezione(); }

    // The resolution and what follows it.
    void misura();
    void creaLista();
    // The list redraws again. From the first time on its messages and the header's pass here:
    // before, there is nothing in them for the user, and being made they hear a great many.
    void riprendi();
    void disponi();
    // The columns' widths in pixels; none for too few columns.
    [[nodiscard]] std::vector<int> larghezze() const;
    void applicaLarghezze();
    LRESULT notifica(NMHDR& avviso);
    [[nodiscard]] AspettoGriglia::Posto posto(const RECT& riga) const noexcept;
    // The mouse over the list, for the tooltip of the row that it is on.
    void suggerisci(UINT codice, WPARAM w, LPARAM l) noexcept;
    void suggerimento(NMTTDISPINFOW& richiesta);
    void disegna(const DRAWITEMSTRUCT& disegno) const;
    LRESULT messaggioLista(UINT codice, WPARAM w, LPARAM l);
    LRESULT messaggioTestata(UINT codice, WPARAM w, LPARAM l);
    LRESULT inoltra(UINT codice, WPARAM w, LPARAM l) const noexcept;

    void prendiFuoco() const noexcept;
    void premi(POINT punto);
    void muovi(POINT punto);
    void segui(POINT punto);
    void lascia();
    void menuDaTastiera();
    LRESULT tasto(UINT codice, WPARAM w, LPARAM l);
    // A key that the list works on and that may move its focus.
    LRESULT inoltraTasto(UINT codice, WPARAM w, LPARAM l, bool muove);
    // Where Page Down goes, were there no end: the last row wholly in sight, or a page below it.
    [[nodiscard]] int rigaUnaPaginaSotto() const noexcept;
    void vaiGiu(int riga);
    // The row whose focus or selection the list changed by itself becomes the current one.
    void allinea();
    // The current row no longer has these states. A list view that selects a row while another is
    // selected may look at every row there is.
    void deseleziona(UINT stati) noexcept;
    // `modo`: flags of LVM_SETITEMCOUNT.
    void numeroRighe(DWORD modo = 0) noexcept;
    // The row becomes the current and selected one, that other one the top row.
    void seleziona(int riga, int cima);
    // Repaints the rows between these two.
    void ridipingi(int da, int a) const noexcept;

    [[nodiscard]] bool visibile(int riga) const noexcept { return visibile(riga, rigaInCima()); }
    // Whether any part of it would be in sight below that top row.
    [[nodiscard]] bool visibile(int riga, int cima) const noexcept;
    [[nodiscard]] int altezzaRiga() const noexcept;
    [[nodiscard]] int altezzaTestata() const noexcept;
    // The row at a height of the list; 0 on the header, -1 below the last row.
    [[nodiscard]] int rigaA(int y) const noexcept;
    // The same for a pointer that may be anywhere: the nearest row in sight.
    [[nodiscard]] int rigaVicina(int y) const noexcept;
    [[nodiscard]] AreaRighe area() const noexcept;

    RigheGriglia righe_;
    OsservatoreGriglia& osservatore_;
    // Of the window around it, when it was last asked.
    Dpi dpi_;
    AspettoGriglia aspetto_;
    Puntatori puntatori_;
    Trascinamento trascinamento_;
    SuggerimentoRiga suggerimento_;
    std::wstring nome_;
    HWND lista_ = nullptr;
    HWND testata_ = nullptr;
    Sottoclasse sottoclasseLista_;
    Sottoclasse sottoclasseTestata_;

    std::optional<double> primaLarghezza_;
    int larghezza_ = -1;
    // Of the first column, in pixels: every row that is painted needs it.
    int larghezzaData_ = 0;
    int rigaCorrente_ = 0;
    int sospensioni_ = 0;
    // True while the grid itself changes the list's states, or the list works on a key: what the
    // list tells then is looked at afterwards.
    bool allineando_ = false;
    // The left button is down since a press on a row: the current row follows the pointer.
    bool premuto_ = false;
    // The row pressed and the top row then.
    struct Partenza {
        int riga = 0;
        int cima = 1;
    } partenza_;
    POINT pressione_{};
    POINT ultimo_{};
};
