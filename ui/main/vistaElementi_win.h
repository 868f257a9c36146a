#pragma once

#include "document/documento.h"
#include "ui/controls/griglia_win.h"

// Keeps the grid up with the document's items.
class VistaElementi final : private OsservatoreDocumento {
public:
    // Both outlive it.
    VistaElementi(Documento& documento, Griglia& griglia)
        : documento_(documento), griglia_(griglia) {
        documento_.osserva(*this);
    }
    VistaElementi(const VistaElementi&) = delete;
    VistaElementi& operator=(const VistaElementi&) = delete;
    ~VistaElementi() { documento_.lascia(*this); }

private:
    void elementiModificati(const Modifica& modifica, Causa causa) override;
    void elementiSostituiti() override;

    Documento& documento_;
    Griglia& griglia_;
};
