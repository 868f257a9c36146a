#include "support/utilita/koUtilita.h"

#include "support/tempo/dataora.h"
#include "support/testi/ansi_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <regex>

#include <gtest/gtest.h>

namespace {

std::int32_t erroreLog(const std::wstring& file, const std::wstring& testo = L"x") {
    return erroreDi([&] { koUtilita::ScriviLog(file, testo); });
}

} // namespace

TEST(KoUtilitaLog, OgniRigaPortaDataEOraESiAggiunge) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"prova.log", "prima\r\n");
    const auto inizio = istanteAttuale().locale.parti();
    koUtilita::ScriviLog(cartella.file(L"prova"), L"perché €");
    koUtilita::ScriviLog(cartella.file(L"prova.log"), L"a\r\nb\nc\rd");
    koUtilita::ScriviLog(cartella.file(L"prova.LOG"), L"");
    const std::string tutto = leggiTutto(file);
    const std::string timbro = "(\\d{4})-([a-zA-Z]{3})-(\\d\\d) \\d\\d:\\d\\d:\\d\\d ";
    const std::regex forma("prima\r\n" + timbro + inAnsi(L"perché €") + "\r\n" + timbro +
                           "a b c d\r\n" + timbro + "\r\n");
    std::smatch pezzi;
    ASSERT_TRUE(std::regex_match(tutto, pezzi, forma)) << tutto;
    EXPECT_EQ(pezzi[1], std::to_string(inizio.anno));
    const bool italiano = GetUserDefaultLCID() == 0x0410;
    const std::array<const char*, 12> mesi =
        italiano ? std::array{"gen", "feb", "mar", "apr", "mag", "giu",
                              "lug", "ago", "set", "ott", "nov", "dic"}
                 : std::array{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    EXPECT_EQ(pezzi[2], mesi.at(static_cast<std::size_t>(inizio.mese - 1)));
}

TEST(KoUtilitaLog, UnNomeConUnAltraEstensioneRicevePureLog) {
    const CartellaProva cartella;
    koUtilita::ScriviLog(cartella.file(L"a.txt"), L"x");
    EXPECT_TRUE(leggiTutto(cartella.file(L"a.txt.log")).ends_with(" x\r\n"));
}

TEST(KoUtilitaLog, UnLogCheNonSiApreEUnErrore) {
    const CartellaProva cartella;
    EXPECT_EQ(erroreLog(cartella.file(L"manca\\a.log")), 76);
    EXPECT_EQ(erroreLog(L""), 52);
    EXPECT_EQ(erroreLog(cartella.percorso() + L"\\"), 52);
    EXPECT_NE(erroreLog(cartella.file(std::wstring(1000, L'x'))), 0);
    const std::wstring file = cartella.scrivi(L"r.log", "prima");
    {
        const ManigliaFile tenuto(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(tenuto);
        EXPECT_EQ(erroreLog(file), 70);
    }
    EXPECT_EQ(leggiTutto(file), "prima");
}

TEST(KoUtilitaLog, PiuProgrammiScrivonoLoStessoLog) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.log", "prima\r\n");
    const ManigliaFile altro(CreateFileW(file.c_str(), FILE_APPEND_DATA,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(altro);
    koUtilita::ScriviLog(file, L"nostra");
    DWORD scritti = 0;
    ASSERT_TRUE(WriteFile(altro.get(), "altra\r\n", 7, &scritti, nullptr));
    koUtilita::ScriviLog(file, std::wstring(1000, L'y'));
    const std::regex forma("prima\r\n\\S+ \\S+ nostra\r\naltra\r\n\\S+ \\S+ y{1000}\r\n");
    EXPECT_TRUE(std::regex_match(leggiTutto(file), forma)) << leggiTutto(file);
}

TEST(KoUtilitaLog, DoveNonSiScriveEUnErrore) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    EXPECT_EQ(erroreLog(*disco + L"\\b.log"), 75);
    EXPECT_EQ(erroreLog(*disco + L"\\a.txt"), 75);
    EXPECT_EQ(leggiTutto(*disco + L"\\a.txt"), "testo");
}

TEST(KoUtilitaLog, SuUnDiscoPienoEUnErrore) {
    const auto disco = discoPiccolo();
    if (!disco) {
        GTEST_SKIP() << "no small volume";
    }
    const std::wstring file = *disco + L"\\a.log";
    EXPECT_EQ(erroreLog(file, L"prima"), 0);
    EXPECT_EQ(erroreLog(file, std::wstring(1000000, L'x')), 61);
    EXPECT_NE(leggiTutto(file).find(" prima\r\n"), std::string::npos);
    DeleteFileW(file.c_str());
}
