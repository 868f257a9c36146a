#pragma once

#include "document/tabellaElementi.h"
#include "ui/main/servizi.h"

#include <string>
#include <string_view>

class CampiCanale;
struct Canale;
class ElencoRecenti;
class StatoDocumento;

// What the document commands ask of the window.
class FinestraDocumento {
public:
    FinestraDocumento() = default;
    FinestraDocumento(const FinestraDocumento&) = delete;
    FinestraDocumento& operator=(const FinestraDocumento&) = delete;

    virtual void NuovoDocumento() = 0;
    virtual void ImpostaTitolo(std::wstring_view nome) = 0;
    virtual void RiempiGriglia(bool soloIntestazioni) = 0;
    // A row that the grid lacks changes nothing.
    virtual void SelezionaRiga(int riga) = 0;
    virtual void CaricaRecenti() = 0;
    // Reports the exception being handled.
    virtual void MostraErrore() = 0;

protected:
    ~FinestraDocumento() = default;
};

// New, open, save and the question before a document goes. The window is the document: channel
// values in its fields, items in its table, the path in the title's Tag.
class ComandiDocumento {
public:
    ComandiDocumento(const Servizi& servizi, FinestraDocumento& finestra, StatoDocumento& stato,
                     CampiCanale& campi, TabellaElementi& elementi, ElencoRecenti& recenti) noexcept
        : servizi_(servizi), finestra_(finestra), stato_(stato), campi_(campi), elementi_(elementi),
          recenti_(recenti) {}

    // Whether the document may be discarded: unmodified, empty, saved on Yes, or given up on No.
    [[nodiscard]] bool ChiediSalvataggio();

    // Opens a file; asks for one when `percorso` is empty. Failures are reported; True on success.
    bool Apri(const std::wstring& percorso);

    // Saves; asks for the file with `conNome` or when there is none. Failures are reported; True
    // on success.
    bool Salva(bool conNome);

    void mnNuovo_Click();

private:
    void leggi(const std::wstring& percorso);
    void riempiCampi(const std::wstring& percorso, const Canale& canale);

    Servizi servizi_;
    FinestraDocumento& finestra_;
    StatoDocumento& stato_;
    CampiCanale& campi_;
    TabellaElementi& elementi_;
    ElencoRecenti& recenti_;
};
