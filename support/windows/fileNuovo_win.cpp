#include "support/windows/fileNuovo_win.h"

#include "support/windows/errori_win.h"

#include <algorithm>
#include <utility>

FileNuovo::FileNuovo(std::wstring percorso)
    : percorso_(std::move(percorso)),
      file_(CreateFileW(percorso_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                        FILE_ATTRIBUTE_NORMAL, nullptr)) {
    if (!file_) {
        sollevaWin32();
    }
}

FileNuovo::~FileNuovo() {
    if (file_) {
        file_ = ManigliaFile();
        DeleteFileW(percorso_.c_str());
    }
}

void FileNuovo::scrivi(std::string_view byte) {
    // WriteFile counts in 32 bits.
    constexpr std::size_t massimo = 0x40000000;
    while (!byte.empty()) {
        const auto pezzo = static_cast<DWORD>(std::min(byte.size(), massimo));
        DWORD scritti = 0;
        if (!WriteFile(file_.get(), byte.data(), pezzo, &scritti, nullptr)) {
            sollevaWin32();
        }
        if (scritti == 0) {
            solleva(errori::discoPieno);
        }
        byte.remove_prefix(scritti);
    }
}

void FileNuovo::conferma() noexcept {
    const ManigliaFile chiuso = std::move(file_);
}

void provaCreazione(const std::wstring& percorso) {
    const ManigliaFile prova(
        CreateFileW(percorso.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    if (prova) {
        return;
    }
    const DWORD codice = GetLastError();
    if (codice != ERROR_FILE_EXISTS) {
        sollevaWin32(codice);
    }
    if ((GetFileAttributesW(percorso.c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        // What writing to a folder is answered with.
        sollevaWin32(ERROR_ACCESS_DENIED);
    }
}
