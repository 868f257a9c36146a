#include "support/utilita/koUtilitaCartelle.h"

#include "support/utilita/koUtilitaPercorsi.h"
#include "support/windows/registro_win.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

namespace {

// A value of the "Shell Folders" key, and what the shell calls the same folder.
std::wstring speciale(HKEY radice, const wchar_t* valore, int csidl) {
    std::wstring cartella =
        leggiTesto(radice, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
                   valore)
            .value_or(L"");
    if (cartella.empty()) {
        std::array<wchar_t, MAX_PATH> percorso{};
        if (SHGetFolderPathW(nullptr, csidl | CSIDL_FLAG_DONT_VERIFY, nullptr, SHGFP_TYPE_CURRENT,
                             percorso.data()) == S_OK) {
            cartella = percorso.data();
        }
    }
    return koUtilitaPercorsi::AggiungiSepDir(cartella);
}

std::wstring dellUtente(const wchar_t* valore, int csidl) {
    return speciale(HKEY_CURRENT_USER, valore, csidl);
}

std::wstring diTutti(const wchar_t* valore, int csidl) {
    return speciale(HKEY_LOCAL_MACHINE, valore, csidl);
}

} // namespace

std::wstring koUtilitaCartelle::CartellaDocumenti() {
    return dellUtente(L"Personal", CSIDL_PERSONAL);
}

std::wstring koUtilitaCartelle::CartellaDati() {
    return dellUtente(L"AppData", CSIDL_APPDATA);
}

std::wstring koUtilitaCartelle::CartellaDatiCondivisi() {
    return diTutti(L"Common AppData", CSIDL_COMMON_APPDATA);
}

std::wstring koUtilitaCartelle::CartellaDesktop() {
    return dellUtente(L"Desktop", CSIDL_DESKTOPDIRECTORY);
}

std::wstring koUtilitaCartelle::CartellaDesktopTuttiUtenti() {
    return diTutti(L"Common Desktop", CSIDL_COMMON_DESKTOPDIRECTORY);
}

std::wstring koUtilitaCartelle::CartellaEsecuzioneAutomatica() {
    return dellUtente(L"Startup", CSIDL_STARTUP);
}

std::wstring koUtilitaCartelle::CartellaEsecuzioneAutomaticaTuttiUtenti() {
    return diTutti(L"Common Startup", CSIDL_COMMON_STARTUP);
}

std::wstring koUtilitaCartelle::CartellaPreferitiTuttiUtenti() {
    return diTutti(L"Common Favorites", CSIDL_COMMON_FAVORITES);
}

std::wstring koUtilitaCartelle::CartellaMenuAvvio() {
    return dellUtente(L"Start Menu", CSIDL_STARTMENU);
}

std::wstring koUtilitaCartelle::CartellaMenuAvvioTuttiUtenti() {
    return diTutti(L"Common Start Menu", CSIDL_COMMON_STARTMENU);
}

std::wstring koUtilitaCartelle::CartellaSendTo() {
    return dellUtente(L"SendTo", CSIDL_SENDTO);
}

std::wstring koUtilitaCartelle::CartellaRecenti() {
    return dellUtente(L"Recent", CSIDL_RECENT);
}

std::wstring koUtilitaCartelle::CartellaMenuProgrammi() {
    return dellUtente(L"Programs", CSIDL_PROGRAMS);
}

std::wstring koUtilitaCartelle::CartellaMenuProgrammiTuttiUtenti() {
    return diTutti(L"Common Programs", CSIDL_COMMON_PROGRAMS);
}

std::wstring koUtilitaCartelle::CartellaDocumentiCondivisi() {
    return diTutti(L"Common Documents", CSIDL_COMMON_DOCUMENTS);
}

std::wstring koUtilitaCartelle::CartellaRisorseRete() {
    return dellUtente(L"NetHood", CSIDL_NETHOOD);
}

std::wstring koUtilitaCartelle::CartellaImmagini() {
    return dellUtente(L"My Pictures", CSIDL_MYPICTURES);
}

std::wstring koUtilitaCartelle::CartellaImmaginiTuttiUtenti() {
    return diTutti(L"Common Pictures", CSIDL_COMMON_PICTURES);
}

std::wstring koUtilitaCartelle::CartellaCronologia() {
    return dellUtente(L"History", CSIDL_HISTORY);
}

std::wstring koUtilitaCartelle::CartellaFonts() {
    return dellUtente(L"Fonts", CSIDL_FONTS);
}

std::wstring koUtilitaCartelle::CartellaPreferiti() {
    return dellUtente(L"Favorites", CSIDL_FAVORITES);
}

std::wstring koUtilitaCartelle::CartellaCookies() {
    return dellUtente(L"Cookies", CSIDL_COOKIES);
}

std::wstring koUtilitaCartelle::CartellaInternetTemp() {
    return dellUtente(L"Cache", CSIDL_INTERNET_CACHE);
}

std::wstring koUtilitaCartelle::CartellaCondivisi() {
    std::wstring cartella =
        leggiTesto(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion",
                   L"CommonFilesDir")
            .value_or(L"");
    return koUtilitaPercorsi::AggiungiSepDir(cartella);
}
