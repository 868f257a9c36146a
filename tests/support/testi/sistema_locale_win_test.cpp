#include "support/testi/formato.h"
#include "support/testi/numeri.h"
#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

using namespace std::string_view_literals;

namespace {

std::int32_t erroreInt16(std::wstring_view testo, Lingua lingua = Lingua::Italiano) {
    return sollevatoDa([&] { return testoAInt16(testo, lingua); }).numero;
}

bool utenteItaliano() {
    return PRIMARYLANGID(GetUserDefaultLangID()) == LANG_ITALIAN;
}

} // namespace

TEST(NumeriDiSistema, UnTestoSiLeggeConISeparatoriDellaSuaLingua) {
    EXPECT_EQ(testoADouble(L"1.234,5", Lingua::Italiano), 1234.5);
    EXPECT_EQ(testoADouble(L"1,234.5", Lingua::Inglese), 1234.5);
    EXPECT_EQ(testoADouble(L",5", Lingua::Italiano), 0.5);
    EXPECT_EQ(testoADouble(L"5,", Lingua::Italiano), 5);
    EXPECT_EQ(testoADouble(L"-5", Lingua::Italiano), -5);
    EXPECT_EQ(testoADouble(L"1e2", Lingua::Italiano), 100);
    EXPECT_EQ(testoADouble(L"\t5\u00A0", Lingua::Italiano), 5);
    for (const auto* const testo : {L"", L" ", L"-", L"abc", L"1a", L".5", L"1,5,5", L"1e400"}) {
        EXPECT_FALSE(testoADouble(testo, Lingua::Italiano).has_value())
            << testing::PrintToString(testo);
    }
    EXPECT_EQ(testoADouble(L"1,5", Lingua::Utente), utenteItaliano() ? 1.5 : 15);
    EXPECT_EQ(testoADouble(L"1.5", Lingua::Utente), utenteItaliano() ? 15 : 1.5);
}

TEST(NumeriDiSistema, UnInteroSiLeggeConLeMetaAlPari) {
    const auto italiano = [](std::wstring_view testo) {
        return testoAInt16(testo, Lingua::Italiano);
    };
    EXPECT_EQ(italiano(L"+0100"), 100);
    EXPECT_EQ(italiano(L"-0500"), -500);
    EXPECT_EQ(italiano(L"(0100)"), -100);
    EXPECT_EQ(italiano(L"0500-"), -500);
    EXPECT_EQ(italiano(L" 12 "), 12);
    EXPECT_EQ(italiano(L"2,5"), 2);
    EXPECT_EQ(italiano(L"3,5"), 4);
    EXPECT_EQ(italiano(L"1.000"), 1000);
    EXPECT_EQ(testoAInt16(L"1.000", Lingua::Inglese), 1);
    EXPECT_EQ(italiano(L"&HFFFF"), -1);
    EXPECT_EQ(italiano(L"&O17"), 15);
    EXPECT_EQ(testoAInt16(L"1,500", Lingua::Utente), utenteItaliano() ? 2 : 1500);
}

TEST(NumeriDiSistema, CioCheNonENumeroEErrore13ETroppoGrandeErrore6) {
    for (const auto* const testo : {L"--0500", L"EST", L"Z", L"+01:00", L"", L" ", L"-", L"(1",
                                    L"1)", L"1 2", L"&", L"&H", L"e1", L"1e", L"+", L","}) {
        EXPECT_EQ(erroreInt16(testo), 13) << testing::PrintToString(testo);
    }
    for (const auto* const testo : {L"40000", L"32767,5", L"1e400", L"&H10000", L"-32769"}) {
        EXPECT_EQ(erroreInt16(testo), 6) << testing::PrintToString(testo);
    }
    EXPECT_EQ(sollevatoDa([] { return testoAInt16(L"Z", Lingua::Utente); }).descrizione,
              testi::diErrore(13));
}

// A text goes to Windows without its length.
TEST(NumeriDiSistema, UnCarattereZeroNonTagliaIlTesto) {
    EXPECT_FALSE(testoADouble(L"5\0"sv, Lingua::Italiano).has_value());
    EXPECT_FALSE(testoADouble(L"5\0"
                              L"6"sv,
                              Lingua::Italiano)
                     .has_value());
    EXPECT_EQ(erroreInt16(L"5\0x"sv), 13);
    EXPECT_EQ(testoADouble(L"56"sv.substr(0, 1), Lingua::Italiano), 5);
}

TEST(NumeriDiSistema, IlValoreInizialeHaIlPuntoInOgniLingua) {
    EXPECT_EQ(valoreIniziale(L"1.5px"), 1.5);
    EXPECT_EQ(valoreIniziale(L"1,5"), 1);
    EXPECT_EQ(valoreIniziale(L"12.34e-1x"), 1.234);
    EXPECT_EQ(valoreIniziale(L"- 1 000.25"), -1000.25);
}

TEST(MaiuscoleDiSistema, OgniLetteraEUnaSola) {
    EXPECT_EQ(maiuscolo(L"c:\\città\\è.xml"), L"C:\\CITTÀ\\È.XML");
    EXPECT_EQ(minuscolo(L"C:\\CITTÀ\\È.XML"), L"c:\\città\\è.xml");
    EXPECT_EQ(maiuscolo(L"straße"), L"STRAßE");
    EXPECT_EQ(maiuscolo(L"āžωя7-_"), L"ĀŽΩЯ7-_");
    EXPECT_EQ(minuscolo(L"ĀŽΩЯ7-_"), L"āžωя7-_");
    EXPECT_EQ(maiuscolo(L"ı i"), L"ı I");
    EXPECT_EQ(maiuscolo(L""), L"");
    EXPECT_EQ(maiuscolo(L"a\0b"sv), L"A\0B"sv);
    EXPECT_EQ(maiuscolo(std::wstring(100000, L'è')), std::wstring(100000, L'È'));
}

namespace {

std::wstring piegato(std::wstring_view testo, Maiuscole maiuscole = Maiuscole::Ignora) {
    std::wstring esito = L"what stood there before";
    piega(testo, maiuscole, esito);
    return esito;
}

} // namespace

TEST(PiegaDiSistema, SenzaAccentiNeMaiuscole) {
    EXPECT_EQ(piegato(L"Perché la CITTÀ è già lì"), L"perche la citta e gia li");
    EXPECT_EQ(piegato(L"Perché la CITTÀ", Maiuscole::Distingui), L"Perche la CITTA");
    EXPECT_EQ(piegato(L"e\u0301E\u0301"), L"ee");
    EXPECT_EQ(piegato(L"Ậậ Ñ ç Ω Ά Й"), L"aa n c ω α и");
    EXPECT_EQ(piegato(L""), L"");
    EXPECT_EQ(piegato(L"\u0301"), L"");
    EXPECT_EQ(piegato(L"\0é"sv), L"\0e"sv);
    // Spacing accents are characters of their own.
    EXPECT_EQ(piegato(L"`^~´¨"), L"`^~´¨");
    EXPECT_EQ(piegato(std::wstring(100000, L'È')), std::wstring(100000, L'e'));
}

TEST(PiegaDiSistema, LeLegatureSonoLeLoroLettere) {
    EXPECT_EQ(piegato(L"Straße"), L"strasse");
    EXPECT_EQ(piegato(L"Æther œuvre"), L"aether oeuvre");
    EXPECT_EQ(piegato(L"Æß", Maiuscole::Distingui), L"AEss");
    EXPECT_EQ(piegato(L"\uFB01\uFB03"), L"fiffi");
    EXPECT_EQ(piegato(L"\u01C4"), L"dz");
}

// The system counts them as marks: they are letters all the same.
TEST(PiegaDiSistema, LeLettereBarrateRestano) {
    EXPECT_EQ(piegato(L"Øø Łł"), L"øø łł");
}

TEST(PiegaDiSistema, UnaMezzaCoppiaNonFaSparireIlTesto) {
    EXPECT_EQ(piegato(L"\xD83D ciao"), L"\xD83D ciao");
    EXPECT_EQ(piegato(L"\xD83D\xDE00 È"), L"\xD83D\xDE00 e");
}
