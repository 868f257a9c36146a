#include "document/custodeFile.h"
#include "document/esitoLettura_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/tabella_prova.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// What reading and writing tell and ask besides the document.

namespace {

// Remembers what it was shown, and what the file held at that moment.
class CustodeDiProva final : public CustodeFile {
public:
    bool conserva(const std::wstring& percorso) noexcept override {
        percorsi.push_back(percorso);
        contenuti.push_back(leggiTutto(percorso));
        return porta && std::filesystem::remove(percorso);
    }

    void nonSostituito(const std::wstring& percorso) noexcept override {
        mancati.push_back(percorso);
        EXPECT_FALSE(std::filesystem::exists(percorso));
    }

    // Takes the file away by itself.
    bool porta = false;
    std::vector<std::wstring> percorsi;
    std::vector<std::wstring> mancati;
    std::vector<std::string> contenuti;
};

class Conservazione : public testing::Test {
protected:
    Conservazione() {
        d.title = L"t";
        metti(d.items, CampoElemento::Titolo, 0, L"a");
    }

    CartellaProva cartella;
    FeedDiProva d;
    CustodeDiProva custode;
};

} // namespace

TEST_F(Conservazione, IlFileCheSparisceEMostratoPrima) {
    const std::wstring feed = cartella.scrivi(L"a.xml", "vecchio feed");
    clsFeedRss().CreaDocumentoRSS(feed, d, d.items, &custode);
    const std::wstring pagina = cartella.scrivi(L"a.htm", "vecchia pagina");
    clsFeedRss().CreaDocumentoHTML(pagina, d, d.items, &custode);
    EXPECT_EQ(custode.percorsi, (std::vector<std::wstring>{feed, pagina}));
    EXPECT_EQ(custode.contenuti, (std::vector<std::string>{"vecchio feed", "vecchia pagina"}));
    EXPECT_NE(leggiTutto(feed), "vecchio feed");
}

TEST_F(Conservazione, CioCheEGiaAndatoNonSiCancella) {
    custode.porta = true;
    const std::wstring feed = cartella.scrivi(L"a.xml", "vecchio feed");
    clsFeedRss().CreaDocumentoRSS(feed, d, d.items, &custode);
    EXPECT_NE(leggiTutto(feed).find("</rss>"), std::string::npos);
    d.title = std::wstring(1, L'\x01');
    EXPECT_EQ(
        sollevatoDa([&] { clsFeedRss().CreaDocumentoRSS(feed, d, d.items, &custode); }).numero, 5);
    EXPECT_EQ(custode.contenuti, std::vector<std::string>{"vecchio feed"});
}

TEST_F(Conservazione, DoveNonCENullaNonSiChiede) {
    clsFeedRss().CreaDocumentoRSS(cartella.file(L"a.xml"), d, d.items, &custode);
    clsFeedRss().CreaDocumentoHTML(cartella.file(L"a.htm"), d, d.items, &custode);
    EXPECT_TRUE(custode.percorsi.empty());
}

TEST_F(Conservazione, CioCheNonSiPuoScrivereNonSparisceENonSiMostra) {
    const std::wstring feed = cartella.scrivi(L"a.xml", "vecchio feed");
    d.title = std::wstring(1, L'\x01');
    EXPECT_EQ(
        sollevatoDa([&] { clsFeedRss().CreaDocumentoRSS(feed, d, d.items, &custode); }).numero, 5);
    EXPECT_TRUE(custode.percorsi.empty());
    EXPECT_EQ(leggiTutto(feed), "vecchio feed");
}

TEST_F(Conservazione, LaLetturaDiceCioCheUnSalvataggioPerde) {
    const std::wstring file =
        cartella.scrivi(L"a.xml", rssCon("<title>t</title><ttl>60</ttl><item><title>a</title>"
                                         "<category>x</category><category>y</category></item>"));
    EsitoLettura esito;
    clsFeedRss().LeggiDocumentoRSS(file, d, d.items, &esito);
    EXPECT_EQ(esito.perdite, (std::vector<Perdita>{{"category", 2}, {"ttl", 1}}));
    ASSERT_TRUE(esito.file);
    EXPECT_TRUE(ancora(*esito.file, file));
}

TEST_F(Conservazione, UnFeedDelProgrammaNonPerdeNulla) {
    const std::wstring file = cartella.file(L"a.xml");
    d.image.sTitle(L"logo");
    clsFeedRss().CreaDocumentoRSS(file, d, d.items);
    EsitoLettura esito;
    clsFeedRss().LeggiDocumentoRSS(file, d, d.items, &esito);
    EXPECT_TRUE(esito.perdite.empty());
}

TEST_F(Conservazione, UnaFormaSmisurataNonSiApre) {
    std::string titolo = "<title>";
    for (int i = 0; i < 30'000; ++i) {
        titolo += "<b/>";
    }
    const std::wstring file = cartella.scrivi(L"a.xml", rssCon(titolo + "</title>"));
    EXPECT_EQ(d.provaLeggi(file).numero, 18343);
}
