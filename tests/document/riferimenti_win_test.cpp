#include "support/programma/prodotto.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/tabella_prova.h"

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;

// What ISO-8859-1 lacks in the description of an item, on its way to the file and back.
class Riferimenti : public testing::Test {
protected:
    // The bytes of a feed of this program with that description.
    std::string salvato(const std::wstring& descrizione) {
        FeedDiProva d;
        metti(d.items, Titolo, 0, L"t");
        metti(d.items, Data, 0, L"Sat, 11 Jun 2005 15:00:00 +0100");
        metti(d.items, Descrizione, 0, descrizione);
        d.scrivi(percorso);
        return leggiTutto(percorso);
    }
    // The description as it is read from that file.
    std::wstring riletto() {
        letto.leggi(percorso);
        return std::wstring(letto.items(Descrizione, 0));
    }
    // Typed, saved, opened and saved again: what is seen is what was typed, the bytes are the same.
    void attendiStabile(const std::wstring& descrizione, const std::wstring& vista) {
        const std::string byte = salvato(descrizione);
        EXPECT_EQ(inUtf8(riletto()), inUtf8(vista));
        letto.scrivi(percorso);
        EXPECT_EQ(leggiTutto(percorso), byte) << inUtf8(descrizione);
    }
    // The description "&#8364;" of a file made of these pieces around a root.
    std::wstring descrizioneFra(const std::string& prima, const std::string& dopo,
                                const std::string& dentro = {}) {
        percorso = cartella.scrivi(L"a.xml", "<?xml version='1.0'?>" + prima + "<rss>" + dentro +
                                                 "<channel><item><description><![CDATA[&#8364;]]>"
                                                 "</description></item></channel></rss>" +
                                                 dopo);
        return riletto();
    }

    CartellaProva cartella;
    std::wstring percorso = cartella.file(L"a.xml");
    FeedDiProva letto;
    const std::string nostro = "<!--" + inUtf8(prodotto::commentoFeed()) + "-->";
};

} // namespace

TEST_F(Riferimenti, CioCheFuScrittoSiRivedeESiRisalvaUguale) {
    const std::wstring testo = L"<p>5 € “così” – 日本 \U0001F600 \u0100\uFFFD\uE000\U0010FFFF</p>";
    EXPECT_NE(salvato(testo).find("5 &#8364; &#8220;cos\xEC&#8221; &#8211; &#26085;&#26412; "
                                  "&#128512; &#256;&#65533;&#57344;&#1114111;</p>"),
              std::string::npos);
    attendiStabile(testo, testo);
    attendiStabile(L"€", L"€");
    attendiStabile(L"€\r\n&\r\n€€", L"€\r\n&\r\n€€");
}

// The writer writes none of these: whoever typed them sees them again.
TEST_F(Riferimenti, OgniAltroRiferimentoRestaComE) {
    for (const auto* const testo : {L"&#232;",      L"&#255;",        L"&#38;#8364;",
                                    L"&amp;#8364;", L"&euro;",        L"&#x20AC;",
                                    L"&#X20AC;",    L"&#08364;",      L"&# 8364;",
                                    L"&#8364",      L"&#8364 ;",      L"&#+8364;",
                                    L"&#-8364;",    L"&8364;",        L"&#;",
                                    L"&#",          L"#8364;",        L"&#0;",
                                    L"&#55296;",    L"&#56832;",      L"&#57343;",
                                    L"&#65534;",    L"&#65535;",      L"&#1114112;",
                                    L"&#99999999;", L"&#4294975660;", L"&#18446744073709560000;",
                                    L"&#8364x;",    L"&#83&;64;"}) {
        attendiStabile(testo, testo);
        attendiStabile(std::wstring(L"€") + testo + L"€", std::wstring(L"€") + testo + L"€");
    }
}

// In the file a reference that was typed is no other than one that was written: it comes back as
// the character that a reader of the feed sees anyway, and the file stays as it is.
TEST_F(Riferimenti, UnRiferimentoScrittoAManoTornaComeCarattere) {
    attendiStabile(L"costa &#8364; 5", L"costa € 5");
    attendiStabile(L"&&#8364;;&#128512;&#&#256;#8364;", L"&€;\U0001F600&#\u0100#8364;");
    attendiStabile(L"&#83&#8364;64;", L"&#83€64;");
    // From then on it is what is typed.
    attendiStabile(L"costa € 5", L"costa € 5");
}

TEST_F(Riferimenti, SoloNellaDescrizioneDiUnElemento) {
    FeedDiProva d;
    for (auto* const campo : d.canale()) {
        *campo = L"&#8364;";
    }
    d.image.sTitle(L"&#8364;");
    d.image.sUrl(L"&#8364;");
    d.image.sLink(L"&#8364;");
    for (int c = 0; c < numeroCampi; ++c) {
        metti(d.items, static_cast<CampoElemento>(c), 0, L"&#8364;");
    }
    d.scrivi(percorso);
    EXPECT_EQ(riletto(), L"€");
    for (const auto* const campo : letto.canale()) {
        EXPECT_EQ(*campo, L"&#8364;");
    }
    EXPECT_EQ(letto.image.sTitle(), L"&#8364;");
    EXPECT_EQ(letto.image.sUrl(), L"&#8364;");
    EXPECT_EQ(letto.image.sLink(), L"&#8364;");
    for (const auto campo : {Titolo, Link, Autore, Data, Guid}) {
        EXPECT_EQ(letto.items(campo, 0), L"&#8364;");
    }
}

TEST_F(Riferimenti, UnFeedEDiQuestoProgrammaSeIlSuoCommentoStaPrimaDellaRadice) {
    EXPECT_EQ(descrizioneFra(nostro, ""), L"€");
    EXPECT_EQ(descrizioneFra("<!--altro-->" + nostro + "<?stile x?><!--altro-->", ""), L"€");
    EXPECT_EQ(descrizioneFra("<!DOCTYPE rss>" + nostro, ""), L"€");
    const std::wstring comeSta = L"&#8364;";
    EXPECT_EQ(descrizioneFra("", ""), comeSta);
    EXPECT_EQ(descrizioneFra("", nostro), comeSta);
    EXPECT_EQ(descrizioneFra("", "", nostro), comeSta);
    EXPECT_EQ(descrizioneFra("<!--Feed RSS creato con un altro programma-->", ""), comeSta);
    EXPECT_EQ(descrizioneFra("<!--" + inUtf8(prodotto::commentoFeed()) + " o quasi-->", ""),
              comeSta);
    EXPECT_EQ(descrizioneFra("<!--x " + inUtf8(prodotto::commentoFeed()) + "-->", ""), comeSta);
    EXPECT_EQ(descrizioneFra("<?nota " + inUtf8(prodotto::commentoFeed()) + "?>", ""), comeSta);
    // With a DOCTYPE after it, it is no longer as this program wrote it.
    EXPECT_EQ(descrizioneFra(nostro + "<!DOCTYPE rss>", ""), comeSta);
}

// Saved by this program, another's feed is one of its own.
TEST_F(Riferimenti, DaUnFeedAltruiRestanoFinoAlSalvataggio) {
    EXPECT_EQ(descrizioneFra("", ""), L"&#8364;");
    letto.scrivi(percorso);
    const std::string byte = leggiTutto(percorso);
    EXPECT_NE(byte.find("<![CDATA[&#8364;]]>"), std::string::npos);
    EXPECT_EQ(riletto(), L"€");
    letto.scrivi(percorso);
    EXPECT_EQ(leggiTutto(percorso), byte);
}
