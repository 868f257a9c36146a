#include "support/utilita/koUtilitaIni.h"

#include "support/testi/ansi_win.h"
#include "support/testi/testo.h"
#include "support/utilita/percorso_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <array>

namespace {

using namespace std::string_view_literals;

// No value holds it.
constexpr const wchar_t* mancante = L"\n";

bool contiene(std::wstring_view testo, std::wstring_view caratteri) noexcept {
    return testo.find_first_of(caratteri) != std::wstring_view::npos;
}

// A section or key that Windows finds again under the same name.
bool nomeValido(std::wstring_view nome, std::wstring_view vietati) {
    return !nome.empty() && rifila(nome) == nome && nome.front() != L';' && nome.front() != L'[' &&
           !contiene(nome, L"\r\n\t\0"sv) && !contiene(nome, vietati);
}

enum class Codifica { ansi, utf16, utf16Rovescia };

// By the mark at the beginning of the file; a file that is not there will be in the ANSI code page.
Codifica codificaDi(const std::wstring& percorso) noexcept {
    const ManigliaFile file(CreateFileW(percorso.c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::array<unsigned char, 2> inizio{};
    DWORD letti = 0;
    if (!file || !ReadFile(file.get(), inizio.data(), 2, &letti, nullptr) || letti < 2) {
        return Codifica::ansi;
    }
    return inizio[0] == 0xFF && inizio[1] == 0xFE   ? Codifica::utf16
           : inizio[0] == 0xFE && inizio[1] == 0xFF ? Codifica::utf16Rovescia
                                                    : Codifica::ansi;
}

// The profile calls know no longer paths; some systems take another file for one.
bool troppoLungo(const std::wstring& percorso) noexcept {
    return percorso.size() >= MAX_PATH;
}

// Windows takes blanks and one pair of marks off a value: a pair of our own keeps them.
std::wstring protetto(const std::wstring& valore) {
    if (valore.empty()) {
        return valore;
    }
    const wchar_t primo = valore.front();
    const wchar_t ultimo = valore.back();
    const bool spazi = primo == L' ' || primo == L'\t' || ultimo == L' ' || ultimo == L'\t';
    const bool virgolette = primo == ultimo && (primo == L'"' || primo == L'\'');
    return spazi || virgolette ? L'"' + valore + L'"' : valore;
}

} // namespace

std::wstring koUtilitaIni::LeggiINI(const std::wstring& fileINI, const std::wstring& Sezione,
                                    const std::wstring& chiave, const std::wstring& DefaultValore) {
    // A broken line or section may bear the empty name.
    if (fileINI.empty() || Sezione.empty() || chiave.empty()) {
        return DefaultValore;
    }
    const std::wstring percorso = percorsoCompleto(fileINI);
    if (troppoLungo(percorso)) {
        return DefaultValore;
    }
    std::wstring valore(256, L'\0');
    for (;;) {
        const DWORD lunghezza =
            GetPrivateProfileStringW(Sezione.c_str(), chiave.c_str(), mancante, valore.data(),
                                     static_cast<DWORD>(valore.size()), percorso.c_str());
        if (lunghezza + 1 < valore.size()) {
            valore.resize(lunghezza);
            return valore == mancante ? DefaultValore : valore;
        }
        valore.resize(valore.size() * 2);
    }
}

void koUtilitaIni::ScriviINI(const std::wstring& fileINI, const std::wstring& Sezione,
                             const std::wstring& chiave, const std::wstring& Valore) {
    const std::wstring percorso = percorsoCompleto(fileINI);
    const std::wstring tutto = Sezione + chiave + Valore;
    const Codifica codifica = codificaDi(percorso);
    // Windows knows one order of UTF-16's bytes only: it would write others into the file.
    if (!nomeValido(Sezione, L"]") || !nomeValido(chiave, L"=") || contiene(Valore, L"\r\n\0"sv) ||
        codifica == Codifica::utf16Rovescia ||
        (codifica == Codifica::ansi && daAnsi(inAnsi(tutto)) != tutto)) {
        solleva(errori::chiamataNonValida);
    }
    if (troppoLungo(percorso)) {
        solleva(errori::nomeFileNonValido);
    }
    if (!WritePrivateProfileStringW(Sezione.c_str(), chiave.c_str(), protetto(Valore).c_str(),
                                    percorso.c_str())) {
        sollevaWin32();
    }
}
