#include "tests/aiuti/datiLocali_win.h"

#include <windows.h>

#include <array>

#include <gtest/gtest.h>

namespace {

constexpr const wchar_t* chiave =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
constexpr const wchar_t* valore = L"Local AppData";
// Where it is unless a test that was killed left its own.
constexpr const wchar_t* predefinita = L"%USERPROFILE%\\AppData\\Local";

void imposta(const std::wstring& cartella) {
    EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, chiave, valore, REG_EXPAND_SZ, cartella.c_str(),
                              static_cast<DWORD>((cartella.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
}

} // namespace

DatiLocaliProva::DatiLocaliProva(const std::wstring& cartella) : prima_(predefinita) {
    std::array<wchar_t, 1024> testo{};
    DWORD byte = sizeof testo;
    if (RegGetValueW(HKEY_CURRENT_USER, chiave, valore, RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND,
                     nullptr, testo.data(), &byte) == ERROR_SUCCESS &&
        testo.front() == L'%') {
        prima_ = testo.data();
    }
    CreateDirectoryW(cartella.c_str(), nullptr);
    imposta(cartella);
}

DatiLocaliProva::~DatiLocaliProva() {
    imposta(prima_);
}
