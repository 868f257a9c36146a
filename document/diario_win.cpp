#include "document/diario_win.h"

#include "support/utilita/koUtilitaCartelle.h"
#include "support/windows/errori_win.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::wstring_view estensione = L".diario";
// One that is not whole yet: nobody looks for it.
constexpr std::wstring_view estensioneNuovo = L".nuovo";

ManigliaFile apri(const std::wstring& percorso, DWORD come) noexcept {
    return ManigliaFile(CreateFileW(percorso.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0,
                                    nullptr, come, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// Calls `prova` with name after name, until it says that one was free.
template <class Prova>
void nomeLibero(const std::wstring& cartella, DataOra adesso, std::wstring_view fine, Prova prova) {
    const std::wstring nome = cartella + L'\\' + oraPerNomi(adesso);
    for (int numero = 1;; ++numero) {
        const std::wstring distinto = numero == 1 ? L"" : L" (" + std::to_wstring(numero) + L')';
        if (prova(nome + distinto + std::wstring(fine))) {
            return;
        }
        const DWORD codice = GetLastError();
        if (codice != ERROR_FILE_EXISTS && codice != ERROR_ALREADY_EXISTS) {
            sollevaWin32(codice);
        }
    }
}

} // namespace

FileDiario FileDiario::crea(const std::wstring& cartella, DataOra adesso) {
    koUtilitaCartelle::CreaPercorsoDirectory(cartella);
    FileDiario nuovo({}, {});
    nomeLibero(cartella, adesso, estensione, [&](const std::wstring& nome) {
        nuovo = FileDiario(nome, apri(nome, CREATE_NEW));
        return static_cast<bool>(nuovo.file_);
    });
    return nuovo;
}

std::optional<FileDiario> FileDiario::prendi(const std::wstring& percorso) {
    FileDiario preso(percorso, apri(percorso, OPEN_EXISTING));
    LARGE_INTEGER lunghezza{};
    if (!preso.file_ || !GetFileSizeEx(preso.file_.get(), &lunghezza)) {
        return std::nullopt;
    }
    preso.lunghezza_ = static_cast<std::uint64_t>(lunghezza.QuadPart);
    return preso;
}

void FileDiario::posiziona(std::uint64_t dove) {
    LARGE_INTEGER posto{};
    posto.QuadPart = static_cast<LONGLONG>(dove);
    if (!SetFilePointerEx(file_.get(), posto, nullptr, FILE_BEGIN)) {
        sollevaWin32();
    }
}

void FileDiario::aggiungi(std::string_view nuovi) {
    posiziona(lunghezza_);
    DWORD scritti = 0;
    const auto quanti = static_cast<DWORD>(nuovi.size());
    const BOOL riuscito = WriteFile(file_.get(), nuovi.data(), quanti, &scritti, nullptr);
    if (riuscito && scritti == quanti) {
        lunghezza_ += quanti;
        return;
    }
    const DWORD codice = riuscito ? ERROR_DISK_FULL : GetLastError();
    // Half a record would hide all that comes after it.
    posiziona(lunghezza_);
    SetEndOfFile(file_.get());
    sollevaWin32(codice);
}

void FileDiario::scarica() {
    if (!FlushFileBuffers(file_.get())) {
        sollevaWin32();
    }
}

std::vector<std::byte> FileDiario::leggi() {
    std::vector<std::byte> byte(static_cast<std::size_t>(lunghezza_));
    posiziona(0);
    for (std::size_t letti = 0; letti < byte.size();) {
        constexpr std::size_t massimo = 0x40000000;
        DWORD pezzo = 0;
        const auto chiesti = static_cast<DWORD>(std::min(byte.size() - letti, massimo));
        if (!ReadFile(file_.get(), byte.data() + letti, chiesti, &pezzo, nullptr)) {
            sollevaWin32();
        }
        if (pezzo == 0) {
            byte.resize(letti);
        }
        letti += pezzo;
    }
    return byte;
}

void FileDiario::elimina() noexcept {
    FILE_DISPOSITION_INFO via{TRUE};
    SetFileInformationByHandle(file_.get(), FileDispositionInfo, &via, sizeof via);
    const ManigliaFile chiuso = std::move(file_);
}

void FileDiario::riscrivi(DataOra adesso, const std::function<void(FileDiario& nuovo)>& scrivi) {
    const std::wstring cartella = percorso_.substr(0, percorso_.find_last_of(L'\\'));
    FileDiario nuovo(percorso_ + std::wstring(estensioneNuovo), {});
    nuovo.file_ = apri(nuovo.percorso_, CREATE_ALWAYS);
    if (!nuovo.file_) {
        sollevaWin32();
    }
    try {
        scrivi(nuovo);
        nuovo.scarica();
    } catch (...) {
        nuovo.elimina();
        throw;
    }
    // Windows renames what is closed. Whoever looked for diaries at this very moment may have taken
    // the old one: the new one then gets a name of its own.
    { const ManigliaFile chiusi[]{std::move(file_), std::move(nuovo.file_)}; }
    if (!MoveFileExW(nuovo.percorso_.c_str(), percorso_.c_str(), MOVEFILE_REPLACE_EXISTING)) {
        nomeLibero(cartella, adesso, estensione, [&](const std::wstring& nome) {
            percorso_ = nome;
            return MoveFileExW(nuovo.percorso_.c_str(), nome.c_str(), 0) != FALSE;
        });
    }
    file_ = apri(percorso_, OPEN_EXISTING);
    if (!file_) {
        sollevaWin32();
    }
    lunghezza_ = nuovo.lunghezza_;
}

std::vector<std::wstring> diariIn(const std::wstring& cartella) {
    std::vector<std::wstring> trovati;
    WIN32_FIND_DATAW voce{};
    const Ricerca ricerca(
        FindFirstFileW((cartella + L"\\*" + std::wstring(estensione)).c_str(), &voce));
    for (bool trovato = static_cast<bool>(ricerca); trovato;
         trovato = FindNextFileW(ricerca.get(), &voce) != FALSE) {
        trovati.push_back(cartella + L'\\' + voce.cFileName);
    }
    std::ranges::sort(trovati);
    return trovati;
}
