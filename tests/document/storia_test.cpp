#include "document/storia.h"

#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/tabella_prova.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

ElementoCondiviso intitolato(const std::wstring& titolo) {
    return conTesto(*elementoVuoto(), CampoElemento::Titolo, titolo);
}

std::vector<std::wstring> titoli(const Documento& documento) {
    std::vector<std::wstring> tutti;
    tutti.reserve(static_cast<std::size_t>(documento.elementi().conteggio()));
    for (int i = 0; i < documento.elementi().conteggio(); ++i) {
        tutti.emplace_back(documento.elementi()(CampoElemento::Titolo, i));
    }
    return tutti;
}

using Titoli = std::vector<std::wstring>;

class StoriaDiProva : public testing::Test {
protected:
    void aggiungi(const std::wstring& titolo) {
        documento.applica(documento.aggiunta(intitolato(titolo)));
    }

    Documento documento;
    Storia storia{documento};
};

// Raises once the table has changed, like a window that cannot show it.
class Guasto final : public OsservatoreDocumento {
public:
    explicit Guasto(Documento& documento) : documento_(documento) { documento.osserva(*this); }
    Guasto(const Guasto&) = delete;
    Guasto& operator=(const Guasto&) = delete;
    ~Guasto() { documento_.lascia(*this); }

private:
    void elementiModificati(const Modifica& /*modifica*/, Causa /*causa*/) override {
        solleva(errori::memoriaEsaurita);
    }
    void elementiSostituiti() override {}

    Documento& documento_;
};

} // namespace

TEST_F(StoriaDiProva, OgniPassoSiAnnullaESiRipete) {
    aggiungi(L"a");
    aggiungi(L"b");
    aggiungi(L"c");
    documento.applica(documento.cambio(1, intitolato(L"x")));
    documento.applica(documento.spostamento(0, 2), Causa::Trascinamento);
    documento.applica(documento.rimozione(0));
    ASSERT_EQ(titoli(documento), (Titoli{L"c", L"a"}));

    EXPECT_EQ(storia.annulla(), L"Annullata: cancellazione di «x»");
    EXPECT_EQ(titoli(documento), (Titoli{L"x", L"c", L"a"}));
    EXPECT_EQ(storia.annulla(), L"Annullata: spostamento di «a»");
    EXPECT_EQ(titoli(documento), (Titoli{L"a", L"x", L"c"}));
    EXPECT_EQ(storia.annulla(), L"Annullata: modifica di «x»");
    EXPECT_EQ(storia.annulla(), L"Annullata: aggiunta di «c»");
    EXPECT_EQ(titoli(documento), (Titoli{L"a", L"b"}));
    EXPECT_EQ(storia.ripeti(), L"Ripetuta: aggiunta di «c»");
    EXPECT_EQ(storia.ripeti(), L"Ripetuta: modifica di «x»");
    EXPECT_EQ(storia.ripeti(), L"Ripetuta: spostamento di «a»");
    EXPECT_EQ(storia.ripeti(), L"Ripetuta: cancellazione di «x»");
    EXPECT_EQ(titoli(documento), (Titoli{L"c", L"a"}));
    EXPECT_EQ(storia.ripeti(), L"");
}

TEST_F(StoriaDiProva, SenzaPassiNonSuccedeNulla) {
    EXPECT_EQ(storia.annulla(), L"");
    EXPECT_EQ(storia.ripeti(), L"");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(StoriaDiProva, AnnullareERipetereSegnanoIlDocumento) {
    aggiungi(L"a");
    documento.modificato(false);
    storia.annulla();
    EXPECT_TRUE(documento.modificato());
    documento.modificato(false);
    storia.ripeti();
    EXPECT_TRUE(documento.modificato());
}

TEST_F(StoriaDiProva, LUltimaDataRestaComEra) {
    const DataOra data = DataOra::daParti(2026, 11, 21);
    aggiungi(L"a");
    documento.ultimaData(data);
    storia.annulla();
    storia.ripeti();
    EXPECT_EQ(documento.ultimaData(), data);
}

TEST_F(StoriaDiProva, UnaModificaNuovaFaDimenticareCioCheEraAnnullato) {
    aggiungi(L"a");
    aggiungi(L"b");
    storia.annulla();
    aggiungi(L"c");
    EXPECT_EQ(storia.ripeti(), L"");
    storia.annulla();
    storia.annulla();
    EXPECT_EQ(titoli(documento), Titoli{});
}

TEST_F(StoriaDiProva, UnaModificaCheNonCambiaNullaNonEUnPasso) {
    aggiungi(L"a");
    documento.modificato(false);
    documento.applica(documento.cambio(0, intitolato(L"a")));
    EXPECT_TRUE(documento.modificato());
    EXPECT_EQ(storia.annulla(), L"Annullata: aggiunta di «a»");
}

TEST_F(StoriaDiProva, UnDocumentoApertoNonHaPassi) {
    aggiungi(L"a");
    aggiungi(L"b");
    storia.annulla();
    documento.sostituisci({});
    EXPECT_EQ(storia.annulla(), L"");
    EXPECT_EQ(storia.ripeti(), L"");
}

TEST_F(StoriaDiProva, IlTitoloNonSpezzaLaRiga) {
    aggiungi(L"a\tb\r\nc");
    EXPECT_EQ(storia.annulla(), L"Annullata: aggiunta di «a b  c»");
}

TEST_F(StoriaDiProva, UnOsservatoreCheFallisceNonFaPerdereIlFilo) {
    aggiungi(L"a");
    aggiungi(L"b");
    {
        const Guasto guasto(documento);
        const auto annulla = [&] { return storia.annulla(); };
        EXPECT_EQ(sollevatoDa(annulla).numero, errori::memoriaEsaurita);
        EXPECT_EQ(titoli(documento), Titoli{L"a"});
    }
    EXPECT_EQ(storia.annulla(), L"Annullata: aggiunta di «a»");
    EXPECT_EQ(storia.ripeti(), L"Ripetuta: aggiunta di «a»");
    EXPECT_EQ(storia.ripeti(), L"Ripetuta: aggiunta di «b»");
}

// Any sequence, against tables that are kept whole.
TEST(Storia, TuttoAnnullatoDaLaPrimaTabellaTuttoRipetutoLUltima) {
    for (std::uint32_t seme = 1; seme <= 200; ++seme) {
        SCOPED_TRACE(seme);
        std::mt19937 caso(seme);
        const auto meno = [&](int quanti) {
            return static_cast<int>(caso() % static_cast<std::uint32_t>(quanti));
        };
        Documento documento;
        Storia storia(documento);
        std::vector<Titoli> tabelle{{}};
        std::size_t dove = 0;
        for (int passo = 0; passo < 120; ++passo) {
            Titoli t = tabelle[dove];
            const int quanti = static_cast<int>(t.size());
            const std::wstring nuovo = std::to_wstring(passo);
            const int che = meno(7);
            if (che == 0 && dove > 0) {
                storia.annulla();
                --dove;
            } else if (che == 1 && dove + 1 < tabelle.size()) {
                storia.ripeti();
                ++dove;
            } else {
                if (che <= 3 || quanti == 0) {
                    const int i = meno(quanti + 1);
                    documento.applica(documento.aggiunta(i, intitolato(nuovo)));
                    t.insert(t.begin() + i, nuovo);
                } else if (che == 4) {
                    const int i = meno(quanti);
                    documento.applica(documento.cambio(i, intitolato(nuovo)));
                    t[static_cast<std::size_t>(i)] = nuovo;
                } else if (che == 5) {
                    const int i = meno(quanti);
                    documento.applica(documento.rimozione(i));
                    t.erase(t.begin() + i);
                } else {
                    const int da = meno(quanti);
                    const int a = meno(quanti);
                    documento.applica(documento.spostamento(da, a), Causa::Trascinamento);
                    const std::wstring mosso = t[static_cast<std::size_t>(da)];
                    t.erase(t.begin() + da);
                    t.insert(t.begin() + a, mosso);
                }
                tabelle.resize(dove + 1);
                tabelle.push_back(t);
                ++dove;
            }
            ASSERT_EQ(titoli(documento), tabelle[dove]);
        }
        while (dove > 0) {
            storia.annulla();
            ASSERT_EQ(titoli(documento), tabelle[--dove]);
        }
        EXPECT_EQ(storia.annulla(), L"");
        while (dove + 1 < tabelle.size()) {
            storia.ripeti();
            ASSERT_EQ(titoli(documento), tabelle[++dove]);
        }
        EXPECT_EQ(storia.ripeti(), L"");
    }
}
