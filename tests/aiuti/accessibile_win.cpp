#include "tests/aiuti/accessibile_win.h"

#include "support/windows/com_win.h"
#include "tests/aiuti/schermo_win.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>

namespace {

std::vector<AscoltoEventi::Evento>& eventi() {
    static std::vector<AscoltoEventi::Evento> tutti;
    return tutti;
}

[[nodiscard]] ComPtr<IAccessible> oggetto(HWND finestra) {
    // Loaded here: MinGW's import library of it brings an IID_IAccessible that is not the one.
    using Ottieni = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    static const auto ottieni = reinterpret_cast<Ottieni>(reinterpret_cast<void*>(
        GetProcAddress(LoadLibraryW(L"oleacc.dll"), "AccessibleObjectFromWindow")));
    ComPtr<IAccessible> accessibile;
    if (ottieni == nullptr || ottieni(finestra, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                      reinterpret_cast<void**>(accessibile.riempi())) != S_OK) {
        return {};
    }
    return accessibile;
}

[[nodiscard]] VARIANT seStesso() noexcept {
    VARIANT se{};
    se.vt = VT_I4;
    se.lVal = CHILDID_SELF;
    return se;
}

[[nodiscard]] long intero(const VARIANT& valore) noexcept {
    return valore.vt == VT_I4 ? valore.lVal : 0;
}

} // namespace

Accessibile accessibile(HWND finestra) {
    const ComPtr<IAccessible> trovato = oggetto(finestra);
    Accessibile detto;
    if (!trovato) {
        detto.nome = L"(no object)";
        return detto;
    }
    Bstr nome;
    detto.nome = trovato->get_accName(seStesso(), nome.riempi()) == S_OK
                     ? std::wstring(nome.testo())
                     : L"(no name)";
    Bstr valore;
    if (trovato->get_accValue(seStesso(), valore.riempi()) == S_OK) {
        detto.valore = valore.testo();
    }
    VARIANT ruolo{};
    if (trovato->get_accRole(seStesso(), &ruolo) == S_OK) {
        detto.ruolo = intero(ruolo);
    }
    VARIANT stato{};
    if (trovato->get_accState(seStesso(), &stato) == S_OK) {
        detto.stato = intero(stato);
    }
    return detto;
}

std::wstring nomeAccessibile(HWND finestra) {
    return accessibile(finestra).nome;
}

std::wstring nomeOEtichetta(HWND controllo) {
    const HWND padre = GetParent(controllo);
    // The field of a combo box bears the name of the box.
    const HWND suo = classeDi(padre) == WC_COMBOBOXW ? padre : controllo;
    if (classeDi(suo) != WC_COMBOBOXW && classeDi(suo) != DATETIMEPICK_CLASSW) {
        return nomeAccessibile(controllo);
    }
    const HWND etichetta = GetWindow(suo, GW_HWNDPREV);
    return classeDi(etichetta) == WC_STATICW ? testoDi(etichetta) : L"(no label)";
}

AscoltoEventi::AscoltoEventi(DWORD primo, DWORD ultimo)
    : gancio_(SetWinEventHook(
          primo, ultimo, nullptr,
          [](HWINEVENTHOOK, DWORD quale, HWND finestra, LONG oggetto, LONG figlio, DWORD,
             DWORD) noexcept {
              eventi().push_back({quale, finestra, oggetto, figlio});
          },
          GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT)) {
    eventi().clear();
}

AscoltoEventi::~AscoltoEventi() {
    UnhookWinEvent(gancio_);
}

const std::vector<AscoltoEventi::Evento>& AscoltoEventi::uditi() const {
    return eventi();
}

bool AscoltoEventi::udito(HWND finestra) const {
    return std::ranges::any_of(uditi(), [=](const Evento& e) { return e.finestra == finestra; });
}

std::vector<HWND> tuttiIVisibili(HWND finestra) {
    std::vector<HWND> tutti{finestra};
    EnumChildWindows(
        finestra,
        [](HWND figlia, LPARAM elenco) noexcept -> BOOL {
            if (IsWindowVisible(figlia) != FALSE) {
                reinterpret_cast<std::vector<HWND>*>(elenco)->push_back(figlia);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&tutti));
    return tutti;
}
