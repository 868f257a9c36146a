#include "support/utilita/koUtilitaErrori.h"

#include "support/tempo/dataora_win.h"
#include "support/testi/ansi_win.h"
#include "support/testi/formato.h"
#include "support/testi/testo.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "support/windows/errori_win.h"
#include "support/windows/fileNuovo_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <array>

namespace {

// "2005-nov-15 10:30:00".
std::wstring timbro() {
    const DataOra adesso = istanteAttuale().locale;
    const SYSTEMTIME tempo = aSystemTime(adesso);
    std::array<wchar_t, 80> data{};
    if (GetDateFormatW(LOCALE_USER_DEFAULT, 0, &tempo, L"yyyy'-'MMM'-'dd", data.data(),
                       static_cast<int>(data.size())) == 0) {
        sollevaWin32();
    }
    const std::wstring ora = formattaDataOra(adesso, formatoUtente());
    return std::wstring(data.data()) + ora.substr(ora.find(L' '));
}

} // namespace

void koUtilitaErrori::ScriviLog(const std::wstring& file, std::wstring_view testo) {
    if (koUtilitaPercorsi::DeterminaSoloFileName(file).empty()) {
        solleva(errori::nomeFileNonValido);
    }
    constexpr std::wstring_view estensione = L".log";
    std::wstring percorso = file;
    if (minuscolo(koUtilitaPercorsi::EstraiEstensione(file)) != estensione) {
        percorso += estensione;
    }
    std::wstring riga = timbro() + L' ' + sostituisci(testo, L"\r\n", L" ");
    for (wchar_t& c : riga) {
        c = c == L'\r' || c == L'\n' ? L' ' : c;
    }
    const std::string byte = inAnsi(riga + L"\r\n");
    // Appending alone, in one piece: two programs may write the same log.
    const ManigliaFile log(CreateFileW(percorso.c_str(), FILE_APPEND_DATA,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD scritti = 0;
    if (!log ||
        !WriteFile(log.get(), byte.data(), static_cast<DWORD>(byte.size()), &scritti, nullptr)) {
        sollevaWin32();
    }
    if (scritti < byte.size()) {
        solleva(errori::discoPieno);
    }
}
