#include "tests/aiuti/collegamento_win.h"

#include "support/windows/com_win.h"
#include "support/windows/errori_win.h"
#include "tests/aiuti/cartella_win.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

CollegamentoLetto leggiCollegamento(const std::wstring& file) {
    const Apartamento apartamento;
    ComPtr<IShellLinkW> link;
    verifica(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                              reinterpret_cast<void**>(link.riempi())));
    ComPtr<IPersistFile> su;
    verifica(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(su.riempi())));
    verifica(su->Load(file.c_str(), STGM_READ));
    CollegamentoLetto letto;
    std::array<wchar_t, MAX_PATH> testo{};
    verifica(link->GetPath(testo.data(), MAX_PATH, nullptr, 0));
    letto.obiettivo = testo.data();
    verifica(link->GetWorkingDirectory(testo.data(), MAX_PATH));
    letto.cartella = testo.data();
    verifica(link->GetIconLocation(testo.data(), MAX_PATH, &letto.indice));
    letto.icona = testo.data();
    // The show command stands at this place of the file's header.
    letto.stile = static_cast<unsigned char>(leggiTutto(file).at(0x3C));
    return letto;
}
