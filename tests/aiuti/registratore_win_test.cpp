#include "tests/aiuti/registratore_win.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

std::wstring predefinito(const std::wstring& chiave) {
    std::wstring valore(1024, L'\0');
    auto byte = static_cast<DWORD>(valore.size() * sizeof(wchar_t));
    if (RegGetValueW(HKEY_CLASSES_ROOT, chiave.c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                     valore.data(), &byte) != ERROR_SUCCESS) {
        return L"(manca)";
    }
    valore.resize(byte / sizeof(wchar_t) - 1);
    return valore;
}

} // namespace

// The other tests and the user's own prefix rely on it.
TEST(Registratore, RimetteQuelloCheCera) {
    const std::wstring comando = predefinito(L"http\\shell\\open\\command");
    const std::wstring tipo = predefinito(L".htm");
    {
        Registratore registratore;
        registratore.protocollo(L"http");
        registratore.tipo(L".htm");
        registratore.tipo(L".oprova");
        EXPECT_NE(predefinito(L"http\\shell\\open\\command"), comando);
        EXPECT_NE(predefinito(L".htm"), tipo);
        EXPECT_NE(predefinito(L".oprova"), L"(manca)");
    }
    EXPECT_EQ(predefinito(L"http\\shell\\open\\command"), comando);
    EXPECT_EQ(predefinito(L".htm"), tipo);
    EXPECT_EQ(predefinito(L".oprova"), L"(manca)");
}
