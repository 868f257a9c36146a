#include "ui/main/elementi.h"

#include "tests/aiuti/sollevato.h"

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

clsItemRss elementoDi(const std::wstring& nome) {
    clsItemRss elemento;
    elemento.sTitle(L"titolo " + nome);
    elemento.sLink(L"link " + nome);
    elemento.sDescription(L"descrizione " + nome);
    elemento.sAuthor(L"autore " + nome);
    elemento.sPubDate(L"data " + nome);
    elemento.sGuid(L"mai nella tabella");
    return elemento;
}

// Title, link, description, author, date, guid.
using Colonna = std::array<std::wstring, numeroCampi>;

Colonna colonnaDi(const std::wstring& nome, const std::wstring& guid) {
    return {L"titolo " + nome, L"link " + nome, L"descrizione " + nome,
            L"autore " + nome, L"data " + nome, guid};
}

std::vector<Colonna> contenuto(const TabellaElementi& tabella) {
    std::vector<Colonna> tutto(static_cast<std::size_t>(tabella.conteggio()));
    for (std::size_t i = 0; i < tutto.size(); ++i) {
        for (std::size_t campo = 0; campo < numeroCampi; ++campo) {
            tutto[i][campo] = tabella(static_cast<CampoElemento>(campo), static_cast<int>(i));
        }
    }
    return tutto;
}

} // namespace

TEST(ElementiDellaTabella, IlPrimoAggiuntoPrendeIlPostoVuoto) {
    TabellaElementi tabella;
    EXPECT_EQ(aggiungiElemento(tabella, elementoDi(L"a"), L"guid a"), 0);
    EXPECT_EQ(aggiungiElemento(tabella, elementoDi(L"b"), L"guid b"), 1);
    EXPECT_EQ(tabella.limiteSuperiore(), 1);
    EXPECT_EQ(contenuto(tabella),
              (std::vector<Colonna>{colonnaDi(L"a", L"guid a"), colonnaDi(L"b", L"guid b")}));
}

TEST(ElementiDellaTabella, SiLeggeSenzaGuidESiScriveSenzaToccarlo) {
    TabellaElementi tabella;
    aggiungiElemento(tabella, elementoDi(L"a"), L"guid a");
    const clsItemRss letto = leggiElemento(tabella, 0);
    EXPECT_EQ(letto.sTitle(), L"titolo a");
    EXPECT_EQ(letto.sLink(), L"link a");
    EXPECT_EQ(letto.sDescription(), L"descrizione a");
    EXPECT_EQ(letto.sAuthor(), L"autore a");
    EXPECT_EQ(letto.sPubDate(), L"data a");
    EXPECT_EQ(letto.sGuid(), L"");
    scriviElemento(tabella, 0, elementoDi(L"z"));
    EXPECT_EQ(contenuto(tabella), (std::vector<Colonna>{colonnaDi(L"z", L"guid a")}));
}

TEST(ElementiDellaTabella, OltreLaFineEErrore9) {
    TabellaElementi tabella;
    aggiungiElemento(tabella, elementoDi(L"a"), L"guid a");
    EXPECT_EQ(sollevatoDa([&] { return leggiElemento(tabella, 1); }).numero, 9);
    EXPECT_EQ(sollevatoDa([&] {
                  scriviElemento(tabella, 1, elementoDi(L"b"));
                  return 0;
              }).numero,
              9);
    EXPECT_EQ(contenuto(tabella), (std::vector<Colonna>{colonnaDi(L"a", L"guid a")}));
}

TEST(ElementiDellaTabella, IlTrentaduemilasettecentosessantottesimoEErrore6) {
    TabellaElementi tabella;
    tabella.dimensiona(32766);
    EXPECT_EQ(sollevatoDa([&] {
                  richiediPosto(tabella);
                  return 0;
              }).numero,
              0);
    EXPECT_EQ(aggiungiElemento(tabella, elementoDi(L"ultimo"), L"guid"), 32766);
    EXPECT_EQ(sollevatoDa([&] {
                  richiediPosto(tabella);
                  return 0;
              }).numero,
              6);
    EXPECT_EQ(
        sollevatoDa([&] { return aggiungiElemento(tabella, elementoDi(L"x"), L"guid"); }).numero,
        6);
    EXPECT_EQ(tabella.conteggio(), 32767);
    EXPECT_EQ(tabella(CampoElemento::Titolo, 32766), L"titolo ultimo");
}

TEST(ElementiDellaTabella, LaRigaDopoUnaCancellazioneEQuellaSopra) {
    EXPECT_EQ(rigaDopoCancellazione(0), 1);
    EXPECT_EQ(rigaDopoCancellazione(1), 1);
    EXPECT_EQ(rigaDopoCancellazione(3), 3);
    EXPECT_EQ(rigaDi(0), 1);
}

TEST(ElementiDellaTabella, DopoOgniSequenzaLaTabellaEIlModello) {
    constexpr std::uint32_t seme = 20051115;
    SCOPED_TRACE("seed " + std::to_string(seme));
    std::mt19937 caso(seme);
    TabellaElementi tabella;
    std::vector<Colonna> modello;
    const auto scelto = [&] { return static_cast<std::size_t>(caso() % modello.size()); };
    for (int passo = 0; passo < 3000; ++passo) {
        const std::wstring nome = std::to_wstring(passo);
        const auto azione = caso() % 8;
        // The table empties now and then, and grows again.
        const bool cala = passo / 500 % 2 == 1;
        if (modello.empty() || azione < (cala ? 1U : 3U)) {
            aggiungiElemento(tabella, elementoDi(nome), L"guid " + nome);
            modello.push_back(colonnaDi(nome, L"guid " + nome));
        } else if (azione < 4) {
            const auto i = scelto();
            scriviElemento(tabella, static_cast<int>(i), elementoDi(nome));
            modello[i] = colonnaDi(nome, modello[i].back());
        } else if (azione < (cala ? 7U : 5U)) {
            const auto i = scelto();
            tabella.rimuovi(static_cast<int>(i));
            modello.erase(modello.begin() + static_cast<std::ptrdiff_t>(i));
        } else {
            const auto da = scelto();
            const auto a = scelto();
            tabella.sposta(static_cast<int>(da), static_cast<int>(a));
            const Colonna mosso = modello[da];
            modello.erase(modello.begin() + static_cast<std::ptrdiff_t>(da));
            modello.insert(modello.begin() + static_cast<std::ptrdiff_t>(a), mosso);
        }
        ASSERT_EQ(contenuto(tabella), modello) << "step " << passo;
        ASSERT_EQ(tabella.limiteSuperiore(),
                  modello.empty() ? 0 : static_cast<int>(modello.size()) - 1);
    }
}
