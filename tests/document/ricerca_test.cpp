#include "document/ricerca.h"

#include "tests/aiuti/tabella_prova.h"

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;
using Esito = std::optional<std::pair<int, bool>>;

void aggiungi(TabellaElementi& tabella, const TestiElemento& testi) {
    tabella.inserisci(tabella.conteggio(), creaElemento(testi));
}

TabellaElementi intitolati(const std::vector<std::wstring>& titoli) {
    TabellaElementi tabella;
    for (const auto& titolo : titoli) {
        aggiungi(tabella, {titolo, L"", L"", L"", L"", L""});
    }
    return tabella;
}

Esito cercato(const TabellaElementi& tabella, const std::wstring& testo, int corrente,
              Direzione direzione = Direzione::Avanti, Maiuscole maiuscole = Maiuscole::Ignora) {
    const auto trovato = cerca(tabella, {testo, maiuscole}, corrente, direzione);
    return trovato ? Esito({trovato->indice, trovato->ripresa}) : std::nullopt;
}

std::wstring piegato(std::wstring_view testo, Maiuscole maiuscole = Maiuscole::Ignora) {
    std::wstring esito;
    piega(testo, maiuscole, esito);
    return esito;
}

// Texts in which the same few letters come again and again, with and without accents.
std::wstring testoCasuale(std::mt19937& caso, int lunghezza) {
    constexpr std::wstring_view lettere = L"aAbeE \u00E0\u00C0\u00E8\u00C9\u00DFs\u00E6\u0301";
    std::wstring testo;
    for (int i = 0; i < lunghezza; ++i) {
        testo += lettere[caso() % lettere.size()];
    }
    return testo;
}

TabellaElementi tabellaCasuale(std::mt19937& caso) {
    TabellaElementi tabella;
    const auto quanti = static_cast<int>(caso() % 6);
    for (int i = 0; i < quanti; ++i) {
        std::array<std::wstring, numeroCampi> testi;
        TestiElemento viste;
        for (std::size_t c = 0; c < testi.size(); ++c) {
            testi[c] = testoCasuale(caso, static_cast<int>(caso() % 5));
            viste[c] = testi[c];
        }
        aggiungi(tabella, viste);
    }
    return tabella;
}

// The search, as one would tell it: step by step, around the end, until back at the start.
Esito modello(const TabellaElementi& tabella, const Criterio& criterio, int corrente,
              Direzione direzione) {
    const std::wstring voluto = piegato(criterio.testo, criterio.maiuscole);
    const int quanti = tabella.conteggio();
    const int passo = direzione == Direzione::Avanti ? 1 : -1;
    int indice = corrente;
    if (indice < 0 && passo < 0) {
        indice = quanti;
    }
    bool ripresa = false;
    for (int visti = 0; visti < quanti && !voluto.empty(); ++visti) {
        indice += passo;
        if (indice < 0 || indice >= quanti) {
            indice = passo > 0 ? 0 : quanti - 1;
            ripresa = true;
        }
        for (const CampoElemento campo : {Titolo, Link, Descrizione, Autore}) {
            if (piegato(tabella(campo, indice), criterio.maiuscole).find(voluto) !=
                std::wstring::npos) {
                return Esito({indice, ripresa});
            }
        }
    }
    return std::nullopt;
}

} // namespace

TEST(CercaElementi, InTitoloDescrizioneAutoreELinkESoloLi) {
    for (std::size_t campo = 0; campo < numeroCampi; ++campo) {
        TabellaElementi tabella = intitolati({L"primo"});
        TestiElemento testi{};
        testi[campo] = L"qui un segno";
        aggiungi(tabella, testi);
        const bool letto = campo <= static_cast<std::size_t>(Autore);
        EXPECT_EQ(cercato(tabella, L"segno", 0), letto ? Esito({1, false}) : std::nullopt) << campo;
    }
}

TEST(CercaElementi, DallElementoCorrenteInPoiEPoiDaCapo) {
    const auto tabella = intitolati({L"uno", L"due", L"uno", L"due"});
    EXPECT_EQ(cercato(tabella, L"uno", -1), Esito({0, false}));
    EXPECT_EQ(cercato(tabella, L"uno", 0), Esito({2, false}));
    EXPECT_EQ(cercato(tabella, L"uno", 2), Esito({0, true}));
    EXPECT_EQ(cercato(tabella, L"due", 3), Esito({1, true}));
    EXPECT_EQ(cercato(tabella, L"uno", -1, Direzione::Indietro), Esito({2, false}));
    EXPECT_EQ(cercato(tabella, L"uno", 2, Direzione::Indietro), Esito({0, false}));
    EXPECT_EQ(cercato(tabella, L"uno", 0, Direzione::Indietro), Esito({2, true}));
    EXPECT_EQ(cercato(tabella, L"tre", 1), std::nullopt);
}

TEST(CercaElementi, LElementoCorrenteVienePerUltimo) {
    const auto tabella = intitolati({L"a", L"solo", L"b"});
    EXPECT_EQ(cercato(tabella, L"solo", 1), Esito({1, true}));
    EXPECT_EQ(cercato(tabella, L"solo", 1, Direzione::Indietro), Esito({1, true}));
    EXPECT_EQ(cercato(intitolati({L"solo"}), L"solo", 0), Esito({0, true}));
}

TEST(CercaElementi, GliAccentiNonContanoMaiLeMaiuscoleAScelta) {
    const auto tabella = intitolati({L"la citt\u00E0", L"LA CITTA", L"fine"});
    EXPECT_EQ(cercato(tabella, L"CITTA\u0300", 2), Esito({0, true}));
    EXPECT_EQ(cercato(tabella, L"Citt\u00E0", 0), Esito({1, false}));
    EXPECT_EQ(cercato(tabella, L"citta", 0, Direzione::Avanti, Maiuscole::Distingui),
              Esito({0, true}));
    EXPECT_EQ(cercato(tabella, L"CITT\u00C0", 0, Direzione::Avanti, Maiuscole::Distingui),
              Esito({1, false}));
    EXPECT_EQ(cercato(tabella, L"Citta", 0, Direzione::Avanti, Maiuscole::Distingui), std::nullopt);
}

TEST(CercaElementi, UnTestoSenzaLettereNonSiTrova) {
    EXPECT_EQ(cercato(intitolati({L"a\u0301"}), L"\u0301", -1), std::nullopt);
    EXPECT_EQ(cercato(intitolati({L""}), L"", -1), std::nullopt);
    EXPECT_EQ(cercato(TabellaElementi(), L"a", -1), std::nullopt);
    EXPECT_EQ(cercato(TabellaElementi(), L"a", -1, Direzione::Indietro), std::nullopt);
}

TEST(CercaElementi, ComeIlModello) {
    constexpr std::uint32_t seme = 20051115;
    std::mt19937 caso(seme);
    int trovati = 0;
    for (int i = 0; i < 20000; ++i) {
        const TabellaElementi tabella = tabellaCasuale(caso);
        const Criterio criterio{testoCasuale(caso, 1 + static_cast<int>(caso() % 3)),
                                caso() % 2 == 0 ? Maiuscole::Ignora : Maiuscole::Distingui};
        const int corrente =
            static_cast<int>(caso() % (static_cast<unsigned>(tabella.conteggio()) + 1)) - 1;
        const Direzione direzione = caso() % 2 == 0 ? Direzione::Avanti : Direzione::Indietro;
        const Esito atteso = modello(tabella, criterio, corrente, direzione);
        ASSERT_EQ(cercato(tabella, criterio.testo, corrente, direzione, criterio.maiuscole), atteso)
            << "seed " << seme << ", round " << i;
        trovati += atteso ? 1 : 0;
    }
    EXPECT_GT(trovati, 5000);
    EXPECT_LT(trovati, 15000);
}

TEST(IniziaCon, IlProssimoTitoloCheIniziaConLeLettere) {
    const auto tabella = intitolati({L"alfa", L"\u00C8 vero", L"beta", L" esempio", L"Erba"});
    EXPECT_EQ(iniziaCon(tabella, L"b", 0), 2);
    EXPECT_EQ(iniziaCon(tabella, L"e", 0), 1);
    EXPECT_EQ(iniziaCon(tabella, L"\u00E9", 2), 3);
    EXPECT_EQ(iniziaCon(tabella, L"eR", 0), 4);
    EXPECT_EQ(iniziaCon(tabella, L"e v", 2), 1);
    EXPECT_EQ(iniziaCon(tabella, L"z", 0), -1);
    EXPECT_EQ(iniziaCon(tabella, L"lfa", 0), -1);
    EXPECT_EQ(iniziaCon(tabella, L"alfab", 0), -1);
    EXPECT_EQ(iniziaCon(tabella, L"", 0), -1);
    // From a row without an item the search goes on from the first.
    EXPECT_EQ(iniziaCon(tabella, L"e", 7), 1);
    EXPECT_EQ(iniziaCon(TabellaElementi(), L"a", 0), -1);
}

TEST(IniziaCon, LaStessaLetteraPiuVolteProseguePerLettere) {
    const auto tabella = intitolati({L"ba", L"be", L"aaa", L"bi"});
    EXPECT_EQ(iniziaCon(tabella, L"bb", 0), 1);
    EXPECT_EQ(iniziaCon(tabella, L"bbb", 1), 3);
    EXPECT_EQ(iniziaCon(tabella, L"bb", 3), 0);
    EXPECT_EQ(iniziaCon(tabella, L"aa", 0), 2);
    EXPECT_EQ(iniziaCon(tabella, L"bab", 0), -1);
}

TEST(IniziaCon, ComeIlModello) {
    constexpr std::uint32_t seme = 20051116;
    std::mt19937 caso(seme);
    int trovati = 0;
    for (int i = 0; i < 20000; ++i) {
        const TabellaElementi tabella = tabellaCasuale(caso);
        const std::wstring lettere = testoCasuale(caso, 1 + static_cast<int>(caso() % 2)) + L'b';
        const int quanti = tabella.conteggio();
        const int da = quanti == 0 ? 0 : static_cast<int>(caso() % static_cast<unsigned>(quanti));
        int atteso = -1;
        for (int n = quanti - 1; n >= 0; --n) {
            std::wstring titolo(tabella(Titolo, (da + n) % quanti));
            titolo.erase(0, titolo.find_first_not_of(L' '));
            if (piegato(titolo).starts_with(piegato(lettere))) {
                atteso = (da + n) % quanti;
            }
        }
        if (lettere.find_first_not_of(L'b') == std::wstring::npos) {
            continue;
        }
        ASSERT_EQ(iniziaCon(tabella, lettere, da), atteso) << "seed " << seme << ", round " << i;
        trovati += atteso >= 0 ? 1 : 0;
    }
    EXPECT_GT(trovati, 300);
}
