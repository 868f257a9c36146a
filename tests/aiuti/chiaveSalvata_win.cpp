#include "tests/aiuti/chiaveSalvata_win.h"

#include "support/windows/maniglie_win.h"

#include <sddl.h>

#include <utility>

#include <gtest/gtest.h>

namespace {

const std::wstring copie = L"Software\\OstrelleProve\\Registro\\";

const std::wstring macchina = L"Software\\OstrelleProve\\Macchina";

// Keys of one name stand under several roots.
const wchar_t* nomeDi(HKEY radice) {
    return radice == HKEY_CURRENT_USER    ? L"Utente\\"
           : radice == HKEY_LOCAL_MACHINE ? L"Macchina\\"
                                          : L"Classi\\";
}

ChiaveRegistro apri(HKEY radice, const std::wstring& nome, REGSAM diritti = KEY_READ) {
    HKEY chiave = nullptr;
    return RegOpenKeyExW(radice, nome.c_str(), 0, diritti, &chiave) == ERROR_SUCCESS
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
    : radice_(radice), nome_(std::move(nome)), copia_(copie + nomeDi(radice) + nome_) {
    // A copy that is there already is of a test that crashed: it holds the true original.
    const ChiaveRegistro originale = apri(radice_, nome_);
    if (originale && !apri(HKEY_CURRENT_USER, copia_)) {
        const ChiaveRegistro copia = crea(HKEY_CURRENT_USER, copia_);
        EXPECT_EQ(RegCopyTreeW(originale.get(), nullptr, copia.get()), ERROR_SUCCESS);
    }
    RegDeleteTreeW(radice_, nome_.c_str());
}

ChiaveSalvata::~ChiaveSalvata() {
    if (apri(radice_, nome_, WRITE_DAC)) {
        permetti(L"D:(A;OICI;KA;;;WD)");
    }
    RegDeleteTreeW(radice_, nome_.c_str());
    if (const ChiaveRegistro copia = apri(HKEY_CURRENT_USER, copia_)) {
        const ChiaveRegistro originale = crea(radice_, nome_);
        EXPECT_EQ(RegCopyTreeW(copia.get(), nullptr, originale.get()), ERROR_SUCCESS);
        RegDeleteTreeW(HKEY_CURRENT_USER, copia_.c_str());
    }
}

void ChiaveSalvata::testo(const std::wstring& valore, const std::wstring& contenuto,
                          DWORD tipo) const {
    grezzo(valore, tipo,
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

void ChiaveSalvata::nega(bool nemmenoLetta) const {
    crea(radice_, nome_);
    // The owner may still change the list, and so may the destructor.
    permetti(nemmenoLetta ? L"D:P" : L"D:P(A;;KR;;;WD)");
}

void ChiaveSalvata::permetti(const wchar_t* descrittore) const {
    PSECURITY_DESCRIPTOR lista = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(descrittore, SDDL_REVISION_1,
                                                                     &lista, nullptr));
    const ChiaveRegistro chiave = apri(radice_, nome_, WRITE_DAC);
    EXPECT_EQ(RegSetKeySecurity(chiave.get(), DACL_SECURITY_INFORMATION, lista), ERROR_SUCCESS);
    LocalFree(lista);
}

MacchinaVuota::MacchinaVuota() {
    const ChiaveRegistro vuota = crea(HKEY_CURRENT_USER, macchina);
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, vuota.get()), ERROR_SUCCESS);
}

MacchinaVuota::~MacchinaVuota() {
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, macchina.c_str());
}
