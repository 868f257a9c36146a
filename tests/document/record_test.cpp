#include "document/clsImgRss.h"
#include "document/clsItemRss.h"

#include <gtest/gtest.h>

TEST(ClsImgRss, NasceVuota) {
    const clsImgRss image;
    EXPECT_EQ(image.sTitle(), L"");
    EXPECT_EQ(image.sUrl(), L"");
    EXPECT_EQ(image.sLink(), L"");
    EXPECT_EQ(image.nWidth(), 0);
    EXPECT_EQ(image.nHeight(), 0);
    EXPECT_FALSE(image.Modificato());
}

TEST(ClsImgRss, LoStessoValoreNonModifica) {
    clsImgRss image;
    image.sTitle(L"");
    image.sUrl(L"");
    image.sLink(L"");
    image.nWidth(0);
    image.nHeight(0);
    EXPECT_FALSE(image.Modificato());
    image.sTitle(L"x");
    image.Modificato(false);
    image.sTitle(L"x");
    EXPECT_FALSE(image.Modificato());
    image.sTitle(L"X");
    EXPECT_TRUE(image.Modificato());
    EXPECT_EQ(image.sTitle(), L"X");
}

TEST(ClsImgRss, TornareIndietroNonAbbassa) {
    clsImgRss image;
    image.sTitle(L"x");
    image.sTitle(L"");
    EXPECT_EQ(image.sTitle(), L"");
    EXPECT_TRUE(image.Modificato());
}

TEST(ClsImgRss, OgniCampoModifica) {
    const auto modifica = [](auto azione) {
        clsImgRss image;
        azione(image);
        return image.Modificato();
    };
    EXPECT_TRUE(modifica([](clsImgRss& i) { i.sTitle(L"a"); }));
    EXPECT_TRUE(modifica([](clsImgRss& i) { i.sUrl(L"a"); }));
    EXPECT_TRUE(modifica([](clsImgRss& i) { i.sLink(L"a"); }));
    EXPECT_TRUE(modifica([](clsImgRss& i) { i.nWidth(-1); }));
    EXPECT_TRUE(modifica([](clsImgRss& i) { i.nHeight(1); }));
}

TEST(Record, ModificatoSiAssegna) {
    const auto prova = [](auto registro) {
        registro.Modificato(true);
        EXPECT_TRUE(registro.Modificato());
        registro.Modificato(false);
        EXPECT_FALSE(registro.Modificato());
    };
    prova(clsImgRss());
    prova(clsItemRss());
}

TEST(ClsItemRss, OgniCampoModificaESiSvuota) {
    const auto prova = [](auto assegna, auto leggi) {
        clsItemRss item;
        EXPECT_FALSE(item.Modificato());
        assegna(item, L"");
        EXPECT_FALSE(item.Modificato());
        assegna(item, L"testo");
        EXPECT_TRUE(item.Modificato());
        EXPECT_EQ(leggi(item), L"testo");
        item.Svuota();
        EXPECT_EQ(leggi(item), L"");
        EXPECT_FALSE(item.Modificato());
        assegna(item, L"a");
        assegna(item, L"");
        EXPECT_TRUE(item.Modificato());
    };
    using I = clsItemRss;
    prova([](I& i, const wchar_t* v) { i.sTitle(v); }, [](const I& i) { return i.sTitle(); });
    prova([](I& i, const wchar_t* v) { i.sLink(v); }, [](const I& i) { return i.sLink(); });
    prova([](I& i, const wchar_t* v) { i.sDescription(v); },
          [](const I& i) { return i.sDescription(); });
    prova([](I& i, const wchar_t* v) { i.sAuthor(v); }, [](const I& i) { return i.sAuthor(); });
    prova([](I& i, const wchar_t* v) { i.sPubDate(v); }, [](const I& i) { return i.sPubDate(); });
    prova([](I& i, const wchar_t* v) { i.sGuid(v); }, [](const I& i) { return i.sGuid(); });
}
