#include "tests/aiuti/fotografia_win.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

void aggiungiChiave(HKEY radice, const std::wstring& chiave, const std::wstring& nome,
                    Fotografia& in) {
    HKEY aperta = nullptr;
    if (RegOpenKeyExW(radice, chiave.c_str(), 0, KEY_READ, &aperta) != ERROR_SUCCESS) {
        return;
    }
    const ChiaveRegistro di(aperta);
    std::array<wchar_t, 512> testo{};
    const auto lungo = [&](DWORD& quanti) {
        quanti = static_cast<DWORD>(testo.size());
        return &quanti;
    };
    DWORD spazio = 0;
    RegQueryInfoKeyW(di.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr, &spazio, nullptr, nullptr);
    std::string dati(spazio, '\0');
    DWORD quanti = 0;
    for (DWORD i = 0, tipo = 0, byte = spazio;
         RegEnumValueW(di.get(), i, testo.data(), lungo(quanti), nullptr, &tipo,
                       reinterpret_cast<BYTE*>(dati.data()), &byte) == ERROR_SUCCESS;
         ++i, byte = spazio) {
        in[nome + testo.data()] = std::to_string(tipo) + ":" + dati.substr(0, byte);
    }
    for (DWORD i = 0; RegEnumKeyExW(di.get(), i, testo.data(), lungo(quanti), nullptr, nullptr,
                                    nullptr, nullptr) == ERROR_SUCCESS;
         ++i) {
        const std::wstring sotto = nome + testo.data() + L'\\';
        in[sotto]; // its content is the default value, if there is one
        aggiungiChiave(di.get(), testo.data(), sotto, in);
    }
}

} // namespace

Fotografia fotografaCartella(const std::wstring& cartella) {
    Fotografia fotografia;
    for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella)) {
        const std::wstring nome = voce.path().wstring().substr(cartella.size() + 1);
        if (voce.is_directory()) {
            fotografia[nome + L'\\'];
        } else {
            fotografia[nome] = leggiTutto(voce.path().wstring());
        }
    }
    return fotografia;
}

Fotografia fotografaRegistro(HKEY radice, const std::wstring& chiave) {
    Fotografia fotografia;
    aggiungiChiave(radice, chiave, L"", fotografia);
    return fotografia;
}

std::string cambiamenti(const Fotografia& prima, const Fotografia& dopo,
                        const std::vector<std::wstring>& escluse) {
    std::string trovati;
    const auto segna = [&](const char* che, const std::wstring& nome) {
        if (std::none_of(escluse.begin(), escluse.end(),
                         [&](const std::wstring& e) { return nome.starts_with(e); })) {
            trovati.append(che).append(inUtf8(nome)).append("\n");
        }
    };
    for (const auto& [nome, contenuto] : dopo) {
        const auto questa = prima.find(nome);
        if (questa == prima.end()) {
            segna("+ ", nome);
        } else if (questa->second != contenuto) {
            segna("* ", nome);
        }
    }
    for (const auto& [nome, contenuto] : prima) {
        if (!dopo.contains(nome)) {
            segna("- ", nome);
        }
    }
    return trovati;
}
