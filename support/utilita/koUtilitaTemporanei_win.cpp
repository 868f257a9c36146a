#include "support/utilita/koUtilitaTemporanei.h"

#include "support/testi/ansi_win.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "support/utilita/koUtilitaTesti.h"
#include "support/windows/file_win.h"

#include <windows.h>

namespace {

std::wstring daBuffer(std::string_view buffer) {
    return std::wstring(koUtilitaTesti::StripTerminator(daAnsi(buffer)));
}

} // namespace

std::wstring koUtilitaTemporanei::GetFileTemporaneo() {
    const std::wstring cartella = GetDirectoryTemp();
    // Windows asks for no length: it writes up to MAX_PATH characters.
    std::string buffer(MAX_PATH, '\0');
    if (GetTempFileNameA(inAnsi(cartella).c_str(), "ko", 0, buffer.data()) < 1) {
        return cartella + L"ko12345.tmp";
    }
    return daBuffer(buffer);
}

std::wstring koUtilitaTemporanei::GetDirectoryTemp() {
    std::string buffer(255, ' ');
    const DWORD lunghezza = GetTempPathA(static_cast<DWORD>(buffer.size()), buffer.data());
    // Beyond the buffer's length nothing was written: that is a failure like 0.
    std::wstring cartella =
        lunghezza < 1 || lunghezza >= buffer.size() ? cartellaProgramma() : daBuffer(buffer);
    return koUtilitaPercorsi::AggiungiSepDir(cartella);
}
