#pragma once

#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilitaAvvio.h"
#include "support/utilita/koUtilitaCartelle.h"
#include "support/utilita/koUtilitaErrori.h"
#include "support/utilita/koUtilitaFile.h"
#include "support/utilita/koUtilitaFinestre.h"
#include "support/utilita/koUtilitaIni.h"
#include "support/utilita/koUtilitaNumeri.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "support/utilita/koUtilitaProcessi.h"
#include "support/utilita/koUtilitaRegistro.h"
#include "support/utilita/koUtilitaTemporanei.h"
#include "support/utilita/koUtilitaTesti.h"
#include "support/utilita/koUtilitaVersioni.h"

#include <string>
#include <string_view>

// All general helpers. The bases hold by subject what needs nobody to tell; here stands what shows
// a message, for which it has a service and no other state: make one where it is needed. Who wants
// one subject includes its base alone.
class koUtilita : public koUtilitaAvvio,
                  public koUtilitaCartelle,
                  public koUtilitaErrori,
                  public koUtilitaFile,
                  public koUtilitaFinestre,
                  public koUtilitaIni,
                  public koUtilitaNumeri,
                  public koUtilitaPercorsi,
                  public koUtilitaProcessi,
                  public koUtilitaRegistro,
                  public koUtilitaTemporanei,
                  public koUtilitaTesti,
                  public koUtilitaVersioni {
public:
    explicit koUtilita(Messaggi& messaggi) noexcept : messaggi_(messaggi) {}

    // Opens a document or an address as GoWeb does; true when Windows started the program. A
    // failure is told in a message box unless `muto`.
    // NOLINTNEXTLINE(modernize-use-nodiscard): the user was told already
    bool EseguiEx(HWND__* hWnd, const std::wstring& file, bool muto = false) const;

    // Starts a program registered under "App Paths" by its name; ".exe" may be left out. When it is
    // not registered or does not start, the name and ": Applicazione non trovata." are told.
    // NOLINTNEXTLINE(modernize-use-nodiscard): the user was told already
    bool StartApplicazione(HWND__* hWnd, const std::wstring& programma,
                           const std::wstring& parametri = {}) const;

    // Shows the exception being handled. Call it inside a catch.
    void PrintErrore() const;
    // The same with the number and, unless empty, the place in the text: "Errore 13 in X: ...",
    // titled "Errore 13".
    void PrintErroreEx(std::wstring_view dove = {}) const;

    // Whether this user may make files in a folder: tries it with "120asd12.tmp", which goes away
    // again; a file of that name that is there is opened and stays as it is. A refusal is told
    // with the title "Errore # " and the error's number.
    [[nodiscard]] bool WriteAccess(const std::wstring& cartella) const;

private:
    Messaggi& messaggi_;
};
