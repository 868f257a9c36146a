#include "tests/aiuti/registratore_win.h"

#include "support/windows/file_win.h"
#include "tests/aiuti/attesa_win.h"

#include <shlobj.h>

#include <algorithm>

#include <gtest/gtest.h>

namespace {

const std::wstring classeNostra = L"OstrelleProve.Registratore";

void scriviPredefinito(const std::wstring& chiave, const std::wstring& valore) {
    const auto byte = static_cast<DWORD>((valore.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(
        RegSetKeyValueW(HKEY_CLASSES_ROOT, chiave.c_str(), nullptr, REG_SZ, valore.c_str(), byte),
        ERROR_SUCCESS);
}

std::wstring eseguibile() {
    return cartellaProgramma() + L"\\registratore.exe";
}

std::wstring comandoRegistratore() {
    return L'"' + eseguibile() + L"\" \"%1\"";
}

} // namespace

Registratore::Registratore()
    : registrazione_(variabileRegistrazione, cartella_.file(L"lanci.txt")) {
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, L"OstrelleProveRegistratore");
    const DWORD esito = WaitForSingleObject(mutex, 120000);
    EXPECT_TRUE(esito == WAIT_OBJECT_0 || esito == WAIT_ABANDONED);
    turno_ = Maniglia<HANDLE, lascia>(mutex);
}

Registratore::~Registratore() {
    classi_.clear();
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

void Registratore::copiaIn(const std::wstring& percorso) {
    ASSERT_TRUE(CopyFileW(eseguibile().c_str(), percorso.c_str(), TRUE));
}

void Registratore::sgombra(const std::wstring& classe) {
    if (std::ranges::find(classi_, classe, &ChiaveSalvata::nome) == classi_.end()) {
        classi_.emplace_back(HKEY_CLASSES_ROOT, classe);
    } else {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, classe.c_str());
    }
}

void Registratore::tipo(const std::wstring& estensione) {
    tipo(estensione, comandoRegistratore());
}

void Registratore::tipo(const std::wstring& estensione, const std::wstring& comando) {
    sgombra(estensione);
    sgombra(classeNostra + estensione);
    scriviPredefinito(estensione, classeNostra + estensione);
    scriviPredefinito(classeNostra + estensione + L"\\shell\\open\\command", comando);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

void Registratore::nessunProgramma(const std::wstring& estensione) {
    sgombra(estensione);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

void Registratore::verboPredefinito(const std::wstring& estensione, const std::wstring& verbo) {
    const std::wstring classe = classeNostra + estensione + L"\\shell";
    scriviPredefinito(classe, verbo);
    scriviPredefinito(classe + L'\\' + verbo + L"\\command", comandoRegistratore());
}

void Registratore::protocollo(const std::wstring& nome) {
    sgombra(nome);
    scriviPredefinito(nome, L"URL:" + nome);
    RegSetKeyValueW(HKEY_CLASSES_ROOT, nome.c_str(), L"URL Protocol", REG_SZ, L"", sizeof(wchar_t));
    scriviPredefinito(nome + L"\\shell\\open\\command", comandoRegistratore());
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

std::string Registratore::righe() const {
    const std::wstring file = cartella_.file(L"lanci.txt");
    return fileEsiste(file) ? leggiTutto(file) : std::string();
}

Registratore::Lancio Registratore::attendi() {
    std::string riga;
    const bool arrivata = attendiChe([&] {
        const std::string tutte = righe();
        const auto fine = tutte.find('\n', letti_);
        if (fine == std::string::npos) {
            return false;
        }
        riga = tutte.substr(letti_, fine - letti_);
        letti_ = fine + 1;
        return true;
    });
    EXPECT_TRUE(arrivata) << "the recorder was not started";
    if (!arrivata) {
        return {};
    }
    const auto primo = riga.find('\t');
    const auto secondo = riga.find('\t', primo + 1);
    // "program", "program" "target" or "program" target
    const std::wstring comando = daUtf8(riga.substr(0, primo));
    const auto virgolette = comando.find(L'"', 1);
    EXPECT_NE(virgolette, std::wstring::npos) << riga;
    std::wstring argomento = comando.substr(std::min(comando.size(), virgolette + 2));
    if (argomento.size() > 1 && argomento.starts_with(L'"')) {
        argomento = argomento.substr(1, argomento.size() - 2);
    }
    return {comando.substr(1, virgolette - 1), argomento,
            daUtf8(riga.substr(primo + 1, secondo - primo - 1)),
            std::stoi(riga.substr(secondo + 1))};
}
