#include "document/elemento.h"

#include "document/clsItemRss.h"
#include "document/deposito.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

TEST(Elemento, CreatoHaTestiSuoi) {
    std::wstring prestato = L"titolo";
    const ElementoCondiviso elemento =
        creaElemento({prestato, L"link", L"", L"autore", L"data", L"guid"});
    prestato = L"rovina";
    EXPECT_EQ((*elemento)[CampoElemento::Titolo], L"titolo");
    EXPECT_EQ((*elemento)[CampoElemento::Link], L"link");
    EXPECT_EQ((*elemento)[CampoElemento::Descrizione], L"");
    EXPECT_EQ((*elemento)[CampoElemento::Autore], L"autore");
    EXPECT_EQ((*elemento)[CampoElemento::Data], L"data");
    EXPECT_EQ((*elemento)[CampoElemento::Guid], L"guid");
}

TEST(Elemento, SonoUgualiQuelliConGliStessiTesti) {
    const TestiElemento testi{L"a", L"b", L"c", L"d", L"e", L"f"};
    EXPECT_EQ(*creaElemento(testi), *creaElemento(testi));
    for (auto& testo : TestiElemento(testi)) {
        TestiElemento altri = testi;
        altri[static_cast<std::size_t>(testo.front() - L'a')] = L"x";
        EXPECT_NE(*creaElemento(testi), *creaElemento(altri));
    }
    EXPECT_EQ(*elementoVuoto(), *creaElemento({}));
}

TEST(Elemento, IlRecordSiRiempieESiRileggeCampoPerCampo) {
    const TestiElemento testi{L"titolo", L"link", L"descrizione", L"autore", L"data", L"guid"};
    clsItemRss record;
    record.sTitle(L"di prima");
    record.riempi(*creaElemento(testi));
    EXPECT_EQ(record.sTitle(), L"titolo");
    EXPECT_EQ(record.sLink(), L"link");
    EXPECT_EQ(record.sDescription(), L"descrizione");
    EXPECT_EQ(record.sAuthor(), L"autore");
    EXPECT_EQ(record.sPubDate(), L"data");
    EXPECT_EQ(record.sGuid(), L"guid");
    EXPECT_TRUE(record.Modificato());
    EXPECT_EQ(record.elemento()->testi(), testi);
    record.riempi(*elementoVuoto());
    EXPECT_EQ(*record.elemento(), *elementoVuoto());
    EXPECT_FALSE(record.Modificato());
}

TEST(Deposito, GliElementiTengonoInVitaITestiDovSonoStatiMessi) {
    const std::wstring lungo(2000000, L'x');
    const wchar_t* dove = nullptr;
    std::vector<ElementoCondiviso> elementi;
    {
        const auto deposito = std::make_shared<Deposito>();
        for (int i = 0; i < 5000; ++i) {
            const auto titolo = deposito->conserva(L"titolo " + std::to_wstring(i));
            const auto testo = i == 2500 ? deposito->conserva(lungo) : std::wstring_view();
            dove = i == 4999 ? titolo.data() : nullptr;
            deposito->aggiungi({titolo, L"", testo, L"", L"", L""});
        }
        elementi = Deposito::elementi(deposito);
    }
    ASSERT_EQ(elementi.size(), 5000U);
    const ElementoCondiviso ultimo = elementi[4999];
    const ElementoCondiviso medio = elementi[2500];
    for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ((*elementi[static_cast<std::size_t>(i)])[CampoElemento::Titolo],
                  L"titolo " + std::to_wstring(i));
    }
    elementi.clear();
    EXPECT_EQ((*ultimo)[CampoElemento::Titolo].data(), dove);
    EXPECT_EQ((*ultimo)[CampoElemento::Titolo], L"titolo 4999");
    EXPECT_EQ((*medio)[CampoElemento::Descrizione], lungo);
}
