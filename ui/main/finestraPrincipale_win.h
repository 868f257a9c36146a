#pragma once

#include "support/errori/trappola.h"

#include <windows.h>

#include <string_view>

// What the channel's fields and the commands ask of the main window.
class FinestraPrincipale : public Trappola {
public:
    virtual void NuovoDocumento() = 0;
    virtual void ImpostaTitolo(std::wstring_view nome) = 0;
    // The first panel of the status bar.
    virtual void ImpostaStato(std::wstring_view testo) = 0;
    [[nodiscard]] virtual std::wstring_view stato() const noexcept = 0;
    virtual void CaricaRecenti() = 0;
    virtual void RiempiGriglia(bool soloIntestazioni) = 0;
    // A row that the grid lacks changes nothing.
    virtual void SelezionaRiga(int riga) = 0;
    virtual void cmdGetSize_Click() = 0;
    virtual void mnChiudi_Click() = 0;
    // Owns what the shell shows.
    [[nodiscard]] virtual HWND proprietaria() const noexcept = 0;
    // Reports the exception being handled.
    virtual void MostraErrore() = 0;
};
