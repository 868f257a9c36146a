// The installer as people get it, in a Wine prefix that is there for nothing else.

#include "support/programma/prodotto.h"
#include "support/windows/file_win.h"
#include "support/windows/registro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/collegamento_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/fotografia_win.h"
#include "tests/aiuti/programma_prova_win.h"
#include "ui/main/comandi.h"

#include <windows.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

namespace {

const std::wstring classi = L"Software\\Classes\\";
const std::wstring voce = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle";

constexpr const char* canale = "<title>Notizie</title><link>https://e.example/</link>"
                               "<description>Prova</description>"
                               "<item><title>Uno</title></item>";

std::wstring ambiente(const wchar_t* nome) {
    std::array<wchar_t, 1024> valore{};
    GetEnvironmentVariableW(nome, valore.data(), static_cast<DWORD>(valore.size()));
    return valore.data();
}

std::wstring dati(const wchar_t* nome) {
    return ambiente(L"LOCALAPPDATA") + L'\\' + nome;
}
std::wstring installato(const wchar_t* nome) {
    return dati(L"Programs\\Ostrelle\\") + nome;
}
std::wstring collegamento() {
    return ambiente(L"APPDATA") + L"\\Microsoft\\Windows\\Start Menu\\Programs\\Ostrelle.lnk";
}

std::wstring registrato(const std::wstring& chiave, const wchar_t* nome = L"") {
    return leggiTesto(HKEY_CURRENT_USER, chiave, nome).value_or(L"(no value)");
}

Processo avviaInstallatore(const wchar_t* argomenti) {
    return avviaProcesso(L'"' + cartellaProgramma() + L"\\..\\pacchetto\\Ostrelle-" +
                         prodotto::versione() + L"-setup.exe\" " + argomenti);
}
DWORD installa() {
    return codiceFinale(avviaInstallatore(L"/S"));
}
// The uninstaller where it is, without the copy of itself that it starts otherwise: its code tells.
Processo avviaDisinstallatore(const wchar_t* argomenti) {
    return avviaProcesso(L'"' + installato(L"Disinstalla.exe") + L"\" " + argomenti + L" _?=" +
                         dati(L"Programs\\Ostrelle"));
}

void scrivi(const std::wstring& file, const char* testo) {
    std::ofstream(std::filesystem::path(file), std::ios::binary) << testo;
}

Fotografia fileDellUtente() {
    Fotografia file =
        fotografaCartella(std::filesystem::path(ambiente(L"LOCALAPPDATA")).parent_path().wstring());
    for (auto& [nome, contenuto] : file) {
        if (nome.ends_with(L".lnk")) {
            contenuto.clear(); // it holds the time of its target
        }
    }
    return file;
}

// The user's files and settings. Not those of Wine, of programs at work and of the shell's own
// lists of recent documents.
struct Stato {
    Fotografia file = fileDellUtente();
    Fotografia registro = fotografaRegistro(HKEY_CURRENT_USER, L"Software");
};
std::string cambiatoDa(const Stato& prima) {
    const Stato dopo;
    return cambiamenti(prima.file, dopo.file,
                       {L"Local\\Temp\\", L"Roaming\\Microsoft\\Windows\\Recent\\"}) +
           cambiamenti(prima.registro, dopo.registro,
                       {L"Wine\\", L"Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs\\"});
}

// Lines for all of a photograph as something new.
std::string nuove(const std::string& sotto, const Fotografia& fotografia) {
    std::string righe = "+ " + sotto + "\n";
    for (const auto& [nome, contenuto] : fotografia) {
        righe.append("+ ").append(sotto).append(inUtf8(nome)).append("\n");
    }
    return righe;
}

class Installazione : public testing::Test {
protected:
    void SetUp() override {
        if (ambiente(L"OSTRELLE_INSTALLA").empty()) {
            GTEST_SKIP() << "only where a program may be installed";
        }
        // Every Windows has these from its first day on.
        for (const wchar_t* const chiave :
             {L"Software\\Classes", L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall"}) {
            HKEY fatta = nullptr;
            RegCreateKeyW(HKEY_CURRENT_USER, chiave, &fatta);
            RegCloseKey(fatta);
        }
        togli();
    }
    void TearDown() override {
        if (!ambiente(L"OSTRELLE_INSTALLA").empty()) {
            togli();
        }
    }

    // Whatever a test may have left.
    static void togli() {
        if (fileEsiste(installato(L"Disinstalla.exe"))) {
            static_cast<void>(codiceFinale(avviaDisinstallatore(L"/S /TUTTO")));
        }
        std::filesystem::remove_all(dati(L"Programs"));
        std::filesystem::remove_all(dati(L"Ostrelle"));
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings");
    }

    // As the list of programs removes it; what is left then.
    static void attendiDisinstallata(const std::wstring& argomento, const Stato& prima,
                                     const std::string& resta) {
        EXPECT_EQ(
            codiceFinale(avviaProcesso(registrato(voce, L"QuietUninstallString") + argomento)), 0U);
        // Last of all goes its entry; a file that is being read could not be deleted.
        EXPECT_TRUE(attendiChe([] { return registrato(voce, L"DisplayName") == L"(no value)"; }));
        EXPECT_EQ(cambiatoDa(prima), resta);
    }

    // Opens a feed by what is registered for its kind and saves it.
    static void apriESalva(const std::wstring& feed) {
        std::wstring comando = registrato(classi + L"Ostrelle.Feed\\shell\\open\\command");
        comando.replace(comando.find(L"%1"), 2, feed);
        Programma programma = Programma::daComando(comando);
        programma.attendiPrincipale(L"Ostrelle  [" + feed + L"]");
        DWORD_PTR esito = 0;
        EXPECT_NE(SendMessageTimeoutW(programma.principale, WM_COMMAND, mnsalva, 0, SMTO_NORMAL,
                                      30000, &esito),
                  0);
        EXPECT_NE(leggiTutto(feed).find("Feed RSS creato con"), std::string::npos);
        EXPECT_EQ(programma.chiudi(), 0U);
    }

    CartellaProva cartella_;
};

} // namespace

TEST_F(Installazione, ScriveQuestoENientAltro) {
    const Stato prima;
    ASSERT_EQ(installa(), 0U);
    EXPECT_EQ(cambiatoDa(prima),
              "+ Local\\Programs\\\n"
              "+ Local\\Programs\\Ostrelle\\\n"
              "+ Local\\Programs\\Ostrelle\\Disinstalla.exe\n"
              "+ Local\\Programs\\Ostrelle\\Licenza.txt\n"
              "+ Local\\Programs\\Ostrelle\\Ostrelle.exe\n"
              "+ Local\\Programs\\Ostrelle\\Ostrelle.htm\n"
              "+ Local\\Programs\\Ostrelle\\guida\\\n"
              "+ Local\\Programs\\Ostrelle\\guida\\contenuto.png\n"
              "+ Local\\Programs\\Ostrelle\\guida\\elemento.png\n"
              "+ Local\\Programs\\Ostrelle\\guida\\finestra.png\n"
              "+ Local\\Programs\\Ostrelle\\guida\\informazioni.png\n"
              "+ Local\\Programs\\Ostrelle\\guida\\pagina.png\n"
              "+ Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Ostrelle.lnk\n"
              "+ Classes\\.rss\\\n"
              "+ Classes\\.rss\\OpenWithProgids\\\n"
              "+ Classes\\.rss\\OpenWithProgids\\Ostrelle.Feed\n"
              "+ Classes\\.xml\\\n"
              "+ Classes\\.xml\\OpenWithProgids\\\n"
              "+ Classes\\.xml\\OpenWithProgids\\Ostrelle.Feed\n"
              "+ Classes\\Applications\\\n"
              "+ Classes\\Applications\\Ostrelle.exe\\\n"
              "+ Classes\\Applications\\Ostrelle.exe\\DefaultIcon\\\n"
              "+ Classes\\Applications\\Ostrelle.exe\\FriendlyAppName\n"
              "+ Classes\\Applications\\Ostrelle.exe\\SupportedTypes\\\n"
              "+ Classes\\Applications\\Ostrelle.exe\\SupportedTypes\\.rss\n"
              "+ Classes\\Applications\\Ostrelle.exe\\SupportedTypes\\.xml\n"
              "+ Classes\\Applications\\Ostrelle.exe\\shell\\\n"
              "+ Classes\\Applications\\Ostrelle.exe\\shell\\open\\\n"
              "+ Classes\\Applications\\Ostrelle.exe\\shell\\open\\command\\\n"
              "+ Classes\\Ostrelle.Feed\\\n"
              "+ Classes\\Ostrelle.Feed\\DefaultIcon\\\n"
              "+ Classes\\Ostrelle.Feed\\shell\\\n"
              "+ Classes\\Ostrelle.Feed\\shell\\open\\\n"
              "+ Classes\\Ostrelle.Feed\\shell\\open\\command\\\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\DisplayIcon\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\DisplayName\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\DisplayVersion\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\EstimatedSize\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\InstallLocation\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\NoModify\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\NoRepair\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\Publisher\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\QuietUninstallString\n"
              "+ Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ostrelle\\UninstallString\n");
    // For this user alone.
    for (const std::wstring& chiave :
         {voce, classi + L"Ostrelle.Feed", classi + L"Applications\\Ostrelle.exe"}) {
        EXPECT_EQ(fotografaRegistro(HKEY_LOCAL_MACHINE, chiave), Fotografia()) << inUtf8(chiave);
    }
    EXPECT_EQ(leggiTutto(installato(L"Ostrelle.exe")),
              leggiTutto(cartellaProgramma() + L"\\..\\Ostrelle.exe"));
}

TEST_F(Installazione, StaNellElencoDeiProgrammi) {
    ASSERT_EQ(installa(), 0U);
    EXPECT_EQ(registrato(voce, L"DisplayName"), prodotto::titolo);
    EXPECT_EQ(registrato(voce, L"DisplayVersion"), prodotto::versione());
    EXPECT_EQ(registrato(voce, L"Publisher"), prodotto::creditoPagina);
    EXPECT_EQ(registrato(voce, L"InstallLocation"), dati(L"Programs\\Ostrelle"));
    EXPECT_EQ(registrato(voce, L"UninstallString"), L'"' + installato(L"Disinstalla.exe") + L'"');
}

TEST_F(Installazione, IlCollegamentoAvviaIlProgramma) {
    ASSERT_EQ(installa(), 0U);
    const auto letto = leggiCollegamento(collegamento());
    EXPECT_EQ(letto.obiettivo, installato(L"Ostrelle.exe"));
    Programma programma = Programma::daComando(L'"' + letto.obiettivo + L'"');
    programma.attendiPrincipale(Programma::documentoNuovo);
    EXPECT_EQ(programma.chiudi(), 0U);
}

TEST_F(Installazione, ApriConApreUnFeedDiEntrambiITipi) {
    ASSERT_EQ(installa(), 0U);
    for (const wchar_t* tipo : {L".rss", L".xml"}) {
        EXPECT_EQ(registrato(classi + L"Applications\\Ostrelle.exe\\SupportedTypes", tipo), L"");
        EXPECT_EQ(registrato(classi + tipo + L"\\OpenWithProgids", L"Ostrelle.Feed"), L"");
        apriESalva(cartella_.scrivi(std::wstring(L"la mia città & 100%") + tipo, rssCon(canale)));
    }
    EXPECT_EQ(registrato(classi + L"Applications\\Ostrelle.exe\\shell\\open\\command"),
              registrato(classi + L"Ostrelle.Feed\\shell\\open\\command"));
}

TEST_F(Installazione, AggiornaSulPosto) {
    ASSERT_EQ(installa(), 0U);
    const Stato nuova;
    scrivi(installato(L"Ostrelle.exe"), "vecchio");
    scrivi(installato(L"Ostrelle.htm"), "vecchia");
    scrivi(installato(L"guida\\vecchia.png"), "vecchia");
    scriviTesto(HKEY_CURRENT_USER, voce, L"DisplayVersion", L"0.9.0");
    ASSERT_EQ(installa(), 0U);
    EXPECT_EQ(cambiatoDa(nuova), "");
}

TEST_F(Installazione, MentreIlProgrammaEApertoNienteCambia) {
    ASSERT_EQ(installa(), 0U);
    scrivi(installato(L"Ostrelle.htm"), "vecchia");
    {
        Programma programma = Programma::daComando(L'"' + installato(L"Ostrelle.exe") + L'"');
        programma.attendiPrincipale(Programma::documentoNuovo);
        const Stato prima;
        EXPECT_EQ(installa(), 2U);
        EXPECT_EQ(codiceFinale(avviaDisinstallatore(L"/S")), 2U);
        const auto rifiuta = [](const Processo& processo, const wchar_t* titolo,
                                const wchar_t* testo) {
            HWND box = nullptr;
            ASSERT_TRUE(
                attendiChe([&] { return (box = FindWindowW(L"#32770", titolo)) != nullptr; }));
            EXPECT_EQ(Programma::testoNel(GetDlgItem(box, 0xFFFF)), testo);
            PostMessageW(box, WM_COMMAND, IDOK, 0);
            EXPECT_EQ(codiceFinale(processo), 2U);
        };
        rifiuta(avviaInstallatore(L""), L"Installazione di Ostrelle",
                L"Ostrelle è aperto. Chiudere il programma e ripetere l'installazione.");
        rifiuta(avviaDisinstallatore(L""), L"Disinstallazione di Ostrelle",
                L"Ostrelle è aperto. Chiudere il programma e ripetere la disinstallazione.");
        EXPECT_EQ(cambiatoDa(prima), "");
        EXPECT_EQ(programma.chiudi(), 0U);
    }
    EXPECT_EQ(installa(), 0U);
}

TEST_F(Installazione, TogliendoloRestanoRecentiCopieECioCheEDiAltri) {
    const ChiaveSalvata xml(HKEY_CURRENT_USER, classi + L".xml");
    xml.testo(L"", L"altro.tipo");
    const ChiaveSalvata rss(HKEY_CURRENT_USER, classi + L".rss");
    scriviTesto(HKEY_CURRENT_USER, rss.nome() + L"\\OpenWithProgids", L"Altro.Feed", L"");
    const Stato prima;
    ASSERT_EQ(installa(), 0U);
    apriESalva(cartella_.scrivi(L"notizie.xml", rssCon(canale)));
    EXPECT_NE(registrato(L"Software\\VB and VBA Program Settings\\Ostrelle\\url", L"murl1"),
              L"(no value)");
    EXPECT_FALSE(fotografaCartella(dati(L"Ostrelle\\copie")).empty());
    // A file of the user's own in the program's folder.
    scrivi(installato(L"appunti.txt"), "miei");
    const Fotografia copie = fotografaCartella(dati(L"Ostrelle"));
    const Fotografia recenti =
        fotografaRegistro(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings");

    attendiDisinstallata(L"", prima,
                         nuove("Local\\Ostrelle\\", copie) +
                             "+ Local\\Programs\\\n"
                             "+ Local\\Programs\\Ostrelle\\\n"
                             "+ Local\\Programs\\Ostrelle\\appunti.txt\n" +
                             nuove("VB and VBA Program Settings\\", recenti));
}

TEST_F(Installazione, TogliendoTuttoNonRestaNiente) {
    const Stato prima;
    ASSERT_EQ(installa(), 0U);
    apriESalva(cartella_.scrivi(L"notizie.xml", rssCon(canale)));
    attendiDisinstallata(L" /TUTTO", prima, "");
}

TEST_F(Installazione, LaCartellaNonSiSceglie) {
    ASSERT_EQ(codiceFinale(avviaInstallatore((L"/S /D=" + cartella_.percorso()).c_str())), 0U);
    EXPECT_TRUE(fileEsiste(installato(L"Ostrelle.exe")));
    EXPECT_EQ(fotografaCartella(cartella_.percorso()), Fotografia());
}
