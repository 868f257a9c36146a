#include "ui/main/vistaElementi_win.h"

#include "document/elementi.h"
#include "ui/main/GUI_win.h"

#include <algorithm>

// What is to be seen afterwards is what RiempiGriglia and the selection of the row would leave, but
// only the rows that show another item are painted.
void VistaElementi::elementiModificati(const Modifica& modifica, Causa /*causa*/) {
    const int inPiu =
        static_cast<int>(modifica.dopo != nullptr) - static_cast<int>(modifica.prima != nullptr);
    auto [da, a] = std::minmax({rigaDi(modifica.indice), rigaDi(modifica.indiceDopo)});
    if (inPiu != 0) {
        // All that follow moved; one row more when the last of them is none any more.
        a = documento_.elementi().conteggio() + std::max(-inPiu, 0);
    }
    const bool spostamento = modifica.tipo == Modifica::Tipo::Spostamento;
    griglia_.aggiorna({.da = da,
                       .a = a,
                       .elementiInPiu = inPiu,
                       .corrente = rigaDopo(modifica),
                       .cima = spostamento ? griglia_.rigaInCima() : 1},
                      ClsUTC(), formatoUtente());
}

void VistaElementi::elementiSostituiti() {
    GUI::RiempiGriglia(griglia_, documento_.elementi().conteggio() == 0);
}
