#include "support/utilita/koUtilitaRegistro.h"

#include "support/testi/testo.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "support/utilita/koUtilitaProcessi.h"
#include "support/utilita/percorso_win.h"
#include "support/utilita/rigaDiComando.h"
#include "support/windows/com_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"
#include "support/windows/registro_win.h"

#include <windows.h>

#include <ole2.h>

#include <array>

namespace {

void chiama(const std::wstring& file, const char* procedura) {
    const Apartamento apartamento;
    // The library's own libraries stand beside it.
    const Libreria libreria(LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
    if (!libreria) {
        sollevaWin32();
    }
    using Procedura = HRESULT(STDAPICALLTYPE*)();
    const auto registra = funzione<Procedura>(libreria.get(), procedura);
    if (registra == nullptr) {
        solleva(errori::proprietaNonSupportata);
    }
    verifica(registra());
}

void eseguiRegistrazione(const std::wstring& file, const char* procedura, const wchar_t* opzione) {
    const std::wstring percorso = percorsoCompleto(file);
    const std::wstring estensione = maiuscolo(koUtilitaPercorsi::EstraiEstensione(percorso));
    const bool programma = estensione == L".EXE";
    if (!programma && estensione != L".DLL" && estensione != L".OCX") {
        solleva(errori::chiamataNonValida);
    }
    if (GetFileAttributesW(percorso.c_str()) == INVALID_FILE_ATTRIBUTES) {
        sollevaWin32();
    }
    if (!programma) {
        chiama(percorso, procedura);
    } else if (koUtilitaProcessi::ShellSospensiva(L'"' + percorso + L"\" " + opzione) != 0U) {
        solleva(errori::erroreIO);
    }
}

// What stands under the key of a component's class, the 64-bit one before the 32-bit one; empty
// when there is none.
std::wstring diClasse(const std::wstring& componente, const wchar_t* chiave) {
    CLSID clsid{};
    std::array<wchar_t, 39> testo{};
    if (componente.empty() || FAILED(CLSIDFromString(componente.c_str(), &clsid)) ||
        StringFromGUID2(clsid, testo.data(), static_cast<int>(testo.size())) == 0) {
        return {};
    }
    const std::wstring nome = std::wstring(L"Clsid\\") + testo.data() + chiave;
    for (const REGSAM vista : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
        HKEY trovata = nullptr;
        if (RegOpenKeyExW(HKEY_CLASSES_ROOT, nome.c_str(), 0, KEY_QUERY_VALUE | vista, &trovata) ==
            ERROR_SUCCESS) {
            const ChiaveRegistro padrone(trovata);
            if (auto file = leggiTesto(trovata, L"", L""); file && !file->empty()) {
                return *file;
            }
        }
    }
    return {};
}

} // namespace

void koUtilitaRegistro::RegistraServer(const std::wstring& file) {
    eseguiRegistrazione(file, "DllRegisterServer", L"/REGSERVER");
}

void koUtilitaRegistro::DeRegistraServer(const std::wstring& file) {
    eseguiRegistrazione(file, "DllUnregisterServer", L"/UNREGSERVER");
}

std::wstring koUtilitaRegistro::PathServerOcx(const std::wstring& componente) {
    return sostituisci(diClasse(componente, L"\\InprocServer32"), L"\"", L"");
}

std::wstring koUtilitaRegistro::PathServerExe(const std::wstring& componente) {
    return fileDellaRiga(diClasse(componente, L"\\LocalServer32"));
}
