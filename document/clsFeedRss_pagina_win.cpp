#include "datetime/ClsUTC.h"
#include "document/clsFeedRss.h"
#include "document/paginaWeb.h"
#include "document/salvataggio_win.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/testi/ansi_win.h"
#include "support/testi/formato.h"
#include "support/utilita/koUtilitaTemporanei.h"
#include "support/windows/fileNuovo_win.h"
#include "support/windows/file_win.h"

namespace {

// The bytes are complete before the disk is touched.
void scriviPagina(const std::wstring& path, const std::wstring& testo, CustodeFile* custode) {
    const std::string byte = inAnsiHtml(testo);
    const auto scrivi = [&] {
        FileNuovo file(path);
        file.scrivi(byte);
        file.conferma();
    };
    if (fileEsiste(path)) {
        sostituisciFile(path, custode, scrivi);
    } else {
        scrivi();
    }
}

} // namespace

void clsFeedRss::CreaDocumentoHTML(const std::wstring& path, const Canale& canale,
                                   const TabellaElementi& items, CustodeFile* custode) const {
    scriviPagina(path, paginaFeed(canale, items, ClsUTC(), formatoUtente()), custode);
}

std::wstring clsFeedRss::VisualizzaItemHTML(const TabellaElementi& items,
                                            ClsCodaEliminazione& coda) const {
    const std::wstring temporaneo = koUtilitaTemporanei::GetFileTemporaneo();
    coda.Push(temporaneo);
    std::wstring pagina = temporaneo + L".htm";
    coda.Push(pagina);
    scriviPagina(pagina, paginaElementi(items, ClsUTC(), formatoUtente()), nullptr);
    return pagina;
}
