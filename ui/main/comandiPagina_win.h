#pragma once

#include "ui/main/servizi.h"

#include <windows.h>

class CampiCanale;
class TabellaElementi;

// What the page commands ask of the window.
class FinestraPagina {
public:
    FinestraPagina() = default;
    FinestraPagina(const FinestraPagina&) = delete;
    FinestraPagina& operator=(const FinestraPagina&) = delete;

    // The item of the grid's current row, -1 when the row shows none.
    [[nodiscard]] virtual int ElementoSelezionato() const = 0;
    // Owns what the shell shows.
    [[nodiscard]] virtual HWND finestra() const noexcept = 0;
    // Reports the exception being handled.
    virtual void MostraErrore() = 0;

protected:
    ~FinestraPagina() = default;
};

// The feed as a web page: export of all of it, preview of one item. Neither touches the document's
// state.
class ComandiPagina {
public:
    ComandiPagina(const Servizi& servizi, FinestraPagina& finestra, const CampiCanale& campi,
                  const TabellaElementi& elementi) noexcept
        : servizi_(servizi), finestra_(finestra), campi_(campi), elementi_(elementi) {}

    // Asks for the file, writes the page, offers to open it. Failures are reported.
    void EsportaHTML();

    // The selected item as a throw-away page in the browser. Failures are reported.
    void mnvisualhtml_Click();

private:
    Servizi servizi_;
    FinestraPagina& finestra_;
    const CampiCanale& campi_;
    const TabellaElementi& elementi_;
};
