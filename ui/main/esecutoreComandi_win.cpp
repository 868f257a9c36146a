#include "ui/main/esecutoreComandi_win.h"

#include "support/servizi/messaggi.h"
#include "ui/main/comandi.h"

void EsecutoreComandi::esegui(int comando, int riga) {
    daSolo([&] {
        if (comando > mnrec && comando <= ultimoRecente) {
            parti_.documento.mnrec_Click(static_cast<std::size_t>(comando - mnrec));
            return;
        }
        const RigaComando* const scelto = rigaDel(comando);
        if (scelto == nullptr || scelto->esegui == nullptr) {
            return;
        }
        const int elemento = griglia_.elemento(riga);
        if (scelto->vuoleElemento && elemento < 0) {
            messaggi_.avvisa(L"E' necessario selezionare un elemento dalla griglia.",
                             titoli::attenzione, Icona::Informazione);
            return;
        }
        scelto->esegui(parti_, elemento);
    });
}
