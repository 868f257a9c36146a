#include "support/utilita/koUtilita.h"

#include "support/utilita/percorso_win.h"
#include "support/windows/com_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <shlobj.h>
#include <winnetwk.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

std::wstring conBarra(std::wstring cartella) {
    return koUtilita::AggiungiSepDir(cartella);
}

bool cartellaEsiste(const std::wstring& percorso) noexcept {
    const DWORD attributi = GetFileAttributesW(percorso.c_str());
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Takes away the folders of a path that was not made whole, unless it is confirmed.
class CartelleFatte {
public:
    CartelleFatte() = default;
    CartelleFatte(const CartelleFatte&) = delete;
    CartelleFatte& operator=(const CartelleFatte&) = delete;
    ~CartelleFatte() {
        std::for_each(fatte_.rbegin(), fatte_.rend(),
                      [](const std::wstring& c) { RemoveDirectoryW(c.c_str()); });
    }

    void fai(const std::wstring& cartella) {
        fatte_.reserve(fatte_.size() + 1);
        if (CreateDirectoryW(cartella.c_str(), nullptr)) {
            fatte_.push_back(cartella);
            return;
        }
        const DWORD errore = GetLastError();
        // Another program may have made it meanwhile.
        if (!cartellaEsiste(cartella)) {
            // A file in the way.
            sollevaWin32(errore == ERROR_ALREADY_EXISTS ? ERROR_ACCESS_DENIED : errore);
        }
    }
    void conferma() noexcept { fatte_.clear(); }

private:
    std::vector<std::wstring> fatte_;
};

} // namespace

void koUtilitaCartelle::CreaPercorsoDirectory(const std::wstring& percorso) {
    std::wstring intero = percorsoCompleto(percorso);
    while (!intero.empty() && intero.back() == L'\\') {
        intero.pop_back();
    }
    std::vector<std::wstring> mancanti;
    for (std::wstring passo = intero; !cartellaEsiste(passo + L'\\');) {
        mancanti.push_back(passo);
        const auto barra = passo.find_last_of(L'\\');
        if (barra == std::wstring::npos || barra < 2) {
            break;
        }
        passo.resize(barra);
    }
    CartelleFatte fatte;
    std::for_each(mancanti.rbegin(), mancanti.rend(),
                  [&fatte](const std::wstring& c) { fatte.fai(c); });
    fatte.conferma();
}

std::wstring koUtilitaCartelle::Sfoglia_Cartella(HWND hWnd, const std::wstring& titolo) {
    const Apartamento apartamento;
    BROWSEINFOW richiesta{};
    richiesta.hwndOwner = hWnd;
    richiesta.lpszTitle = titolo.c_str();
    richiesta.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    const MemoriaCom<ITEMIDLIST> scelta(SHBrowseForFolderW(&richiesta));
    std::wstring percorso(32768, L'\0');
    if (!scelta || !SHGetPathFromIDListEx(scelta.get(), percorso.data(),
                                          static_cast<DWORD>(percorso.size()), GPFIDL_DEFAULT)) {
        return {};
    }
    return conBarra(percorso.substr(0, percorso.find(L'\0')));
}

std::wstring koUtilitaCartelle::CartellaWindows() {
    return conBarra(chiediTesto(
        [](wchar_t* testo, DWORD spazio) { return GetSystemWindowsDirectoryW(testo, spazio); }));
}

std::wstring koUtilitaCartelle::GetWindowsSysDir() {
    return conBarra(chiediTesto(
        [](wchar_t* testo, DWORD spazio) { return GetSystemDirectoryW(testo, spazio); }));
}

std::wstring koUtilitaCartelle::CurDirApp() {
    return conBarra(cartellaProgramma());
}

std::wstring koUtilitaCartelle::DirectoryRete(const std::wstring& percorso) {
    if (percorso.starts_with(L"\\\\")) {
        return conBarra(percorso);
    }
    if (percorso.size() < 2 || percorso[1] != L':') {
        return {};
    }
    DWORD spazio = 0;
    const std::wstring unita = percorso.substr(0, 2);
    if (WNetGetConnectionW(unita.c_str(), nullptr, &spazio) != ERROR_MORE_DATA) {
        return {};
    }
    std::wstring rete(spazio, L'\0');
    if (WNetGetConnectionW(unita.c_str(), rete.data(), &spazio) != NO_ERROR) {
        return {};
    }
    rete.resize(rete.find(L'\0'));
    // A path without "\" behind the drive means the drive's current folder, which Windows knows.
    return conBarra(rete + percorsoCompleto(percorso).substr(2));
}

bool koUtilita::WriteAccess(const std::wstring& cartella) const {
    std::wstring file = cartella;
    AggiungiSepDir(file);
    DWORD esito = ERROR_PATH_NOT_FOUND;
    if (!file.empty()) {
        file += L"120asd12.tmp";
        const auto apri = [&file](DWORD come, DWORD alla) {
            return ManigliaFile(CreateFileW(file.c_str(),
                                            GENERIC_WRITE | (alla != 0 ? DWORD{DELETE} : 0),
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                            nullptr, come, FILE_ATTRIBUTE_NORMAL | alla, nullptr));
        };
        if (apri(CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE)) {
            return true;
        }
        esito = GetLastError();
        if (esito == ERROR_FILE_EXISTS) {
            if (apri(OPEN_EXISTING, 0)) {
                return true;
            }
            esito = GetLastError();
        }
    }
    const Errore errore = erroreWin32(esito);
    messaggi_.avvisa(errore.descrizione(), L"Errore # " + std::to_wstring(errore.numero()),
                     Icona::Critica);
    return false;
}
