#pragma once

#include "ui/main/servizi.h"

class CampiCanale;
class CustodeFile;
class Documento;
class FinestraPrincipale;

// The feed as a web page: export of all of it, preview of one item. Neither touches the document's
// state.
class ComandiPagina {
public:
    ComandiPagina(const Servizi& servizi, FinestraPrincipale& finestra, const Documento& documento,
                  const CampiCanale& campi, CustodeFile& custode) noexcept
        : servizi_(servizi), finestra_(finestra), documento_(documento), campi_(campi),
          custode_(custode) {}

    // Asks for the file, writes the page, offers to open it. Failures are reported.
    void EsportaHTML();

    void mnsalvahtm_Click() { EsportaHTML(); }

    // An item as a throw-away page in the browser. Failures are reported.
    void mnvisualhtml_Click(int elemento);

private:
    Servizi servizi_;
    FinestraPrincipale& finestra_;
    const Documento& documento_;
    const CampiCanale& campi_;
    CustodeFile& custode_;
};
