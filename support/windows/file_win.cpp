#include "support/windows/file_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <shlwapi.h>

#include <cwchar>

bool fileEsiste(const std::wstring& percorso) noexcept {
    WIN32_FIND_DATAW trovato{};
    const Ricerca ricerca(FindFirstFileW(percorso.c_str(), &trovato));
    if (!ricerca) {
        return false;
    }
    constexpr DWORD nascosti =
        FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    do {
        if ((trovato.dwFileAttributes & nascosti) == 0) {
            return true;
        }
    } while (FindNextFileW(ricerca.get(), &trovato));
    return false;
}

bool stessoFile(const std::wstring& uno, const std::wstring& altro) noexcept {
    const auto apri = [](const std::wstring& percorso) noexcept {
        // No access is asked for: the file may be open elsewhere, or not be ours to read.
        return ManigliaFile(CreateFileW(percorso.c_str(), 0,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
    };
    // Both stay open while their numbers are compared: a closed file's may be given to another.
    const ManigliaFile primo = apri(uno);
    const ManigliaFile secondo = apri(altro);
    BY_HANDLE_FILE_INFORMATION a{};
    BY_HANDLE_FILE_INFORMATION b{};
    return primo && secondo && GetFileInformationByHandle(primo.get(), &a) != FALSE &&
           GetFileInformationByHandle(secondo.get(), &b) != FALSE &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber &&
           a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow;
}

void cancellaFile(const std::wstring& percorso) {
    if (!DeleteFileW(percorso.c_str())) {
        sollevaWin32();
    }
}

namespace {

std::wstring percorsoProgramma() {
    std::wstring percorso(MAX_PATH, L'\0');
    for (;;) {
        const DWORD lunghezza =
            GetModuleFileNameW(nullptr, percorso.data(), static_cast<DWORD>(percorso.size()));
        if (lunghezza == 0) {
            sollevaWin32();
        }
        if (lunghezza < percorso.size()) {
            percorso.resize(lunghezza);
            return percorso;
        }
        percorso.resize(percorso.size() * 2);
    }
}

} // namespace

std::wstring cartellaProgramma() {
    std::wstring percorso = percorsoProgramma();
    PathRemoveFileSpecW(percorso.data());
    percorso.resize(std::wcslen(percorso.c_str()));
    return percorso;
}

std::wstring nomeProgramma() {
    return PathFindFileNameW(percorsoProgramma().c_str());
}
