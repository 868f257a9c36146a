#include "document/perdite.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using namespace std::string_literals;

std::map<std::string, int> perdite(std::string_view documento) {
    std::map<std::string, int> trovate;
    for (const Perdita& p : esaminaFeed(std::as_bytes(std::span(documento))).perdite) {
        trovate[p.nome] = p.volte;
    }
    return trovate;
}

bool smisurato(std::string_view documento) {
    return esaminaFeed(std::as_bytes(std::span(documento))).smisurato;
}

std::string feed(std::string_view dentro) {
    return "<?xml version=\"1.0\"?><rss version=\"2.0\"><channel>" + std::string(dentro) +
           "</channel></rss>";
}

std::string ripetuto(std::string_view testo, int volte) {
    std::string tutto;
    for (int i = 0; i < volte; ++i) {
        tutto += testo;
    }
    return tutto;
}

using Attese = std::map<std::string, int>;

TEST(Perdite, CioCheIlSalvataggioRiscriveNonSiPerde) {
    EXPECT_EQ(
        perdite("<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\r\n"
                "<!--Feed RSS creato con Ostrelle di Quorvex (https://www.quorvex.example)-->\r\n"
                "<rss version=\"2.0\"><channel><title>t</title><link>l</link>"
                "<description>d &amp; d</description><language>it</language><copyright/>"
                "<lastBuildDate>x</lastBuildDate><webMaster></webMaster>"
                "<image><title/><url/><link/><width>1</width><height>2</height></image>"
                "<item><title>a</title><link/><description><![CDATA[<b>x</b>]]></description>"
                "<author/><pubDate/><guid/></item></channel></rss>"),
        Attese{});
}

TEST(Perdite, GliElementiSconosciutiSonoContatiPerNome) {
    EXPECT_EQ(perdite(feed("<ttl>5</ttl><category>x</category>"
                           "<item><category a='1'>b<i>c</i><!--k--></category><category/>"
                           "<itunes:author>x</itunes:author></item>"
                           "<image><description/></image>")),
              (Attese{{"ttl", 1}, {"category", 3}, {"itunes:author", 1}, {"description", 1}}));
}

TEST(Perdite, IRipetutiOltreIlPrimo) {
    EXPECT_EQ(perdite(feed("<title/><title/><title/><image/><image/>"
                           "<item><guid/><guid/></item><item><guid/></item>")),
              (Attese{{"title ripetuto", 2}, {"image ripetuto", 1}, {"guid ripetuto", 1}}));
}

TEST(Perdite, AttributiVersioneESpaziDeiNomi) {
    EXPECT_EQ(perdite("<rss version='0.91' xmlns='u' xmlns:a=\"b\"><channel k='v'>"
                      "<item rdf:about='x'><guid isPermaLink='false'>g</guid></item>"
                      "<item><guid isPermaLink=\"a>b\">g</guid></item></channel></rss>"),
              (Attese{{"rss version", 1},
                      {"spazi dei nomi", 2},
                      {"channel k", 1},
                      {"item rdf:about", 1},
                      {"guid isPermaLink", 2}}));
}

TEST(Perdite, CommentiIstruzioniETipoDiDocumento) {
    EXPECT_EQ(perdite("<?xml version='1.0'?><?xml-stylesheet href='a'?>"
                      "<!DOCTYPE rss [<!ENTITY a \"]>\"><!-- ]> ' -->]>"
                      "<!-- Feed RSS creato con altro --><rss version='2.0'>"
                      "<!--Feed RSS creato con Ostrelle--><channel><?a b?></channel></rss>"),
              (Attese{{"istruzioni", 2}, {"DOCTYPE", 1}, {"commenti", 2}}));
}

TEST(Perdite, DiUnaDescrizioneRestaIlPrimoPezzo) {
    const auto descrizione = [](std::string_view dentro) {
        return perdite("<!DOCTYPE rss [<!ENTITY e 'xy'>]>" +
                       feed("<item><description>" + std::string(dentro) + "</description></item>"));
    };
    const Attese nessuna{{"DOCTYPE", 1}};
    EXPECT_EQ(descrizione("testo &lt;b&gt;"), nessuna);
    EXPECT_EQ(descrizione("\n <![CDATA[x]]> \n"), nessuna);
    EXPECT_EQ(descrizione("<![CDATA[x]]><![CDATA[y]]>"), nessuna);
    EXPECT_EQ(descrizione("prima <![CDATA[x]]>"),
              (Attese{{"DOCTYPE", 1}, {"parti di descrizioni", 1}}));
    EXPECT_EQ(descrizione("prima <b>x</b> dopo"),
              (Attese{{"DOCTYPE", 1}, {"parti di descrizioni", 2}}));
    EXPECT_EQ(descrizione("prima &e; dopo"), (Attese{{"DOCTYPE", 1}, {"parti di descrizioni", 1}}));
    EXPECT_EQ(descrizione("<!--c-->testo"),
              (Attese{{"DOCTYPE", 1}, {"commenti", 1}, {"parti di descrizioni", 1}}));
    // The channel's own description keeps all of its text; markup in it is lost.
    EXPECT_EQ(perdite(feed("<description>a<b/>c</description>")), (Attese{{"b", 1}}));
}

TEST(Perdite, LePiuFrequentiPerPrime) {
    const std::string documento = feed("<b/><c/><c/><a/><d/><d/><d/>");
    const auto trovate = esaminaFeed(std::as_bytes(std::span(documento))).perdite;
    EXPECT_EQ(trovate, (std::vector<Perdita>{{"d", 3}, {"c", 2}, {"b", 1}, {"a", 1}}));
}

TEST(Perdite, DiTroppiNomiDiversiSiTengonoIPrimi) {
    std::string dentro;
    for (int i = 0; i < 1001; ++i) {
        dentro += "<n" + std::to_string(i) + "/>";
    }
    const Attese trovate = perdite(feed(dentro + "<n3/>"));
    EXPECT_EQ(trovate.size(), 1000U);
    EXPECT_EQ(trovate.at("n3"), 2);
    EXPECT_FALSE(trovate.contains("n1000"));
}

TEST(Perdite, UnAltraRadiceAttornoARss) {
    EXPECT_EQ(perdite("<fuori><rss version='2.0'><channel><ttl/></channel></rss></fuori>"),
              (Attese{{"fuori", 1}, {"ttl", 1}}));
}

std::string inUtf16(std::u16string_view unita, bool altoPrima) {
    std::string byte;
    for (const char16_t u : unita) {
        const char alto = static_cast<char>(u >> 8U);
        const char basso = static_cast<char>(u & 0xFFU);
        byte += altoPrima ? std::string{alto, basso} : std::string{basso, alto};
    }
    return byte;
}

TEST(Perdite, InUtf16DiOgniOrdine) {
    const std::string testo = feed("<\xC3\xA8>\xE2\x82\xAC</\xC3\xA8>");
    const std::u16string unita =
        u"<?xml version=\"1.0\"?><rss version=\"2.0\"><channel><è>€\U0001F600</è>"
        u"</channel></rss>";
    for (const bool altoPrima : {false, true}) {
        for (const bool segno : {false, true}) {
            EXPECT_EQ(perdite(inUtf16(segno ? u"\uFEFF" + unita : unita, altoPrima)),
                      (Attese{{"\xC3\xA8", 1}}));
        }
    }
    EXPECT_EQ(perdite(testo), (Attese{{"\xC3\xA8", 1}}));
}

TEST(Perdite, InUtf16OvunqueCadanoLeLettereAccentate) {
    for (std::size_t prima = 0; prima < 80; ++prima) {
        for (const std::size_t fra : {0, 1, 40, 70}) {
            const std::u16string unita = u"<rss version='2.0'><channel><title>" +
                                         std::u16string(prima, u'a') + u"</title><è/><\u0080/><t>" +
                                         std::u16string(fra, u'b') + u"</t><€/><\U0001F600/>x";
            for (const bool altoPrima : {false, true}) {
                EXPECT_EQ(perdite(inUtf16(unita, altoPrima)), (Attese{{"\xC3\xA8", 1},
                                                                      {"\xC2\x80", 1},
                                                                      {"t", 1},
                                                                      {"\xE2\x82\xAC", 1},
                                                                      {"\xF0\x9F\x98\x80", 1}}))
                    << prima << ' ' << fra;
            }
        }
    }
}

TEST(Perdite, OltreUnLimiteIlDocumentoESmisurato) {
    const auto n = [](std::size_t quanti) { return static_cast<int>(quanti); };
    const auto attributi = [&](int quanti) {
        std::string testo = "<item><x";
        for (int i = 0; i < quanti; ++i) {
            testo += " a" + std::to_string(i) + "=''";
        }
        return feed(testo + "/></item>");
    };
    EXPECT_FALSE(smisurato(attributi(n(limiti::attributi))));
    EXPECT_TRUE(smisurato(attributi(n(limiti::attributi) + 1)));

    const auto figli = [&](int quanti) {
        return feed("<title>" + ripetuto("<b/>", quanti) + "</title>");
    };
    EXPECT_FALSE(smisurato(figli(n(limiti::figli))));
    EXPECT_TRUE(smisurato(figli(n(limiti::figli) + 1)));
    EXPECT_FALSE(smisurato(feed(ripetuto("<item/>", n(limiti::figli) + 2))));

    // "rss" and "channel" stand around it already.
    const auto profondo = [&](int quanti) {
        return feed(ripetuto("<a>", quanti) + ripetuto("</a>", quanti));
    };
    EXPECT_FALSE(smisurato(profondo(n(limiti::profondita) - 2)));
    EXPECT_TRUE(smisurato(profondo(n(limiti::profondita) - 1)));
}

TEST(Perdite, LeEntitaContanoPerQuantoSostituiscono) {
    const auto con = [](std::string_view dichiarazioni, std::string_view testo) {
        return smisurato("<!DOCTYPE rss [" + std::string(dichiarazioni) + "]>" +
                         feed("<title>" + std::string(testo) + "</title>"));
    };
    const std::string grande = "<!ENTITY a '" + std::string(100'000, 'x') + "'>";
    EXPECT_FALSE(con(grande, ripetuto("&a;", 100)));
    EXPECT_TRUE(con(grande, ripetuto("&a;", 101)));
    EXPECT_TRUE(con(grande + "<!ENTITY b '" + ripetuto("&a;", 11) + "'>", ripetuto("&b;", 10)));
    // In an attribute too.
    EXPECT_TRUE(smisurato("<!DOCTYPE rss [" + grande + "]>" +
                          feed("<item><x y='" + ripetuto("&a;", 101) + "'/></item>")));
    std::string bomba = "<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 50; ++i) {
        bomba += "<!ENTITY e" + std::to_string(i) + " \"" +
                 ripetuto("&e" + std::to_string(i - 1) + ";", 10) + "\">";
    }
    EXPECT_TRUE(con(bomba, "&e49;"));
    EXPECT_FALSE(con("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;"));
    EXPECT_FALSE(con("<!ENTITY % a 'x'><!ENTITY b SYSTEM 'c'>", "&b;&nbsp;&"));
}

TEST(Perdite, UnDocumentoRottoFinisceDoveSiRompe) {
    for (const auto& testo : {""s, "<"s, "<!"s, "<!--"s, "<!DOCTYPE ["s, "<![CDATA["s, "<a b=\"c>"s,
                              "</a></b>"s, "<a b=c d>"s, "<rss><channel><item>"s, "<?"s, "<?xml?>"s,
                              "<!DOCTYPE a ]["s, "<!DOCTYPE a [<!ENTITY]>"s,
                              "<!DOCTYPE a [<!-- ]>"s, "<!DOCTYPE a [<!ENTITY b 'c>]><x/>"s}) {
        EXPECT_FALSE(smisurato(testo)) << testo;
    }
    EXPECT_EQ(perdite("</a></b><rss version='2.0'><channel></x></y></z><ttl/>"),
              (Attese{{"ttl", 1}}));
}

} // namespace
