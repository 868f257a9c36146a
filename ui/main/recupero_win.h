#pragma once

#include "document/diario.h"
#include "document/diario_win.h"
#include "ui/main/servizi.h"

#include <optional>
#include <string>
#include <vector>

class Avvisi;
class CampiCanale;
class ComandiDocumento;
class ComandiElementi;
class CustodeLavoro;
class Documento;
class FinestraPrincipale;

// Offers the work that programs left unsaved when they ended without being closed, one diary after
// the other.
class Recupero {
public:
    // All outlive it.
    Recupero(const Servizi& servizi, FinestraPrincipale& finestra, Documento& documento,
             CampiCanale& campi, ComandiDocumento& comandi, ComandiElementi& elementi,
             CustodeLavoro& custode, Avvisi& avvisi) noexcept
        : servizi_(servizi), finestra_(finestra), documento_(documento), campi_(campi),
          comandi_(comandi), elementi_(elementi), custode_(custode), avvisi_(avvisi) {}

    // Says what the oldest diary tells that nobody holds and that was not looked at yet.
    void proponi();

private:
    // They give whether the diary was dealt with.
    [[nodiscard]] bool recupera();
    [[nodiscard]] bool elimina();
    void riempi(const LavoroNonSalvato& lavoro);

    void offri(const std::wstring& percorso);
    // The diary on offer is let go, and another one is looked for.
    void prossimo();

    Servizi servizi_;
    FinestraPrincipale& finestra_;
    Documento& documento_;
    CampiCanale& campi_;
    ComandiDocumento& comandi_;
    ComandiElementi& elementi_;
    CustodeLavoro& custode_;
    Avvisi& avvisi_;

    // Held, so that no other program offers it too.
    std::optional<FileDiario> offerto_;
    LetturaDiario lettura_;
    std::vector<std::wstring> visti_;
};
