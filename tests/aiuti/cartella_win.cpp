#include "tests/aiuti/cartella_win.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/campioni.h"

#include <windows.h>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

CartellaProva::CartellaProva() {
    static unsigned numero = 0;
    ++numero;
    const auto base = std::filesystem::temp_directory_path();
    // The time too: a process of the same number that was killed may have left a folder, and one
    // with paths too long for remove_all stays.
    const auto cartella =
        base / (L"prova" + std::to_wstring(GetCurrentProcessId()) + L"_" + std::to_wstring(numero) +
                L"_" + std::to_wstring(GetTickCount64()));
    std::filesystem::create_directories(cartella);
    percorso_ = cartella.wstring();
}

CartellaProva::~CartellaProva() {
    std::error_code errore;
    // Stepped by hand: the ++ of a range loop throws where a path is too long.
    std::filesystem::recursive_directory_iterator voce(percorso_, errore);
    for (; !errore && voce != std::filesystem::recursive_directory_iterator();
         voce.increment(errore)) {
        SetFileAttributesW(voce->path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    std::filesystem::remove_all(percorso_, errore);
}

std::wstring CartellaProva::file(std::wstring_view nome) const {
    return percorso_ + L'\\' + std::wstring(nome);
}

std::wstring CartellaProva::scrivi(std::wstring_view nome, std::string_view contenuto) const {
    std::wstring percorso = file(nome);
    std::ofstream uscita(std::filesystem::path(percorso), std::ios::binary);
    uscita.write(contenuto.data(), static_cast<std::streamsize>(contenuto.size()));
    EXPECT_TRUE(uscita.good()) << inUtf8(percorso);
    return percorso;
}

std::string leggiTutto(const std::wstring& percorso) {
    std::ifstream ingresso(std::filesystem::path(percorso), std::ios::binary | std::ios::ate);
    EXPECT_TRUE(ingresso.good()) << inUtf8(percorso);
    std::string letto(ingresso ? static_cast<std::size_t>(ingresso.tellg()) : 0U, '\0');
    ingresso.seekg(0);
    ingresso.read(letto.data(), static_cast<std::streamsize>(letto.size()));
    return letto;
}

std::wstring campione(std::wstring_view nome) {
    return daUtf8(cartellaCampioni) + L'/' + std::wstring(nome);
}

std::string inUtf8(std::wstring_view testo) {
    const auto lunghezza = static_cast<int>(testo.size());
    std::string risultato(static_cast<std::size_t>(WideCharToMultiByte(
                              CP_UTF8, 0, testo.data(), lunghezza, nullptr, 0, nullptr, nullptr)),
                          '\0');
    WideCharToMultiByte(CP_UTF8, 0, testo.data(), lunghezza, risultato.data(),
                        static_cast<int>(risultato.size()), nullptr, nullptr);
    return risultato;
}

std::wstring daUtf8(std::string_view testo) {
    const auto lunghezza = static_cast<int>(testo.size());
    std::wstring risultato(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, testo.data(),
                                                                        lunghezza, nullptr, 0)),
                           L'\0');
    MultiByteToWideChar(CP_UTF8, 0, testo.data(), lunghezza, risultato.data(),
                        static_cast<int>(risultato.size()));
    return risultato;
}
