#include "tests/aiuti/cartellaLunga_win.h"

#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <ranges>

#include <gtest/gtest.h>

namespace {

// Taken by the system whatever its length.
std::wstring esteso(const std::wstring& percorso) {
    return L"\\\\?\\" + percorso;
}

} // namespace

CartellaLunga::CartellaLunga() {
    std::wstring percorso = base_.percorso();
    while (percorso.size() <= MAX_PATH) {
        percorso.append(1, L'\\').append(60, L'c');
        EXPECT_TRUE(CreateDirectoryW(esteso(percorso).c_str(), nullptr));
        cartelle_.push_back(percorso);
    }
}

CartellaLunga::~CartellaLunga() {
    for (const std::wstring& percorso : file_) {
        DeleteFileW(esteso(percorso).c_str());
    }
    for (const std::wstring& cartella : std::views::reverse(cartelle_)) {
        RemoveDirectoryW(esteso(cartella).c_str());
    }
}

std::wstring CartellaLunga::scrivi(std::wstring_view nome, std::string_view contenuto) {
    std::wstring percorso = cartelle_.back() + L'\\' + std::wstring(nome);
    file_.push_back(percorso);
    const ManigliaFile file(CreateFileW(esteso(percorso).c_str(), GENERIC_WRITE, 0, nullptr,
                                        CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD scritti = 0;
    EXPECT_TRUE(WriteFile(file.get(), contenuto.data(), static_cast<DWORD>(contenuto.size()),
                          &scritti, nullptr));
    return percorso;
}
