#include "ui/main/recenti.h"

#include "tests/aiuti/impostazioni_finte.h"
#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

namespace {

using Voci = std::vector<std::wstring>;

} // namespace

TEST(Recenti, UnArchivioVuotoNonHaVoci) {
    ImpostazioniFinte archivio;
    ElencoRecenti elenco(archivio);
    elenco.CaricaRecenti();
    EXPECT_TRUE(elenco.voci().empty());
}

TEST(Recenti, LoStessoPercorsoInAltreMaiuscoleEUnaVoceSola) {
    ImpostazioniFinte archivio;
    ElencoRecenti elenco(archivio);
    elenco.AggiungiRecente(L"C:\\Feed\\News.XML");
    elenco.AggiungiRecente(L"c:\\feed\\altro.xml");
    elenco.AggiungiRecente(L"c:\\feed\\news.xml");
    EXPECT_EQ(elenco.voci(), (Voci{L"c:\\feed\\news.xml", L"c:\\feed\\altro.xml"}));
    elenco.AggiungiRecente(L"C:\\FEED\\ALTRO.XML ");
    ASSERT_EQ(elenco.voci(), (Voci{L"c:\\feed\\altro.xml", L"c:\\feed\\news.xml"}));
    // In the store too.
    EXPECT_EQ(archivio.leggi(L"url", L"murl1", L""), L"c:\\feed\\altro.xml ");
}

TEST(Recenti, UnArchivioCheRifiutaLasciaLElencoComEra) {
    ImpostazioniFinte archivio;
    ElencoRecenti elenco(archivio);
    elenco.AggiungiRecente(L"c:\\a.xml");
    archivio.rifiuta = true;
    EXPECT_EQ(sollevatoDa([&] { elenco.AggiungiRecente(L"c:\\b.xml"); }).numero, 75);
    EXPECT_EQ(elenco.voci(), Voci{L"c:\\a.xml"});
}

TEST(Recenti, DopoUndiciFileRestanoIDieciPiuRecenti) {
    ImpostazioniFinte archivio;
    ElencoRecenti elenco(archivio);
    for (int i = 1; i <= 11; ++i) {
        elenco.AggiungiRecente(L"c:\\f" + std::to_wstring(i) + L".xml");
    }
    ASSERT_EQ(elenco.voci().size(), 10U);
    EXPECT_EQ(elenco.voci().front(), L"c:\\f11.xml");
    EXPECT_EQ(elenco.voci().back(), L"c:\\f2.xml");
    EXPECT_EQ(archivio.leggi(L"url", L"murl1", L""), L"c:\\f11.xml");
    EXPECT_EQ(archivio.leggi(L"url", L"murl10", L""), L"c:\\f2.xml");
    EXPECT_EQ(archivio.leggi(L"url", L"murl11", L"-"), L"-");
}

TEST(Recenti, ValoriVuotiESpaziIntornoSiSaltanoOSiTolgono) {
    ImpostazioniFinte archivio;
    archivio.scrivi(L"url", L"murl1", L"   ");
    archivio.scrivi(L"url", L"murl2", L"  C:\\Città\\È.XML ");
    archivio.scrivi(L"url", L"murl7", L"c:\\b.xml");
    ElencoRecenti elenco(archivio);
    elenco.CaricaRecenti();
    EXPECT_EQ(elenco.voci(), (Voci{L"c:\\città\\è.xml", L"c:\\b.xml"}));
    // Adding closes the gaps up, and nothing is left to stand twice.
    elenco.AggiungiRecente(L"c:\\n.xml");
    EXPECT_EQ(elenco.voci(), (Voci{L"c:\\n.xml", L"c:\\città\\è.xml", L"c:\\b.xml"}));
    EXPECT_EQ(archivio.leggi(L"url", L"murl7", L"-"), L"");
}

TEST(Recenti, CioCheUnAltroHaScrittoRestaOveNonSiScriveSopra) {
    ImpostazioniFinte archivio;
    ElencoRecenti mio(archivio);
    mio.CaricaRecenti();
    ElencoRecenti altro(archivio);
    for (const wchar_t* const path : {L"c:\\z", L"c:\\y", L"c:\\x"}) {
        altro.AggiungiRecente(path);
    }
    // Only the first place is written: the list was empty when it was read.
    mio.AggiungiRecente(L"c:\\a");
    EXPECT_EQ(mio.voci(), (Voci{L"c:\\a", L"c:\\y", L"c:\\z"}));
    // Below the written ones stays what is none of them, whoever wrote it and in whatever case.
    ElencoRecenti terzo(archivio);
    terzo.CaricaRecenti();
    archivio.scrivi(L"url", L"murl6", L" C:\\Y ");
    archivio.scrivi(L"url", L"murl8", L"C:\\W");
    archivio.scrivi(L"url", L"murl10", L"c:\\b");
    terzo.AggiungiRecente(L"C:\\B");
    EXPECT_EQ(terzo.voci(), (Voci{L"c:\\b", L"c:\\a", L"c:\\y", L"c:\\z", L"c:\\w"}));
    EXPECT_EQ(archivio.leggi(L"url", L"murl6", L"-"), L"");
    EXPECT_EQ(archivio.leggi(L"url", L"murl8", L"-"), L"C:\\W");
    EXPECT_EQ(archivio.leggi(L"url", L"murl10", L"-"), L"");
}

TEST(Recenti, UnPercorsoDueVolteNellArchivioSiScriveUnaVolta) {
    ImpostazioniFinte archivio;
    archivio.scrivi(L"url", L"murl1", L"c:\\a");
    archivio.scrivi(L"url", L"murl2", L"c:\\b");
    archivio.scrivi(L"url", L"murl3", L"C:\\A");
    archivio.scrivi(L"url", L"murl4", L"c:\\c");
    ElencoRecenti elenco(archivio);
    elenco.CaricaRecenti();
    elenco.AggiungiRecente(L"c:\\n");
    EXPECT_EQ(elenco.voci(), (Voci{L"c:\\n", L"c:\\a", L"c:\\b", L"c:\\c"}));
}

TEST(Recenti, IlPiuRecenteGiaInElencoSaleInCimaSenzaLasciareBuchi) {
    ImpostazioniFinte archivio;
    ElencoRecenti elenco(archivio);
    for (const wchar_t* const path : {L"c:\\a", L"c:\\b", L"c:\\c"}) {
        elenco.AggiungiRecente(path);
    }
    elenco.AggiungiRecente(L"c:\\a");
    EXPECT_EQ(elenco.voci(), (Voci{L"c:\\a", L"c:\\c", L"c:\\b"}));
}

TEST(Recenti, LaECommercialeSiVedeComeTale) {
    EXPECT_EQ(didascaliaMenu(L"c:\\a&b&&c.xml"), L"c:\\a&&b&&&&c.xml");
}
