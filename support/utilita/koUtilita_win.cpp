#include "support/utilita/koUtilita.h"

#include "support/programma/prodotto.h"
#include "support/testi/ansi_win.h"
#include "support/testi/numeri.h"
#include "support/windows/errori_win.h"
#include "support/windows/file_win.h"

#include <windows.h>

#include <shellapi.h>

namespace {

// Runs the default action of a target in the root of the program's drive; above 32 is success.
INT_PTR apri(HWND hWnd, std::wstring_view oggetto) {
    const std::string file = inAnsi(oggetto);
    const std::string cartella = inAnsi(cartellaProgramma().substr(0, 3));
    const HINSTANCE esito =
        ShellExecuteA(hWnd, nullptr, file.c_str(), nullptr, cartella.c_str(), SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(esito);
}

std::wstring_view motivo(INT_PTR codice) noexcept {
    switch (codice) {
    case SE_ERR_FNF:
        return L": file non trovato!";
    case SE_ERR_NOASSOC:
        return L": nessun programma associato a questo tipo di file!";
    default:
        return L": accesso negato!";
    }
}

std::wstring daBuffer(std::string_view buffer) {
    return std::wstring(koUtilita::StripTerminator(daAnsi(buffer)));
}

// The second character of a number as the user's format shows it, where it is a known separator.
std::uint8_t secondoCarattere(const char* numero) {
    std::string buffer(10, ' ');
    const int scritti = GetNumberFormatA(GetUserDefaultLCID(), 0, numero, nullptr, buffer.data(),
                                         static_cast<int>(buffer.size()));
    const bool noto = scritti > 0 && (buffer[1] == ',' || buffer[1] == '.');
    return noto ? static_cast<std::uint8_t>(buffer[1]) : std::uint8_t{0};
}

} // namespace

bool koUtilita::EseguiEx(HWND hWnd, const std::wstring& file, bool muto) const {
    const INT_PTR esito = apri(hWnd, file);
    if (esito > 32) {
        return true;
    }
    if (!muto) {
        messaggi_.avvisa(file + std::wstring(motivo(esito)), L"Errore", Icona::Critica);
    }
    return false;
}

void koUtilita::GoWeb(HWND hWnd, const std::wstring& indirizzoWeb) {
    static_cast<void>(apri(hWnd, indirizzoWeb));
}

void koUtilita::Homepage(HWND hWnd) {
    GoWeb(hWnd, std::wstring(prodotto::sito));
}

void koUtilita::EMail(HWND hWnd) {
    std::wstring indirizzo(L"Mailto:");
    indirizzo += prodotto::postaAutore;
    indirizzo += L"?subject=";
    indirizzo += prodotto::titolo;
    indirizzo += L"%20v";
    indirizzo += prodotto::versione();
    GoWeb(hWnd, indirizzo);
}

std::wstring koUtilita::GetFileTemporaneo() {
    const std::wstring cartella = GetDirectoryTemp();
    // Windows asks for no length: it writes up to MAX_PATH characters.
    std::string buffer(MAX_PATH, '\0');
    if (GetTempFileNameA(inAnsi(cartella).c_str(), "ko", 0, buffer.data()) < 1) {
        return cartella + L"ko12345.tmp";
    }
    return daBuffer(buffer);
}

std::wstring koUtilita::GetDirectoryTemp() {
    std::string buffer(255, ' ');
    const DWORD lunghezza = GetTempPathA(static_cast<DWORD>(buffer.size()), buffer.data());
    // Beyond the buffer's length nothing was written: that is a failure like 0.
    std::wstring cartella =
        lunghezza < 1 || lunghezza >= buffer.size() ? cartellaProgramma() : daBuffer(buffer);
    return AggiungiSepDir(cartella);
}

std::uint8_t koUtilita::GetSeparatoreDecimale() {
    return secondoCarattere("1.2");
}

std::uint8_t koUtilita::GetSeparatoreMigliaia() {
    return secondoCarattere("1000");
}

std::wstring koUtilita::descrizioneDi(const Errore& errore) {
    return errore.numero() == errori::nomeFileNonValido
               ? L"Impossibile leggere l'unità specificata."
               : errore.descrizione();
}

void koUtilita::PrintErrore() const {
    const Errore errore = erroreCorrente();
    messaggi_.avvisa(descrizioneDi(errore), L"Errore " + testoConSegno(errore.numero()),
                     Icona::Informazione);
}
