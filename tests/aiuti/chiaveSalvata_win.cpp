#include "tests/aiuti/chiaveSalvata_win.h"

#include "support/maniglie_win.h"

#include <utility>

#include <gtest/gtest.h>

namespace {

const std::wstring copie = L"Software\\OstrelleProve\\Registro\\";

ChiaveRegistro apri(HKEY radice, const std::wstring& nome) {
    HKEY chiave = nullptr;
    return RegOpenKeyExW(radice, nome.c_str(), 0, KEY_READ, &chiave) == ERROR_SUCCESS
               ? ChiaveRegistro(chiave)
               : ChiaveRegistro();
}

ChiaveRegistro crea(HKEY radice, const std::wstring& nome) {
    HKEY chiave = nullptr;
    EXPECT_EQ(RegCreateKeyW(radice, nome.c_str(), &chiave), ERROR_SUCCESS);
    return ChiaveRegistro(chiave);
}

} // namespace

ChiaveSalvata::ChiaveSalvata(HKEY radice, std::wstring nome)
    : radice_(radice), nome_(std::move(nome)) {
    // A copy that is there already is of a test that crashed: it holds the true original.
    const ChiaveRegistro originale = apri(radice_, nome_);
    if (originale && !apri(HKEY_CURRENT_USER, copie + nome_)) {
        const ChiaveRegistro copia = crea(HKEY_CURRENT_USER, copie + nome_);
        EXPECT_EQ(RegCopyTreeW(originale.get(), nullptr, copia.get()), ERROR_SUCCESS);
    }
    RegDeleteTreeW(radice_, nome_.c_str());
}

ChiaveSalvata::~ChiaveSalvata() {
    RegDeleteTreeW(radice_, nome_.c_str());
    if (const ChiaveRegistro copia = apri(HKEY_CURRENT_USER, copie + nome_)) {
        const ChiaveRegistro originale = crea(radice_, nome_);
        EXPECT_EQ(RegCopyTreeW(copia.get(), nullptr, originale.get()), ERROR_SUCCESS);
        RegDeleteTreeW(HKEY_CURRENT_USER, (copie + nome_).c_str());
    }
}

void ChiaveSalvata::testo(const std::wstring& valore, const std::wstring& contenuto) const {
    grezzo(valore, REG_SZ,
           {reinterpret_cast<const char*>(contenuto.c_str()),
            (contenuto.size() + 1) * sizeof(wchar_t)});
}

void ChiaveSalvata::grezzo(const std::wstring& valore, DWORD tipo, std::string_view byte) const {
    const ChiaveRegistro chiave = crea(radice_, nome_);
    EXPECT_EQ(RegSetValueExW(chiave.get(), valore.c_str(), 0, tipo,
                             reinterpret_cast<const BYTE*>(byte.data()),
                             static_cast<DWORD>(byte.size())),
              ERROR_SUCCESS);
}
