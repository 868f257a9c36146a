#include "support/koUtilita.h"

#include "support/registro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

const std::wstring correnti = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
const std::wstring appProva = correnti + L"App Paths\\OstrelleProva.exe";

InfoDisinstallazione letta(const std::wstring& programma) {
    return koUtilita::GetInfoDisinstallazione(programma).value_or(
        InfoDisinstallazione{L"<manca>", L"<manca>"});
}

} // namespace

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
        EXPECT_EQ(erroreDi([&] { koUtilita::SetFileShared(file); }), 13);
        EXPECT_EQ(erroreDi([&] { koUtilita::DecFileShared(file); }), 13);
    }
    EXPECT_EQ(erroreDi([] { koUtilita::SetFileShared(L"pieno.dll"); }), 6);
    EXPECT_EQ(koUtilita::DecFileShared(L"pieno.dll"), 0xFFFFFFFEU);
    EXPECT_EQ(erroreDi([] { koUtilita::SetFileShared(L""); }), 5);
    EXPECT_EQ(erroreDi([] { koUtilita::DecFileShared(L""); }), 5);
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
        EXPECT_EQ(erroreDi([&] { koUtilita::SetInfoDisinstallazione(nome, {}); }), 5);
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
        return erroreDi([&] { koUtilita::CreaAssociazione(e, t, L"d", p); });
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
