#include "document/copie.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using copie::Copia;

TEST(NomiDelleCopie, LaCartellaHaIlNomeDelFileEUnNumeroDelPercorso) {
    // FNV-1a, 32 bits, over the upper-case path in UTF-16, lower byte first.
    EXPECT_EQ(copie::nomeCartella(L""), L" (811c9dc5)");
    EXPECT_EQ(copie::nomeCartella(L"a"), L"a (6ad58324)");
    EXPECT_EQ(copie::nomeCartella(L"C:\\Feed\\Novità.xml"), L"Novità.xml (258633ab)");
}

TEST(NomiDelleCopie, MaiuscoleEMinuscoleSonoLoStessoFileUnAltraCartellaNo) {
    const auto numero = [](std::wstring_view percorso) {
        const std::wstring nome = copie::nomeCartella(percorso);
        return nome.substr(nome.size() - 9);
    };
    EXPECT_EQ(numero(L"C:\\città\\a.xml"), numero(L"c:\\CITTÀ\\A.XML"));
    EXPECT_NE(numero(L"C:\\uno\\a.xml"), numero(L"C:\\due\\a.xml"));
}

TEST(NomiDelleCopie, DiUnNomeLungoRestanoCentoCaratteri) {
    const std::wstring lungo(300, L'x');
    EXPECT_EQ(copie::nomeCartella(L"C:\\" + lungo).size(), 100U + 11U);
    EXPECT_TRUE(copie::nomeCartella(std::wstring(99, L'x') + L"\xD83D\xDE00")
                    .starts_with(std::wstring(99, L'x') + L" ("));
}

TEST(NomiDelleCopie, LaCopiaHaOraNumeroEdEstensione) {
    const std::wstring ora = L"2026-11-21 13.05.00";
    EXPECT_EQ(copie::nomeCopia(ora, 1, L"C:\\a.b\\notizie.xml"), ora + L".xml");
    EXPECT_EQ(copie::nomeCopia(ora, 2, L"C:\\a.b\\notizie.tar.rss"), ora + L" (2).rss");
    EXPECT_EQ(copie::nomeCopia(ora, 1, L"C:\\a.b\\notizie"), ora);
}

TEST(NomiDelleCopie, LaPiuVecchiaPerOraEPoiPerNumero) {
    const std::array nomi{L"2026-11-21 13.05.00.xml", L"2026-11-21 13.05.00 (2).xml",
                          L"2026-11-21 13.05.00 (10).xml", L"2026-11-21 13.05.01.xml"};
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        for (std::size_t j = 0; j < nomi.size(); ++j) {
            EXPECT_EQ(copie::piuVecchia(nomi[i], nomi[j]), i < j) << i << ' ' << j;
        }
    }
}

std::wstring ora(int minuto) {
    std::wstring testo = L"2026-11-21 13.00.00";
    testo[14] = static_cast<wchar_t>(L'0' + minuto / 10);
    testo[15] = static_cast<wchar_t>(L'0' + minuto % 10);
    return testo;
}

std::vector<std::wstring> vanno(std::vector<Copia> tutte) {
    std::vector<std::wstring> nomi;
    for (const Copia& c : copie::daEliminare(std::move(tutte))) {
        nomi.push_back(c.cartella + c.nome.substr(14, 2));
    }
    std::ranges::sort(nomi);
    return nomi;
}

TEST(CopieDaEliminare, RestanoLeUltimeVentiDiOgniFile) {
    std::vector<Copia> tutte;
    for (int i = 0; i < 23; ++i) {
        tutte.push_back({L"a", ora(i), 10});
        if (i < 20) {
            tutte.push_back({L"b", ora(i), 10});
        }
    }
    EXPECT_EQ(vanno(tutte), (std::vector<std::wstring>{L"a00", L"a01", L"a02"}));
}

TEST(CopieDaEliminare, OltreLoSpazioVannoLePiuVecchieMaMaiLUltimaDiUnFile) {
    constexpr std::uint64_t mega = 1024 * 1024;
    EXPECT_EQ(
        vanno({{L"a", ora(1), 100 * mega}, {L"a", ora(2), 60 * mega}, {L"a", ora(3), 40 * mega}}),
        std::vector<std::wstring>{});
    // The last one of "b" is older than all, and stays.
    EXPECT_EQ(vanno({{L"b", ora(0), 50 * mega},
                     {L"a", ora(1), 1},
                     {L"a", ora(2), 101 * mega},
                     {L"a", ora(3), 100 * mega}}),
              (std::vector<std::wstring>{L"a01", L"a02"}));
    EXPECT_EQ(vanno({{L"a", ora(1), 300 * mega}, {L"b", ora(2), 300 * mega}}),
              std::vector<std::wstring>{});
}

} // namespace
