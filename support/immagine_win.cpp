#include "support/immagine_win.h"

#include "support/errore.h"
#include "support/file_win.h"

#include <olectl.h>
#include <shlwapi.h>

ComPtr<IPicture> caricaImmagine(const std::wstring& percorso) {
    if (!fileEsiste(percorso)) {
        solleva(errori::fileNonTrovato);
    }
    ComPtr<IStream> flusso;
    ComPtr<IPicture> immagine;
    if (FAILED(SHCreateStreamOnFileEx(percorso.c_str(), STGM_READ | STGM_SHARE_DENY_WRITE,
                                      FILE_ATTRIBUTE_NORMAL, FALSE, nullptr, flusso.riempi())) ||
        FAILED(OleLoadPicture(flusso.get(), 0, FALSE, IID_IPicture,
                              reinterpret_cast<void**>(immagine.riempi()))) ||
        !immagine) {
        solleva(errori::immagineNonValida);
    }
    return immagine;
}
