#include "ui/main/apertura_win.h"

#include "support/utilita/percorso_win.h"
#include "support/windows/maniglie_win.h"

namespace {

using Lasciati = Maniglia<HDROP, DragFinish>;
using Argomenti = Maniglia<LPWSTR*, LocalFree>;

// As the system takes it whatever its length; for a full path.
std::wstring comunqueLungo(const std::wstring& percorso) {
    if (percorso.starts_with(L"\\\\?\\")) {
        return percorso;
    }
    const bool diRete = percorso.starts_with(L"\\\\");
    std::wstring lungo = diRete ? L"\\\\?\\UNC" : L"\\\\?\\";
    return lungo.append(percorso, diRete ? 1U : 0U, percorso.npos);
}

bool eUnFile(const std::wstring& percorso) {
    const DWORD attributi = GetFileAttributesW(comunqueLungo(percorso).c_str());
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

} // namespace

std::wstring primoLasciato(HDROP lasciati) {
    const Lasciati tutti(lasciati);
    std::wstring primo(DragQueryFileW(tutti.get(), 0, nullptr, 0), L'\0');
    DragQueryFileW(tutti.get(), 0, primo.data(), static_cast<UINT>(primo.size()) + 1);
    return primo;
}

std::wstring documentoNominato(const std::wstring& rigaDiComando) {
    int quanti = 0;
    const Argomenti argomenti(CommandLineToArgvW(rigaDiComando.c_str(), &quanti));
    if (!argomenti || quanti != 2) {
        return {};
    }
    std::wstring percorso = chiediTesto([&](wchar_t* testo, DWORD spazio) {
        return GetFullPathNameW(argomenti.get()[1], spazio, testo, nullptr);
    });
    return eUnFile(percorso) ? percorso : std::wstring();
}
