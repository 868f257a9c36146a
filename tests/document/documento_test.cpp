#include "document/documento.h"

#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/tabella_prova.h"

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Tipo = Modifica::Tipo;

ElementoCondiviso intitolato(const std::wstring& titolo) {
    return conTesto(*elementoVuoto(), CampoElemento::Titolo, titolo);
}

std::wstring titoli(const Documento& documento) {
    std::wstring tutti;
    for (int i = 0; i < documento.elementi().conteggio(); ++i) {
        tutti.append(documento.elementi()(CampoElemento::Titolo, i)).append(1, L';');
    }
    return tutti;
}

// Writes down what it hears, and how the document stood at that moment.
class Orecchio final : public OsservatoreDocumento {
public:
    explicit Orecchio(Documento& documento) : documento_(documento) { documento.osserva(*this); }
    Orecchio(const Orecchio&) = delete;
    Orecchio& operator=(const Orecchio&) = delete;
    ~Orecchio() { documento_.lascia(*this); }

    std::vector<std::pair<Modifica, Causa>> sentite;
    std::vector<bool> segnate;
    int sostituzioni = 0;
    bool fallisce = false;

private:
    void elementiModificati(const Modifica& modifica, Causa causa) override {
        sentite.emplace_back(modifica, causa);
        segnate.push_back(documento_.modificato());
        if (fallisce) {
            solleva(errori::memoriaEsaurita);
        }
    }
    void elementiSostituiti() override { ++sostituzioni; }

    Documento& documento_;
};

class DocumentoDiProva : public testing::Test {
protected:
    void riempi(const std::vector<std::wstring>& quali) {
        std::vector<ElementoCondiviso> elementi;
        elementi.reserve(quali.size());
        for (const auto& titolo : quali) {
            elementi.push_back(intitolato(titolo));
        }
        TabellaElementi tabella;
        tabella.riempi(std::move(elementi));
        documento.sostituisci(std::move(tabella));
    }
    // Makes the change, takes it back and makes it again.
    void avantiEIndietro(const Modifica& modifica, const std::wstring& dopo) {
        const std::wstring prima = titoli(documento);
        documento.applica(modifica);
        EXPECT_EQ(titoli(documento), dopo);
        documento.applica(inversa(modifica));
        EXPECT_EQ(titoli(documento), prima);
        documento.applica(inversa(inversa(modifica)));
        EXPECT_EQ(titoli(documento), dopo);
    }

    Documento documento;
};

} // namespace

TEST_F(DocumentoDiProva, OgniModificaHaLaSuaInversa) {
    avantiEIndietro(documento.aggiunta(intitolato(L"a")), L"a;");
    avantiEIndietro(documento.aggiunta(intitolato(L"b")), L"a;b;");
    avantiEIndietro(documento.aggiunta(intitolato(L"c")), L"a;b;c;");
    avantiEIndietro(documento.aggiunta(1, intitolato(L"d")), L"a;d;b;c;");
    avantiEIndietro(documento.rimozione(1), L"a;b;c;");
    avantiEIndietro(documento.cambio(1, intitolato(L"x")), L"a;x;c;");
    avantiEIndietro(documento.spostamento(0, 2), L"x;c;a;");
    avantiEIndietro(documento.spostamento(2, 1), L"x;a;c;");
    avantiEIndietro(documento.rimozione(0), L"a;c;");
    avantiEIndietro(documento.rimozione(1), L"a;");
    avantiEIndietro(documento.rimozione(0), L"");
    EXPECT_EQ(documento.elementi().limiteSuperiore(), 0);
}

TEST_F(DocumentoDiProva, UnaModificaDiceDoveEGliElementiPrimaEDopo) {
    riempi({L"a", L"b"});
    const ElementoCondiviso b = documento.elementi().elemento(1);
    const ElementoCondiviso x = intitolato(L"x");

    const Modifica aggiunta = documento.aggiunta(x);
    EXPECT_EQ(aggiunta.tipo, Tipo::Aggiunta);
    EXPECT_EQ(aggiunta.indice, 2);
    EXPECT_EQ(aggiunta.prima, nullptr);
    EXPECT_EQ(aggiunta.dopo, x);
    const Modifica cambio = documento.cambio(1, x);
    EXPECT_EQ(cambio.tipo, Tipo::Cambio);
    EXPECT_EQ(cambio.indiceDopo, 1);
    EXPECT_EQ(cambio.prima, b);
    EXPECT_EQ(cambio.dopo, x);
    const Modifica rimozione = documento.rimozione(1);
    EXPECT_EQ(rimozione.tipo, Tipo::Rimozione);
    EXPECT_EQ(rimozione.indice, 1);
    EXPECT_EQ(rimozione.prima, b);
    EXPECT_EQ(rimozione.dopo, nullptr);
    const Modifica spostamento = documento.spostamento(1, 0);
    EXPECT_EQ(spostamento.tipo, Tipo::Spostamento);
    EXPECT_EQ(spostamento.indice, 1);
    EXPECT_EQ(spostamento.indiceDopo, 0);
    EXPECT_EQ(spostamento.prima, b);
    EXPECT_EQ(spostamento.dopo, b);
    // Nothing was done by naming it.
    EXPECT_EQ(titoli(documento), L"a;b;");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(DocumentoDiProva, CioCheNonCENonSiCambia) {
    riempi({L"a", L"b"});
    const auto errore = [&](auto azione) {
        return sollevatoDa([&] { return azione().indice; }).numero;
    };
    for (const int fuori : {-1, 2, 32767}) {
        EXPECT_EQ(errore([&] { return documento.cambio(fuori, elementoVuoto()); }), 9);
        EXPECT_EQ(errore([&] { return documento.rimozione(fuori); }), 9);
        EXPECT_EQ(errore([&] { return documento.spostamento(fuori, 0); }), 9);
        EXPECT_EQ(errore([&] { return documento.spostamento(0, fuori); }), 9);
    }
    for (const int fuori : {-1, 3, 32767}) {
        EXPECT_EQ(errore([&] { return documento.aggiunta(fuori, elementoVuoto()); }), 9);
    }
    EXPECT_EQ(documento.aggiunta(2, elementoVuoto()).indice, 2);
    const Modifica ultima = documento.rimozione(1);
    documento.sostituisci({});
    EXPECT_EQ(errore([&] { return documento.rimozione(0); }), 9);
    const Orecchio orecchio(documento);
    EXPECT_EQ(erroreDi([&] { documento.applica(ultima); }), 9);
    EXPECT_FALSE(documento.modificato());
    EXPECT_TRUE(orecchio.sentite.empty());
    dimensiona(documento, 32767);
    EXPECT_EQ(errore([&] { return documento.aggiunta(elementoVuoto()); }), 6);
    EXPECT_EQ(errore([&] { return documento.aggiunta(0, elementoVuoto()); }), 6);
}

TEST_F(DocumentoDiProva, ChiOsservaSenteOgniModificaASegnoGiaMesso) {
    Orecchio primo(documento);
    Orecchio secondo(documento);
    documento.applica(documento.aggiunta(intitolato(L"a")));
    documento.applica(documento.aggiunta(intitolato(L"b")));
    documento.applica(documento.spostamento(0, 1), Causa::Trascinamento);
    for (const Orecchio* const orecchio : {&primo, &secondo}) {
        ASSERT_EQ(orecchio->sentite.size(), 3U);
        EXPECT_EQ(orecchio->sentite[1].first.tipo, Tipo::Aggiunta);
        EXPECT_EQ(orecchio->sentite[1].first.indice, 1);
        EXPECT_EQ(orecchio->sentite[1].second, Causa::Comando);
        EXPECT_EQ(orecchio->sentite[2].first.tipo, Tipo::Spostamento);
        EXPECT_EQ(orecchio->sentite[2].second, Causa::Trascinamento);
        EXPECT_EQ(orecchio->segnate, (std::vector{true, true, true}));
        EXPECT_EQ(orecchio->sostituzioni, 0);
    }
    documento.sostituisci({});
    EXPECT_EQ(primo.sostituzioni, 1);
    EXPECT_EQ(primo.sentite.size(), 3U);
}

TEST_F(DocumentoDiProva, ChiHaLasciatoNonSentePiu) {
    Orecchio resta(documento);
    { const Orecchio va(documento); }
    documento.applica(documento.aggiunta(intitolato(L"a")));
    EXPECT_EQ(resta.sentite.size(), 1U);
}

TEST_F(DocumentoDiProva, SeChiOsservaFallisceLaModificaResta) {
    Orecchio orecchio(documento);
    orecchio.fallisce = true;
    EXPECT_EQ(erroreDi([&] { documento.applica(documento.aggiunta(intitolato(L"a"))); }), 7);
    EXPECT_EQ(titoli(documento), L"a;");
    EXPECT_TRUE(documento.modificato());
}

TEST_F(DocumentoDiProva, SoloUnTrascinamentoLasciaIlSegnoComEra) {
    riempi({L"a", L"b"});
    documento.applica(documento.spostamento(0, 1), Causa::Trascinamento);
    EXPECT_FALSE(documento.modificato());
    documento.applica(documento.spostamento(0, 1));
    EXPECT_TRUE(documento.modificato());
    documento.applica(documento.spostamento(0, 1), Causa::Trascinamento);
    EXPECT_TRUE(documento.modificato());
}

TEST_F(DocumentoDiProva, SostituireGliElementiNonToccaIlResto) {
    documento.percorso(L"C:\\f.xml");
    documento.modificato(true);
    static_cast<void>(documento.ImpostaTitolo(L"C:\\f.xml"));
    riempi({L"a"});
    EXPECT_EQ(documento.percorso(), L"C:\\f.xml");
    EXPECT_TRUE(documento.modificato());
    EXPECT_FALSE(documento.nuovo());
}

TEST_F(DocumentoDiProva, IlTitoloHaDueSpaziEIlNomeTraParentesi) {
    EXPECT_TRUE(documento.nuovo());
    EXPECT_EQ(documento.ImpostaTitolo(L"C:\\f.xml"), L"Ostrelle  [C:\\f.xml]");
    EXPECT_FALSE(documento.nuovo());
    EXPECT_EQ(documento.ImpostaTitolo(L"Nuovo Documento"), L"Ostrelle  [Nuovo Documento]");
    EXPECT_TRUE(documento.nuovo());
    EXPECT_EQ(documento.ImpostaTitolo(L""), L"Ostrelle");
    EXPECT_FALSE(documento.nuovo());
}

TEST_F(DocumentoDiProva, IlNomeDelNuovoDocumentoSiConfrontaAllaLettera) {
    for (const wchar_t* const nome : {L"nuovo documento", L"Nuovo Documento "}) {
        static_cast<void>(documento.ImpostaTitolo(nome));
        EXPECT_FALSE(documento.nuovo());
    }
}

TEST_F(DocumentoDiProva, ScartabileSenzaDomanda) {
    EXPECT_TRUE(documento.scartabile(false));
    documento.modificato(true);
    EXPECT_TRUE(documento.scartabile(true));
    EXPECT_FALSE(documento.scartabile(false));
    aggiungi(documento);
    EXPECT_FALSE(documento.scartabile(true));
    documento.sostituisci({});
    // A document with a file is never taken for empty.
    static_cast<void>(documento.ImpostaTitolo(L"C:\\f.xml"));
    EXPECT_FALSE(documento.scartabile(true));
}

TEST_F(DocumentoDiProva, OgniSequenzaSegueIlModelloESiDisfaFinoInFondo) {
    constexpr std::uint32_t seme = 20051115;
    SCOPED_TRACE("seed " + std::to_string(seme));
    std::mt19937 caso(seme);
    std::vector<std::wstring> modello;
    std::vector<std::pair<Modifica, std::wstring>> fatte;
    const auto scelto = [&] { return static_cast<int>(caso() % modello.size()); };
    const auto attesi = [&] {
        std::wstring tutti;
        for (const auto& titolo : modello) {
            tutti += titolo + L';';
        }
        return tutti;
    };
    for (int passo = 0; passo < 3000; ++passo) {
        const std::wstring nome = std::to_wstring(passo);
        const auto azione = caso() % 8;
        // The table empties now and then, and grows again.
        const bool cala = passo / 500 % 2 == 1;
        Modifica modifica;
        if (modello.empty() || azione < (cala ? 1U : 3U)) {
            const auto dove = static_cast<int>(caso() % (modello.size() + 1));
            modifica = documento.aggiunta(dove, intitolato(nome));
            modello.insert(modello.begin() + dove, nome);
        } else if (azione < 4) {
            const int i = scelto();
            modifica = documento.cambio(i, intitolato(nome));
            modello[static_cast<std::size_t>(i)] = nome;
        } else if (azione < (cala ? 7U : 5U)) {
            const int i = scelto();
            modifica = documento.rimozione(i);
            modello.erase(modello.begin() + i);
        } else {
            const int da = scelto();
            const int a = scelto();
            modifica = documento.spostamento(da, a);
            const std::wstring mosso = modello[static_cast<std::size_t>(da)];
            modello.erase(modello.begin() + da);
            modello.insert(modello.begin() + a, mosso);
        }
        fatte.emplace_back(modifica, titoli(documento));
        documento.applica(modifica);
        ASSERT_EQ(titoli(documento), attesi()) << "step " << passo;
    }
    const std::wstring ultimo = titoli(documento);
    for (auto i = fatte.rbegin(); i != fatte.rend(); ++i) {
        documento.applica(inversa(i->first));
        ASSERT_EQ(titoli(documento), i->second);
    }
    for (const auto& [modifica, prima] : fatte) {
        documento.applica(modifica);
    }
    EXPECT_EQ(titoli(documento), ultimo);
}
