#include "tests/aiuti/ambiente_win.h"

#include <windows.h>

#include <utility>

namespace {

std::optional<std::wstring> variabile(const std::wstring& nome) {
    std::wstring valore(32768, L'\0');
    SetLastError(ERROR_SUCCESS);
    valore.resize(
        GetEnvironmentVariableW(nome.c_str(), valore.data(), static_cast<DWORD>(valore.size())));
    if (GetLastError() == ERROR_ENVVAR_NOT_FOUND) {
        return std::nullopt;
    }
    return valore;
}

} // namespace

VariabileAmbiente::VariabileAmbiente(std::wstring nome, const std::wstring& valore)
    : nome_(std::move(nome)), prima_(variabile(nome_)) {
    SetEnvironmentVariableW(nome_.c_str(), valore.c_str());
}

VariabileAmbiente::~VariabileAmbiente() {
    SetEnvironmentVariableW(nome_.c_str(), prima_ ? prima_->c_str() : nullptr);
}
