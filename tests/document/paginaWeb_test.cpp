#include "document/paginaWeb.h"

#include "document/clsItemRss.h"
#include "support/programma/prodotto.h"
#include "support/testi/testo.h"
#include "tests/aiuti/formati.h"
#include "tests/aiuti/tabella_prova.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Righe = std::vector<std::wstring>;

// The lines of a page; each must end in CR LF and the last one with it.
Righe righe(const std::wstring& pagina) {
    Righe trovate;
    std::size_t dove = 0;
    while (dove < pagina.size()) {
        const auto fine = pagina.find(L"\r\n", dove);
        if (fine == std::wstring::npos) {
            ADD_FAILURE() << "the last line has no end";
            break;
        }
        trovate.push_back(pagina.substr(dove, fine - dove));
        dove = fine + 2;
    }
    return trovate;
}

ClsUTC conOra() {
    return {Istante{DataOra::daParti(2005, 6, 11, 13), DataOra::daParti(2005, 6, 11, 15)},
            italiano};
}

struct CanaleDiProva : Canale {
    CanaleDiProva() { title = L"titolo"; }

    TabellaElementi items;

    [[nodiscard]] Righe pagina(const FormatoLocale& formato = italiano) const {
        return righe(paginaFeed(*this, items, conOra(), formato));
    }
    // Without the header, the items and the closing lines.
    [[nodiscard]] Righe blocco(const FormatoLocale& formato = italiano) const {
        const Righe tutte = pagina(formato);
        return {tutte.begin() + 12, std::ranges::find(tutte, L"<p><hr>")};
    }
};

Righe bloccoElementi(const TabellaElementi& items, const FormatoLocale& formato = italiano) {
    const Righe tutte = righe(paginaElementi(items, conOra(), formato));
    return {tutte.begin() + 12, tutte.end() - 2};
}

} // namespace

TEST(PaginaWeb, LaTestataHaDodiciRigheEIlTitoloDelCanale) {
    CanaleDiProva canale;
    canale.title = L"  <Titolo> & \"altro\"  ";
    const Righe pagina = canale.pagina();
    const Righe attese{
        L" <!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">",
        L" <HTML>",
        L" <HEAD>",
        L" <TITLE>  <Titolo> & \"altro\"  </TITLE>",
        L" <META http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-1\">",
        L" <META NAME=\"Generator\" CONTENT=\"Ostrelle v" + prodotto::versione() + L' ' +
            std::wstring(prodotto::creditoPagina) + L"\">",
        L" </HEAD>",
        L" <BODY TEXT=\"#000000\"",
        L"     BGCOLOR=\"#FFFFFF\"",
        L"     LINK=\"#0000FF\"",
        L"     VLINK=\"#800080\"",
        L"     ALINK=\"#FF0000\">"};
    ASSERT_GT(pagina.size(), attese.size());
    EXPECT_EQ(Righe(pagina.begin(), pagina.begin() + 12), attese);
    EXPECT_EQ(Righe(pagina.end() - 2, pagina.end()), (Righe{L" </BODY>", L" </HTML>"}));
}

TEST(PaginaWeb, LAnteprimaHaUnTitoloFissoENienteCanale) {
    const Righe pagina = righe(paginaElementi(TabellaElementi(), conOra(), italiano));
    EXPECT_EQ(pagina[3], L" <TITLE>Feed RSS</TITLE>");
    EXPECT_EQ(pagina[11], L"     ALINK=\"#FF0000\">");
    EXPECT_EQ(pagina[12], L"<p><hr>");
    EXPECT_EQ(Righe(pagina.end() - 2, pagina.end()), (Righe{L" </BODY>", L" </HTML>"}));
}

TEST(PaginaWeb, IlBloccoDelCanaleRigaPerRiga) {
    CanaleDiProva canale;
    canale.link = L" http://a/ ";
    canale.description = L"<b>x</b>";
    canale.copyright = L"c";
    canale.webMaster = L"w";
    canale.lastBuildDate = L"Sat, 11 Jun 2005 15:00:00 +0100";
    EXPECT_EQ(canale.blocco(),
              (Righe{L"<H3>", L"<a href=\" http://a/ \">", L"titolo", L"</a>", L"</H3>",
                     L"<p><b>x</b>", L"<p><i>11/07/2005 15:00:00 ", L"<br>c ", L"<br>w</i>"}));
}

TEST(PaginaWeb, UnLinkDiSpaziNonFaUnAncora) {
    CanaleDiProva canale;
    canale.link = L"   ";
    canale.lastBuildDate = L"x";
    EXPECT_EQ(canale.blocco(),
              (Righe{L"<H3>", L"titolo", L"</H3>", L"<p>", L"<p><i>x ", L"<br> ", L"<br></i>"}));
    // Only blanks are blank.
    canale.link = L"\t";
    EXPECT_EQ(canale.blocco()[1], L"<a href=\"\t\">");
}

TEST(PaginaWeb, UnImmagineMaiToccataNonSiVede) {
    CanaleDiProva canale;
    EXPECT_EQ(canale.blocco().front(), L"<H3>");
    canale.image.sUrl(L"http://a/b.gif");
    canale.image.Modificato(false);
    EXPECT_EQ(canale.blocco().front(), L"<H3>");
}

TEST(PaginaWeb, LImmagineHaIlSuoAncoraELeSueMisure) {
    CanaleDiProva canale;
    canale.image.sTitle(L"il \"logo\"");
    canale.image.sUrl(L" http://a/b.gif");
    canale.image.sLink(L"http://a/");
    canale.image.nWidth(1234567);
    canale.image.nHeight(-31);
    const Righe blocco = canale.blocco();
    EXPECT_EQ(Righe(blocco.begin(), blocco.begin() + 4),
              (Righe{L"<a href=\"http://a/\">",
                     L"<img src=\" http://a/b.gif\" border=0 width=1234567 height=-31 "
                     L"alt=\"il \"logo\"\" >",
                     L"</a>", L"<H3>"}));
}

TEST(PaginaWeb, UnImmagineSenzaIndirizzoLasciaLAncoraVuoto) {
    CanaleDiProva canale;
    canale.image.sLink(L"http://a/");
    canale.image.sUrl(L"  ");
    const Righe blocco = canale.blocco();
    EXPECT_EQ(Righe(blocco.begin(), blocco.begin() + 3),
              (Righe{L"<a href=\"http://a/\">", L"</a>", L"<H3>"}));
}

TEST(PaginaWeb, UnImmagineSenzaLinkNonHaAncora) {
    CanaleDiProva canale;
    canale.image.sUrl(L"u");
    canale.image.sLink(L" ");
    const Righe blocco = canale.blocco();
    EXPECT_EQ(Righe(blocco.begin(), blocco.begin() + 2),
              (Righe{L"<img src=\"u\" border=0 width=0 height=0 alt=\"\" >", L"<H3>"}));
}

TEST(PaginaWeb, UnImmagineSenzaLinkESenzaIndirizzoNonHaRighe) {
    CanaleDiProva canale;
    canale.image.sTitle(L"solo il titolo");
    canale.image.nWidth(10);
    canale.image.nHeight(10);
    EXPECT_TRUE(canale.image.Modificato());
    EXPECT_EQ(canale.blocco().front(), L"<H3>");
    canale.image.sUrl(L"  ");
    canale.image.sLink(L" ");
    EXPECT_EQ(canale.blocco().front(), L"<H3>");
}

TEST(PaginaWeb, UnElementoRigaPerRiga) {
    TabellaElementi items;
    metti(items, CampoElemento::Titolo, 0, L"t");
    metti(items, CampoElemento::Link, 0, L"l");
    metti(items, CampoElemento::Descrizione, 0, L"d\r\n<i>e</i>");
    metti(items, CampoElemento::Autore, 0, L" a ");
    metti(items, CampoElemento::Data, 0, L"Sat, 11 Giu 2005 15:00:00 GMT");
    metti(items, CampoElemento::Guid, 0, L"{GUID}");
    EXPECT_EQ(bloccoElementi(items),
              (Righe{L"<p><hr>", L"<H3>", L"<a href=\"l\">", L"t", L"</a>", L"</H3>", L"<p>d",
                     L"<i>e</i>", L"<p><i>11/06/2005 17:00:00 ", L"<br> a </i> "}));
}

TEST(PaginaWeb, UnaTabellaMaiCresciutaDaUnElementoVuoto) {
    // No text is the zero date.
    EXPECT_EQ(bloccoElementi(TabellaElementi()),
              (Righe{L"<p><hr>", L"<H3>", L"", L"</H3>", L"<p>", L"<p><i>30/12/1899 00:00:00 ",
                     L"<br></i> "}));
}

TEST(PaginaWeb, GliElementiVannoFinoAlLimiteNelLoroOrdine) {
    TabellaElementi items;
    dimensiona(items, 3);
    for (int i = 0; i < 3; ++i) {
        metti(items, CampoElemento::Titolo, i, std::to_wstring(i));
        metti(items, CampoElemento::Data, i, L"?");
    }
    metti(items, CampoElemento::Link, 1, L"solo qui");
    metti(items, CampoElemento::Autore, 1, L"solo qui");
    const Righe blocco = bloccoElementi(items);
    EXPECT_EQ(std::ranges::count(blocco, L"<p><hr>"), 3);
    EXPECT_EQ(std::ranges::count(blocco, L"</a>"), 1);
    EXPECT_EQ(std::ranges::count(blocco, L"<br>solo qui</i> "), 1);
    const auto zero = std::ranges::find(blocco, L"0");
    const auto due = std::ranges::find(blocco, L"2");
    ASSERT_NE(due, blocco.end());
    EXPECT_LT(zero, due);
}

TEST(PaginaWeb, UnTestoCheNonEUnaDataRestaComE) {
    TabellaElementi items;
    for (const auto* testo : {L"ieri", L"Sat, 11 Xyz 2005 15:00:00 +0100", L"Sat, 11 Jun 2005",
                              L"Sat, 11 Jun 2005 1500 Z", L"Sat, 11 Jun 2005 15:00:00 --0500",
                              L"Sat, 11 Jun 99999 15:00:00 GMT"}) {
        metti(items, CampoElemento::Data, 0, testo);
        EXPECT_EQ(bloccoElementi(items)[5], L"<p><i>" + std::wstring(testo) + L' ');
        CanaleDiProva canale;
        canale.lastBuildDate = testo;
        EXPECT_EQ(canale.blocco()[4], L"<p><i>" + std::wstring(testo) + L' ');
    }
}

TEST(PaginaWeb, LaDataHaISeparatoriDellUtente) {
    TabellaElementi items;
    metti(items, CampoElemento::Data, 0, L"Tue, 3 Jan 2006 04:05:06 +0100");
    EXPECT_EQ(bloccoElementi(items, {Lingua::Italiano, L',', L".", L"."})[5],
              L"<p><i>03.01.2006 04.05.06 ");
    EXPECT_EQ(bloccoElementi(items, {Lingua::Inglese, L'.', L"-", L":"})[5],
              L"<p><i>03-01-2006 04:05:06 ");
}
