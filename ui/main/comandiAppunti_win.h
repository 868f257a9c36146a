#pragma once

#include "document/documento.h"

class FinestraPrincipale;
class Messaggi;

// Cut, copy and paste of items. A command that fails is reported and leaves the items as they were.
class ComandiAppunti {
public:
    // The name of the clipboard format that the program's windows give each other items in.
    static constexpr const wchar_t* formato = L"Ostrelle elemento";

    // All outlive the commands.
    ComandiAppunti(Messaggi& messaggi, FinestraPrincipale& finestra, Documento& documento) noexcept
        : messaggi_(messaggi), finestra_(finestra), documento_(documento) {}

    // Nothing where there is no such item (-1).
    void Taglia(int elemento);
    void Copia(int elemento);

    // The clipboard's item comes to stand below that one, or at the end (-1), with a guid of its
    // own; one that was cut keeps the guid it had, the first time and unless an item here bears it.
    // Nothing where the clipboard holds no item of this program.
    void Incolla(int elemento);

private:
    // Runs an action; reports its failure.
    template <class Azione>
    void riportando(Azione azione);

    Messaggi& messaggi_;
    FinestraPrincipale& finestra_;
    Documento& documento_;
};
