#include "ui/main/comandiPagina_win.h"

#include "document/clsFeedRss.h"
#include "support/dialoghiFile.h"
#include "support/errore.h"
#include "support/file_win.h"
#include "support/koUtilita.h"
#include "support/messaggi.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/canale_win.h"
#include "ui/main/comandiElementi_win.h"
#include "ui/main/guardia_win.h"

#include <array>

namespace {

// Only what the page shows: the guid stays behind.
constexpr std::array campiPagina{CampoElemento::Titolo, CampoElemento::Link,
                                 CampoElemento::Descrizione, CampoElemento::Autore,
                                 CampoElemento::Data};

const RichiestaFile richiestaPagina{
    L"Pagina Web (*.htm; *.html)|*.htm; *.html|Tutti i File (*.*)|*.*", 2050, L".htm"};

} // namespace

void ComandiPagina::EsportaHTML() {
    protetto(
        [&] {
            richiediElementi(elementi_);
            const std::wstring percorso = servizi_.dialoghi.salva(richiestaPagina);
            if (stessoFile(percorso, campi_.Tag())) {
                // The page would take the feed's place on disk, and closing would not ask.
                solleva(errori::fileGiaAperto);
            }
            {
                const Clessidra clessidra;
                const Canale c = raccogliCanale(campi_);
                clsFeedRss().CreaDocumentoHTML(percorso, c.title, c.link, c.description, c.language,
                                               c.copyright, c.lastBuildDate, c.webMaster, c.image,
                                               elementi_);
            }
            if (servizi_.messaggi.mostra(L"Si desidera aprire il file salvato?",
                                         L"Salva come pagina Web...", Icona::Domanda,
                                         Pulsanti::SiNo) == Risposta::Si) {
                koUtilita(servizi_.messaggi).EseguiEx(finestra_.finestra(), percorso);
            }
        },
        [&] { finestra_.MostraErrore(); });
}

void ComandiPagina::mnvisualhtml_Click() {
    protetto(
        [&] {
            const int indice = finestra_.ElementoSelezionato();
            if (indice < 0) {
                avvisaNessunaSelezione(servizi_.messaggi);
                return;
            }
            TabellaElementi scelto;
            for (const CampoElemento campo : campiPagina) {
                scelto(campo, 0) = elementi_(campo, indice);
            }
            const std::wstring pagina = clsFeedRss().VisualizzaItemHTML(scelto, servizi_.coda);
            koUtilita(servizi_.messaggi).EseguiEx(finestra_.finestra(), pagina);
        },
        [&] { finestra_.MostraErrore(); });
}
