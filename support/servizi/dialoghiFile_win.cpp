#include "support/servizi/dialoghiFile_win.h"

#include "support/windows/comdlg32_win.h"
#include "support/windows/proprietaria_win.h"
#include "support/windows/tastiTenuti_win.h"

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

namespace {

using FunzioneDialogo = decltype(&GetOpenFileNameW);

std::wstring chiedi(const RichiestaFile& richiesta, const char* quale) {
    const auto dialogo = comdlg32<FunzioneDialogo>(quale);
    const auto errore = comdlg32<decltype(&CommDlgExtendedError)>("CommDlgExtendedError");
    const std::wstring filtro = filtroWindows(richiesta.filtro);
    const std::wstring estensione = estensioneWindows(richiesta.estensione);
    // The longest path that Windows knows.
    std::wstring percorso(32768, L'\0');
    OPENFILENAMEW dati{};
    dati.lStructSize = sizeof(dati);
    dati.hwndOwner = proprietariaDiModali();
    dati.lpstrFilter = filtro.c_str();
    dati.lpstrFile = percorso.data();
    dati.nMaxFile = static_cast<DWORD>(percorso.size());
    dati.Flags = opzioniWindows(richiesta.opzioni) | OFN_EXPLORER | OFN_NOCHANGEDIR;
    dati.lpstrDefExt = estensione.empty() ? nullptr : estensione.c_str();
    const SenzaRipetizioni guardia;
    if (!dialogo(&dati)) {
        switch (errore()) {
        case 0:
            solleva(errori::dialogoAnnullato);
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

std::uint32_t opzioniWindows(const OpzioniFile& opzioni) noexcept {
    DWORD segni = 0;
    segni |= opzioni.fileEsistente ? DWORD{OFN_FILEMUSTEXIST} : 0;
    segni |= opzioni.senzaSolaLettura ? DWORD{OFN_HIDEREADONLY} : 0;
    segni |= opzioni.chiedeSovrascrittura ? DWORD{OFN_OVERWRITEPROMPT} : 0;
    segni |= opzioni.cartellaEsistente ? DWORD{OFN_PATHMUSTEXIST} : 0;
    return segni;
}

std::wstring DialoghiFileWindows::apri(const RichiestaFile& richiesta) {
    return chiedi(richiesta, "GetOpenFileNameW");
}

std::wstring DialoghiFileWindows::salva(const RichiestaFile& richiesta) {
    return chiedi(richiesta, "GetSaveFileNameW");
}
