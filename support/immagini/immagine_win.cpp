#include "support/immagini/immagine_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"

#include <olectl.h>
#include <shlwapi.h>

#include <algorithm>

namespace {

constexpr double himetricPerPollice = 2540;

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

// Raises 481 when it is no picture.
ComPtr<IPicture> carica(IStream& flusso) {
    ComPtr<IPicture> immagine;
    const HRESULT hr = OleLoadPicture(&flusso, 0, FALSE, IID_IPicture,
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

} // namespace

ComPtr<IPicture> caricaImmagine(const std::wstring& percorso) {
    return carica(*flussoDi(percorso).get());
}

ComPtr<IPicture> caricaImmagine(int risorsa, const wchar_t* tipo) {
    const HMODULE modulo = GetModuleHandleW(nullptr);
    const HRSRC trovata = FindResourceW(modulo, MAKEINTRESOURCEW(risorsa), tipo);
    if (trovata == nullptr) {
        solleva(errori::immagineNonValida);
    }
    const void* const dati = LockResource(LoadResource(modulo, trovata));
    const ComPtr<IStream> flusso(
        SHCreateMemStream(static_cast<const BYTE*>(dati), SizeofResource(modulo, trovata)));
    if (!flusso) {
        solleva(errori::memoriaEsaurita);
    }
    return carica(*flusso.get());
}

HBITMAP bitmapDi(IPicture& immagine) noexcept {
    short tipo = PICTYPE_NONE;
    OLE_HANDLE maniglia = 0;
    if (FAILED(immagine.get_Type(&tipo)) || tipo != PICTYPE_BITMAP ||
        FAILED(immagine.get_Handle(&maniglia))) {
        return nullptr;
    }
    // The interface narrows the handle; handles are 32 bits wide, with their sign.
    return reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(static_cast<INT>(maniglia)));
}

SIZE misuraDi(HBITMAP bitmap) noexcept {
    const auto dati = datiDi<BITMAP>(bitmap).value_or(BITMAP{});
    return {dati.bmWidth, dati.bmHeight};
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
