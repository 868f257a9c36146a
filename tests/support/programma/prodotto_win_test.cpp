// What Windows shows as the properties of the program's file.

#include "support/programma/prodotto.h"

#include "support/windows/file_win.h"

#include <windows.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

// A text of a file's version record, Italian and Unicode; empty when there is none.
std::wstring testoVersione(const std::wstring& file, std::wstring_view nome) {
    std::vector<std::byte> dati(GetFileVersionInfoSizeW(file.c_str(), nullptr));
    if (dati.empty() || GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(dati.size()),
                                            dati.data()) == FALSE) {
        return {};
    }
    void* testo = nullptr;
    UINT lunghezza = 0;
    const std::wstring dove = L"\\StringFileInfo\\041004B0\\" + std::wstring(nome);
    return VerQueryValueW(dati.data(), dove.c_str(), &testo, &lunghezza) == FALSE
               ? std::wstring()
               : static_cast<const wchar_t*>(testo);
}

} // namespace

TEST(Prodotto, IlFileDelProgrammaDiceNomeTitoloEVersione) {
    const std::wstring programma = cartellaProgramma() + L"\\..\\Ostrelle.exe";
    EXPECT_EQ(testoVersione(programma, L"ProductName"), L"KOOstrelle");
    EXPECT_EQ(testoVersione(programma, L"FileDescription"), L"Ostrelle");
    EXPECT_EQ(testoVersione(programma, L"OriginalFilename"), L"Ostrelle.exe");
    EXPECT_EQ(testoVersione(programma, L"CompanyName"), prodotto::creditoPagina);
    EXPECT_EQ(testoVersione(programma, L"ProductVersion"), prodotto::versione());
    EXPECT_EQ(testoVersione(programma, L"FileVersion"), prodotto::versione());
}
