#pragma once

#include "support/programma/ClsCodaEliminazione.h"
#include "support/servizi/cartelleDati.h"
#include "support/servizi/messaggi_win.h"
#include "tests/aiuti/campi_prova_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dialoghi_finti.h"
#include "tests/aiuti/elementi_prova_win.h"
#include "tests/aiuti/impostazioni_finte.h"
#include "tests/aiuti/orologio_fermo.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/dialogs/FrmEditFeed_win.h"
#include "ui/main/FrmMain_win.h"

#include <gtest/gtest.h>

// The main window with the boxes and the editor that the program has.
class ProvaFrmMainVera : public testing::Test {
protected:
    ProvaFrmMainVera() {
        finestra.apri(SW_SHOWNORMAL);
        portaAvanti(finestra.hwnd());
    }

    // The class of message boxes and dialogs.
    static constexpr const wchar_t* boxWindows = L"#32770";

    MessaggiWindows messaggi;
    DialoghiFinti dialoghi;
    OrologioFermo orologio{DataOra::daParti(2005, 11, 15, 10, 0, 0)};
    ImpostazioniFinte impostazioni;
    ClsCodaEliminazione coda;
    EditorElementiWindows editor{messaggi, orologio};
    CartellaProva cartella;
    CartelleDati cartelle{cartella.file(L"dati\\copie"), cartella.file(L"dati\\diario")};
    Documento documento;
    FrmMain finestra{Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle},
                     documento};
    CampiProva campi{finestra};
    ConFiltro filtro{[this](MSG& msg) { return finestra.anticipa(msg); }};
};
