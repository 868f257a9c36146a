#include "support/koUtilita.h"

#include "support/com_win.h"
#include "support/errori_win.h"
#include "support/file_win.h"
#include "support/registro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include <gtest/gtest.h>

namespace {

const std::wstring correnti = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
const std::wstring cartelleShell = correnti + L"Explorer\\Shell Folders";
const std::wstring classi = L"Software\\Classes\\";
const std::wstring appProva = correnti + L"App Paths\\OstrelleProva.exe";
const std::wstring clsid = L"{5B0B3C52-6E0D-4B0E-9B6F-0C7A3D9E1F24}";
const std::wstring componente = L"OstrelleProve.Componente";

template <class Azione>
std::int32_t errore(Azione azione) {
    return sollevatoDa([&azione] {
               azione();
               return 0;
           })
        .numero;
}

using Cartella = std::wstring();
struct Speciale {
    const wchar_t* valore;
    Cartella* cartella;
};

using K = koUtilita;
constexpr std::array dellUtente{
    Speciale{L"Personal", K::CartellaDocumenti},
    Speciale{L"AppData", K::CartellaDati},
    Speciale{L"Desktop", K::CartellaDesktop},
    Speciale{L"Startup", K::CartellaEsecuzioneAutomatica},
    Speciale{L"Start Menu", K::CartellaMenuAvvio},
    Speciale{L"SendTo", K::CartellaSendTo},
    Speciale{L"Recent", K::CartellaRecenti},
    Speciale{L"Programs", K::CartellaMenuProgrammi},
    Speciale{L"NetHood", K::CartellaRisorseRete},
    Speciale{L"My Pictures", K::CartellaImmagini},
    Speciale{L"History", K::CartellaCronologia},
    Speciale{L"Fonts", K::CartellaFonts},
    Speciale{L"Favorites", K::CartellaPreferiti},
    Speciale{L"Cookies", K::CartellaCookies},
    Speciale{L"Cache", K::CartellaInternetTemp},
};
constexpr std::array diTutti{
    Speciale{L"Common AppData", K::CartellaDatiCondivisi},
    Speciale{L"Common Desktop", K::CartellaDesktopTuttiUtenti},
    Speciale{L"Common Startup", K::CartellaEsecuzioneAutomaticaTuttiUtenti},
    Speciale{L"Common Favorites", K::CartellaPreferitiTuttiUtenti},
    Speciale{L"Common Start Menu", K::CartellaMenuAvvioTuttiUtenti},
    Speciale{L"Common Programs", K::CartellaMenuProgrammiTuttiUtenti},
    Speciale{L"Common Documents", K::CartellaDocumentiCondivisi},
    Speciale{L"Common Pictures", K::CartellaImmaginiTuttiUtenti},
};

// With the real key, with none, and with values of the test's own.
template <std::size_t N>
void provaSpeciali(HKEY radice, const std::array<Speciale, N>& speciali) {
    std::array<std::wstring, N> vere;
    for (std::size_t i = 0; i < N; ++i) {
        vere[i] = speciali[i].cartella();
        EXPECT_TRUE(vere[i].ends_with(L"\\") && vere[i].size() > 3)
            << inUtf8(speciali[i].valore) << ": " << inUtf8(vere[i]);
        if (const auto valore = leggiTesto(radice, cartelleShell, speciali[i].valore)) {
            EXPECT_EQ(vere[i], *valore + L"\\");
        }
    }
    const ChiaveSalvata chiave(radice, cartelleShell);
    for (std::size_t i = 0; i < N; ++i) {
        EXPECT_EQ(speciali[i].cartella(), vere[i]) << inUtf8(speciali[i].valore);
        chiave.testo(speciali[i].valore, L" Z:\\mia " + std::to_wstring(i) + L" ");
        EXPECT_EQ(speciali[i].cartella(), L"Z:\\mia " + std::to_wstring(i) + L"\\");
    }
}

// What a shortcut holds, read by the shell itself.
struct Letto {
    std::wstring obiettivo;
    std::wstring cartella;
    std::wstring icona;
    int indice = -1;
    int stile = 0;
};

Letto leggiCollegamento(const std::wstring& file) {
    const Apartamento apartamento;
    ComPtr<IShellLinkW> link;
    verifica(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                              reinterpret_cast<void**>(link.riempi())));
    ComPtr<IPersistFile> su;
    verifica(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(su.riempi())));
    verifica(su->Load(file.c_str(), STGM_READ));
    Letto letto;
    std::array<wchar_t, MAX_PATH> testo{};
    verifica(link->GetPath(testo.data(), MAX_PATH, nullptr, 0));
    letto.obiettivo = testo.data();
    verifica(link->GetWorkingDirectory(testo.data(), MAX_PATH));
    letto.cartella = testo.data();
    verifica(link->GetIconLocation(testo.data(), MAX_PATH, &letto.indice));
    letto.icona = testo.data();
    // The show command stands at this place of the file's header.
    letto.stile = static_cast<unsigned char>(leggiTutto(file).at(0x3C));
    return letto;
}

InfoDisinstallazione letta(const std::wstring& programma) {
    return koUtilita::GetInfoDisinstallazione(programma).value_or(
        InfoDisinstallazione{L"<manca>", L"<manca>"});
}

std::wstring libreria() {
    return koUtilita::CurDirApp() + L"componente.dll";
}

} // namespace

TEST(KoUtilitaSpeciali, LeCartelleDellUtenteVengonoDalRegistroODallaShell) {
    provaSpeciali(HKEY_CURRENT_USER, dellUtente);
}

TEST(KoUtilitaSpeciali, LeCartelleDiTuttiVengonoDalRegistroODallaShell) {
    provaSpeciali(HKEY_LOCAL_MACHINE, diTutti);
}

TEST(KoUtilitaAppPaths, LaCartellaEIlValorePathPoiQuellaDelFile) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, appProva);
    EXPECT_EQ(koUtilita::CartellaApplicazione(L"OstrelleProva"), L"");
    chiave.testo(L"", L"\"C:\\mie app\\OstrelleProva.exe\" /x");
    EXPECT_EQ(koUtilita::CartellaApplicazione(L"OstrelleProva"), L"C:\\mie app\\");
    EXPECT_EQ(koUtilita::CartellaApplicazione(L"ostrelleprova.EXE"), L"C:\\mie app\\");
    chiave.testo(L"Path", L"D:\\altra;E:\\ancora");
    EXPECT_EQ(koUtilita::CartellaApplicazione(L"OstrelleProva"), L"D:\\altra\\");
    const ChiaveSalvata utente(HKEY_CURRENT_USER, appProva);
    utente.testo(L"Path", L"F:\\utente");
    EXPECT_EQ(koUtilita::CartellaApplicazione(L"OstrelleProva"), L"F:\\utente\\");
    for (const std::wstring& nome :
         {std::wstring(), std::wstring(L"..\\App Paths\\OstrelleProva.exe"),
          std::wstring(1000, L'x')}) {
        EXPECT_EQ(koUtilita::CartellaApplicazione(nome), L"");
    }
}

TEST(KoUtilitaAppPaths, StartApplicazioneAvviaIlProgrammaRegistrato) {
    Registratore registratore;
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"mia app.exe");
    Registratore::copiaIn(programma);
    const ChiaveSalvata chiave(HKEY_CURRENT_USER, appProva);
    chiave.testo(L"", programma);
    MessaggiFinti messaggi;
    EXPECT_TRUE(koUtilita(messaggi).StartApplicazione(nullptr, L"OstrelleProva", L"\"uno due\""));
    const auto lancio = registratore.attendi();
    EXPECT_EQ(lancio.programma, programma);
    EXPECT_EQ(lancio.cartella, cartella.percorso());
    EXPECT_EQ(lancio.stato, SW_SHOWNORMAL);
}

TEST(KoUtilitaAppPaths, UnApplicazioneNonRegistrataOSparitaSiDice) {
    const CartellaProva cartella;
    const ChiaveSalvata chiave(HKEY_CURRENT_USER, appProva);
    chiave.testo(L"", cartella.file(L"manca.exe"));
    for (const std::wstring& nome :
         {std::wstring(L"OstrelleProva"), std::wstring(L"NonRegistrata.exe"), std::wstring(),
          std::wstring(1000, L'x')}) {
        MessaggiFinti messaggi;
        messaggi.attendi(nome + L": Applicazione non trovata.", L"Errore", Icona::Critica);
        EXPECT_FALSE(koUtilita(messaggi).StartApplicazione(nullptr, nome));
    }
}

TEST(KoUtilitaCondivisi, IlContoSaleEScendeEAZeroVia) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, correnti + L"SharedDLLs");
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"città.dll", "x");
    EXPECT_EQ(koUtilita::DecFileShared(file), 0U);
    EXPECT_EQ(koUtilita::SetFileShared(file), 1U);
    EXPECT_EQ(koUtilita::SetFileShared(file), 2U);
    EXPECT_EQ(koUtilita::SetFileShared(file + L"2"), 1U);
    EXPECT_EQ(koUtilita::DecFileShared(file), 1U);
    EXPECT_EQ(koUtilita::DecFileShared(file), 0U);
    EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, chiave.nome().c_str(), file.c_str(), RRF_RT_ANY,
                           nullptr, nullptr, nullptr),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(koUtilita::DecFileShared(file + L"2"), 0U);
    EXPECT_EQ(leggiTutto(file), "x");
    EXPECT_EQ(koUtilita::SetFileShared(std::wstring(1000, L'x')), 1U);
}

TEST(KoUtilitaCondivisi, UnContoCheNonELoResta) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, correnti + L"SharedDLLs");
    chiave.testo(L"testo.dll", L"3");
    chiave.grezzo(L"corto.dll", REG_DWORD, "ab");
    chiave.grezzo(L"pieno.dll", REG_DWORD, "\xFF\xFF\xFF\xFF");
    for (const wchar_t* file : {L"testo.dll", L"corto.dll"}) {
        EXPECT_EQ(errore([&] { koUtilita::SetFileShared(file); }), 13);
        EXPECT_EQ(errore([&] { koUtilita::DecFileShared(file); }), 13);
    }
    EXPECT_EQ(errore([] { koUtilita::SetFileShared(L"pieno.dll"); }), 6);
    EXPECT_EQ(koUtilita::DecFileShared(L"pieno.dll"), 0xFFFFFFFEU);
    EXPECT_EQ(errore([] { koUtilita::SetFileShared(L""); }), 5);
    EXPECT_EQ(errore([] { koUtilita::DecFileShared(L""); }), 5);
    EXPECT_EQ(leggiTesto(HKEY_LOCAL_MACHINE, chiave.nome(), L"testo.dll"), L"3");
}

TEST(KoUtilitaDisinstalla, LeInformazioniScritteSiRileggono) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, correnti + L"Uninstall\\OstrelleProva");
    EXPECT_FALSE(koUtilita::GetInfoDisinstallazione(L"OstrelleProva"));
    chiave.testo(L"Publisher", L"noi");
    InfoDisinstallazione info = letta(L"OstrelleProva");
    EXPECT_EQ(info.DisplayName, L"");
    EXPECT_EQ(info.UninstallString, L"");
    koUtilita::SetInfoDisinstallazione(L"OstrelleProva", {L"Prova Ω", L"\"C:\\a b\\u.exe\" /u"});
    info = letta(L"ostrelleprova");
    EXPECT_EQ(info.DisplayName, L"Prova Ω");
    EXPECT_EQ(info.UninstallString, L"\"C:\\a b\\u.exe\" /u");
    EXPECT_EQ(leggiTesto(HKEY_LOCAL_MACHINE, chiave.nome(), L"Publisher"), L"noi");
    koUtilita::SetInfoDisinstallazione(L"OstrelleProva", {std::wstring(1000, L'x'), L""});
    EXPECT_EQ(letta(L"OstrelleProva").DisplayName.size(), 1000U);
}

TEST(KoUtilitaDisinstalla, UnNomeCheNonEUnaChiaveSiRifiuta) {
    for (const std::wstring& nome :
         {std::wstring(), std::wstring(L"a\\b"), std::wstring(1000, L'x')}) {
        EXPECT_EQ(errore([&] { koUtilita::SetInfoDisinstallazione(nome, {}); }), 5);
        EXPECT_FALSE(koUtilita::GetInfoDisinstallazione(nome));
    }
}

TEST(KoUtilitaAssociazione, IFileDellEstensioneSiApronoConIlProgramma) {
    Registratore registratore;
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"mia app.exe");
    Registratore::copiaIn(programma);
    const ChiaveSalvata estensione(HKEY_CLASSES_ROOT, L".okoprova");
    const ChiaveSalvata tipo(HKEY_CLASSES_ROOT, L"OstrelleProva.Tipo");
    koUtilita::CreaAssociazione(L"okoprova", L"OstrelleProva.Tipo", L"Documento di prova",
                                programma, programma + L",0");
    EXPECT_EQ(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome(), L""), L"Documento di prova");
    EXPECT_EQ(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome() + L"\\DefaultIcon", L""),
              programma + L",0");
    EXPECT_EQ(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome() + L"\\Shell\\Open\\Command", L""),
              L'"' + programma + L"\" \"%1\"");
    const std::wstring documento = cartella.scrivi(L"perché no.okoprova", "x");
    MessaggiFinti messaggi;
    EXPECT_TRUE(koUtilita(messaggi).EseguiEx(nullptr, documento));
    const auto lancio = registratore.attendi();
    EXPECT_EQ(lancio.programma, programma);
    EXPECT_EQ(lancio.obiettivo, documento);
}

TEST(KoUtilitaAssociazione, ArgomentiSbagliatiNonScrivonoNulla) {
    const ChiaveSalvata estensione(HKEY_CLASSES_ROOT, L".okoprova");
    const ChiaveSalvata tipo(HKEY_CLASSES_ROOT, L"OstrelleProva.Tipo");
    const std::wstring lungo(1000, L'x');
    const auto crea = [](const std::wstring& e, const std::wstring& t, const std::wstring& p) {
        return errore([&] { koUtilita::CreaAssociazione(e, t, L"d", p); });
    };
    EXPECT_EQ(crea(L"", L"OstrelleProva.Tipo", L"a.exe"), 5);
    EXPECT_EQ(crea(L".", L"OstrelleProva.Tipo", L"a.exe"), 5);
    EXPECT_EQ(crea(L".a\\b", L"OstrelleProva.Tipo", L"a.exe"), 5);
    EXPECT_EQ(crea(lungo, L"OstrelleProva.Tipo", L"a.exe"), 5);
    EXPECT_EQ(crea(L".okoprova", L"", L"a.exe"), 5);
    EXPECT_EQ(crea(L".okoprova", L".txt", L"a.exe"), 5);
    EXPECT_EQ(crea(L".okoprova", lungo, L"a.exe"), 5);
    EXPECT_EQ(crea(L".okoprova", L"OstrelleProva.Tipo", L""), 5);
    EXPECT_EQ(crea(L".okoprova", L"OstrelleProva.Tipo", L"a\" \"b"), 5);
    EXPECT_FALSE(leggiTesto(HKEY_CLASSES_ROOT, estensione.nome(), L""));
    EXPECT_FALSE(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome(), L""));
}

TEST(KoUtilitaComponenti, UnaLibreriaSiRegistraESiTrovaESiToglie) {
    const ChiaveSalvata classe(HKEY_LOCAL_MACHINE, classi + L"CLSID\\" + clsid);
    const ChiaveSalvata nome(HKEY_LOCAL_MACHINE, classi + componente);
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"");
    koUtilita::RegistraServer(libreria());
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), libreria());
    EXPECT_EQ(koUtilita::PathServerOcx(componente), libreria());
    EXPECT_EQ(koUtilita::PathServerExe(clsid), L"");
    koUtilita::DeRegistraServer(libreria());
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"");
    EXPECT_EQ(koUtilita::PathServerOcx(componente), L"");
    // The component's own refusal.
    EXPECT_NE(errore([] { koUtilita::DeRegistraServer(libreria()); }), 0);
}

TEST(KoUtilitaComponenti, UnComponenteDiWindowsSiTrova) {
    const std::wstring file = koUtilita::PathServerOcx(L"MSXML2.DOMDocument");
    EXPECT_NE(koUtilita::DeterminaSoloFileName(file), L"") << inUtf8(file);
    EXPECT_TRUE(koUtilita::EstraiEstensione(file) == L".dll") << inUtf8(file);
}

TEST(KoUtilitaComponenti, PathServerExeDaIlFileSenzaParametri) {
    const ChiaveSalvata classe(HKEY_LOCAL_MACHINE, classi + L"CLSID\\" + clsid);
    const ChiaveSalvata server(HKEY_LOCAL_MACHINE, classe.nome() + L"\\LocalServer32");
    server.testo(L"", L"\"C:\\a b\\c.exe\" /Automation");
    EXPECT_EQ(koUtilita::PathServerExe(clsid), L"C:\\a b\\c.exe");
    server.testo(L"", L"C:\\a b\\c.exe -Embedding");
    EXPECT_EQ(koUtilita::PathServerExe(clsid), L"C:\\a b\\c.exe");
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"");
}

TEST(KoUtilitaComponenti, UnComponenteCheMancaNonSiTrova) {
    for (const std::wstring& quale :
         {std::wstring(), std::wstring(L"Nessuno.Componente"), std::wstring(L"{non è}"),
          std::wstring(L"{00000000-1111-2222-3333-444444444444}"), std::wstring(1000, L'x')}) {
        EXPECT_EQ(koUtilita::PathServerOcx(quale), L"");
        EXPECT_EQ(koUtilita::PathServerExe(quale), L"");
    }
}

TEST(KoUtilitaComponenti, UnProgrammaSiRegistraConLaSuaOpzione) {
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"mio server.EXE");
    Registratore::copiaIn(programma);
    {
        Registratore registratore;
        koUtilita::RegistraServer(programma);
        auto lancio = registratore.attendi();
        EXPECT_EQ(lancio.programma, programma);
        EXPECT_EQ(lancio.obiettivo, L"/REGSERVER");
        koUtilita::DeRegistraServer(programma);
        lancio = registratore.attendi();
        EXPECT_EQ(lancio.obiettivo, L"/UNREGSERVER");
    }
    // Nowhere to write: it ends with code 1.
    EXPECT_EQ(errore([&] { koUtilita::RegistraServer(programma); }), 57);
}

TEST(KoUtilitaComponenti, CioCheNonSiRegistraEUnErrore) {
    const CartellaProva cartella;
    for (const auto azione : {koUtilita::RegistraServer, koUtilita::DeRegistraServer}) {
        EXPECT_EQ(errore([&] { azione(L""); }), 5);
        EXPECT_EQ(errore([&] { azione(cartella.scrivi(L"a.txt", "x")); }), 5);
        EXPECT_EQ(errore([&] { azione(cartella.file(L"manca.dll")); }), 53);
        EXPECT_EQ(errore([&] { azione(cartella.scrivi(L"a.ocx", "x")); }), 57);
        EXPECT_EQ(errore([&] { azione(cartella.scrivi(L"a.exe", "x")); }), 57);
        EXPECT_EQ(errore([&] { azione(koUtilita::GetWindowsSysDir() + L"kernel32.dll"); }), 438);
        EXPECT_NE(errore([&] { azione(std::wstring(1000, L'x') + L".dll"); }), 0);
    }
}

TEST(KoUtilitaCollegamento, PortaCioCheGliSiDice) {
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"mia app.exe");
    Registratore::copiaIn(programma);
    koUtilita::CreaCollegamento(cartella.file(L"città"),
                                {programma, cartella.percorso(), 7, programma + L",0"});
    const auto letto = leggiCollegamento(cartella.file(L"città.lnk"));
    EXPECT_EQ(letto.obiettivo, programma);
    EXPECT_EQ(letto.cartella, cartella.percorso());
    EXPECT_EQ(letto.icona, programma);
    EXPECT_EQ(letto.indice, 0);
    EXPECT_EQ(letto.stile, 7);
    // The same name again.
    koUtilita::CreaCollegamento(cartella.file(L"città.lnk"), {cartella.percorso(), L"", 1, L""});
    EXPECT_EQ(leggiCollegamento(cartella.file(L"città.lnk")).stile, 1);
}

TEST(KoUtilitaCollegamento, SenzaNomeObiettivoOCartellaEUnErrore) {
    const CartellaProva cartella;
    const auto crea = [](const std::wstring& file, const std::wstring& obiettivo) {
        return errore([&] { koUtilita::CreaCollegamento(file, {obiettivo, L"", 1, L""}); });
    };
    EXPECT_EQ(crea(L"", L"C:\\a.exe"), 5);
    EXPECT_EQ(crea(cartella.file(L"a"), L""), 5);
    EXPECT_EQ(crea(cartella.file(L"manca\\a"), L"C:\\a.exe"), 76);
    EXPECT_NE(crea(std::wstring(1000, L'x'), L"C:\\a.exe"), 0);
    EXPECT_NE(crea(cartella.file(L"a?b"), L"C:\\a.exe"), 0);
    EXPECT_FALSE(fileEsiste(cartella.file(L"*.lnk")));
}

TEST(KoUtilitaCollegamento, SenzaIlComponenteEErrore429) {
    const CartellaProva cartella;
    const ChiaveSalvata nome(HKEY_LOCAL_MACHINE, classi + L"WScript.Shell");
    EXPECT_EQ(errore([&] {
                  koUtilita::CreaCollegamento(cartella.file(L"a"), {L"C:\\a.exe", L"", 1, L""});
              }),
              429);
    EXPECT_FALSE(fileEsiste(cartella.file(L"a.lnk")));
}
