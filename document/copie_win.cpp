#include "document/copie_win.h"

#include "document/copie.h"
#include "support/utilita/koUtilitaCartelle.h"
#include "support/utilita/percorso_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using copie::Copia;

// What a folder holds, by a pattern; nothing where it does not exist.
template <class Azione>
void perOgniVoce(const std::wstring& modello, Azione azione) {
    WIN32_FIND_DATAW voce{};
    const Ricerca ricerca(FindFirstFileW(modello.c_str(), &voce));
    for (bool trovata = static_cast<bool>(ricerca); trovata;
         trovata = FindNextFileW(ricerca.get(), &voce) != FALSE) {
        azione(voce);
    }
}

std::vector<Copia> copieIn(const std::wstring& cartella) {
    std::vector<Copia> trovate;
    perOgniVoce(cartella + L"\\*", [&](const WIN32_FIND_DATAW& voce) {
        if ((voce.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            trovate.push_back({cartella, voce.cFileName,
                               (std::uint64_t{voce.nFileSizeHigh} << 32U) | voce.nFileSizeLow});
        }
    });
    return trovate;
}

ManigliaFile apri(const std::wstring& percorso) noexcept {
    return ManigliaFile(CreateFileW(percorso.c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
}

// Whether two files hold the same bytes; false when one cannot be read.
bool uguali(const std::wstring& uno, const std::wstring& altro) {
    const ManigliaFile a = apri(uno);
    const ManigliaFile b = apri(altro);
    LARGE_INTEGER lungoA{};
    LARGE_INTEGER lungoB{};
    if (!a || !b || !GetFileSizeEx(a.get(), &lungoA) || !GetFileSizeEx(b.get(), &lungoB) ||
        lungoA.QuadPart != lungoB.QuadPart) {
        return false;
    }
    constexpr DWORD pezzo = 1U << 16U;
    std::vector<char> byteA(pezzo);
    std::vector<char> byteB(pezzo);
    for (;;) {
        DWORD lettiA = 0;
        DWORD lettiB = 0;
        if (!ReadFile(a.get(), byteA.data(), pezzo, &lettiA, nullptr) ||
            !ReadFile(b.get(), byteB.data(), pezzo, &lettiB, nullptr) || lettiA != lettiB ||
            std::memcmp(byteA.data(), byteB.data(), lettiA) != 0) {
            return false;
        }
        if (lettiA == 0) {
            return true;
        }
    }
}

// A file that goes anyway need not be copied onto its own volume, which takes time and room. One
// that could not be deleted stays, and one with another name somewhere could be changed by that
// name.
bool sposta(const std::wstring& percorso, const std::wstring& copia) noexcept {
    const ManigliaFile file = apri(percorso);
    BY_HANDLE_FILE_INFORMATION dati{};
    return file && GetFileInformationByHandle(file.get(), &dati) && dati.nNumberOfLinks == 1 &&
           (dati.dwFileAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_REPARSE_POINT)) ==
               0 &&
           MoveFileExW(percorso.c_str(), copia.c_str(), 0) != FALSE;
}

// The copy is on the disk itself before the file that it was made of may go.
void scarica(const std::wstring& percorso) {
    SetFileAttributesW(percorso.c_str(), FILE_ATTRIBUTE_NORMAL);
    const ManigliaFile file(CreateFileW(percorso.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file || !FlushFileBuffers(file.get())) {
        sollevaWin32();
    }
}

} // namespace

std::optional<std::string> contenutoDi(const std::wstring& percorso) {
    const ManigliaFile file = apri(percorso);
    LARGE_INTEGER lungo{};
    if (!file || !GetFileSizeEx(file.get(), &lungo) || lungo.HighPart != 0) {
        return std::nullopt;
    }
    std::string contenuto(lungo.LowPart, '\0');
    DWORD letti = 0;
    if (!ReadFile(file.get(), contenuto.data(), lungo.LowPart, &letti, nullptr) ||
        letti != lungo.LowPart) {
        return std::nullopt;
    }
    return contenuto;
}

CopieFile::Esito CopieFile::conserva(const std::wstring& percorso, DataOra adesso,
                                     Originale originale) const {
    if (!fileEsiste(percorso)) {
        return Esito::NessunFile;
    }
    const std::wstring dove = cartella(percorso);
    const std::vector<Copia> tenute = copieIn(dove);
    const auto ultima = std::ranges::max_element(tenute, copie::piuVecchia, &Copia::nome);
    if (ultima != tenute.end() && uguali(percorso, dove + L'\\' + ultima->nome)) {
        return Esito::GiaTenuta;
    }
    Esito esito = Esito::Fatta;
    aggiungi(percorso, adesso, [&](const std::wstring& copia) {
        if (originale == Originale::PuoAndare && sposta(percorso, copia)) {
            esito = Esito::Spostata;
            return true;
        }
        if (!CopyFileW(percorso.c_str(), copia.c_str(), TRUE)) {
            return false;
        }
        scarica(copia);
        return true;
    });
    return esito;
}

void CopieFile::conserva(const std::wstring& percorso, DataOra adesso,
                         std::string_view contenuto) const {
    aggiungi(percorso, adesso, [&](const std::wstring& copia) {
        const ManigliaFile file(CreateFileW(copia.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                            FILE_ATTRIBUTE_NORMAL, nullptr));
        const auto quanti = static_cast<DWORD>(contenuto.size());
        DWORD scritti = 0;
        if (!file || !WriteFile(file.get(), contenuto.data(), quanti, &scritti, nullptr)) {
            return false;
        }
        if (scritti != quanti) {
            SetLastError(ERROR_DISK_FULL);
            return false;
        }
        return FlushFileBuffers(file.get()) != FALSE;
    });
}

// `crea` makes the copy of that name, and says whether it did.
template <class Crea>
void CopieFile::aggiungi(const std::wstring& percorso, DataOra adesso, Crea crea) const {
    const std::wstring dove = cartella(percorso);
    koUtilitaCartelle::CreaPercorsoDirectory(dove);
    const std::wstring ora = oraPerNomi(adesso);
    for (int numero = 1;; ++numero) {
        const std::wstring copia = dove + L'\\' + copie::nomeCopia(ora, numero, percorso);
        if (crea(copia)) {
            break;
        }
        const DWORD codice = GetLastError();
        if (codice != ERROR_FILE_EXISTS && codice != ERROR_ALREADY_EXISTS) {
            // Half a copy would pass for one.
            DeleteFileW(copia.c_str());
            sollevaWin32(codice);
        }
    }
    sfoltisci();
}

std::wstring CopieFile::cartella(const std::wstring& percorso) const {
    return radice_ + L'\\' + copie::nomeCartella(percorsoCompleto(percorso));
}

void CopieFile::sfoltisci() const {
    std::vector<Copia> tutte;
    perOgniVoce(radice_ + L"\\*", [&](const WIN32_FIND_DATAW& voce) {
        const std::wstring_view nome = voce.cFileName;
        if ((voce.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && nome != L"." &&
            nome != L"..") {
            std::ranges::move(copieIn(radice_ + L'\\' + voce.cFileName), std::back_inserter(tutte));
        }
    });
    for (const Copia& copia : copie::daEliminare(std::move(tutte))) {
        // One that cannot go now goes another time.
        DeleteFileW((copia.cartella + L'\\' + copia.nome).c_str());
    }
}
