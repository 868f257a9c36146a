#pragma once

#include "ui/main/recentiSistema_win.h"
#include "ui/main/servizi.h"

#include <cstddef>
#include <string>

class CampiCanale;
class CustodeCopie;
class CustodeLavoro;
struct Canale;
class Documento;
class ElencoRecenti;
class FinestraPrincipale;

// New, open, save and the question before a document goes.
class ComandiDocumento {
public:
    ComandiDocumento(const Servizi& servizi, FinestraPrincipale& finestra, Documento& documento,
                     CampiCanale& campi, ElencoRecenti& recenti, CustodeCopie& copie,
                     CustodeLavoro& lavoro) noexcept
        : servizi_(servizi), finestra_(finestra), documento_(documento), campi_(campi),
          recenti_(recenti), copie_(copie), lavoro_(lavoro) {}

    // Whether the document may be discarded: unmodified, empty, saved on Yes, or given up on No.
    [[nodiscard]] bool ChiediSalvataggio();

    // Opens a file; asks for one when `percorso` is empty. Failures are reported; true on success.
    bool Apri(const std::wstring& percorso);

    // Saves; asks for the file with `conNome` or when there is none. Failures are reported; true
    // on success.
    bool Salva(bool conNome);

    void mnNuovo_Click();
    void mnApri_Click() { Apri(L""); }
    void mnsalva_Click() { Salva(false); }
    void mnSalvaCon_Click() { Salva(true); }
    // An entry of the recent files, from 1.
    void mnrec_Click(std::size_t posizione);

    // Nothing is left to do: what waited for that is done.
    void codaVuota() noexcept { recentiSistema_.codaVuota(); }

private:
    // False when a field refused what it was given, which was told; the items are there all the
    // same. Raises what makes the file unreadable, the document then empty.
    [[nodiscard]] bool leggi(const std::wstring& percorso);
    void riempiCampi(const std::wstring& percorso, const Canale& canale);

    Servizi servizi_;
    FinestraPrincipale& finestra_;
    Documento& documento_;
    CampiCanale& campi_;
    ElencoRecenti& recenti_;
    CustodeCopie& copie_;
    CustodeLavoro& lavoro_;
    RecentiSistema recentiSistema_;
};
