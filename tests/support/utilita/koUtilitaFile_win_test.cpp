#include "support/utilita/koUtilita.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

ManigliaFile apri(const std::wstring& file, DWORD condivisione) {
    return ManigliaFile(CreateFileW(file.c_str(), GENERIC_READ, condivisione, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// A compressed file of eight literal bytes and one match that repeats the first four of them.
std::string compresso() {
    std::string file("SZDD\x88\xF0\x27\x33"
                     "A\0",
                     10);
    file += std::string("\x0C\0\0\0", 4);
    // Flags: eight literals; then one match. The window begins at 4096 - 16.
    file += "\xFF"
            "ABCDEFGH";
    file += std::string("\0\xF0\xF1", 3);
    return file;
}

std::size_t quantiFile(const CartellaProva& cartella) {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(cartella.percorso()),
                      std::filesystem::directory_iterator()));
}

} // namespace

TEST(KoUtilitaFileAperto, ESaSeQualcunoTieneIlFile) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"Ωmega.txt", "x");
    EXPECT_FALSE(koUtilita::FileAperto(file));
    {
        const auto tenuto = apri(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        ASSERT_TRUE(tenuto);
        EXPECT_TRUE(koUtilita::FileAperto(file));
    }
    EXPECT_FALSE(koUtilita::FileAperto(file));
    EXPECT_EQ(leggiTutto(file), "x");
}

TEST(KoUtilitaFileAperto, UnFileCheMancaEUnErrore) {
    const CartellaProva cartella;
    EXPECT_EQ(erroreDi([&] { return koUtilita::FileAperto(cartella.file(L"manca")); }), 53);
    EXPECT_EQ(erroreDi([&] { return koUtilita::FileAperto(cartella.file(L"manca\\a")); }), 76);
    EXPECT_EQ(erroreDi([&] { return koUtilita::FileAperto(cartella.percorso()); }), 75);
    EXPECT_NE(erroreDi([] { return koUtilita::FileAperto(L""); }), 0);
    EXPECT_NE(erroreDi([] { return koUtilita::FileAperto(std::wstring(1000, L'x')); }), 0);
}

TEST(KoUtilitaReadOnly, ToglieSoloQuellAttributo) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.txt", "x");
    constexpr DWORD altri = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE;
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), altri | FILE_ATTRIBUTE_READONLY));
    koUtilita::EliminaReadOnly(file);
    EXPECT_EQ(GetFileAttributesW(file.c_str()), altri);
    koUtilita::EliminaReadOnly(file);
    EXPECT_EQ(GetFileAttributesW(file.c_str()), altri);
}

TEST(KoUtilitaReadOnly, UnFileSoloDiLetturaDivieneNormale) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.txt", "x");
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    koUtilita::EliminaReadOnly(file);
    EXPECT_EQ(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
}

TEST(KoUtilitaReadOnly, DoveNonSiScriveEUnErrore) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    const std::wstring file = *disco + L"\\a.txt";
    ASSERT_NE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    EXPECT_EQ(erroreDi([&] { koUtilita::EliminaReadOnly(file); }), 75);
}

TEST(KoUtilitaReadOnly, UnFileCheMancaEUnErrore) {
    const CartellaProva cartella;
    EXPECT_EQ(erroreDi([&] { koUtilita::EliminaReadOnly(cartella.file(L"manca")); }), 53);
    EXPECT_NE(erroreDi([] { koUtilita::EliminaReadOnly(L""); }), 0);
    EXPECT_NE(erroreDi([] { koUtilita::EliminaReadOnly(std::wstring(1000, L'x')); }), 0);
}

TEST(KoUtilitaDecomprimi, EspandeUnFileCompresso) {
    const CartellaProva cartella;
    const std::wstring sorgente = cartella.scrivi(L"a.tx_", compresso());
    const std::wstring destinazione = cartella.file(L"è nuovo.txt");
    koUtilita::Decomprimi(sorgente, destinazione);
    EXPECT_EQ(leggiTutto(destinazione), "ABCDEFGHABCD");
    EXPECT_EQ(leggiTutto(sorgente), compresso());
    EXPECT_EQ(quantiFile(cartella), 2U);
}

TEST(KoUtilitaDecomprimi, UnFileNonCompressoSiCopia) {
    const CartellaProva cartella;
    const std::string contenuto = std::string(50000, 'x') + "fine";
    const std::wstring sorgente = cartella.scrivi(L"a.txt", contenuto);
    const std::wstring destinazione = cartella.scrivi(L"b.txt", "prima");
    koUtilita::Decomprimi(sorgente, destinazione);
    EXPECT_EQ(leggiTutto(destinazione), contenuto);
    koUtilita::Decomprimi(cartella.scrivi(L"vuoto", ""), destinazione);
    EXPECT_EQ(leggiTutto(destinazione), "");
}

TEST(KoUtilitaDecomprimi, UnFileTroncatoNonToccaLaDestinazione) {
    const CartellaProva cartella;
    const std::wstring destinazione = cartella.scrivi(L"b.txt", "prima");
    for (std::size_t quanto = 9; quanto < compresso().size(); ++quanto) {
        const std::wstring sorgente = cartella.scrivi(L"a.tx_", compresso().substr(0, quanto));
        EXPECT_EQ(erroreDi([&] { koUtilita::Decomprimi(sorgente, destinazione); }), 57) << quanto;
    }
    EXPECT_EQ(leggiTutto(destinazione), "prima");
    EXPECT_EQ(quantiFile(cartella), 2U);
}

TEST(KoUtilitaDecomprimi, UnFileGuastoNonToccaLaDestinazione) {
    const CartellaProva cartella;
    const std::wstring destinazione = cartella.scrivi(L"b.txt", "prima");
    std::string lungo = compresso();
    lungo.replace(10, 4, "\xFF\xFF\xFF\x7F");
    std::string corto = compresso();
    corto[10] = 3;
    for (const std::string& contenuto : {lungo, corto}) {
        const std::wstring sorgente = cartella.scrivi(L"a.tx_", contenuto);
        EXPECT_EQ(erroreDi([&] { koUtilita::Decomprimi(sorgente, destinazione); }), 57);
    }
    EXPECT_EQ(leggiTutto(destinazione), "prima");
    EXPECT_EQ(quantiFile(cartella), 2U);
}

TEST(KoUtilitaDecomprimi, SuSeStessoEUnErrore) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.tx_", compresso());
    EXPECT_EQ(erroreDi([&] { koUtilita::Decomprimi(file, file); }), 75);
    EXPECT_EQ(leggiTutto(file), compresso());
    EXPECT_EQ(quantiFile(cartella), 1U);
}

TEST(KoUtilitaDecomprimi, DoveNonSiScriveEUnErrore) {
    const auto disco = discoDiSolaLettura();
    if (!disco) {
        GTEST_SKIP() << "no volume that cannot be written";
    }
    const CartellaProva cartella;
    const std::wstring sorgente = cartella.scrivi(L"a.tx_", compresso());
    for (const wchar_t* nome : {L"\\b.txt", L"\\a.txt"}) {
        EXPECT_EQ(erroreDi([&] { koUtilita::Decomprimi(sorgente, *disco + nome); }), 75);
    }
    EXPECT_EQ(leggiTutto(*disco + L"\\a.txt"), "testo");
    // A folder stands in the way.
    EXPECT_NE(erroreDi([&] { koUtilita::Decomprimi(sorgente, cartella.percorso()); }), 0);
    EXPECT_EQ(quantiFile(cartella), 1U);
}

TEST(KoUtilitaDecomprimi, SenzaSorgenteOCartellaEUnErrore) {
    const CartellaProva cartella;
    const std::wstring destinazione = cartella.scrivi(L"b.txt", "prima");
    const std::wstring sorgente = cartella.scrivi(L"a.tx_", compresso());
    EXPECT_EQ(erroreDi([&] { koUtilita::Decomprimi(cartella.file(L"manca"), destinazione); }), 53);
    EXPECT_NE(erroreDi([&] { koUtilita::Decomprimi(L"", destinazione); }), 0);
    EXPECT_NE(erroreDi([&] { koUtilita::Decomprimi(std::wstring(1000, L'x'), destinazione); }), 0);
    EXPECT_NE(erroreDi([&] { koUtilita::Decomprimi(sorgente, cartella.file(L"manca\\b")); }), 0);
    EXPECT_EQ(erroreDi([&] { koUtilita::Decomprimi(sorgente, L""); }), 5);
    EXPECT_NE(erroreDi([&] { koUtilita::Decomprimi(sorgente, std::wstring(1000, L'x')); }), 0);
    EXPECT_EQ(leggiTutto(destinazione), "prima");
    EXPECT_EQ(quantiFile(cartella), 2U);
}
