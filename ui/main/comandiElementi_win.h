#pragma once

#include "document/documento.h"

class EditorElementi;
class Griglia;
class Messaggi;

// Says that a command needs an item selected in the grid.
void avvisaNessunaSelezione(Messaggi& messaggi);

// Add, edit, delete and move, on the document. A command that fails is reported and leaves the
// items as they were.
class ComandiElementi {
public:
    // All outlive the commands; the grid is asked for the selected item only. Each added item
    // leaves its date as the document's last one.
    ComandiElementi(Messaggi& messaggi, EditorElementi& editor, const Griglia& griglia,
                    Documento& documento) noexcept
        : messaggi_(messaggi), editor_(editor), griglia_(griglia), documento_(documento) {}

    void cmdAggiungi_Click();
    void cmdModifica_Click();
    void cmdCancella_Click();

    // The item at `da` ends at index `a`, the others keep their order. Raises error 9.
    void SpostaElemento(int da, int a, Causa causa) {
        documento_.applica(documento_.spostamento(da, a), causa);
    }

private:
    // Runs a command; reports its failure.
    template <class Comando>
    void esegui(Comando comando);
    // Runs `comando` with the selected item, or says that one has to be selected.
    template <class Comando>
    void conSelezionato(Comando comando);

    Messaggi& messaggi_;
    EditorElementi& editor_;
    const Griglia& griglia_;
    Documento& documento_;
};
