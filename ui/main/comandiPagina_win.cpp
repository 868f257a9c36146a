#include "ui/main/comandiPagina_win.h"

#include "document/clsFeedRss.h"
#include "document/documento.h"
#include "document/elementi.h"
#include "support/errori/errore.h"
#include "support/servizi/dialoghiFile.h"
#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/file_win.h"
#include "support/windows/guardia_win.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/canale_win.h"
#include "ui/main/finestraPrincipale_win.h"

namespace {

const RichiestaFile dlgSalvaPagina{
    L"Pagina Web (*.htm; *.html)|*.htm; *.html|Tutti i File (*.*)|*.*", opzioniSalva, L".htm"};

} // namespace

void ComandiPagina::EsportaHTML() {
    protetto(
        [&] {
            richiediElementi(documento_.elementi());
            const std::wstring percorso = servizi_.dialoghi.salva(dlgSalvaPagina);
            if (stessoFile(percorso, campi_.Tag())) {
                // The page would take the feed's place on disk, and closing would not ask.
                solleva(errori::fileGiaAperto);
            }
            {
                const Clessidra clessidra;
                clsFeedRss().CreaDocumentoHTML(percorso, raccogliCanale(campi_),
                                               documento_.elementi(), &custode_);
            }
            if (servizi_.messaggi.mostra(L"Si desidera aprire il file salvato?",
                                         L"Salva come pagina Web...", Icona::Domanda,
                                         Pulsanti::SiNo) == Risposta::Si) {
                koUtilita(servizi_.messaggi).EseguiEx(finestra_.proprietaria(), percorso);
            }
        },
        [&] { finestra_.MostraErrore(); });
}

void ComandiPagina::mnvisualhtml_Click(int elemento) {
    protetto(
        [&] {
            TabellaElementi scelto;
            scelto.riempi({documento_.elementi().elemento(elemento)});
            const std::wstring pagina = clsFeedRss().VisualizzaItemHTML(scelto, servizi_.coda);
            koUtilita(servizi_.messaggi).EseguiEx(finestra_.proprietaria(), pagina);
        },
        [&] { finestra_.MostraErrore(); });
}
