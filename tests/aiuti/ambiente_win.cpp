#include "tests/aiuti/ambiente_win.h"

#include <windows.h>

#include <utility>

VariabileAmbiente::VariabileAmbiente(std::wstring nome, const std::wstring& valore)
    : nome_(std::move(nome)), prima_(32768, L'\0'), cera_(false) {
    SetLastError(ERROR_SUCCESS);
    prima_.resize(
        GetEnvironmentVariableW(nome_.c_str(), prima_.data(), static_cast<DWORD>(prima_.size())));
    cera_ = GetLastError() != ERROR_ENVVAR_NOT_FOUND;
    SetEnvironmentVariableW(nome_.c_str(), valore.c_str());
}

VariabileAmbiente::~VariabileAmbiente() {
    SetEnvironmentVariableW(nome_.c_str(), cera_ ? prima_.c_str() : nullptr);
}
