#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/testi.h"

#include <winsock2.h>

#include <windows.h>

#include <array>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

// A server of this machine that only waits to be called.
class Ascolto {
public:
    Ascolto() {
        WSADATA dati{};
        EXPECT_EQ(WSAStartup(MAKEWORD(2, 2), &dati), 0);
        presa_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        sockaddr_in qui{};
        qui.sin_family = AF_INET;
        qui.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(bind(presa_, indirizzo(qui), sizeof qui), 0);
        EXPECT_EQ(listen(presa_, 5), 0);
        int lunghezza = sizeof qui;
        EXPECT_EQ(getsockname(presa_, indirizzo(qui), &lunghezza), 0);
        porta_ = ntohs(qui.sin_port);
        u_long subito = 1;
        EXPECT_EQ(ioctlsocket(presa_, static_cast<long>(FIONBIO), &subito), 0);
    }
    Ascolto(const Ascolto&) = delete;
    Ascolto& operator=(const Ascolto&) = delete;
    ~Ascolto() {
        closesocket(presa_);
        WSACleanup();
    }

    [[nodiscard]] std::string url() const {
        return "http://127.0.0.1:" + std::to_string(porta_) + "/rss.dtd";
    }
    [[nodiscard]] bool chiamato() const {
        const SOCKET chi = accept(presa_, nullptr, nullptr);
        if (chi == INVALID_SOCKET) {
            return false;
        }
        closesocket(chi);
        return true;
    }
    // Calls itself: what `chiamato` must be able to see.
    void chiama() const {
        const SOCKET altra = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        sockaddr_in li{};
        li.sin_family = AF_INET;
        li.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        li.sin_port = htons(porta_);
        EXPECT_EQ(connect(altra, indirizzo(li), sizeof li), 0);
        closesocket(altra);
    }

private:
    static sockaddr* indirizzo(sockaddr_in& a) { return reinterpret_cast<sockaddr*>(&a); }

    SOCKET presa_ = INVALID_SOCKET;
    std::uint16_t porta_ = 0;
};

// Entities a to k, each ten times the one before.
std::string entitaAValanga() {
    std::string testo = "<!DOCTYPE rss [<!ENTITY a \"valanga\">";
    for (char c = 'b'; c <= 'k'; ++c) {
        testo += std::string("<!ENTITY ") + c + " \"";
        for (int i = 0; i < 10; ++i) {
            testo += std::string("&") + static_cast<char>(c - 1) + ';';
        }
        testo += "\">";
    }
    return testo + "]>";
}

} // namespace

TEST(LetturaFile, UnaDtdOUnEntitaEsternaNonTocconoAltro) {
    const CartellaProva cartella;
    const Ascolto ascolto;
    static_cast<void>(cartella.scrivi(L"altro.txt", "ESTERNO"));
    for (const std::string& intestazione :
         {"<!DOCTYPE rss PUBLIC \"-//x//DTD RSS 0.91//EN\" \"" + ascolto.url() + "\">",
          "<!DOCTYPE rss SYSTEM \"" + ascolto.url() + "\" [<!ENTITY e \"\">]>",
          "<!DOCTYPE rss [<!ENTITY e SYSTEM \"" + ascolto.url() + "\">]>",
          "<!DOCTYPE rss [<!ENTITY % p SYSTEM \"" + ascolto.url() + "\"> %p; <!ENTITY e \"\">]>",
          std::string("<!DOCTYPE rss [<!ENTITY e SYSTEM \"altro.txt\">]>"),
          std::string("<!DOCTYPE rss SYSTEM \"altro.txt\">")}) {
        const bool definita = intestazione.find("ENTITY e") != std::string::npos;
        FeedDiProva d;
        const auto e = d.provaLeggi(
            cartella.scrivi(L"a.xml", intestazione + "<rss><channel><title>x" +
                                          (definita ? "&e;" : "") + "</title></channel></rss>"));
        EXPECT_TRUE(e.numero == 0 || e.numero == 18343) << intestazione << e.numero;
        EXPECT_EQ(d.title, e.numero == 0 ? L"x" : L"") << intestazione;
        EXPECT_FALSE(ascolto.chiamato()) << intestazione;
    }
    ascolto.chiama();
    EXPECT_TRUE(ascolto.chiamato());
}

TEST(LetturaFile, UnEntitaInternaSiLeggeInteraTranneNellaDescrizioneDellElemento) {
    const CartellaProva cartella;
    const auto campo = [](const char* nome) {
        return "<" + std::string(nome) + ">ciao &e;!</" + nome + ">";
    };
    std::string canale = "<!DOCTYPE rss [<!ENTITY e \"mondo &amp;<b>&f;</b>\"><!ENTITY f 'luna'>"
                         "<!ENTITY vuota ''><!ENTITY altra SYSTEM 'altro.txt'>]><rss><channel>";
    for (const auto* const nome :
         {"title", "link", "description", "language", "copyright", "lastBuildDate", "webMaster"}) {
        canale += campo(nome);
    }
    canale += "<image>" + campo("title") + campo("url") + campo("link") +
              "<width>1&vuota;2</width></image><item>";
    for (const auto* const nome : {"title", "link", "description", "author", "pubDate", "guid"}) {
        canale += campo(nome);
    }
    canale += "</item><item><description>&e; e poi</description></item><item><description>&vuota;x"
              "</description></item></channel></rss>";
    FeedDiProva d;
    d.leggi(cartella.scrivi(L"a.xml", canale));
    const std::wstring intero = L"ciao mondo &luna!";
    for (const auto* const testo : d.canale()) {
        EXPECT_EQ(inUtf8(*testo), inUtf8(intero));
    }
    EXPECT_EQ(d.image.sTitle(), intero);
    EXPECT_EQ(d.image.sUrl(), intero);
    EXPECT_EQ(d.image.sLink(), intero);
    EXPECT_EQ(d.image.nWidth(), 12);
    using enum CampoElemento;
    for (const auto c : {Titolo, Link, Autore, Data, Guid}) {
        EXPECT_EQ(d.items(c, 0), intero);
    }
    // Its first child: the text before the reference; the reference.
    EXPECT_EQ(d.items(Descrizione, 0), L"ciao");
    EXPECT_EQ(d.items(Descrizione, 1), L"mondo &luna");
    EXPECT_EQ(d.items(Descrizione, 2), L"");
}

TEST(LetturaFile, UnRiferimentoSenzaSostitutoNonSiCarica) {
    const CartellaProva cartella;
    static_cast<void>(cartella.scrivi(L"altro.txt", "ESTERNO"));
    static_cast<void>(cartella.scrivi(L"rss.dtd", "<!ENTITY eacute '\xC3\xA9'>"));
    const std::string esterna = "<!DOCTYPE rss SYSTEM \"rss.dtd\" [<!ENTITY x SYSTEM \"altro.txt\">"
                                "<!ENTITY dentro \"a &x; b\"><!ENTITY nota \"n\">]>";
    const auto numero = [&](const std::string& intestazione, const std::string& canale) {
        FeedDiProva d;
        const auto e = d.provaLeggi(cartella.scrivi(L"a.xml", intestazione + "<rss><channel>" +
                                                                  canale + "</channel></rss>"));
        EXPECT_TRUE(e.numero == 0 || e.descrizione.ends_with(L"\\A.XML" + testi::diErrore(18343)));
        EXPECT_EQ(d.title, e.numero == 0 ? L"t" : L"");
        return e.numero;
    };
    const std::string titolo = "<title>t</title>";
    for (const std::string nome : {"eacute", "x", "dentro"}) {
        const std::string r = "caff&" + nome + "; nero";
        for (const std::string& dove :
             {"<link>" + r + "</link>", "<image><url>" + r + "</url></image>",
              "<item><title>" + r + "</title></item>",
              "<item><description>" + r + "</description></item>",
              "<item><description>&" + nome + ";</description></item>",
              "<altro><altro>" + r + "</altro></altro>", r}) {
            EXPECT_EQ(numero(esterna, titolo + dove), 18343) << nome << ' ' << dove;
        }
    }
    // What is no reference, and one that is known, stay what they were.
    EXPECT_EQ(numero(esterna, titolo + "<link>caff&#233; &amp; &nota;</link><!-- &eacute; -->"
                                       "<item><description><![CDATA[caff&eacute;]]></description>"
                                       "</item>"),
              0);
    EXPECT_EQ(numero("<!DOCTYPE rss PUBLIC \"-//Netscape Communications//DTD RSS 0.91//EN\" "
                     "\"http://my.netscape.com/publish/formats/rss-0.91.dtd\">",
                     titolo),
              0);
}

TEST(LetturaFile, EntitaSenzaFineNonSiCaricano) {
    const CartellaProva cartella;
    const ULONGLONG inizio = GetTickCount64();
    FeedDiProva d;
    for (const std::string& testo :
         {entitaAValanga() + "<rss><channel><title>&k;</title></channel></rss>",
          entitaAValanga() + "<rss><channel x='&k;'><title>x</title></channel></rss>",
          std::string("<!DOCTYPE rss [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]>"
                      "<rss><channel><title>&a;</title></channel></rss>")}) {
        EXPECT_EQ(d.provaLeggi(cartella.scrivi(L"a.xml", testo)).numero, 18343);
    }
    EXPECT_LT(GetTickCount64() - inizio, 10000U);
}

TEST(LetturaFile, IlNomeSiApreComeEScritto) {
    const CartellaProva cartella;
    const std::array nomi{L"a b.xml",     L"a%20b.xml", L"100%.xml",
                          L"a#b.xml",     L"a&b.xml",   L"l'è.xml",
                          L"città €.xml", L"日本.xml",  L"a+b;c=d,e@f!g~h`i^j{k}l[m](n)$.xml",
                          L"a%e8.xml",    L"%2e%2e.xml"};
    // All of them first, so that a wrong name would open a wrong file.
    for (const auto* const nome : nomi) {
        FeedDiProva d;
        d.title = nome;
        d.scrivi(cartella.file(nome));
        EXPECT_TRUE(std::filesystem::exists(cartella.file(nome))) << inUtf8(nome);
    }
    for (const auto* const nome : nomi) {
        FeedDiProva d;
        EXPECT_EQ(d.provaLeggi(cartella.file(nome)).numero, 0) << inUtf8(nome);
        EXPECT_EQ(inUtf8(d.title), inUtf8(nome));
    }
}

TEST(LetturaFile, PercorsiRelativiDiReteELunghi) {
    const CartellaProva cartella;
    FeedDiProva d;
    const auto percorso = cartella.scrivi(L"a b.xml", rssCon("<title>x</title>"));
    const auto prima = std::filesystem::current_path();
    std::filesystem::current_path(cartella.percorso());
    EXPECT_EQ(d.provaLeggi(L"a b.xml").numero, 0);
    EXPECT_EQ(d.title, L"x");
    std::filesystem::current_path(prima);
    EXPECT_EQ(d.provaLeggi(LR"(\\?\)" + percorso).numero, 0);
    EXPECT_EQ(d.title, L"x");
    EXPECT_EQ(d.provaLeggi(LR"(\\nessun-server\dati\a.xml)").numero, 18343);
}

TEST(LetturaFile, TrecentoCaratteriSiApronoOSiRifiutano) {
    const CartellaProva cartella;
    std::wstring percorso = cartella.percorso();
    while (percorso.size() < 240) {
        percorso += L'\\' + std::wstring(40, L'x');
        std::filesystem::create_directory(percorso);
    }
    percorso += L'\\';
    percorso += std::wstring(300 - percorso.size() - 4, L'y') + L".xml";
    ASSERT_EQ(percorso.size(), 300U);
    FeedDiProva d;
    d.title = L"x";
    const auto scritto = d.provaScrivi(percorso);
    FeedDiProva riletto;
    const auto letto = riletto.provaLeggi(percorso);
    EXPECT_TRUE(letto.numero == 0 || letto.numero == 18343) << letto.numero;
    if (letto.numero == 0) {
        EXPECT_EQ(scritto.numero, 0);
        EXPECT_EQ(riletto.title, L"x");
    } else {
        EXPECT_TRUE(letto.descrizione.ends_with(L".XML" + testi::diErrore(18343)));
    }
}

TEST(LetturaFile, CioCheNonEUnFileLeggibileNonSiCarica) {
    const CartellaProva cartella;
    FeedDiProva d;
    const auto numero = [&](const std::wstring& percorso) { return d.provaLeggi(percorso).numero; };
    EXPECT_EQ(numero(cartella.percorso()), 18343);
    EXPECT_EQ(numero(cartella.file(L"nessuno.xml")), 18343);
    EXPECT_EQ(numero(cartella.file(L"nessuna\\cartella.xml")), 18343);
    EXPECT_EQ(numero(L""), 18343);
    EXPECT_EQ(numero(L"Q:\\a.xml"), 18343);
    EXPECT_EQ(numero(cartella.file(L"*.xml")), 18343);
    const auto bloccato = cartella.scrivi(L"bloccato.xml", rssCon("<title>x</title>"));
    {
        const ManigliaFile esclusivo(CreateFileW(bloccato.c_str(), GENERIC_READ, 0, nullptr,
                                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(esclusivo);
        EXPECT_EQ(numero(bloccato), 18343);
    }
    EXPECT_EQ(numero(bloccato), 0);
}

// An address is not a path: nothing goes out for it.
TEST(LetturaFile, UnIndirizzoNonSiScarica) {
    const Ascolto ascolto;
    FeedDiProva d;
    EXPECT_EQ(d.provaLeggi(daUtf8(ascolto.url())).numero, 18343);
    EXPECT_FALSE(ascolto.chiamato());
}
