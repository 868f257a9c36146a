#include "support/utilita/koUtilita.h"

#include "support/programma/prodotto.h"
#include "support/testi/ansi_win.h"
#include "support/windows/file_win.h"

#include <windows.h>

#include <shellapi.h>

namespace {

// Runs the default action of a target in the root of the program's drive; above 32 is success.
INT_PTR avvia(HWND hWnd, std::wstring_view oggetto) {
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

} // namespace

bool koUtilita::EseguiEx(HWND hWnd, const std::wstring& file, bool muto) const {
    const INT_PTR esito = avvia(hWnd, file);
    if (esito > 32) {
        return true;
    }
    if (!muto) {
        messaggi_.avvisa(file + std::wstring(motivo(esito)), titoli::errore, Icona::Critica);
    }
    return false;
}

void koUtilitaAvvio::GoWeb(HWND hWnd, const std::wstring& indirizzoWeb) {
    static_cast<void>(avvia(hWnd, indirizzoWeb));
}

void koUtilitaAvvio::Homepage(HWND hWnd) {
    GoWeb(hWnd, std::wstring(prodotto::sito));
}

void koUtilitaAvvio::EMail(HWND hWnd) {
    std::wstring indirizzo(L"Mailto:");
    indirizzo += prodotto::postaAutore;
    indirizzo += L"?subject=";
    indirizzo += prodotto::titolo;
    indirizzo += L"%20v";
    indirizzo += prodotto::versione();
    GoWeb(hWnd, indirizzo);
}
