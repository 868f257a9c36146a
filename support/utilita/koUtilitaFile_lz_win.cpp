#include "support/utilita/koUtilitaFile.h"

#include "support/utilita/percorso_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/fileNuovo_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <lzexpand.h>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using FileLz = Maniglia<INT, LZClose, -1>;

// The length that the header of a compressed file tells; none for any other file. Leaves the file
// at its beginning. Raises error 57 for half a header.
std::optional<std::uint64_t> lunghezzaEspansa(HANDLE file) {
    constexpr std::array<unsigned char, 9> firma{'S', 'Z', 'D', 'D', 0x88, 0xF0, 0x27, 0x33, 'A'};
    std::array<unsigned char, 14> testata{};
    DWORD letti = 0;
    if (!ReadFile(file, testata.data(), static_cast<DWORD>(testata.size()), &letti, nullptr) ||
        SetFilePointer(file, 0, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER) {
        sollevaWin32();
    }
    if (letti < firma.size() || !std::equal(firma.begin(), firma.end(), testata.begin())) {
        return std::nullopt;
    }
    if (letti < testata.size()) {
        // lz32 would copy a header that is cut short.
        solleva(errori::erroreIO);
    }
    std::uint64_t lunghezza = 0;
    std::for_each(testata.rbegin(), testata.rbegin() + 4,
                  [&lunghezza](unsigned char byte) { lunghezza = lunghezza << 8 | byte; });
    return lunghezza;
}

// lz32 knows files by the numbers of old: handles fit in them.
FileLz apriLz(ManigliaFile& file) {
    const auto numero = static_cast<INT>(reinterpret_cast<INT_PTR>(file.get()));
    const INT lz = LZInit(numero);
    if (lz < 0) {
        solleva(lz == LZERROR_GLOBALLOC ? errori::memoriaEsaurita : errori::erroreIO);
    }
    // From here on closed by lz32, whether it expands the file or reads it as it is.
    static_cast<void>(file.cedi());
    return FileLz(lz);
}

// A new file beside another, which goes away when it was not moved over it.
std::wstring accanto(const std::wstring& destinazione) {
    std::wstring nome = percorsoCompleto(destinazione);
    nome.resize(nome.find_last_of(L'\\') + 1);
    std::wstring file(MAX_PATH, L'\0');
    if (GetTempFileNameW(nome.c_str(), L"ko", 0, file.data()) == 0) {
        sollevaWin32();
    }
    file.resize(file.find(L'\0'));
    return file;
}

} // namespace

void koUtilitaFile::Decomprimi(const std::wstring& sorgente, const std::wstring& destinazione) {
    ManigliaFile ingresso(CreateFileW(sorgente.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!ingresso) {
        sollevaWin32();
    }
    const auto attesi = lunghezzaEspansa(ingresso.get());
    const FileLz lz = apriLz(ingresso);
    const std::wstring provvisorio = accanto(destinazione);
    try {
        FileNuovo uscita(provvisorio);
        std::array<char, 16384> pezzo{};
        std::uint64_t totale = 0;
        for (;;) {
            const INT letti = LZRead(lz.get(), pezzo.data(), static_cast<INT>(pezzo.size()));
            if (letti < 0) {
                solleva(errori::erroreIO);
            }
            if (letti == 0) {
                break;
            }
            totale += static_cast<std::uint64_t>(letti);
            uscita.scrivi({pezzo.data(), static_cast<std::size_t>(letti)});
        }
        // A file cut short ends like a whole one.
        if (attesi && *attesi != totale) {
            solleva(errori::erroreIO);
        }
        uscita.conferma();
        if (!MoveFileExW(provvisorio.c_str(), destinazione.c_str(), MOVEFILE_REPLACE_EXISTING)) {
            sollevaWin32();
        }
    } catch (...) {
        DeleteFileW(provvisorio.c_str());
        throw;
    }
}
