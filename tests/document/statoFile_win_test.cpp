#include "document/statoFile_win.h"

#include "tests/aiuti/cartella_win.h"

#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

// Gives the file another time, which Windows' own clock might not yet have shown.
void invecchia(const std::wstring& percorso) {
    std::filesystem::last_write_time(percorso, std::filesystem::last_write_time(percorso) -
                                                   std::chrono::hours(1));
}

} // namespace

TEST(StatoFile, UnFileIntattoEAncoraQuello) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.xml", "contenuto");
    const auto stato = statoFile(file);
    ASSERT_TRUE(stato);
    EXPECT_EQ(stato->lunghezza, 9U);
    EXPECT_TRUE(ancora(*stato, file));
    // Touched, but not changed.
    invecchia(file);
    EXPECT_TRUE(ancora(*stato, file));
}

TEST(StatoFile, UnFileCambiatoNonEPiuQuello) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.xml", "contenuto");
    const auto stato = statoFile(file);
    ASSERT_TRUE(stato);
    // As long as it was.
    static_cast<void>(cartella.scrivi(L"a.xml", "CONTENUTO"));
    invecchia(file);
    EXPECT_FALSE(ancora(*stato, file));
    static_cast<void>(cartella.scrivi(L"a.xml", "contenuto e altro"));
    EXPECT_FALSE(ancora(*stato, file));
    std::filesystem::remove(file);
    EXPECT_FALSE(ancora(*stato, file));
    EXPECT_FALSE(statoFile(file));
}

TEST(StatoFile, ConIByteGiaLettiELoStesso) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.xml", "contenuto");
    const std::string byte = "contenuto";
    const auto stato = statoFile(file, std::as_bytes(std::span(byte)));
    ASSERT_TRUE(stato);
    EXPECT_EQ(stato->somma, statoFile(file)->somma);
    EXPECT_TRUE(ancora(*stato, file));
}
