#pragma once

#include "document/diario.h"
#include "document/documento.h"

class CustodeLavoro;
class EditorElementi;
class Messaggi;

// Add, edit, delete and move, on the document. A command that fails is reported and leaves the
// items as they were.
class ComandiElementi {
public:
    // All outlive the commands. Each added item leaves its date as the document's last one.
    ComandiElementi(Messaggi& messaggi, EditorElementi& editor, Documento& documento,
                    CustodeLavoro& custode) noexcept
        : messaggi_(messaggi), editor_(editor), documento_(documento), custode_(custode) {}

    void cmdAggiungi_Click() { aggiungi(nullptr); }
    void cmdModifica_Click(int elemento) { modifica(elemento, nullptr); }
    void cmdCancella_Click(int elemento);

    // The item at `da` ends at index `a`, the others keep their order; nothing where there is no
    // such item, or no other place.
    void SpostaElemento(int da, int a, Causa causa);

    // The editor opens again on what was being written.
    void riprendi(const Bozza& bozza);

    // The last item; -1 when there is none.
    [[nodiscard]] int ultimo() const noexcept { return documento_.elementi().conteggio() - 1; }

private:
    // Runs an action; reports its failure.
    template <class Azione>
    void riportando(Azione azione);
    // Both may show texts that were being written before.
    void aggiungi(const TestiCampi* bozza);
    void modifica(int elemento, const TestiCampi* bozza);

    Messaggi& messaggi_;
    EditorElementi& editor_;
    Documento& documento_;
    CustodeLavoro& custode_;
};
