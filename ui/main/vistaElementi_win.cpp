#include "ui/main/vistaElementi_win.h"

#include "document/elementi.h"
#include "ui/main/GUI_win.h"

void VistaElementi::elementiModificati(const Modifica& modifica, Causa /*causa*/) {
    const int cima = griglia_.rigaInCima();
    GUI::RiempiGriglia(griglia_, false);
    if (modifica.tipo == Modifica::Tipo::Spostamento) {
        griglia_.rigaInCima(cima);
    }
    GUI::SelezionaRiga(griglia_, rigaDopo(modifica));
}

void VistaElementi::elementiSostituiti() {
    GUI::RiempiGriglia(griglia_, documento_.elementi().conteggio() == 0);
}
