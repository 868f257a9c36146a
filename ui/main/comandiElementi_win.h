#pragma once

#include "document/tabellaElementi.h"
#include "support/dataora.h"

class EditorElementi;
class Messaggi;

// What the item commands ask of the window.
class FinestraElementi {
public:
    FinestraElementi() = default;
    FinestraElementi(const FinestraElementi&) = delete;
    FinestraElementi& operator=(const FinestraElementi&) = delete;

    virtual void RiempiGriglia(bool soloIntestazioni) = 0;
    // A row of the grid: row r shows item r - 1.
    virtual void SelezionaRiga(int riga) = 0;
    // The item of the grid's current row, -1 when the row shows none.
    [[nodiscard]] virtual int ElementoSelezionato() const = 0;
    virtual void ImpostaModificato() = 0;

protected:
    ~FinestraElementi() = default;
};

// Says that a command needs an item selected in the grid.
void avvisaNessunaSelezione(Messaggi& messaggi);

// Add, edit and delete, on the window's table. A command that fails is reported and leaves the
// table as it was.
class ComandiElementi {
public:
    // All outlive the commands. `ultimaData` is the local date and time proposed for a new item;
    // each added item leaves its own there.
    ComandiElementi(Messaggi& messaggi, EditorElementi& editor, FinestraElementi& finestra,
                    TabellaElementi& elementi, DataOra& ultimaData) noexcept
        : messaggi_(messaggi), editor_(editor), finestra_(finestra), elementi_(elementi),
          ultimaData_(ultimaData) {}

    void cmdAggiungi_Click();
    void cmdModifica_Click();
    void cmdCancella_Click();

    // The item at `da` ends at index `a`, the others keep their order. The table only: it neither
    // fills the grid nor counts as a modification. Raises error 9.
    void SpostaElemento(int da, int a) { elementi_.sposta(da, a); }

private:
    // Runs a command; reports its failure.
    template <class Comando>
    void esegui(Comando comando);
    // Runs `comando` with the selected item, or says that one has to be selected.
    template <class Comando>
    void conSelezionato(Comando comando);
    // After a change: the grid anew, that row selected, the document modified.
    void mostraModifica(int riga);

    Messaggi& messaggi_;
    EditorElementi& editor_;
    FinestraElementi& finestra_;
    TabellaElementi& elementi_;
    DataOra& ultimaData_;
};
