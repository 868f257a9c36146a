#include "support/programma/ClsCodaEliminazione.h"
#include "support/programma/prodotto.h"
#include "support/servizi/cartelleDati_win.h"
#include "support/servizi/dialoghiFile_win.h"
#include "support/servizi/impostazioni_win.h"
#include "support/servizi/messaggi_win.h"
#include "support/servizi/orologio.h"
#include "support/windows/com_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/heap_win.h"
#include "ui/dialogs/FrmEditFeed_win.h"
#include "ui/main/FrmMain_win.h"
#include "ui/main/apertura_win.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <exception>

namespace {

int esegui(int comeMostrare) {
    MessaggiWindows messaggi;
    DialoghiFileWindows dialoghi;
    OrologioSistema orologio;
    ImpostazioniRegistro impostazioni(prodotto::titolo);
    // Deletes the preview files when this scope ends, after the last window.
    ClsCodaEliminazione coda;
    EditorElementiWindows editor(messaggi, orologio);
    const CartelleDati cartelle = cartelleUtente(prodotto::titolo);
    const Servizi servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle};

    if (!FrmMain::Form_Initialize(messaggi)) {
        return 0;
    }
    Documento documento;
    FrmMain finestra(servizi, documento);
    finestra.apri(comeMostrare);
    finestra.apriDaFuori(documentoNominato(GetCommandLineW()));
    return finestra.cicloMessaggi();
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int comeMostrare) {
    heapPerPiccoliBlocchi();
    // Libraries are the system's: never the current folder's or the document's.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    try {
        const Apartamento apartamento;
        return esegui(comeMostrare);
    } catch (...) {
        const Errore errore = erroreCorrente();
        MessageBoxW(nullptr, errore.descrizione().c_str(),
                    titoli::erroreNumero(errore.numero()).c_str(), MB_ICONHAND);
        return 1;
    }
}

#ifdef __GNUC__
// The run-time library's own last words go to a console that the program does not have, and what
// writes them is a tenth of it.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl58-cpp)
namespace __gnu_cxx {
void __verbose_terminate_handler() {
    std::abort();
}
} // namespace __gnu_cxx

namespace std {
void __glibcxx_assert_fail(const char* /*file*/, int /*riga*/, const char* /*funzione*/,
                           const char* /*condizione*/) noexcept {
    std::abort();
}
} // namespace std
// NOLINTEND(bugprone-reserved-identifier,cert-dcl58-cpp)
#endif
