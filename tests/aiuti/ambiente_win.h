#pragma once

#include <optional>
#include <string>

// An environment variable of this process, for the life of the object; then what it was comes back.
class VariabileAmbiente {
public:
    VariabileAmbiente(std::wstring nome, const std::wstring& valore);
    VariabileAmbiente(const VariabileAmbiente&) = delete;
    VariabileAmbiente& operator=(const VariabileAmbiente&) = delete;
    ~VariabileAmbiente();

private:
    std::wstring nome_;
    std::optional<std::wstring> prima_;
};
