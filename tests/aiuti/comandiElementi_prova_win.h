#pragma once

#include "support/errori/errore.h"
#include "tests/aiuti/custode_prova_win.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/testi.h"
#include "ui/main/GUI_win.h"
#include "ui/main/comandiElementi_win.h"
#include "ui/main/vistaElementi_win.h"

#include <string>

// A view that fails when it is told.
class VistaFallita final : public OsservatoreDocumento {
public:
    bool fallisce = false;

private:
    void elementiModificati(const Modifica& /*modifica*/, Causa /*causa*/) override {
        if (fallisce) {
            solleva(errori::memoriaEsaurita);
        }
    }
    void elementiSostituiti() override {}
};

inline const DataOra inizio = DataOra::daParti(2005, 12, 1, 9, 8, 7);

// The commands on a grid of `elementi` items.
struct Banco {
    Banco(int elementi, EditorElementi& editor)
        : griglia(elementi), comandi(messaggi, editor, griglia.documento, custode.custode) {
        griglia.documento.ultimaData(inizio);
        griglia.documento.osserva(fallita);
    }

    void attendiDomanda(Risposta risposta) {
        messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                         risposta);
    }
    [[nodiscard]] std::wstring campo(CampoElemento campo, int indice) const {
        return std::wstring(griglia.tabella(campo, indice));
    }
    [[nodiscard]] int selezionato() const { return griglia.griglia.ElementoSelezionato(); }
    // On the selected item.
    void modifica() { comandi.cmdModifica_Click(selezionato()); }
    void cancella() { comandi.cmdCancella_Click(selezionato()); }
    void seleziona(int riga) { GUI::SelezionaRiga(griglia.griglia, riga); }

    MessaggiFinti messaggi;
    GrigliaProva griglia;
    CustodeProva custode{griglia.documento};
    VistaElementi vista{griglia.documento, griglia.griglia};
    VistaFallita fallita;
    ComandiElementi comandi;
};
