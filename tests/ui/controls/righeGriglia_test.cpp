#include "ui/controls/righeGriglia.h"

#include "support/errori/errore.h"
#include "tests/aiuti/tabella_prova.h"

#include <string>

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;

const FormatoLocale formato{};

ClsUTC utc() {
    return {Istante{DataOra::daParti(2005, 11, 15, 9), DataOra::daParti(2005, 11, 15, 10)},
            formato};
}

struct Prova {
    TabellaElementi tabella;
    RigheGriglia righe{tabella};

    void aggiungi(const std::wstring& titolo, const std::wstring& descrizione,
                  const std::wstring& data = L"Tue, 15 Nov 2005 10:00:00 +0100") {
        tabella.inserisci(tabella.conteggio(),
                          creaElemento({titolo, L"", descrizione, L"", data, L""}));
    }
    void elenca() {
        righe.intesta({L"Data/Orario", L"Contenuto"}, 3);
        righe.elenca(utc(), formato);
        righe.completa();
    }
};

} // namespace

TEST(RigheGriglia, SenzaElementiIntestazioneE49RigheVuote) {
    Prova p;
    p.elenca();
    EXPECT_EQ(p.righe.righe(), 50);
    EXPECT_EQ(p.righe.cella(0, 0), L"Data/Orario");
    EXPECT_EQ(p.righe.cella(0, 1), L"Contenuto");
    EXPECT_EQ(p.righe.cella(0, 2), L"");
    for (int r = 1; r < 50; ++r) {
        EXPECT_EQ(p.righe.cella(r, 0), L" ");
        EXPECT_EQ(p.righe.cella(r, 1), L" ");
        EXPECT_EQ(p.righe.cella(r, 2), L"-1");
        EXPECT_EQ(p.righe.elemento(r), -1);
    }
    EXPECT_EQ(p.righe.cella(50, 2), L"");
    EXPECT_EQ(p.righe.cella(-1, 0), L"");
    EXPECT_EQ(p.righe.cella(1, 3), L"");
    EXPECT_EQ(p.righe.cella(1, -1), L"");
}

TEST(RigheGriglia, NumeroDiRigheAttornoA50) {
    for (const auto& [elementi, righe] :
         {std::pair{1, 50}, {48, 50}, {49, 50}, {50, 51}, {32767, 32768}}) {
        Prova p;
        dimensiona(p.tabella, elementi);
        p.elenca();
        EXPECT_EQ(p.righe.righe(), righe);
        EXPECT_EQ(p.righe.elemento(0), -1);
        EXPECT_EQ(p.righe.elemento(1), 0);
        EXPECT_EQ(p.righe.elemento(elementi), elementi - 1);
        EXPECT_EQ(p.righe.elemento(elementi + 1), -1);
        EXPECT_EQ(p.righe.ultima(), elementi);
        EXPECT_EQ(p.righe.cella(elementi, 2), std::to_wstring(elementi - 1));
    }
}

TEST(RigheGriglia, SoloIntestazioniEPoiRigheVuote) {
    Prova p;
    p.aggiungi(L"a", L"b");
    p.righe.intesta({L"Data/Orario", L"Contenuto"}, 3);
    EXPECT_EQ(p.righe.righe(), 1);
    p.righe.completa();
    EXPECT_EQ(p.righe.righe(), 50);
    EXPECT_EQ(p.righe.cella(1, 2), L"-1");
    EXPECT_EQ(p.righe.elemento(1), -1);
    EXPECT_EQ(p.righe.ultima(), 0);
}

TEST(RigheGriglia, CelleDiUnElemento) {
    Prova p;
    p.aggiungi(L"  Titolo  ", L" Riga uno\r\nRiga due ");
    p.elenca();
    EXPECT_EQ(p.righe.cella(1, 0), L"15/11/2005 10:00:00");
    EXPECT_EQ(p.righe.cella(1, 1), L"Titolo\r\nRiga uno\r\nRiga due");
    EXPECT_EQ(p.righe.cella(1, 2), L"0");
}

TEST(RigheGriglia, QuattroSpaziPerTabulazioneEIlTestoRestaComE) {
    Prova p;
    p.aggiungi(L"\ta\tb", L"c\t\td");
    p.elenca();
    EXPECT_EQ(p.righe.cella(1, 1), L"    a    b\r\nc        d");
    EXPECT_EQ(p.tabella(Titolo, 0), L"\ta\tb");
    EXPECT_EQ(p.tabella(Descrizione, 0), L"c\t\td");
}

TEST(RigheGriglia, UnaDataIlleggibileSiVedeComE) {
    Prova p;
    for (const wchar_t* data : {L"ieri", L"Sat, 11 Xyz 2005 15:00:00 +0100", L"Sat, 11 Jun 2005",
                                L"Sat, 11 Jun 2005 15:00:00 EST", L"Sat, 99999 Jun 2005 1:1:1 GMT",
                                L"Sat, 1 Jan 20000 1:1:1 GMT", L"\t"}) {
        p.aggiungi(L"t", L"d", data);
    }
    p.aggiungi(L"t", L"d", L"Sat, 11 Jun 2005 15:00:00 UTC");
    p.aggiungi(L"t", L"d", L"  ");
    p.elenca();
    EXPECT_EQ(p.righe.cella(1, 0), L"ieri");
    EXPECT_EQ(p.righe.cella(2, 0), L"Sat, 11 Xyz 2005 15:00:00 +0100");
    EXPECT_EQ(p.righe.cella(3, 0), L"Sat, 11 Jun 2005");
    EXPECT_EQ(p.righe.cella(4, 0), L"Sat, 11 Jun 2005 15:00:00 EST");
    EXPECT_EQ(p.righe.cella(5, 0), L"Sat, 99999 Jun 2005 1:1:1 GMT");
    EXPECT_EQ(p.righe.cella(6, 0), L"Sat, 1 Jan 20000 1:1:1 GMT");
    EXPECT_EQ(p.righe.cella(7, 0), L"\t");
    EXPECT_EQ(p.righe.cella(8, 0), L"11/07/2005 16:00:00");
    EXPECT_EQ(p.righe.cella(9, 0), L"30/12/1899 00:00:00");
}

TEST(RigheGriglia, LeRigheSonoQuelleDellUltimoElenco) {
    Prova p;
    p.aggiungi(L"a", L"");
    p.aggiungi(L"b", L"");
    p.elenca();
    p.aggiungi(L"c", L"");
    EXPECT_EQ(p.righe.elemento(3), -1);
    EXPECT_EQ(p.righe.cella(3, 1), L" ");
    metti(p.tabella, Titolo, 0, L"nuovo");
    EXPECT_EQ(p.righe.cella(1, 1), L"nuovo\r\n");
    // Items that are gone show as rows without item, whatever was listed.
    p.tabella.svuota();
    EXPECT_EQ(p.righe.elemento(1), -1);
    EXPECT_EQ(p.righe.cella(2, 2), L"-1");
    EXPECT_EQ(p.righe.cella(2, 1), L" ");
}

TEST(RigheGriglia, UnAltraZonaSiVedeAllElencoSeguente) {
    Prova p;
    p.aggiungi(L"a", L"", L"Tue, 15 Nov 2005 10:00:00 GMT");
    p.elenca();
    EXPECT_EQ(p.righe.cella(1, 0), L"15/11/2005 11:00:00");
    const DataOra ora = DataOra::daParti(2005, 11, 15, 9);
    const ClsUTC lontano({ora, ora.piuSecondi(std::int64_t{14} * 3600)}, formato);
    p.righe.elenca(lontano, formato);
    EXPECT_EQ(p.righe.cella(1, 0), L"16/11/2005 00:00:00");
}

TEST(RigheGriglia, TestiEnormi) {
    Prova p;
    const std::wstring milione(1 << 20, L'x');
    std::wstring righe;
    for (int i = 0; i < 10000; ++i) {
        righe += L"riga\r\n";
    }
    p.aggiungi(milione, righe);
    p.aggiungi(std::wstring(1 << 20, L' '), std::wstring(1 << 20, L'\t'));
    p.elenca();
    EXPECT_EQ(p.righe.cella(1, 1), milione + L"\r\n" + righe);
    const auto dipinte = p.righe.contenuto(1, 100);
    EXPECT_EQ(dipinte.titolo, std::wstring(100, L'x') + L"\u2026");
    EXPECT_EQ(dipinte.descrizione.size(), 101U);
    EXPECT_EQ(dipinte.descrizione.substr(0, 10), L"riga riga ");
    EXPECT_EQ(p.righe.contenuto(2, 100).titolo, L"");
    EXPECT_EQ(p.righe.contenuto(2, 100).descrizione, std::wstring(100, L' ') + L"\u2026");
    EXPECT_EQ(p.righe.contenuto(3, 100).titolo, L"");
}

TEST(InUnaRiga, InterruzioniComeSpazi) {
    EXPECT_EQ(inUnaRiga(L"a\r\nb\nc\rd\n\re", 100), L"a b c d  e");
    EXPECT_EQ(inUnaRiga(L"  a\tb  ", 100), L"a    b");
    EXPECT_EQ(inUnaRiga(L"\r", 100), L" ");
    EXPECT_EQ(inUnaRiga(L"", 100), L"");
    EXPECT_EQ(inUnaRiga(L"abc", 3), L"abc");
    EXPECT_EQ(inUnaRiga(L"abcd", 3), L"abc\u2026");
    EXPECT_EQ(inUnaRiga(L"abc  ", 3), L"abc");
}

TEST(LarghezzeColonne, ConLaPrimaLeAltreSiDividonoIlResto) {
    EXPECT_EQ(larghezzeColonne(10000, 3, 2000.0), (std::vector<double>{2000, 7700, 7700}));
    EXPECT_EQ(larghezzeColonne(10000, 4, 2000.0), (std::vector<double>{2000, 3850, 3850, 3850}));
}

TEST(LarghezzeColonne, SenzaLaPrimaTutteUguali) {
    EXPECT_EQ(larghezzeColonne(10300, 3, std::nullopt), (std::vector<double>{5000, 5000, 5000}));
    EXPECT_EQ(larghezzeColonne(10300, 2, std::nullopt), (std::vector<double>{10000, 10000}));
}

TEST(LarghezzeColonne, MaiNegativeEMaiDivisePerZero) {
    EXPECT_EQ(larghezzeColonne(100, 3, 2000.0), (std::vector<double>{2000, 0, 0}));
    EXPECT_EQ(larghezzeColonne(0, 3, std::nullopt), (std::vector<double>{0, 0, 0}));
    for (const auto& prima : {std::optional<double>(2000.0), std::optional<double>()}) {
        try {
            static_cast<void>(larghezzeColonne(1000, prima ? 2 : 1, prima));
            ADD_FAILURE() << "no error";
        } catch (const Errore& e) {
            EXPECT_EQ(e.numero(), 11);
        }
    }
}
