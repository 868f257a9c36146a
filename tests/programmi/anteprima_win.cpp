// Writes a preview the way the program does and waits, so that a test sees what is on disk while it
// runs and after it ended. Arguments: where to write the page's path, the event to wait for.

#include "document/clsFeedRss.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/windows/com_win.h"
#include "support/windows/fileNuovo_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/tabella_prova.h"

#include <windows.h>

#include <shellapi.h>

namespace {

void anteprima(const wchar_t* dove, const wchar_t* evento) {
    const Apartamento apartamento;
    ClsCodaEliminazione coda;
    TabellaElementi items;
    metti(items, CampoElemento::Titolo, 0, L"anteprima");
    const std::wstring pagina = clsFeedRss().VisualizzaItemHTML(items, coda);
    FileNuovo file(dove);
    file.scrivi(inUtf8(pagina));
    file.conferma();
    const ManigliaFile attesa(OpenEventW(SYNCHRONIZE, FALSE, evento));
    WaitForSingleObject(attesa.get(), 60000);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    int quanti = 0;
    LPWSTR* const argomenti = CommandLineToArgvW(GetCommandLineW(), &quanti);
    if (quanti != 3) {
        return 2;
    }
    try {
        anteprima(argomenti[1], argomenti[2]);
        return 0;
    } catch (const std::exception&) {
        return 1;
    }
}
