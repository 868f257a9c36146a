#include "support/immagini/immagine_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <olectl.h>

#include <algorithm>

namespace {

constexpr double twipsPerPollice = 1440;
constexpr double himetricPerPollice = 2540;

double pixel(HWND finestra, int asse, double twips) {
    const HDC dc = GetDC(finestra);
    const int dpi = GetDeviceCaps(dc, asse);
    ReleaseDC(finestra, dc);
    return twips * dpi / twipsPerPollice;
}

double twips(OLE_XSIZE_HIMETRIC misura) noexcept {
    return misura * twipsPerPollice / himetricPerPollice;
}

// The whole file as a stream on memory.
ComPtr<IStream> flussoDi(const std::wstring& percorso) {
    const ManigliaFile file(CreateFileW(percorso.c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        // With its folder or without, what was picked is gone.
        const DWORD codice = GetLastError();
        sollevaWin32(codice == ERROR_PATH_NOT_FOUND ? ERROR_FILE_NOT_FOUND : codice);
    }
    LARGE_INTEGER quanti{};
    if (!GetFileSizeEx(file.get(), &quanti)) {
        sollevaWin32();
    }
    const HGLOBAL memoria = GlobalAlloc(GMEM_MOVEABLE, static_cast<SIZE_T>(quanti.QuadPart));
    if (memoria == nullptr) {
        solleva(errori::memoriaEsaurita);
    }
    ComPtr<IStream> flusso;
    if (FAILED(CreateStreamOnHGlobal(memoria, TRUE, flusso.riempi()))) {
        GlobalFree(memoria);
        solleva(errori::memoriaEsaurita);
    }
    // The stream owns the memory from here on.
    auto* const inizio = static_cast<char*>(GlobalLock(memoria));
    LONGLONG scritti = 0;
    DWORD codice = ERROR_SUCCESS;
    while (scritti < quanti.QuadPart) {
        const auto pezzo =
            static_cast<DWORD>(std::min<LONGLONG>(quanti.QuadPart - scritti, 1 << 20));
        DWORD letti = 0;
        if (!ReadFile(file.get(), inizio + scritti, pezzo, &letti, nullptr)) {
            codice = GetLastError();
            break;
        }
        if (letti == 0) {
            codice = ERROR_HANDLE_EOF;
            break;
        }
        scritti += letti;
    }
    GlobalUnlock(memoria);
    if (codice != ERROR_SUCCESS) {
        sollevaWin32(codice);
    }
    return flusso;
}

} // namespace

ComPtr<IPicture> caricaImmagine(const std::wstring& percorso) {
    const ComPtr<IStream> flusso = flussoDi(percorso);
    ComPtr<IPicture> immagine;
    const HRESULT hr = OleLoadPicture(flusso.get(), 0, FALSE, IID_IPicture,
                                      reinterpret_cast<void**>(immagine.riempi()));
    if (hr == E_OUTOFMEMORY) {
        solleva(errori::memoriaEsaurita);
    }
    if (FAILED(hr) || !immagine) {
        solleva(errori::immagineNonValida);
    }
    // An empty file passes for an empty picture.
    short tipo = PICTYPE_NONE;
    if (FAILED(immagine->get_Type(&tipo)) || tipo <= PICTYPE_NONE) {
        solleva(errori::immagineNonValida);
    }
    return immagine;
}

double UnitaDiFinestra::pixelOrizzontali(double valore) const {
    return pixel(finestra_, LOGPIXELSX, valore);
}

double UnitaDiFinestra::pixelVerticali(double valore) const {
    return pixel(finestra_, LOGPIXELSY, valore);
}

double ImmagineNascosta::Width() const {
    OLE_XSIZE_HIMETRIC larghezza = 0;
    if (immagine_) {
        verifica(immagine_->get_Width(&larghezza));
    }
    return twips(larghezza);
}

double ImmagineNascosta::Height() const {
    OLE_YSIZE_HIMETRIC altezza = 0;
    if (immagine_) {
        verifica(immagine_->get_Height(&altezza));
    }
    return twips(altezza);
}
