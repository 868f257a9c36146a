#pragma once

#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/testi.h"

#include <string>

inline const RichiestaFile richiestaPagina{
    L"Pagina Web (*.htm; *.html)|*.htm; *.html|Tutti i File (*.*)|*.*", opzioniSalva, L".htm"};

// The main window where the recorder stands for the browser and the mail program.
class ProvaComandi : public ProvaFrmMain {
protected:
    void SetUp() override {
        for (const wchar_t* const protocollo : {L"https", L"mailto"}) {
            registratore.protocollo(protocollo);
        }
        registratore.tipo(L".htm");
        registratore.tipo(L".hlp");
    }

    // Three items, the second one selected; a clean document again.
    void riparti() {
        finestra.NuovoDocumento();
        for (const wchar_t* const nome : {L"uno", L"due", L"tre"}) {
            metti(nome);
        }
        finestra.SelezionaRiga(2);
        documento.modificato(false);
    }

    void attendiDomandaPagina(Risposta risposta, std::function<void()> intanto = {}) {
        messaggi.attendi(testi::domandaApri, testi::salvaPagina, Icona::Domanda, Pulsanti::SiNo,
                         risposta, std::move(intanto));
    }

    Registratore registratore;
};
