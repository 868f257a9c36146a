#include "support/utilita/koUtilita.h"

#include "support/testi/ansi_win.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

std::wstring leggi(const std::wstring& file, const std::wstring& sezione = L"S",
                   const std::wstring& chiave = L"k") {
    return koUtilita::LeggiINI(file, sezione, chiave, L"<manca>");
}

std::int32_t erroreScrivi(const std::wstring& file, const std::wstring& sezione = L"S",
                          const std::wstring& chiave = L"k", const std::wstring& valore = L"v") {
    return erroreDi([&] { koUtilita::ScriviINI(file, sezione, chiave, valore); });
}

std::string utf16(std::wstring_view testo) {
    return "\xFF\xFE" +
           std::string(reinterpret_cast<const char*>(testo.data()), testo.size() * sizeof(wchar_t));
}

} // namespace

TEST(KoUtilitaIni, UnValoreScrittoSiRilegge) {
    const CartellaProva cartella;
    const std::wstring file = cartella.file(L"Ωmega.ini");
    for (const std::wstring& valore :
         {std::wstring(L"uno"), std::wstring(L""), std::wstring(L"  spazi  "),
          std::wstring(L"\"virgolette\""), std::wstring(L"\""), std::wstring(L"\"a' "),
          std::wstring(L"'apici'"), std::wstring(L"a=b;c]"), std::wstring(L"perché €"),
          std::wstring(1000, L'x'), std::wstring(70000 / 4, L'y')}) {
        koUtilita::ScriviINI(file, L"Sezione", L"chiave", valore);
        EXPECT_EQ(leggi(file, L"sezione", L"CHIAVE"), valore);
    }
    koUtilita::ScriviINI(file, L"Altra", L"chiave", L"due");
    EXPECT_EQ(leggi(file, L"Altra", L"chiave"), L"due");
    EXPECT_EQ(leggi(file, L"Sezione", L"chiave").size(), 17500U);
    const std::wstring lungo(1000, L'n');
    koUtilita::ScriviINI(file, lungo, lungo, lungo);
    EXPECT_EQ(leggi(file, lungo, lungo), lungo);
    EXPECT_EQ(leggi(file, L"Altra", L"chiave"), L"due");
}

TEST(KoUtilitaIni, CioCheMancaValeIlPredefinito) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.ini", "[S]\r\nk=v\r\nvuota=\r\n");
    EXPECT_EQ(leggi(file), L"v");
    EXPECT_EQ(leggi(file, L"S", L"vuota"), L"");
    EXPECT_EQ(koUtilita::LeggiINI(file, L"S", L"altra", L" così "), L" così ");
    EXPECT_EQ(koUtilita::LeggiINI(file, L"S", L"altra"), L"");
    EXPECT_EQ(leggi(file, L"T"), L"<manca>");
    EXPECT_EQ(leggi(cartella.file(L"manca.ini")), L"<manca>");
    EXPECT_FALSE(fileEsiste(cartella.file(L"manca.ini")));
    EXPECT_EQ(leggi(cartella.percorso()), L"<manca>");
    EXPECT_EQ(leggi(L""), L"<manca>");
    EXPECT_EQ(leggi(file, L""), L"<manca>");
    EXPECT_EQ(leggi(file, L"S", L""), L"<manca>");
    EXPECT_EQ(leggi(file, std::wstring(1000, L's'), std::wstring(1000, L'k')), L"<manca>");
    EXPECT_EQ(leggi(std::wstring(1000, L'f')), L"<manca>");
}

TEST(KoUtilitaIni, ScrivereUnaChiaveLasciaLeAltre) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(
        L"a.ini", "; nota\r\n[Prima]\r\na=1\r\n[S]\r\nk=v\r\nb=2\r\n[Fine]\r\nc=3\r\n");
    koUtilita::ScriviINI(file, L"S", L"k", L"nuovo");
    const std::string tutto = leggiTutto(file);
    EXPECT_NE(tutto.find("; nota"), std::string::npos) << tutto;
    EXPECT_EQ(leggi(file), L"nuovo");
    EXPECT_EQ(leggi(file, L"Prima", L"a"), L"1");
    EXPECT_EQ(leggi(file, L"S", L"b"), L"2");
    EXPECT_EQ(leggi(file, L"Fine", L"c"), L"3");
}

TEST(KoUtilitaIni, LeSezioniRotteNonGuastanoLeAltre) {
    const CartellaProva cartella;
    const std::wstring file =
        cartella.scrivi(L"a.ini", "fuori=0\r\n[rotta\r\nx=1\r\n]\r\n[]\r\nk=0\r\n=niente\r\nsenza "
                                  "uguale\r\n[S]\r\nk=v\r\n=niente\r\n");
    EXPECT_EQ(leggi(file), L"v");
    EXPECT_EQ(leggi(file, L"nessuna", L"x"), L"<manca>");
    EXPECT_EQ(leggi(file, L"", L"k"), L"<manca>");
    EXPECT_EQ(leggi(file, L"S", L""), L"<manca>");
    koUtilita::ScriviINI(file, L"S", L"k", L"w");
    const std::string tutto = leggiTutto(file);
    EXPECT_EQ(leggi(file), L"w");
    for (const char* riga : {"fuori=0", "[rotta", "x=1", "senza uguale"}) {
        EXPECT_NE(tutto.find(riga), std::string::npos) << riga << "\n" << tutto;
    }
}

TEST(KoUtilitaIni, UnFileUtf16TieneOgniCarattere) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.ini", utf16(L"[S]\r\nk=Ω\r\n"));
    EXPECT_EQ(leggi(file), L"Ω");
    koUtilita::ScriviINI(file, L"S", L"altra", L"日本");
    EXPECT_EQ(leggi(file, L"S", L"altra"), L"日本");
    EXPECT_EQ(leggi(file), L"Ω");
    EXPECT_EQ(leggiTutto(file).substr(0, 2), "\xFF\xFE");
}

TEST(KoUtilitaIni, IlSegnoDiUtf8NonGuastaIlFile) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.ini", "\xEF\xBB\xBF[P]\r\na=1\r\n[S]\r\nk=v\r\n");
    EXPECT_EQ(leggi(file), L"v");
    koUtilita::ScriviINI(file, L"S", L"k", L"w");
    EXPECT_EQ(leggi(file), L"w");
    const std::string tutto = leggiTutto(file);
    EXPECT_TRUE(tutto.starts_with("\xEF\xBB\xBF[P]\r\na=1\r\n")) << tutto;
    // The section that the mark stands before: whatever the system takes it for, it is read again.
    koUtilita::ScriviINI(file, L"P", L"a", L"però");
    EXPECT_EQ(leggi(file, L"P", L"a"), L"però");
    EXPECT_EQ(leggi(file), L"w");
}

TEST(KoUtilitaIni, UnFileUtf16RovescioNonSiTocca) {
    const CartellaProva cartella;
    std::wstring testo = L"[S]\r\nk=v\r\n";
    for (wchar_t& c : testo) {
        c = static_cast<wchar_t>(c << 8 | c >> 8);
    }
    std::string contenuto = utf16(testo);
    contenuto.replace(0, 2, "\xFE\xFF");
    const std::wstring file = cartella.scrivi(L"a.ini", contenuto);
    EXPECT_EQ(erroreScrivi(file), 5);
    EXPECT_EQ(erroreScrivi(file, L"S", L"k", L"Ω"), 5);
    EXPECT_EQ(leggiTutto(file), contenuto);
}

TEST(KoUtilitaIni, UnFileVuotoODiUnByteSiScrive) {
    const CartellaProva cartella;
    for (const char* contenuto : {"", "\xFF", "\n"}) {
        const std::wstring file = cartella.scrivi(L"a.ini", contenuto);
        EXPECT_EQ(leggi(file), L"<manca>");
        koUtilita::ScriviINI(file, L"S", L"k", L"v");
        EXPECT_EQ(leggi(file), L"v");
    }
}

TEST(KoUtilitaIni, LeRigheDiSoloCrSiLeggonoESiConservano) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.ini", "[P]\ra=1\r[S]\rk=v\rb=2\r");
    EXPECT_EQ(leggi(file), L"v");
    koUtilita::ScriviINI(file, L"S", L"k", L"w");
    EXPECT_EQ(leggi(file), L"w");
    EXPECT_EQ(leggi(file, L"S", L"b"), L"2");
    EXPECT_EQ(leggi(file, L"P", L"a"), L"1");
}

TEST(KoUtilitaIni, CioCheUnIniNonTieneSiRifiutaPrimaDiScrivere) {
    const CartellaProva cartella;
    const std::string contenuto = "[S]\r\nk=v\r\n";
    const std::wstring file = cartella.scrivi(L"a.ini", contenuto);
    using namespace std::string_literals;
    for (const std::wstring& sezione : {L""s, L" S"s, L"a]b"s, L"a\r\nb"s, L"Ω"s}) {
        EXPECT_EQ(erroreScrivi(file, sezione), 5) << inUtf8(sezione);
    }
    for (const std::wstring& chiave : {L""s, L"k "s, L"a=b"s, L";a"s, L"[a"s, L"a\nb"s, L"a\0b"s}) {
        EXPECT_EQ(erroreScrivi(file, L"S", chiave), 5) << inUtf8(chiave);
    }
    for (const std::wstring& valore : {L"a\r\n[T]\r\nx=1"s, L"a\rb"s, L"a\0b"s, L"Ω"s}) {
        EXPECT_EQ(erroreScrivi(file, L"S", L"k", valore), 5) << inUtf8(valore);
    }
    EXPECT_EQ(erroreScrivi(L""), 5);
    EXPECT_EQ(leggiTutto(file), contenuto);
}

TEST(KoUtilitaIni, UnFileCheNonSiScriveEUnErrore) {
    const CartellaProva cartella;
    EXPECT_NE(erroreScrivi(cartella.file(L"manca\\a.ini")), 0);
    const std::string contenuto = "[S]\r\nk=prima\r\n";
    const std::wstring file = cartella.scrivi(L"r.ini", contenuto);
    EXPECT_EQ(leggi(file), L"prima");
    EXPECT_EQ(erroreScrivi(cartella.file(std::wstring(1000, L'x'))), 52);
    {
        const ManigliaFile tenuto(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(tenuto);
        EXPECT_EQ(erroreScrivi(file), 70);
    }
    EXPECT_EQ(leggiTutto(file), contenuto);
}

TEST(KoUtilitaIni, DoveNonSiScriveEUnErrore) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    EXPECT_EQ(erroreScrivi(*disco + L"\\b.ini"), 75);
    EXPECT_EQ(erroreScrivi(*disco + L"\\a.txt"), 75);
    EXPECT_EQ(leggi(*disco + L"\\a.txt"), L"<manca>");
    EXPECT_EQ(leggiTutto(*disco + L"\\a.txt"), "testo");
    const CartellaProva cartella;
    EXPECT_NE(erroreScrivi(cartella.percorso()), 0);
}
