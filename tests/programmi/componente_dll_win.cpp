// A component that registers itself and does nothing else.

#include <windows.h>

#include <string>

namespace {

const std::wstring classi = L"SOFTWARE\\Classes\\";
const std::wstring identificatore = L"{5B0B3C52-6E0D-4B0E-9B6F-0C7A3D9E1F24}";
const std::wstring nome = L"OstrelleProve.Componente";

HRESULT scrivi(const std::wstring& chiave, const std::wstring& valore) {
    return HRESULT_FROM_WIN32(static_cast<DWORD>(RegSetKeyValueW(
        HKEY_LOCAL_MACHINE, (classi + chiave).c_str(), nullptr, REG_SZ, valore.c_str(),
        static_cast<DWORD>((valore.size() + 1) * sizeof(wchar_t)))));
}

std::wstring nostroFile() {
    HMODULE noi = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&nostroFile), &noi);
    std::wstring file(MAX_PATH, L'\0');
    file.resize(GetModuleFileNameW(noi, file.data(), MAX_PATH));
    return file;
}

} // namespace

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE DllRegisterServer() {
    const HRESULT hr = scrivi(nome + L"\\CLSID", identificatore);
    return FAILED(hr) ? hr
                      : scrivi(L"CLSID\\" + identificatore + L"\\InprocServer32", nostroFile());
}

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE DllUnregisterServer() {
    const auto via = [](const std::wstring& chiave) {
        return HRESULT_FROM_WIN32(
            static_cast<DWORD>(RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classi + chiave).c_str())));
    };
    const HRESULT hr = via(L"CLSID\\" + identificatore);
    return FAILED(hr) ? hr : via(nome);
}
