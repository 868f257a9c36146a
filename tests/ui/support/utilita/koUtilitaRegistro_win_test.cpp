#include "support/utilita/koUtilita.h"

#include "support/windows/registro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

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
    EXPECT_EQ(lancio.obiettivo, L"uno due");
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
        messaggi.attendi(nome + testi::applicazioneNonTrovata, testi::errore, Icona::Critica);
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

TEST(KoUtilitaCondivisi, SenzaDirittiIlContoResta) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, correnti + L"SharedDLLs");
    EXPECT_EQ(koUtilita::SetFileShared(L"a.dll"), 1U);
    chiave.nega();
    EXPECT_EQ(erroreDi([] { koUtilita::SetFileShared(L"a.dll"); }), 75);
    EXPECT_EQ(erroreDi([] { koUtilita::SetFileShared(L"b.dll"); }), 75);
    EXPECT_EQ(erroreDi([] { koUtilita::DecFileShared(L"a.dll"); }), 75);
    DWORD conto = 0;
    DWORD byte = sizeof(conto);
    RegGetValueW(HKEY_LOCAL_MACHINE, chiave.nome().c_str(), L"a.dll", RRF_RT_DWORD, nullptr, &conto,
                 &byte);
    EXPECT_EQ(conto, 1U);
    chiave.nega(true);
    EXPECT_EQ(erroreDi([] { koUtilita::DecFileShared(L"a.dll"); }), 75);
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

TEST(KoUtilitaDisinstalla, UnProgrammaCheNonCEraSiScriveNellaMacchina) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, correnti + L"Uninstall\\OstrelleProva");
    koUtilita::SetInfoDisinstallazione(L"OstrelleProva", {L"Nuovo", L"u"});
    EXPECT_EQ(leggiTesto(HKEY_LOCAL_MACHINE, chiave.nome(), L"DisplayName"), L"Nuovo");
    EXPECT_EQ(leggiTesto(HKEY_LOCAL_MACHINE, chiave.nome(), L"UninstallString"), L"u");
}

TEST(KoUtilitaDisinstalla, UnNomeCheNonEUnaChiaveSiRifiuta) {
    for (const std::wstring& nome :
         {std::wstring(), std::wstring(L"a\\b"), std::wstring(1000, L'x')}) {
        EXPECT_EQ(erroreDi([&] { koUtilita::SetInfoDisinstallazione(nome, {}); }), 5);
        EXPECT_FALSE(koUtilita::GetInfoDisinstallazione(nome));
    }
}

TEST(KoUtilitaDisinstalla, UnProgrammaA32BitOSoloDellUtenteSiTrovaESiScriveDoveSta) {
    const std::wstring nome = L"Uninstall\\OstrelleProva";
    const ChiaveSalvata macchina(HKEY_LOCAL_MACHINE, correnti + nome);
    const ChiaveSalvata a32(HKEY_LOCAL_MACHINE,
                            L"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\" + nome);
    const ChiaveSalvata utente(HKEY_CURRENT_USER, correnti + nome);
    utente.testo(L"DisplayName", L"utente");
    EXPECT_EQ(letta(L"OstrelleProva").DisplayName, L"utente");
    koUtilita::SetInfoDisinstallazione(L"OstrelleProva", {L"utente 2", L"u"});
    EXPECT_EQ(leggiTesto(HKEY_CURRENT_USER, utente.nome(), L"DisplayName"), L"utente 2");
    a32.testo(L"DisplayName", L"a 32 bit");
    EXPECT_EQ(letta(L"OstrelleProva").DisplayName, L"a 32 bit");
    koUtilita::SetInfoDisinstallazione(L"OstrelleProva", {L"a 32 bit 2", L"u"});
    EXPECT_EQ(leggiTesto(HKEY_LOCAL_MACHINE, a32.nome(), L"DisplayName"), L"a 32 bit 2");
    EXPECT_FALSE(leggiTesto(HKEY_LOCAL_MACHINE, macchina.nome(), L"DisplayName"));
    macchina.testo(L"DisplayName", L"macchina");
    EXPECT_EQ(letta(L"OstrelleProva").DisplayName, L"macchina");
}

TEST(KoUtilitaDisinstalla, SenzaDirittiNullaCambia) {
    const ChiaveSalvata chiave(HKEY_LOCAL_MACHINE, correnti + L"Uninstall\\OstrelleProva");
    chiave.testo(L"DisplayName", L"prima");
    chiave.nega();
    EXPECT_EQ(erroreDi([] {
                  koUtilita::SetInfoDisinstallazione(L"OstrelleProva", {L"a", L"b"});
              }),
              75);
    EXPECT_EQ(letta(L"OstrelleProva").DisplayName, L"prima");
    EXPECT_EQ(letta(L"OstrelleProva").UninstallString, L"");
    chiave.nega(true);
    EXPECT_FALSE(koUtilita::GetInfoDisinstallazione(L"OstrelleProva"));
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

TEST(KoUtilitaAssociazione, SenzaDirittiValePerIlSoloUtente) {
    const std::wstring estensione = L".okoprova";
    const std::wstring tipo = L"OstrelleProva.Tipo";
    const std::wstring mie = L"Software\\Classes\\";
    const ChiaveSalvata tipoMio(HKEY_CURRENT_USER, mie + tipo);
    const ChiaveSalvata estensioneMia(HKEY_CURRENT_USER, mie + estensione);
    // The type, then the extension alone, is one that Windows keeps for administrators.
    for (const std::wstring& negata : {tipo, estensione}) {
        const ChiaveSalvata tipoDiTutti(HKEY_LOCAL_MACHINE, mie + tipo);
        const ChiaveSalvata estensioneDiTutti(HKEY_LOCAL_MACHINE, mie + estensione);
        (negata == tipo ? tipoDiTutti : estensioneDiTutti).nega();
        koUtilita::CreaAssociazione(estensione, tipo, negata, L"C:\\a b.exe", L"C:\\a b.exe,1");
        EXPECT_EQ(leggiTesto(HKEY_CURRENT_USER, tipoMio.nome(), L""), negata);
        EXPECT_EQ(leggiTesto(HKEY_CURRENT_USER, tipoMio.nome() + L"\\Shell\\Open\\Command", L""),
                  L"\"C:\\a b.exe\" \"%1\"");
        EXPECT_EQ(leggiTesto(HKEY_CURRENT_USER, tipoMio.nome() + L"\\DefaultIcon", L""),
                  L"C:\\a b.exe,1");
        EXPECT_EQ(leggiTesto(HKEY_CURRENT_USER, estensioneMia.nome(), L""), tipo);
        EXPECT_FALSE(leggiTesto(HKEY_LOCAL_MACHINE, estensioneDiTutti.nome(), L""));
        // Of the type for all nothing is left but what was there.
        HKEY chiave = nullptr;
        EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, tipoDiTutti.nome().c_str(), 0, KEY_READ,
                                &chiave) == ERROR_SUCCESS,
                  negata == tipo);
        RegCloseKey(chiave);
    }
}

TEST(KoUtilitaAssociazione, SenzaAlcunDirittoEUnErrore) {
    const ChiaveSalvata tipo(HKEY_CLASSES_ROOT, L"OstrelleProva.Tipo");
    const ChiaveSalvata estensione(HKEY_CLASSES_ROOT, L".okoprova");
    const ChiaveSalvata mio(HKEY_CURRENT_USER, L"Software\\Classes\\OstrelleProva.Tipo");
    tipo.nega();
    mio.nega();
    EXPECT_EQ(erroreDi([] {
                  koUtilita::CreaAssociazione(L".okoprova", L"OstrelleProva.Tipo", L"d", L"a.exe");
              }),
              75);
    EXPECT_FALSE(leggiTesto(HKEY_CLASSES_ROOT, L".okoprova", L""));
}

TEST(KoUtilitaAssociazione, TestiLunghiSiScrivonoInteri) {
    const ChiaveSalvata estensione(HKEY_CLASSES_ROOT, L".okoprova");
    const ChiaveSalvata tipo(HKEY_CLASSES_ROOT, L"OstrelleProva.Tipo");
    const std::wstring lungo(1000, L'x');
    koUtilita::CreaAssociazione(L".okoprova", L"OstrelleProva.Tipo", lungo, lungo, lungo);
    EXPECT_EQ(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome(), L""), lungo);
    EXPECT_EQ(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome() + L"\\DefaultIcon", L""), lungo);
    EXPECT_EQ(leggiTesto(HKEY_CLASSES_ROOT, tipo.nome() + L"\\Shell\\Open\\Command", L""),
              L'"' + lungo + L"\" \"%1\"");
}
