#include "tests/aiuti/accessibile_win.h"

#include "support/windows/com_win.h"

#include <oleacc.h>

std::wstring nomeAccessibile(HWND finestra) {
    // Loaded here: MinGW's import library of it brings an IID_IAccessible that is not the one.
    using Ottieni = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    const HMODULE libreria = LoadLibraryW(L"oleacc.dll");
    if (libreria == nullptr) {
        return L"(no oleacc.dll)";
    }
    const auto ottieni = reinterpret_cast<Ottieni>(
        reinterpret_cast<void*>(GetProcAddress(libreria, "AccessibleObjectFromWindow")));
    ComPtr<IAccessible> accessibile;
    if (ottieni == nullptr || ottieni(finestra, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                      reinterpret_cast<void**>(accessibile.riempi())) != S_OK) {
        return L"(no object)";
    }
    VARIANT se{};
    se.vt = VT_I4;
    se.lVal = CHILDID_SELF;
    Bstr nome;
    if (accessibile->get_accName(se, nome.riempi()) != S_OK) {
        return L"(no name)";
    }
    return std::wstring(nome.testo());
}
