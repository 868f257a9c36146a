#pragma once

#include "document/storia.h"
#include "ui/main/comandiAiuto_win.h"
#include "ui/main/comandiAppunti_win.h"
#include "ui/main/comandiDocumento_win.h"
#include "ui/main/comandiElementi_win.h"
#include "ui/main/comandiPagina_win.h"
#include "ui/main/comandiRicerca_win.h"
#include "ui/main/finestraPrincipale_win.h"

// What the rows of the table of commands work with.
struct PartiComandi {
    // Goes a step back or forth in what was done to the items, and says which.
    void ripercorri(std::wstring (Storia::*passo)()) {
        if (const std::wstring fatto = (storia.*passo)(); !fatto.empty()) {
            finestra.ImpostaStato(fatto);
        }
    }

    FinestraPrincipale& finestra;
    Storia& storia;
    ComandiDocumento documento;
    ComandiElementi elementi;
    ComandiPagina pagina;
    ComandiAiuto aiuto;
    ComandiAppunti appunti;
    ComandiRicerca ricerca;
};
