#include "support/utilita/koUtilitaRegistro.h"

#include "support/testi/testo.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "support/utilita/percorso_win.h"
#include "support/windows/com_win.h"
#include "support/windows/errori_win.h"

#include <windows.h>

#include <ole2.h>

namespace {

// One call of an object by name, with at most one argument; `esito` may be null. Raises the
// object's own error.
void invoca(IDispatch& oggetto, const wchar_t* nome, WORD modo, const VARIANT* argomento,
            VARIANT* esito) {
    std::wstring chiamato(nome);
    LPOLESTR nomi = chiamato.data();
    DISPID id = 0;
    verifica(oggetto.GetIDsOfNames(IID_NULL, &nomi, 1, LOCALE_USER_DEFAULT, &id));
    VARIANT copia{};
    DISPPARAMS parametri{};
    if (argomento != nullptr) {
        copia = *argomento; // borrowed: the callee only reads it
        parametri.rgvarg = &copia;
        parametri.cArgs = 1;
    }
    DISPID assegna = DISPID_PROPERTYPUT;
    if (modo == DISPATCH_PROPERTYPUT) {
        parametri.rgdispidNamedArgs = &assegna;
        parametri.cNamedArgs = 1;
    }
    EXCEPINFO eccezione{};
    HRESULT hr = oggetto.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, modo, &parametri, esito,
                                &eccezione, nullptr);
    if (hr == DISP_E_EXCEPTION) {
        if (eccezione.pfnDeferredFillIn != nullptr) {
            eccezione.pfnDeferredFillIn(&eccezione);
        }
        hr = FAILED(eccezione.scode) ? eccezione.scode : E_FAIL;
        Bstr origine;
        Bstr descrizione;
        Bstr aiuto;
        *origine.riempi() = eccezione.bstrSource;
        *descrizione.riempi() = eccezione.bstrDescription;
        *aiuto.riempi() = eccezione.bstrHelpFile;
        const Errore errore = erroreHresult(hr);
        throw descrizione.vista().empty() ? errore : Errore(errore.numero(), descrizione.testo());
    }
    verifica(hr);
}

void assegna(IDispatch& oggetto, const wchar_t* proprieta, const std::wstring& valore) {
    if (!valore.empty()) {
        invoca(oggetto, proprieta, DISPATCH_PROPERTYPUT, &Variante(valore).get(), nullptr);
    }
}

} // namespace

void koUtilitaRegistro::CreaCollegamento(const std::wstring& file, const Collegamento& dati) {
    // Some systems would write a shortcut that opens nothing.
    const auto troppoLungo = [](const std::wstring& testo) { return testo.size() >= MAX_PATH; };
    if (koUtilitaPercorsi::DeterminaSoloFileName(file).empty() || dati.TargetPath.empty() ||
        troppoLungo(dati.TargetPath) || troppoLungo(dati.WorkingDirectory) ||
        troppoLungo(dati.IconLocation)) {
        solleva(errori::chiamataNonValida);
    }
    constexpr std::wstring_view estensione = L".lnk";
    std::wstring percorso = percorsoCompleto(file);
    if (minuscolo(koUtilitaPercorsi::EstraiEstensione(percorso)) != estensione) {
        percorso += estensione;
    }
    const DWORD cartella = GetFileAttributesW(koUtilitaPercorsi::EstraiPath(percorso).c_str());
    if (cartella == INVALID_FILE_ATTRIBUTES || (cartella & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        solleva(errori::percorsoNonTrovato);
    }

    const Apartamento apartamento;
    CLSID clsid{};
    ComPtr<IDispatch> shell;
    if (FAILED(CLSIDFromProgID(L"WScript.Shell", &clsid)) ||
        FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(shell.riempi())))) {
        solleva(errori::creazioneOggetto);
    }
    Variante nuovo;
    invoca(*shell.get(), L"CreateShortcut", DISPATCH_METHOD, &Variante(percorso).get(),
           nuovo.riempi());
    if (nuovo.get().vt != VT_DISPATCH || nuovo.get().pdispVal == nullptr) {
        solleva(errori::automazione);
    }
    IDispatch& collegamento = *nuovo.get().pdispVal;
    assegna(collegamento, L"TargetPath", dati.TargetPath);
    assegna(collegamento, L"WorkingDirectory", dati.WorkingDirectory);
    assegna(collegamento, L"IconLocation", dati.IconLocation);
    VARIANT stile{};
    stile.vt = VT_I4;
    stile.lVal = dati.WindowStyle;
    invoca(collegamento, L"WindowStyle", DISPATCH_PROPERTYPUT, &stile, nullptr);
    invoca(collegamento, L"Save", DISPATCH_METHOD, nullptr, nullptr);
}
