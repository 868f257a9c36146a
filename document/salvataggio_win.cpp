#include "document/salvataggio_win.h"

#include "document/custodeFile.h"
#include "support/windows/errori_win.h"
#include "support/windows/fileNuovo_win.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "support/windows/xml_win.h"

#include <algorithm>
#include <array>

namespace {

// The last bytes of a file, as many as hold the end of a document and a few line ends.
std::string coda(const std::wstring& percorso) {
    const ManigliaFile file(CreateFileW(percorso.c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    std::array<char, 64> byte{};
    LARGE_INTEGER lunghezza{};
    if (!file || !GetFileSizeEx(file.get(), &lunghezza)) {
        sollevaWin32();
    }
    LARGE_INTEGER inizio{};
    inizio.QuadPart =
        std::max<LONGLONG>(0, lunghezza.QuadPart - static_cast<LONGLONG>(byte.size()));
    DWORD letti = 0;
    if (!SetFilePointerEx(file.get(), inizio, nullptr, FILE_BEGIN) ||
        !ReadFile(file.get(), byte.data(), static_cast<DWORD>(byte.size()), &letti, nullptr)) {
        sollevaWin32();
    }
    return {byte.data(), letti};
}

} // namespace

void sostituisciFile(const std::wstring& percorso, CustodeFile* custode,
                     const std::function<void()>& scrivi) {
    if (custode == nullptr || !custode->conserva(percorso)) {
        cancellaFile(percorso);
    }
    try {
        scrivi();
    } catch (...) {
        if (custode != nullptr) {
            custode->nonSostituito(percorso);
        }
        throw;
    }
}

void sostituisciFile(const DocumentoXml& documento, const std::wstring& percorso,
                     CustodeFile* custode) {
    const auto scrivi = [&] {
        // A hidden file is no file to a listing; it is the user's all the same.
        const bool libero = GetFileAttributesW(percorso.c_str()) == INVALID_FILE_ATTRIBUTES;
        try {
            documento.salva(percorso);
            verificaIntero(percorso);
        } catch (...) {
            // Half a document is no file, and takes the room of what may be put away yet.
            if (libero) {
                DeleteFileW(percorso.c_str());
            }
            throw;
        }
    };
    if (fileEsiste(percorso)) {
        sostituisciFile(percorso, custode, scrivi);
    } else {
        // The DOM's own error for a path that cannot be written says nothing of it.
        provaCreazione(percorso);
        scrivi();
    }
}

void verificaIntero(const std::wstring& percorso) {
    std::string fine = coda(percorso);
    fine.resize(fine.find_last_not_of(" \t\r\n") + 1);
    if (!fine.ends_with("</rss>")) {
        solleva(errori::discoPieno);
    }
}
