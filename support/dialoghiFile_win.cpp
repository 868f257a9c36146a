#include "support/dialoghiFile_win.h"

#include "support/errore.h"

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

namespace {

using Dialogo = BOOL(WINAPI*)(OPENFILENAMEW*);

std::wstring chiedi(const RichiestaFile& richiesta, Dialogo dialogo) {
    const std::wstring filtro = filtroWindows(richiesta.filtro);
    const std::wstring estensione = estensioneWindows(richiesta.estensione);
    // The longest path that Windows knows.
    std::wstring percorso(32768, L'\0');
    OPENFILENAMEW dati{};
    dati.lStructSize = sizeof(dati);
    dati.hwndOwner = GetActiveWindow();
    dati.lpstrFilter = filtro.c_str();
    dati.lpstrFile = percorso.data();
    dati.nMaxFile = static_cast<DWORD>(percorso.size());
    dati.Flags = richiesta.opzioni | OFN_EXPLORER | OFN_NOCHANGEDIR;
    dati.lpstrDefExt = estensione.empty() ? nullptr : estensione.c_str();
    if (!dialogo(&dati)) {
        switch (CommDlgExtendedError()) {
        case 0:
            sollevaDialogoAnnullato();
        case CDERR_MEMALLOCFAILURE:
        case CDERR_MEMLOCKFAILURE:
            solleva(errori::memoriaEsaurita);
        case FNERR_INVALIDFILENAME:
        case FNERR_BUFFERTOOSMALL:
            solleva(errori::nomeFileNonValido);
        default:
            solleva(errori::chiamataNonValida);
        }
    }
    percorso.resize(percorso.find(L'\0'));
    return percorso;
}

} // namespace

std::wstring DialoghiFileWindows::apri(const RichiestaFile& richiesta) {
    return chiedi(richiesta, &GetOpenFileNameW);
}

std::wstring DialoghiFileWindows::salva(const RichiestaFile& richiesta) {
    return chiedi(richiesta, &GetSaveFileNameW);
}
