#pragma once

#include "ui/main/comandiAiuto_win.h"
#include "ui/main/comandiDocumento_win.h"
#include "ui/main/comandiElementi_win.h"
#include "ui/main/comandiPagina_win.h"
#include "ui/main/comandiRicerca_win.h"

class FinestraPrincipale;

// What the rows of the table of commands work with.
struct PartiComandi {
    FinestraPrincipale& finestra;
    ComandiDocumento documento;
    ComandiElementi elementi;
    ComandiPagina pagina;
    ComandiAiuto aiuto;
    ComandiRicerca ricerca;
};
