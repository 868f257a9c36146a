#include "support/windows/errori_win.h"

#include "support/windows/com_win.h"

#include <new>

namespace {

Errore dellaTabella(std::int32_t numero) {
    return {numero, std::wstring(testoErrore(numero))};
}

std::int32_t numeroWin32(DWORD codice) noexcept {
    switch (codice) {
    case ERROR_FILE_NOT_FOUND:
        return errori::fileNonTrovato;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_FILENAME_EXCED_RANGE:
        return errori::percorsoNonTrovato;
    case ERROR_ACCESS_DENIED:
        return errori::accessoAlPercorso;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return errori::autorizzazioneNegata;
    case ERROR_INVALID_DRIVE:
    case ERROR_UNRECOGNIZED_VOLUME:
        return errori::unitaNonDisponibile;
    case ERROR_NOT_READY:
        return errori::discoNonPronto;
    case ERROR_DISK_FULL:
        return errori::discoPieno;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        return errori::nomeFileNonValido;
    default:
        return errori::erroreIO;
    }
}

// The run-time number an HRESULT is known under; 0 when it has none.
std::int32_t numeroHresult(HRESULT hr) noexcept {
    switch (hr) {
    case E_ACCESSDENIED:
        return errori::autorizzazioneNegata;
    case E_OUTOFMEMORY:
        return errori::memoriaEsaurita;
    case DISP_E_TYPEMISMATCH:
        return errori::tipoNonCorrispondente;
    case DISP_E_OVERFLOW:
        return errori::overflow;
    case DISP_E_BADINDEX:
        return errori::indiceFuoriIntervallo;
    case E_INVALIDARG:
        return errori::chiamataNonValida;
    case REGDB_E_CLASSNOTREG:
    case CO_E_CLASSSTRING:
        return errori::creazioneOggetto;
    default:
        break;
    }
    if (HRESULT_FACILITY(hr) == FACILITY_CONTROL) {
        return HRESULT_CODE(hr);
    }
    return 0;
}

std::wstring descrizioneDelComponente() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.riempi()) != S_OK) {
        return {};
    }
    Bstr testo;
    return SUCCEEDED(info->GetDescription(testo.riempi())) ? testo.testo() : std::wstring{};
}

} // namespace

Errore erroreWin32(DWORD codice) {
    return dellaTabella(numeroWin32(codice));
}

void sollevaWin32(DWORD codice) {
    throw erroreWin32(codice);
}

Errore erroreHresult(HRESULT hr) {
    const std::wstring detto = descrizioneDelComponente();
    const std::int32_t noto = numeroHresult(hr);
    if (noto != 0 && !testoErrore(noto).empty()) {
        return dellaTabella(noto);
    }
    return {noto != 0 ? noto : static_cast<std::int32_t>(hr),
            detto.empty() ? std::wstring(testoErrore(errori::automazione)) : detto};
}

void verifica(HRESULT hr) {
    if (FAILED(hr)) {
        throw erroreHresult(hr);
    }
}

Errore erroreCorrente() {
    try {
        throw;
    } catch (const Errore& errore) {
        return errore;
    } catch (const std::bad_alloc&) {
        return dellaTabella(errori::memoriaEsaurita);
    } catch (...) {
        return dellaTabella(errori::automazione);
    }
}
