#pragma once

#include "datetime/ClsUTC.h"
#include "document/tabellaElementi.h"
#include "support/testi/formato.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The grid as rows. Row 0 is the header, row r shows item r - 1; the last column holds the item's
// index as text. Which rows there are is decided by `elenca` and `completa`; their texts are made
// from the table when they are asked for, so that nothing here costs per stored item.
class RigheGriglia {
public:
    // Filler rows are added up to this many, the header included.
    static constexpr int minime = 50;

    // The table is not owned and must live as long.
    explicit RigheGriglia(const TabellaElementi& tabella) noexcept : tabella_(tabella) {}

    // Only the header stays: these captions and, past them, columns without one. The last of the
    // `colonne` columns (at least 1) is the index's.
    void intesta(std::vector<std::wstring> titoli, int colonne);
    // After the header, a row for each item that the table has now. Dates are shown in `formato`.
    void elenca(const ClsUTC& utc, FormatoLocale formato);
    // Whether `elenca` with these would show the same dates as the last one did.
    [[nodiscard]] bool stesseDate(const ClsUTC& utc, const FormatoLocale& formato) const noexcept {
        return utc_ && utc_->leggeCome(utc) && formato_ == formato;
    }
    // Filler rows: a blank in each cell, "-1" as index.
    void completa() noexcept;

    // Whether the header has these captions.
    [[nodiscard]] bool intestate(const std::vector<std::wstring>& titoli,
                                 int colonne) const noexcept {
        return colonne_ == colonne && titoli_ == titoli;
    }
    // How many items the last `elenca` found.
    [[nodiscard]] int elementi() const noexcept { return elementi_; }
    // The header included.
    [[nodiscard]] int righe() const noexcept { return righe_; }
    [[nodiscard]] int colonne() const noexcept { return colonne_; }

    // The text of a cell, the whole of it; empty outside the grid.
    [[nodiscard]] std::wstring cella(int riga, int colonna) const;
    // The item of a row; -1 for the header, a filler row, a row outside the grid and a row whose
    // item the table has no more.
    [[nodiscard]] int elemento(int riga) const noexcept;
    // The last row with an item; 0 when there is none.
    [[nodiscard]] int ultima() const noexcept;

    // What a row shows of its item in two lines, each of at most about `massimo` characters.
    struct Righe {
        std::wstring titolo;
        std::wstring descrizione;
    };
    [[nodiscard]] Righe contenuto(int riga, std::size_t massimo) const;

    // The texts that a row shows of its item, by number: date, title, description. Whole, but for
    // outer blanks and tabs.
    static constexpr std::size_t testi = 3;
    [[nodiscard]] std::wstring intero(int riga, std::size_t quale) const;

    // The row, from a row on and around, whose item's title begins with these letters (see
    // `iniziaCon`); 0 when there is none.
    [[nodiscard]] int cheIniziaCon(std::wstring_view lettere, int daRiga) const;

private:
    [[nodiscard]] std::wstring dataOra(int elemento) const;
    [[nodiscard]] std::wstring_view campo(CampoElemento campo, int elemento) const;

    const TabellaElementi& tabella_;
    std::optional<ClsUTC> utc_;
    FormatoLocale formato_;
    std::vector<std::wstring> titoli_;
    int colonne_ = 1;
    int elementi_ = 0;
    int righe_ = 1;
};

// A text on one line: without outer blanks, four blanks for each tab, one for each line break, and
// an ellipsis after the first `massimo` characters when there are more.
[[nodiscard]] std::wstring inUnaRiga(std::wstring_view testo, std::size_t massimo);

// The widths of the columns, in twips: with a first width, the first column has it and the others
// share what it leaves of the grid's width (all but the index column fit); without, all are equal.
// Room for the scroll bar is kept free. Never negative. Raises error 11 when no column is left to
// share the room.
[[nodiscard]] std::vector<double> larghezzeColonne(double larghezzaGriglia, int colonne,
                                                   std::optional<double> prima);
