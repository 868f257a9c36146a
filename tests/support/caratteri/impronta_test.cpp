#include "support/caratteri/impronta.h"

#include <cstdint>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

std::uint64_t di(const std::string& testo, std::uint64_t da = 0) {
    return impronta(std::as_bytes(std::span(testo)), da);
}

} // namespace

TEST(Impronta, OgniBitELaLunghezzaContano) {
    std::set<std::uint64_t> tutte;
    std::size_t quante = 0;
    for (std::size_t lunghezza = 0; lunghezza < 40; ++lunghezza) {
        const std::string testo(lunghezza, '\0');
        tutte.insert(di(testo));
        ++quante;
        for (std::size_t bit = 0; bit < 8 * lunghezza; ++bit) {
            std::string altro = testo;
            altro[bit / 8] = static_cast<char>(1U << (bit % 8));
            tutte.insert(di(altro));
            ++quante;
        }
    }
    EXPECT_EQ(tutte.size(), quante);
}

TEST(Impronta, CioCheStaPrimaConta) {
    EXPECT_EQ(di("abc", 7), di("abc", 7));
    EXPECT_NE(di("abc", 7), di("abc", 8));
    EXPECT_NE(di("abc"), di("abc", 1));
}

TEST(Impronta, LOrdineConta) {
    EXPECT_NE(di("12345678abcdefgh"), di("abcdefgh12345678"));
}
