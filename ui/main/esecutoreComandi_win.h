#pragma once

#include "support/windows/guardia_win.h"
#include "ui/controls/griglia_win.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/finestraPrincipale_win.h"
#include "ui/main/partiComandi_win.h"

#include <windows.h>

// Runs the commands of the main window, one at a time: a message box or a file dialog runs messages
// of its own.
class EsecutoreComandi {
public:
    // All outlive it.
    EsecutoreComandi(Messaggi& messaggi, FinestraPrincipale& finestra, CampiCanale& campi,
                     Griglia& griglia, PartiComandi& parti) noexcept
        : messaggi_(messaggi), finestra_(finestra), campi_(campi), griglia_(griglia),
          parti_(parti) {}

    // Runs a command of the table, or a recent file's, on a row of the grid.
    void esegui(int comando, int riga);

    // Runs an action that may show a dialog and reports its failure; nothing while another one is
    // at work. Raises only what befell the report.
    template <class Azione>
    void daSolo(Azione azione) {
        if (occupato_) {
            return;
        }
        const Alzata occupato(occupato_);
        // The boxes of a command belong to the active window. A minimised program, or one behind
        // another that is asked about the end of the session, has none.
        if (GetActiveWindow() == nullptr) {
            SetActiveWindow(finestra_.proprietaria());
        }
        protetto(
            [&] {
                // A command does not move the focus: what it saves is what the fields show,
                // within their limits.
                campi_.conferma();
                griglia_.abbandona();
                azione();
            },
            [&] { finestra_.MostraErrore(); });
    }

private:
    Messaggi& messaggi_;
    FinestraPrincipale& finestra_;
    CampiCanale& campi_;
    Griglia& griglia_;
    PartiComandi& parti_;
    bool occupato_ = false;
};
