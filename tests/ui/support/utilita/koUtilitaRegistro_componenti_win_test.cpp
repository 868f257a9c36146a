#include "support/utilita/koUtilita.h"

#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

const std::wstring classi = L"Software\\Classes\\";
const std::wstring clsid = L"{5B0B3C52-6E0D-4B0E-9B6F-0C7A3D9E1F24}";
const std::wstring componente = L"OstrelleProve.Componente";

std::wstring libreria() {
    return koUtilita::CurDirApp() + L"componente.dll";
}

} // namespace

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
    EXPECT_NE(erroreDi([] { koUtilita::DeRegistraServer(libreria()); }), 0);
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
    EXPECT_EQ(erroreDi([&] { koUtilita::RegistraServer(programma); }), 57);
}

TEST(KoUtilitaComponenti, CioCheNonSiRegistraEUnErrore) {
    const CartellaProva cartella;
    for (const auto azione : {koUtilita::RegistraServer, koUtilita::DeRegistraServer}) {
        EXPECT_EQ(erroreDi([&] { azione(L""); }), 5);
        EXPECT_EQ(erroreDi([&] { azione(cartella.scrivi(L"a.txt", "x")); }), 5);
        EXPECT_EQ(erroreDi([&] { azione(cartella.file(L"manca.dll")); }), 53);
        EXPECT_EQ(erroreDi([&] { azione(cartella.scrivi(L"a.ocx", "x")); }), 57);
        EXPECT_EQ(erroreDi([&] { azione(cartella.scrivi(L"a.exe", "x")); }), 57);
        EXPECT_EQ(erroreDi([&] { azione(koUtilita::GetWindowsSysDir() + L"kernel32.dll"); }), 438);
        EXPECT_NE(erroreDi([&] { azione(std::wstring(1000, L'x') + L".dll"); }), 0);
    }
}

TEST(KoUtilitaComponenti, UnaLibreriaA32BitSiTrovaDopoQuellaA64) {
    const std::wstring chiave = L"CLSID\\" + clsid;
    const ChiaveSalvata a64(HKEY_LOCAL_MACHINE, classi + chiave);
    const ChiaveSalvata a32(HKEY_LOCAL_MACHINE, classi + L"Wow6432Node\\" + chiave);
    const ChiaveSalvata server32(HKEY_LOCAL_MACHINE, a32.nome() + L"\\InprocServer32");
    server32.testo(L"", L"C:\\a32.ocx");
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"C:\\a32.ocx");
    const ChiaveSalvata server64(HKEY_LOCAL_MACHINE, a64.nome() + L"\\InprocServer32");
    server64.testo(L"", L"C:\\a64.ocx");
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"C:\\a64.ocx");
    server64.nega(true);
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"C:\\a32.ocx");
}

TEST(KoUtilitaComponenti, IlRifiutoDelComponenteSiSolleva) {
    const ChiaveSalvata classe(HKEY_LOCAL_MACHINE, classi + L"CLSID\\" + clsid);
    const ChiaveSalvata nome(HKEY_LOCAL_MACHINE, classi + componente);
    const ChiaveSalvata negata(HKEY_LOCAL_MACHINE, nome.nome() + L"\\CLSID");
    negata.nega();
    EXPECT_EQ(erroreDi([] { koUtilita::RegistraServer(libreria()); }), 70);
    EXPECT_EQ(koUtilita::PathServerOcx(clsid), L"");
}
