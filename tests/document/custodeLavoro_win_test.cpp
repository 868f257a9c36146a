#include "document/custodeLavoro_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/custode_prova_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/orologio_fermo.h"
#include "tests/aiuti/tabella_prova.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

class CustodeLavoroDiProva : public testing::Test {
protected:
    // What is found by whoever comes after a crash: the diary's bytes as they are.
    [[nodiscard]] std::optional<LavoroNonSalvato> sulDisco() const {
        const auto tutti = diariIn(diari);
        EXPECT_LE(tutti.size(), 1U);
        if (tutti.empty()) {
            return std::nullopt;
        }
        EXPECT_FALSE(FileDiario::prendi(tutti.front())) << "held by nobody";
        custode.reset();
        auto preso = FileDiario::prendi(tutti.front());
        EXPECT_TRUE(preso);
        const auto byte = preso->leggi();
        const auto lettura = leggiDiario(byte);
        EXPECT_TRUE(lettura.intero);
        EXPECT_TRUE(lettura.lavoro);
        return lettura.lavoro;
    }
    [[nodiscard]] std::size_t quanti() const { return diariIn(diari).size(); }
    void aggiungiElemento(const std::wstring& titolo) {
        documento.applica(
            documento.aggiunta(conTesto(*elementoVuoto(), CampoElemento::Titolo, titolo)));
    }
    [[nodiscard]] static std::wstring titolo(const LavoroNonSalvato& lavoro, int indice) {
        return std::wstring(lavoro.elementi(CampoElemento::Titolo, indice));
    }

    CartellaProva cartella;
    std::wstring diari = cartella.file(L"dati\\diario");
    Documento documento;
    TestiDiProva testi;
    OrologioFermo orologio{DataOra::daParti(2026, 11, 21, 13, 5, 0)};
    int guasti = 0;
    mutable std::optional<CustodeLavoro> custode{std::in_place, documento, testi,
                                                 orologio,      diari,     [this] { ++guasti; }};
};

} // namespace

TEST_F(CustodeLavoroDiProva, SenzaModificheNonCENulla) {
    custode->codaVuota();
    documento.sostituisci({});
    custode->codaVuota();
    EXPECT_FALSE(std::filesystem::exists(diari));
}

TEST_F(CustodeLavoroDiProva, OgniModificaEScrittaQuandoAvviene) {
    documento.percorso(L"C:\\feed\\notizie.xml");
    aggiungiElemento(L"a");
    aggiungiElemento(L"b");
    documento.applica(documento.spostamento(0, 1), Causa::Trascinamento);
    documento.ultimaData(DataOra::daParti(2026, 1, 2));
    documento.applica(documento.rimozione(0));
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_EQ(lavoro->percorso, L"C:\\feed\\notizie.xml");
    EXPECT_EQ(lavoro->modifiche, 4);
    EXPECT_EQ(lavoro->ultimaData, DataOra::daParti(2026, 1, 2));
    ASSERT_EQ(lavoro->elementi.conteggio(), 1);
    EXPECT_EQ(titolo(*lavoro, 0), L"a");
    EXPECT_EQ(lavoro->ora, orologio.adesso().locale);
    EXPECT_FALSE(lavoro->canaleModificato);
}

TEST_F(CustodeLavoroDiProva, UnTrascinamentoELavoroAncheSenzaIlSegno) {
    dimensiona(documento, 3);
    documento.applica(documento.spostamento(0, 2), Causa::Trascinamento);
    EXPECT_FALSE(documento.modificato());
    EXPECT_EQ(quanti(), 1U);
}

TEST_F(CustodeLavoroDiProva, ICampiSiScrivonoQuandoLaCodaEVuota) {
    testi.campi[1] = L"http://a.example";
    documento.campiModificati();
    EXPECT_EQ(quanti(), 0U);
    custode->codaVuota();
    testi.campi[0] = L"titolo nuovo";
    documento.campiModificati();
    custode->codaVuota();
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_TRUE(lavoro->canaleModificato);
    EXPECT_EQ(lavoro->canale, (TestiCampi{L"titolo nuovo", L"http://a.example"}));
    EXPECT_EQ(lavoro->modifiche, 0);
}

TEST_F(CustodeLavoroDiProva, UnDocumentoApertoNonELavoro) {
    documento.campiModificati();
    documento.sostituisci({});
    documento.modificato(false);
    custode->codaVuota();
    EXPECT_EQ(quanti(), 0U);
}

TEST_F(CustodeLavoroDiProva, CioCheSiScriveNellEditorSopravvive) {
    dimensiona(documento, 2);
    custode->editorAperto(1);
    custode->codaVuota();
    EXPECT_EQ(quanti(), 0U) << "nothing was typed";
    testi.aperto = TestiCampi{L"prima parte", L"p"};
    custode->codaVuota();
    testi.aperto->front() = L"prima parte e altro";
    custode->codaVuota();
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_EQ(lavoro->bozza, (Bozza{1, {L"prima parte e altro", L"p"}}));
    EXPECT_EQ(lavoro->elementi.conteggio(), 2);
}

TEST_F(CustodeLavoroDiProva, LEditorAnnullatoNonLasciaNulla) {
    custode->editorAperto(-1);
    testi.aperto = TestiCampi{L"x"};
    custode->codaVuota();
    EXPECT_EQ(quanti(), 1U);
    custode->editorChiuso();
    EXPECT_EQ(quanti(), 0U);
}

TEST_F(CustodeLavoroDiProva, LEditorAnnullatoLasciaIlRestoDelLavoro) {
    aggiungiElemento(L"a");
    custode->editorAperto(-1);
    testi.aperto = TestiCampi{L"x"};
    custode->codaVuota();
    custode->editorChiuso();
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_FALSE(lavoro->bozza);
    EXPECT_EQ(lavoro->modifiche, 1);
}

TEST_F(CustodeLavoroDiProva, LElementoConfermatoEUnElemento) {
    custode->editorAperto(-1);
    testi.aperto = TestiCampi{L"x"};
    custode->codaVuota();
    aggiungiElemento(L"x");
    custode->editorChiuso();
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_FALSE(lavoro->bozza);
    EXPECT_EQ(lavoro->elementi.conteggio(), 1);
}

TEST_F(CustodeLavoroDiProva, SalvatoOSostituitoIlDiarioSeNeVa) {
    aggiungiElemento(L"a");
    custode->dimentica();
    EXPECT_EQ(quanti(), 0U);
    aggiungiElemento(L"b");
    EXPECT_EQ(quanti(), 1U);
    documento.sostituisci({});
    EXPECT_EQ(quanti(), 0U);
    // What comes after begins anew.
    aggiungiElemento(L"c");
    EXPECT_EQ(sulDisco()->modifiche, 1);
}

TEST_F(CustodeLavoroDiProva, IlLavoroRipresoHaSubitoUnDiario) {
    LavoroNonSalvato lavoro;
    lavoro.modifiche = 7;
    lavoro.canale = testi.campi;
    lavoro.bozza = Bozza{.indice = -1, .testi = {L"in corso"}};
    custode->riprendi(lavoro);
    custode->editorAperto(-1);
    testi.aperto = TestiCampi{L"in corso d'opera"};
    custode->codaVuota();
    const auto letto = sulDisco();
    ASSERT_TRUE(letto);
    EXPECT_EQ(letto->modifiche, 7);
    EXPECT_EQ(letto->bozza, (Bozza{-1, {L"in corso d'opera"}}));
}

TEST_F(CustodeLavoroDiProva, OltreIlLimiteIlDiarioSiRiscrive) {
    TestiElemento lungo;
    const std::wstring descrizione(1'000'000, L'x');
    lungo[static_cast<std::size_t>(CampoElemento::Descrizione)] = descrizione;
    documento.applica(documento.aggiunta(creaElemento(lungo)));
    const auto grandezza = [&] { return std::filesystem::file_size(diariIn(diari).front()); };
    std::uintmax_t massima = 0;
    for (int i = 0; i < 40; ++i) {
        documento.applica(documento.cambio(0, creaElemento(lungo)));
        massima = std::max(massima, grandezza());
    }
    EXPECT_GT(massima, 60'000'000U);
    EXPECT_LT(massima, 72'000'000U);
    EXPECT_LT(grandezza(), 20'000'000U);
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_EQ(lavoro->modifiche, 41);
    EXPECT_EQ(lavoro->elementi.conteggio(), 1);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(diari), {}), 1);
}

TEST_F(CustodeLavoroDiProva, RiscrittoTieneCioCheSiScriveNellEditor) {
    dimensiona(documento, 2);
    custode->editorAperto(1);
    const auto grandezza = [&] {
        const auto tutti = diariIn(diari);
        return tutti.empty() ? 0 : std::filesystem::file_size(tutti.front());
    };
    std::uintmax_t prima = 0;
    // Until it is a smaller one, and nothing was typed since.
    for (int i = 0; i < 60 && prima <= grandezza(); ++i) {
        prima = grandezza();
        testi.aperto = TestiCampi{std::wstring(1'000'000, i % 2 == 0 ? L'x' : L'y'), L"p"};
        custode->codaVuota();
    }
    EXPECT_GT(prima, 60'000'000U);
    EXPECT_LT(grandezza(), 20'000'000U);
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    EXPECT_EQ(lavoro->bozza, (Bozza{1, *testi.aperto}));
}

TEST_F(CustodeLavoroDiProva, DoveNonSiPuoScrivereSiDiceUnaVoltaESiLavora) {
    custode.emplace(documento, testi, orologio, cartella.scrivi(L"file", "") + L"\\diario",
                    [this] { ++guasti; });
    aggiungiElemento(L"a");
    aggiungiElemento(L"b");
    custode->codaVuota();
    EXPECT_EQ(guasti, 1);
    EXPECT_EQ(documento.elementi().conteggio(), 2);
}

TEST_F(CustodeLavoroDiProva, SulDiscoPienoRestaCioCheCera) {
    const auto disco = discoPiccolo();
    if (!disco) {
        GTEST_SKIP() << "no small disk here";
    }
    diari = *disco + L"\\diario";
    custode.emplace(documento, testi, orologio, diari, [this] { ++guasti; });
    aggiungiElemento(L"a");
    for (int i = 0; i < 400 && guasti == 0; ++i) {
        aggiungiElemento(std::wstring(1000, L'x'));
    }
    EXPECT_EQ(guasti, 1);
    const auto lavoro = sulDisco();
    ASSERT_TRUE(lavoro);
    // All but the one that found no room.
    EXPECT_EQ(lavoro->modifiche, documento.elementi().conteggio() - 1);
    std::filesystem::remove_all(diari);
}
