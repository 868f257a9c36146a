#include "support/utilita/koUtilita.h"

#include "support/utilita/rigaDiComando.h"
#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"
#include "support/windows/registro_win.h"

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <utility>

namespace {

constexpr const wchar_t* correnti = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";

bool nomeDiChiave(const std::wstring& nome) noexcept {
    return !nome.empty() && nome.size() <= 255 && nome.find_first_of(L'\\') == std::wstring::npos &&
           nome.find_first_of(L'\0') == std::wstring::npos;
}

void verificaNome(const std::wstring& nome) {
    if (!nomeDiChiave(nome)) {
        solleva(errori::chiamataNonValida);
    }
}

// A value of a program's key, the user's before the machine's; empty when there is none.
std::wstring diAppPaths(const std::wstring& programma, const wchar_t* valore) {
    if (!nomeDiChiave(programma)) {
        return {};
    }
    std::wstring chiave = correnti + std::wstring(L"App Paths\\") + programma;
    if (koUtilita::EstraiEstensione(programma).empty()) {
        chiave += L".exe";
    }
    for (const HKEY radice : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        if (auto testo = leggiTesto(radice, chiave, valore); testo && !testo->empty()) {
            return *testo;
        }
    }
    return {};
}

std::wstring fileRegistrato(const std::wstring& programma) {
    return fileDellaRiga(diAppPaths(programma, L""));
}

// Opens the key of a program in the list of installed ones: the machine's, that of 32-bit programs
// or the user's. The first place that has it or refuses it decides.
LSTATUS apriDisinstallazione(const std::wstring& programma, REGSAM diritti,
                             ChiaveRegistro& chiave) {
    const std::wstring nome = correnti + std::wstring(L"Uninstall\\") + programma;
    struct Posto {
        HKEY radice;
        REGSAM vista;
    };
    for (const auto& posto :
         {Posto{HKEY_LOCAL_MACHINE, KEY_WOW64_64KEY}, Posto{HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY},
          Posto{HKEY_CURRENT_USER, 0}}) {
        HKEY trovata = nullptr;
        const LSTATUS esito =
            RegOpenKeyExW(posto.radice, nome.c_str(), 0, diritti | posto.vista, &trovata);
        if (esito != ERROR_FILE_NOT_FOUND) {
            chiave = ChiaveRegistro(trovata);
            return esito;
        }
    }
    if ((diritti & KEY_SET_VALUE) == 0) {
        return ERROR_FILE_NOT_FOUND;
    }
    HKEY nuova = nullptr;
    const LSTATUS esito = RegCreateKeyExW(HKEY_LOCAL_MACHINE, nome.c_str(), 0, nullptr, 0,
                                          diritti | KEY_WOW64_64KEY, nullptr, &nuova, nullptr);
    chiave = ChiaveRegistro(nuova);
    return esito;
}

// The count of a shared file; 0 when it has none.
DWORD conto(const std::wstring& file) {
    if (file.empty()) {
        solleva(errori::chiamataNonValida);
    }
    const std::wstring chiave = correnti + std::wstring(L"SharedDLLs");
    DWORD numero = 0;
    DWORD byte = sizeof(numero);
    switch (const LSTATUS esito = RegGetValueW(HKEY_LOCAL_MACHINE, chiave.c_str(), file.c_str(),
                                               RRF_RT_DWORD, nullptr, &numero, &byte)) {
    case ERROR_SUCCESS:
        if (byte != sizeof(numero)) {
            solleva(errori::tipoNonCorrispondente);
        }
        return numero;
    case ERROR_FILE_NOT_FOUND:
        return 0;
    case ERROR_UNSUPPORTED_TYPE:
    case ERROR_INVALID_DATA:
    case ERROR_MORE_DATA:
        solleva(errori::tipoNonCorrispondente);
    default:
        sollevaWin32(static_cast<DWORD>(esito));
    }
}

// 0 takes it away.
void conto(const std::wstring& file, DWORD numero) {
    const std::wstring chiave = correnti + std::wstring(L"SharedDLLs");
    const LSTATUS esito = numero == 0
                              ? RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, chiave.c_str(), file.c_str())
                              : RegSetKeyValueW(HKEY_LOCAL_MACHINE, chiave.c_str(), file.c_str(),
                                                REG_DWORD, &numero, sizeof(numero));
    if (esito != ERROR_SUCCESS) {
        sollevaWin32(static_cast<DWORD>(esito));
    }
}

// Whether this user may write a class among those of all users, which makes it where it is missing;
// `nuova` tells so.
bool siScrive(const std::wstring& classe, bool& nuova) {
    HKEY chiave = nullptr;
    DWORD fatta = 0;
    // Asked for by name: with "all that is allowed" a class that can only be read would open too.
    const LSTATUS esito = RegCreateKeyExW(HKEY_CLASSES_ROOT, classe.c_str(), 0, nullptr, 0,
                                          KEY_WRITE, nullptr, &chiave, &fatta);
    const ChiaveRegistro padrone(chiave);
    if (esito != ERROR_SUCCESS && esito != ERROR_ACCESS_DENIED) {
        sollevaWin32(static_cast<DWORD>(esito));
    }
    nuova = fatta == REG_CREATED_NEW_KEY;
    return esito == ERROR_SUCCESS;
}

// Where this user may write both classes: among those of all users, else among the user's own. Not
// one here and one there: the user's own type would open the way for an extension that has none.
std::pair<HKEY, std::wstring> dovePerClassi(const std::wstring& tipo,
                                            const std::wstring& estensione) {
    bool nuovoTipo = false;
    bool nuovaEstensione = false;
    if (siScrive(tipo, nuovoTipo)) {
        if (siScrive(estensione, nuovaEstensione)) {
            return {HKEY_CLASSES_ROOT, L""};
        }
        if (nuovoTipo) {
            RegDeleteKeyW(HKEY_CLASSES_ROOT, tipo.c_str());
        }
    }
    return {HKEY_CURRENT_USER, L"Software\\Classes\\"};
}

} // namespace

bool koUtilita::StartApplicazione(HWND hWnd, const std::wstring& programma,
                                  const std::wstring& parametri) const {
    const std::wstring file = fileRegistrato(programma);
    if (!file.empty()) {
        const HINSTANCE esito = ShellExecuteW(hWnd, nullptr, file.c_str(), parametri.c_str(),
                                              EstraiPath(file).c_str(), SW_SHOWNORMAL);
        if (reinterpret_cast<INT_PTR>(esito) > 32) {
            return true;
        }
    }
    messaggi_.avvisa(programma + L": Applicazione non trovata.", titoli::errore, Icona::Critica);
    return false;
}

std::wstring koUtilitaRegistro::CartellaApplicazione(const std::wstring& programma) {
    const std::wstring percorsi = diAppPaths(programma, L"Path");
    std::wstring cartella = percorsi.substr(0, percorsi.find(L';'));
    if (cartella.empty()) {
        cartella = koUtilita::EstraiPath(fileRegistrato(programma));
    }
    return koUtilita::AggiungiSepDir(cartella);
}

std::uint32_t koUtilitaRegistro::SetFileShared(const std::wstring& file) {
    const DWORD numero = conto(file);
    if (numero == MAXDWORD) {
        solleva(errori::overflow);
    }
    conto(file, numero + 1);
    return numero + 1;
}

std::uint32_t koUtilitaRegistro::DecFileShared(const std::wstring& file) {
    const DWORD numero = conto(file);
    if (numero == 0) {
        return 0;
    }
    conto(file, numero - 1);
    return numero - 1;
}

std::optional<InfoDisinstallazione>
koUtilitaRegistro::GetInfoDisinstallazione(const std::wstring& programma) {
    ChiaveRegistro chiave;
    if (!nomeDiChiave(programma) ||
        apriDisinstallazione(programma, KEY_QUERY_VALUE, chiave) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const auto testo = [&chiave](const wchar_t* valore) {
        return leggiTesto(chiave.get(), L"", valore).value_or(L"");
    };
    return InfoDisinstallazione{testo(L"DisplayName"), testo(L"UninstallString")};
}

void koUtilitaRegistro::SetInfoDisinstallazione(const std::wstring& programma,
                                                const InfoDisinstallazione& info) {
    verificaNome(programma);
    ChiaveRegistro chiave;
    const LSTATUS esito = apriDisinstallazione(programma, KEY_SET_VALUE, chiave);
    if (esito != ERROR_SUCCESS) {
        sollevaWin32(static_cast<DWORD>(esito));
    }
    scriviTesto(chiave.get(), L"", L"DisplayName", info.DisplayName);
    scriviTesto(chiave.get(), L"", L"UninstallString", info.UninstallString);
}

void koUtilitaRegistro::CreaAssociazione(const std::wstring& estensione, const std::wstring& tipo,
                                         const std::wstring& descrizione,
                                         const std::wstring& programma, const std::wstring& icona) {
    const std::wstring conPunto = estensione.starts_with(L'.') ? estensione : L'.' + estensione;
    verificaNome(tipo);
    verificaNome(conPunto);
    // A lone dot is no extension, and a type must not take an extension's own key.
    if (conPunto.size() < 2 || tipo.starts_with(L'.') || programma.empty() ||
        programma.find(L'"') != std::wstring::npos) {
        solleva(errori::chiamataNonValida);
    }
    const auto dove = dovePerClassi(tipo, conPunto);
    const auto scrivi = [&dove](const std::wstring& chiave, const std::wstring& valore) {
        scriviTesto(dove.first, dove.second + chiave, L"", valore);
    };
    scrivi(tipo, descrizione);
    scrivi(tipo + L"\\Shell\\Open\\Command", L'"' + programma + L"\" \"%1\"");
    if (!icona.empty()) {
        scrivi(tipo + L"\\DefaultIcon", icona);
    }
    // Last: until here nothing that worked has changed.
    scrivi(conPunto, tipo);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}
