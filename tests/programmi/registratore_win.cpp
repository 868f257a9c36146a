// Stands in for the programs that Windows associates with documents and addresses: appends how it
// was started to the file that an environment variable names, one line for each start.

#include "tests/aiuti/registratore_win.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"

#include <windows.h>

namespace {

std::wstring cartellaCorrente() {
    std::wstring cartella(32768, L'\0');
    cartella.resize(GetCurrentDirectoryW(static_cast<DWORD>(cartella.size()), cartella.data()));
    return cartella;
}

std::wstring variabile(const wchar_t* nome) {
    std::wstring valore(32768, L'\0');
    valore.resize(GetEnvironmentVariableW(nome, valore.data(), static_cast<DWORD>(valore.size())));
    return valore;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int comeMostrare) {
    const std::string riga = inUtf8(std::wstring(GetCommandLineW()) + L'\t' + cartellaCorrente() +
                                    L'\t' + std::to_wstring(comeMostrare) + L'\n');
    const ManigliaFile file(CreateFileW(variabile(variabileRegistrazione).c_str(), FILE_APPEND_DATA,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD scritti = 0;
    const bool bene = file && WriteFile(file.get(), riga.data(), static_cast<DWORD>(riga.size()),
                                        &scritti, nullptr);
    return bene ? 0 : 1;
}
