#pragma once

#include "ui/main/servizi.h"

class CampiCanale;
class Documento;
class FinestraPrincipale;
class Griglia;

// The feed as a web page: export of all of it, preview of one item. Neither touches the document's
// state.
class ComandiPagina {
public:
    ComandiPagina(const Servizi& servizi, FinestraPrincipale& finestra, const Documento& documento,
                  const CampiCanale& campi, const Griglia& griglia) noexcept
        : servizi_(servizi), finestra_(finestra), documento_(documento), campi_(campi),
          griglia_(griglia) {}

    // Asks for the file, writes the page, offers to open it. Failures are reported.
    void EsportaHTML();

    // The selected item as a throw-away page in the browser. Failures are reported.
    void mnvisualhtml_Click();

private:
    Servizi servizi_;
    FinestraPrincipale& finestra_;
    const Documento& documento_;
    const CampiCanale& campi_;
    const Griglia& griglia_;
};
