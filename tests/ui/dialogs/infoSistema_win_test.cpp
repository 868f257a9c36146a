#include "ui/dialogs/infoSistema_win.h"

#include "tests/aiuti/ambiente_win.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/testi.h"

#include <filesystem>
#include <optional>

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

const std::wstring nome = L"valore";

class GetKeyValueRegistro : public testing::Test {
protected:
    [[nodiscard]] std::optional<std::wstring> leggi(const std::wstring& valore = nome) const {
        std::wstring letto = intatto;
        if (GetKeyValue(HKEY_CURRENT_USER, chiave.nome(), valore, letto)) {
            return letto;
        }
        EXPECT_EQ(letto, intatto);
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::wstring> leggiNumero(std::string_view byte) const {
        chiave.grezzo(nome, REG_DWORD, byte);
        return leggi();
    }
    void daEspandere(const std::wstring& testo) const { chiave.testo(nome, testo, REG_EXPAND_SZ); }
    // A string value of these characters with no NUL at its end. What follows it in memory is not
    // NUL either, or Windows would count that one in.
    void senzaNul(const std::wstring& testo) const {
        const std::wstring conCoda = testo + L"coda";
        chiave.grezzo(
            nome, REG_SZ,
            {reinterpret_cast<const char*>(conCoda.data()), testo.size() * sizeof(wchar_t)});
    }

    const ChiaveSalvata chiave{HKEY_CURRENT_USER, L"Software\\OstrelleProve\\GetKeyValue"};

private:
    const std::wstring intatto = L"intatto";
};

class StartSysInfoRegistro : public testing::Test {
protected:
    static void deveFallire() {
        MessaggiFinti messaggi;
        messaggi.attendi(testi::senzaInfoSistema, testi::errore, Icona::Critica);
        StartSysInfo(messaggi);
    }
    // The start of this recorder; it is gone when this returns.
    Registratore::Lancio deveAvviare(const std::wstring& programma) {
        MessaggiFinti messaggi;
        StartSysInfo(messaggi);
        auto lancio = registratore.attendi();
        EXPECT_TRUE(attendiChe([&] { return DeleteFileW(programma.c_str()) != FALSE; }));
        return lancio;
    }
    [[nodiscard]] std::wstring registratoreIn(const std::wstring& nomeFile) const {
        std::wstring percorso = cartella.file(nomeFile);
        std::filesystem::create_directories(std::filesystem::path(percorso).parent_path());
        Registratore::copiaIn(percorso);
        return percorso;
    }

    const ChiaveSalvata msinfo{HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"};
    const ChiaveSalvata luogo{HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools Location"};
    const CartellaProva cartella;
    Registratore registratore;
};

} // namespace

TEST_F(GetKeyValueRegistro, UnTestoSiLeggeSenzaIlNulFinale) {
    chiave.testo(nome, L"C:\\Città\\è uno");
    EXPECT_EQ(leggi(), L"C:\\Città\\è uno");
}

TEST_F(GetKeyValueRegistro, UnTestoSenzaNulSiLeggeIntero) {
    senzaNul(L"abc");
    EXPECT_EQ(leggi(), L"abc");
}

TEST_F(GetKeyValueRegistro, DiDueNulFinaliNeRestaUno) {
    chiave.testo(nome, std::wstring(L"abc\0"sv.begin(), L"abc\0"sv.end()));
    EXPECT_EQ(leggi(), std::wstring(L"abc\0", 4));
}

TEST_F(GetKeyValueRegistro, UnTestoVuotoELaSuaMarcaSonoTestoVuoto) {
    chiave.testo(nome, L"");
    EXPECT_EQ(leggi(), L"");
}

TEST_F(GetKeyValueRegistro, UnValoreDiDimensioneZeroEIlTestoVuoto) {
    for (const DWORD tipo : {REG_SZ, REG_DWORD, REG_BINARY}) {
        chiave.grezzo(nome, tipo, {});
        EXPECT_EQ(leggi(), L"") << tipo;
    }
}

TEST_F(GetKeyValueRegistro, MilleventitreCaratteriConIlNulEntrano) {
    const std::wstring testo(1023, L'x');
    chiave.testo(nome, testo);
    EXPECT_EQ(leggi(), testo);
}

TEST_F(GetKeyValueRegistro, MilleventiquattroCaratteriEntranoSenzaIlNul) {
    const std::wstring testo(1024, L'x');
    senzaNul(testo);
    EXPECT_EQ(leggi(), testo);
    chiave.testo(nome, testo);
    EXPECT_EQ(leggi(), std::nullopt);
}

TEST_F(GetKeyValueRegistro, UnValorePiuLungoNonSiLegge) {
    senzaNul(std::wstring(1025, L'x'));
    EXPECT_EQ(leggi(), std::nullopt);
    chiave.grezzo(nome, REG_BINARY, std::string(1025, 'x'));
    EXPECT_EQ(leggi(), std::nullopt);
}

TEST_F(GetKeyValueRegistro, UnaChiaveOUnValoreCheMancaNonSiLegge) {
    EXPECT_EQ(leggi(), std::nullopt); // no key
    chiave.testo(L"altro", L"x");
    EXPECT_EQ(leggi(), std::nullopt); // no value
}

TEST_F(GetKeyValueRegistro, LaRadiceConta) {
    chiave.testo(nome, L"x");
    std::wstring letto;
    EXPECT_FALSE(GetKeyValue(HKEY_LOCAL_MACHINE, chiave.nome(), nome, letto));
}

TEST_F(GetKeyValueRegistro, UnNumeroSiLeggeDallUltimoByteSenzaZeriIniziali) {
    EXPECT_EQ(leggiNumero("\x04\x03\x02\x01"sv), L"4660");       // &h1234
    EXPECT_EQ(leggiNumero("\x78\x56\x34\x12"sv), L"305419896");  // &h12345678
    EXPECT_EQ(leggiNumero("\x02\x01\x00\x00"sv), L"18");         // &h012, not 258
    EXPECT_EQ(leggiNumero("\x02\x00\x00\x01"sv), L"4098");       // &h1002
    EXPECT_EQ(leggiNumero("\x0f\x10\x00\x00"sv), L"271");        // &h010F
    EXPECT_EQ(leggiNumero("\xff\xff\xff\xff"sv), L"4294967295"); // &hFFFFFFFF
    EXPECT_EQ(leggiNumero("\x2a\x00\x00\x00"sv), L"42");         // &h002A
}

TEST_F(GetKeyValueRegistro, LoZeroEZero) {
    EXPECT_EQ(leggiNumero("\0\0\0\0"sv), L"0");
    EXPECT_EQ(leggiNumero("\0"sv), L"0");
}

TEST_F(GetKeyValueRegistro, UnNumeroDiDimensioneSbagliataSiLeggeFincheSiPuo) {
    EXPECT_EQ(leggiNumero("\x34\x12"sv), L"4660");
    EXPECT_EQ(leggiNumero("\xff\xff\xff\xff\xff\xff\xff\xff"sv), L"18446744073709551615");
    EXPECT_EQ(leggiNumero("\x01\xff\xff\xff\xff\xff\xff\xff\xff"sv), std::nullopt);
}

TEST_F(GetKeyValueRegistro, UnAltroTipoEIlTestoVuoto) {
    chiave.grezzo(nome, REG_BINARY, "abc");
    EXPECT_EQ(leggi(), L"");
    chiave.grezzo(nome, REG_MULTI_SZ, "a\0\0\0"sv);
    EXPECT_EQ(leggi(), L"");
}

TEST_F(GetKeyValueRegistro, UnTestoDaEspandereSiLeggeEspanso) {
    const VariabileAmbiente variabile(L"OSTRELLE_PROVA_ESPANDI", L"C:\\Città");
    daEspandere(L"%OSTRELLE_PROVA_ESPANDI%\\x.exe");
    EXPECT_EQ(leggi(), L"C:\\Città\\x.exe");
    daEspandere(L"%OSTRELLE_PROVA_MANCA%\\100%");
    EXPECT_EQ(leggi(), L"%OSTRELLE_PROVA_MANCA%\\100%");
    daEspandere(L"");
    EXPECT_EQ(leggi(), L"");
    // A plain text stays as it is.
    chiave.testo(nome, L"%OSTRELLE_PROVA_ESPANDI%");
    EXPECT_EQ(leggi(), L"%OSTRELLE_PROVA_ESPANDI%");
}

TEST_F(GetKeyValueRegistro, UnValoreCheEspansoELungoSiLeggeIntero) {
    const std::wstring lungo(5000, L'x');
    const VariabileAmbiente variabile(L"OSTRELLE_PROVA_ESPANDI", lungo);
    daEspandere(L"%OSTRELLE_PROVA_ESPANDI%!");
    EXPECT_TRUE(leggi() == lungo + L'!');
}

TEST_F(GetKeyValueRegistro, LaChiaveSiApreConIDirittiDiLetturaENonAltri) {
    chiave.testo(nome, L"x");
    chiave.nega();
    EXPECT_EQ(leggi(), L"x");
    // One of the rights to read is not enough.
    chiave.permetti(L"D:P(A;;0x1;;;WD)");
    EXPECT_EQ(leggi(), std::nullopt);
}

TEST_F(StartSysInfoRegistro, IlPrimoValoreEIlProgramma) {
    const std::wstring programma = registratoreIn(L"MSINFO32.EXE");
    msinfo.testo(L"PATH", programma);
    const auto lancio = deveAvviare(programma);
    EXPECT_EQ(lancio.programma, programma);
    EXPECT_EQ(lancio.obiettivo, L"");
    EXPECT_EQ(lancio.stato, SW_SHOWNORMAL);
}

TEST_F(StartSysInfoRegistro, BlanksEAccentiNelPercorsoNonConfondono) {
    const std::wstring programma = registratoreIn(L"Strumenti è miei\\MS Info.exe");
    // What a command line without quotes would start.
    static_cast<void>(cartella.scrivi(L"Strumenti.exe", "no program"));
    msinfo.testo(L"PATH", programma);
    EXPECT_EQ(deveAvviare(programma).programma, programma);
}

TEST_F(StartSysInfoRegistro, UnPercorsoGiaTraVirgoletteVaBene) {
    const std::wstring programma = registratoreIn(L"MS Info.exe");
    msinfo.testo(L"PATH", L'"' + programma + L'"');
    EXPECT_EQ(deveAvviare(programma).programma, programma);
}

TEST_F(StartSysInfoRegistro, UnPercorsoDaEspandereTrovaIlProgramma) {
    const std::wstring programma = registratoreIn(L"MSINFO32.EXE");
    const VariabileAmbiente variabile(L"OSTRELLE_PROVA_ESPANDI", cartella.percorso());
    msinfo.testo(L"PATH", L"%OSTRELLE_PROVA_ESPANDI%\\MSINFO32.EXE", REG_EXPAND_SZ);
    EXPECT_EQ(deveAvviare(programma).programma, programma);
}

TEST_F(StartSysInfoRegistro, ConIlPrimoValoreIlSecondoNonSiGuarda) {
    msinfo.testo(L"PATH", cartella.file(L"manca.exe"));
    static_cast<void>(registratoreIn(L"MSINFO32.EXE"));
    luogo.testo(L"MSINFO", cartella.percorso());
    deveFallire();
}

TEST_F(StartSysInfoRegistro, IlSecondoValoreELaCartellaDelProgramma) {
    const std::wstring programma = registratoreIn(L"MSINFO32.EXE");
    luogo.testo(L"MSINFO", cartella.percorso());
    EXPECT_EQ(deveAvviare(programma).programma, programma);
}

TEST_F(StartSysInfoRegistro, SenzaIlProgrammaNellaCartellaNonParteNulla) {
    luogo.testo(L"MSINFO", cartella.percorso());
    deveFallire();
    // Nor is one that is hidden there.
    const std::wstring nascosto = registratoreIn(L"MSINFO32.EXE");
    SetFileAttributesW(nascosto.c_str(), FILE_ATTRIBUTE_HIDDEN);
    deveFallire();
    SetFileAttributesW(nascosto.c_str(), FILE_ATTRIBUTE_NORMAL);
    ASSERT_TRUE(DeleteFileW(nascosto.c_str()));
    // A folder of that name is no program.
    std::filesystem::create_directory(cartella.file(L"MSINFO32.EXE"));
    deveFallire();
}

TEST_F(StartSysInfoRegistro, SenzaValoriNonParteNulla) {
    deveFallire();
    msinfo.testo(L"ALTRO", L"x");
    luogo.testo(L"ALTRO", L"x");
    deveFallire();
}

TEST_F(StartSysInfoRegistro, UnValoreVuotoODiAltroTipoNonAvviaNulla) {
    msinfo.testo(L"PATH", L"");
    deveFallire();
    msinfo.grezzo(L"PATH", REG_SZ, {});
    deveFallire();
    msinfo.grezzo(L"PATH", REG_BINARY, "\1\2");
    deveFallire();
    msinfo.grezzo(L"PATH", REG_DWORD, "\1\2\3\4");
    deveFallire();
}

TEST_F(StartSysInfoRegistro, UnFileCheNonEUnProgrammaNonParte) {
    msinfo.testo(L"PATH", cartella.scrivi(L"testo.exe", "no program"));
    deveFallire();
    msinfo.testo(L"PATH", cartella.percorso());
    deveFallire();
}

TEST_F(StartSysInfoRegistro, UnPercorsoTroppoLungoValeComeAssente) {
    const std::wstring programma = registratoreIn(L"MSINFO32.EXE");
    msinfo.testo(L"PATH", std::wstring(1024, L'x'));
    luogo.testo(L"MSINFO", cartella.percorso());
    EXPECT_EQ(deveAvviare(programma).programma, programma);
}
