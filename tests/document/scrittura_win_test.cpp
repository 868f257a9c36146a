#include "document/clsItemRss.h"
#include "document/salvataggio_win.h"
#include "support/programma/prodotto.h"
#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"
#include "support/windows/xml_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/tabella_prova.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <array>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;

// A tree in one line: elements by name, texts as they are, CDATA in brackets.
std::string albero(const NodoXml& nodo) {
    const std::string nome = inUtf8(nodo.nome().vista());
    if (nome == "#text") {
        return inUtf8(nodo.testo().vista());
    }
    if (nome == "#cdata-section") {
        return inUtf8(L"[" + nodo.testo().testo() + L"]");
    }
    std::string testo = nome + "(";
    for (NodoXml figlio = nodo.primoFiglio(); figlio; figlio = figlio.fratello()) {
        testo += albero(figlio);
    }
    return testo + ")";
}

// What the bare DOM answers to a save there, as the number that it is known under.
std::int32_t erroreDelDom(const std::wstring& percorso) {
    CLSID classe{};
    EXPECT_EQ(CLSIDFromProgID(L"MSXML2.DomDocument", &classe), S_OK);
    void* oggetto = nullptr;
    EXPECT_EQ(
        CoCreateInstance(classe, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument, &oggetto),
        S_OK);
    const ComPtr<IXMLDOMDocument> documento(static_cast<IXMLDOMDocument*>(oggetto));
    const Variante destinazione(percorso);
    return erroreHresult(documento->save(destinazione.get())).numero();
}

class Scrittura : public testing::Test {
protected:
    // Writes the document and gives the tree of its `rss`.
    std::string scritto() {
        d.scrivi(percorso);
        const DocumentoXml xml;
        EXPECT_TRUE(xml.carica(ContenutoFile(percorso)));
        const auto radici = xml.elementi(L"rss");
        EXPECT_EQ(radici.size(), 1U);
        return radici.empty() ? "" : albero(radici.front());
    }
    // What the DOM makes of the instruction alone, up to its end.
    [[nodiscard]] std::string istruzioneNuda() const {
        const DocumentoXml xml;
        xml.aggiungi(xml.creaIstruzione(L"xml", L" version=\"1.0\" encoding=\"ISO-8859-1\" "));
        xml.aggiungi(xml.creaElemento(L"rss"));
        const std::wstring file = cartella.file(L"istruzione.xml");
        xml.salva(file);
        const std::string testo = leggiTutto(file);
        return testo.substr(0, testo.find("?>"));
    }
    // An existing file that a failure must leave as it is.
    void attendiRifiuto(const wchar_t* coda) {
        const auto esistente = cartella.scrivi(L"a.xml", "prima");
        const auto e = d.provaScrivi(esistente);
        EXPECT_EQ(e.numero, 5);
        std::wstring su = esistente;
        CharUpperBuffW(su.data(), static_cast<DWORD>(su.size()));
        EXPECT_EQ(inUtf8(e.descrizione), inUtf8(su + coda));
        EXPECT_EQ(leggiTutto(esistente), "prima");
    }

    CartellaProva cartella;
    std::wstring percorso = cartella.file(L"a.xml");
    FeedDiProva d;
};

} // namespace

TEST_F(Scrittura, LAlberoInteroNellOrdine) {
    d.title = L"T";
    d.link = L"L";
    d.description = L"D";
    d.language = L"it";
    d.copyright = L"C";
    d.lastBuildDate = L"B";
    d.webMaster = L"W";
    d.image.sTitle(L"IT");
    d.image.sUrl(L"IU");
    d.image.sLink(L"IL");
    d.image.nWidth(10);
    d.image.nHeight(-20);
    dimensiona(d.items, 2);
    for (int e = 0; e < 2; ++e) {
        for (int c = 0; c < numeroCampi; ++c) {
            metti(d.items, static_cast<CampoElemento>(c), e, std::to_wstring(e * 10 + c));
        }
    }
    EXPECT_EQ(scritto(),
              "rss(channel(title(T)link(L)description(D)language(it)copyright(C)lastBuildDate(B)"
              "webMaster(W)image(title(IT)url(IU)link(IL)width(10)height(-20))"
              "item(title(0)link(1)description([2])author(3)pubDate(4)guid(5))"
              "item(title(10)link(11)description([12])author(13)pubDate(14)guid(15))))");
}

TEST_F(Scrittura, DichiarazioneCommentoEVersione) {
    d.scrivi(percorso);
    const std::string testo = leggiTutto(percorso);
    const auto dichiarazione = testo.find("version=\"1.0\" encoding=\"ISO-8859-1\"");
    const auto commento = testo.find(
        "<!--" + inUtf8(L"Feed RSS creato con Ostrelle" + std::wstring(prodotto::creditoFeed)) +
        "-->");
    const auto rss = testo.find("<rss version=\"2.0\">");
    EXPECT_TRUE(testo.starts_with("<?xml"));
    // The instruction's data has its blanks; how they are written is the serialiser's.
    EXPECT_EQ(testo.substr(0, testo.find("?>")), istruzioneNuda());
    EXPECT_LT(dichiarazione, commento);
    EXPECT_LT(commento, rss);
    EXPECT_NE(rss, std::string::npos);
}

TEST_F(Scrittura, SoloLaRadiceHaUnAttributo) {
    d.image.Modificato(true);
    metti(d.items, Guid, 0, L"https://e.example/1");
    d.scrivi(percorso);
    std::string testo = leggiTutto(percorso);
    EXPECT_NE(testo.find("<guid>https://e.example/1</guid>"), std::string::npos);
    testo.erase(0, testo.find("<channel>"));
    EXPECT_EQ(testo.find('='), std::string::npos);
    EXPECT_EQ(testo.find(' '), std::string::npos);
}

TEST_F(Scrittura, UnImmagineSegnataModificataSiScriveAncheVuota) {
    d.image.Modificato(true);
    EXPECT_NE(scritto().find("image(title()url()link()width(0)height(0))"), std::string::npos);
    d.image.Modificato(false);
    EXPECT_EQ(scritto().find("image"), std::string::npos);
}

TEST_F(Scrittura, VuotoScriveTuttiGliElementiSenzaImmagine) {
    EXPECT_EQ(scritto(), "rss(channel(title()link()description()language()copyright()"
                         "lastBuildDate()webMaster()"
                         "item(title()link()description([])author()pubDate()guid())))");
    EXPECT_NE(leggiTutto(percorso).find("<description><![CDATA[]]></description>"),
              std::string::npos);
}

TEST_F(Scrittura, ImmagineToccataSiScriveConGliZeri) {
    d.image.sTitle(L"x");
    d.image.sTitle(L"");
    EXPECT_NE(scritto().find("image(title()url()link()width(0)height(0))"), std::string::npos);
}

TEST_F(Scrittura, ImmagineLettaVuotaNonSiRiscrive) {
    d.leggi(cartella.scrivi(
        L"b.xml", rssCon("<image><title/><url/><link/><width>0</width><height/></image>")));
    EXPECT_EQ(scritto().find("image"), std::string::npos);
    d.leggi(cartella.scrivi(L"b.xml", rssCon("<image><width>1</width></image>")));
    EXPECT_NE(scritto().find("image(title()url()link()width(1)height(0))"), std::string::npos);
}

TEST_F(Scrittura, SoloLaDescrizioneDellElementoStaInCData) {
    d.description = L"a < b & c ]]>";
    metti(d.items, Descrizione, 0, L"a < b & c");
    metti(d.items, Titolo, 0, L"<t>");
    d.scrivi(percorso);
    const std::string testo = leggiTutto(percorso);
    EXPECT_NE(testo.find("<description>a &lt; b &amp; c ]]&gt;</description>"), std::string::npos);
    EXPECT_NE(testo.find("<description><![CDATA[a < b & c]]></description>"), std::string::npos);
    EXPECT_NE(testo.find("<title>&lt;t&gt;</title>"), std::string::npos);
}

TEST_F(Scrittura, CioCheMancaAlLatin1) {
    d.title = L"è €";
    metti(d.items, Descrizione, 0, L"è € “–”");
    d.scrivi(percorso);
    const std::string testo = leggiTutto(percorso);
    EXPECT_NE(testo.find("<title>\xE8 &#8364;</title>"), std::string::npos);
    EXPECT_NE(testo.find("<![CDATA[\xE8 &#8364; &#8220;&#8211;&#8221;]]>"), std::string::npos);
    FeedDiProva riletto;
    riletto.leggi(percorso);
    EXPECT_EQ(riletto.title, L"è €");
    EXPECT_EQ(riletto.items(Descrizione, 0), L"è € “–”");
}

TEST_F(Scrittura, UnCarattereInammissibileSiRifiutaPrimaDelFile) {
    dimensiona(d.items, 3);
    metti(d.items, Descrizione, 2, L"a\vb");
    attendiRifiuto(L": carattere non ammesso in descrizione dell'elemento 3 (U+000B).");
    metti(d.items, Descrizione, 2, L"a]]>b");
    attendiRifiuto(L": sequenza ]]> non ammessa in descrizione dell'elemento 3.");
    metti(d.items, Titolo, 1, std::wstring(1, static_cast<wchar_t>(0xD800)));
    attendiRifiuto(L": carattere non ammesso in titolo dell'elemento 2 (U+D800).");
    d.image.sLink(L"\xFFFE");
    attendiRifiuto(L": carattere non ammesso in link dell'immagine (U+FFFE).");
    d.webMaster = std::wstring(1, L'\0');
    attendiRifiuto(L": carattere non ammesso in webmaster del canale (U+0000).");
    // The earlier field is the one named.
    d.title = L"\x1F";
    attendiRifiuto(L": carattere non ammesso in titolo del canale (U+001F).");
}

TEST_F(Scrittura, OgniCampoSiControlla) {
    const auto rifiutato = [&](std::wstring& campo) {
        campo = L"\x01";
        const bool si = d.provaScrivi(percorso).numero == 5;
        campo.clear();
        return si && d.provaScrivi(percorso).numero == 0;
    };
    for (auto* const campo : d.canale()) {
        EXPECT_TRUE(rifiutato(*campo));
    }
    for (int c = 0; c < numeroCampi; ++c) {
        metti(d.items, static_cast<CampoElemento>(c), 0, L"\x01");
        EXPECT_EQ(d.provaScrivi(percorso).numero, 5) << c;
        metti(d.items, static_cast<CampoElemento>(c), 0, L"");
        EXPECT_EQ(d.provaScrivi(percorso).numero, 0) << c;
    }
    const auto conImmagine = [&](auto assegna) {
        d.image = clsImgRss();
        assegna(d.image);
        const bool si = d.provaScrivi(percorso).numero == 5;
        // An image that is not written is not looked at.
        d.image.Modificato(false);
        return si && d.provaScrivi(percorso).numero == 0;
    };
    EXPECT_TRUE(conImmagine([](clsImgRss& i) { i.sTitle(L"\x01"); }));
    EXPECT_TRUE(conImmagine([](clsImgRss& i) { i.sUrl(L"\x01"); }));
    EXPECT_TRUE(conImmagine([](clsImgRss& i) { i.sLink(L"\x01"); }));
}

TEST_F(Scrittura, IRecordCostruisconoIlLoroElementoStaccato) {
    const DocumentoXml xml;
    clsItemRss item;
    item.sTitle(L"t");
    item.sDescription(L"<€>");
    const ElementoXml nodo = item.getNodoItem(xml);
    EXPECT_EQ(albero(nodo), "item(title(t)link()description([<&#8364;>])author()pubDate()guid())");
    EXPECT_FALSE(nodo.fratello());
    EXPECT_TRUE(xml.elementi(L"item").empty());
    clsImgRss image;
    image.nWidth(7);
    EXPECT_EQ(albero(image.getNodoImg(xml)), "image(title()url()link()width(7)height(0))");
    EXPECT_TRUE(xml.elementi(L"image").empty());
}

TEST_F(Scrittura, UnFileDiSolaLetturaResta) {
    const auto esistente = cartella.scrivi(L"a.xml", "prima");
    ASSERT_TRUE(SetFileAttributesW(esistente.c_str(), FILE_ATTRIBUTE_READONLY));
    const auto e = d.provaScrivi(esistente);
    EXPECT_EQ(e.numero, 75);
    EXPECT_EQ(e.descrizione, testi::diErrore(75));
    EXPECT_EQ(leggiTutto(esistente), "prima");
}

TEST_F(Scrittura, UnFileApertoDaAltriResta) {
    const auto esistente = cartella.scrivi(L"a.xml", "prima");
    {
        const ManigliaFile aperto(CreateFileW(esistente.c_str(), GENERIC_READ, FILE_SHARE_READ,
                                              nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                                              nullptr));
        ASSERT_TRUE(aperto);
        EXPECT_EQ(d.provaScrivi(esistente).numero, 70);
    }
    EXPECT_EQ(leggiTutto(esistente), "prima");
}

// The file is deleted before the save, so a save that fails leaves none: whoever still holds it
// open, but lets it go, keeps its name from being used again.
TEST_F(Scrittura, UnSalvataggioFallitoDopoLaCancellazioneNonLasciaIlFile) {
    const auto esistente = cartella.scrivi(L"a.xml", "prima");
    {
        const ManigliaFile aperto(CreateFileW(
            esistente.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
            nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(aperto);
        // The DOM's own error, as it gives it.
        EXPECT_EQ(d.provaScrivi(esistente).numero, erroreDelDom(esistente));
    }
    EXPECT_FALSE(std::filesystem::exists(esistente));
    EXPECT_EQ(d.provaScrivi(esistente).numero, 0);
}

TEST_F(Scrittura, DoveNonSiPuoScrivereDicePerche) {
    const auto numero = [&](const std::wstring& dove) {
        const auto e = d.provaScrivi(dove);
        EXPECT_EQ(e.descrizione, testoErrore(e.numero)) << inUtf8(dove);
        return e.numero;
    };
    const auto mancante = [](std::int32_t n) { return n == 76 || n == 53; };
    EXPECT_EQ(numero(cartella.file(L"nessuna\\a.xml")), 76);
    EXPECT_EQ(numero(cartella.file(L"a?b")), 52);
    EXPECT_EQ(numero(cartella.percorso()), 75);
    // What the system says of these differs.
    EXPECT_PRED1(mancante, numero(L"Q:\\a.xml"));
    EXPECT_PRED1(mancante, numero(cartella.file(std::wstring(300, L'n'))));
    EXPECT_PRED1(mancante, numero(L""));
    if (const auto disco = discoDiSolaLettura()) {
        const auto protetto = [](std::int32_t n) { return n == 70 || n == 75; };
        EXPECT_PRED1(protetto, numero(*disco + L"\\nuovo.xml"));
    }
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST_F(Scrittura, CioCheIlDomSollevaRestaComE) {
    const std::wstring manca = cartella.file(L"nessuna\\a.xml");
    const auto e = sollevatoDa([&] { return DocumentoXml().salva(manca), 0; });
    EXPECT_LT(e.numero, 0);
    EXPECT_EQ(e.numero, erroreDelDom(manca));
    EXPECT_FALSE(e.descrizione.empty());
}

TEST_F(Scrittura, SovrascriveUnFilePiuLungo) {
    static_cast<void>(cartella.scrivi(L"a.xml", std::string(100000, 'x')));
    d.title = L"nuovo";
    EXPECT_NE(scritto().find("title(nuovo)"), std::string::npos);
    EXPECT_LT(std::filesystem::file_size(percorso), 10000U);
}

TEST_F(Scrittura, UnFileTroncoEDiscoPieno) {
    const auto numero = [&](std::string_view contenuto) {
        const auto file = cartella.scrivi(L"b.xml", contenuto);
        return sollevatoDa([&] {
                   verificaIntero(file);
                   return true;
               })
            .numero;
    };
    EXPECT_EQ(numero("<rss></rss>"), 0);
    EXPECT_EQ(numero("<rss></rss>\r\n\r\n"), 0);
    EXPECT_EQ(numero(std::string(100000, 'x') + "</rss>\n"), 0);
    EXPECT_EQ(numero(""), 61);
    EXPECT_EQ(numero("<rss></rss"), 61);
    EXPECT_EQ(numero("<rss></rss><!--"), 61);
    EXPECT_EQ(numero("</rss>" + std::string(100, ' ') + "x"), 61);
    EXPECT_EQ(sollevatoDa([&] {
                  verificaIntero(cartella.file(L"nessuno.xml"));
                  return true;
              }).numero,
              53);
}

// The small volume is made by the test script, where it may mount one.
TEST_F(Scrittura, SuUnDiscoPienoErrore61) {
    const wchar_t* const disco = _wgetenv(L"OSTRELLE_DISCO_PIENO");
    if (disco == nullptr) {
        GTEST_SKIP() << "OSTRELLE_DISCO_PIENO is not set";
    }
    const std::wstring file = disco + std::wstring(L"\\pieno.xml");
    d.description = std::wstring(1000000, L'x');
    const auto e = d.provaScrivi(file);
    DeleteFileW(file.c_str());
    EXPECT_EQ(e.numero, 61);
    EXPECT_EQ(e.descrizione, testi::diErrore(61));
    // With room it is no error.
    d.description = L"x";
    EXPECT_EQ(d.provaScrivi(file).numero, 0);
    DeleteFileW(file.c_str());
}

TEST(ParserXml, SiTrova) {
    EXPECT_TRUE(ParserXmlPresente());
}

// A thread that has not entered COM can create nothing.
TEST(ParserXml, SeMancaLErroreE429) {
    bool presente = true;
    Sollevato nuovo;
    Sollevato lettura;
    Sollevato scrittura;
    const CartellaProva cartella;
    const auto esistente = cartella.scrivi(L"a.xml", rssCon(""));
    std::thread([&] {
        presente = ParserXmlPresente();
        nuovo = sollevatoDa([] { return DocumentoXml(); });
        FeedDiProva d;
        lettura = d.provaLeggi(esistente);
        scrittura = d.provaScrivi(esistente);
    }).join();
    EXPECT_FALSE(presente);
    for (const auto& e : {nuovo, lettura, scrittura}) {
        EXPECT_EQ(e.numero, 429);
        EXPECT_EQ(e.descrizione, testi::diErrore(429));
    }
    EXPECT_EQ(leggiTutto(esistente), rssCon(""));
}

// A listing does not show it, so the save takes the path for a free one.
TEST_F(Scrittura, UnSalvataggioFallitoLasciaIlFileNascostoCheCEra) {
    metti(d.items, Titolo, 0, L"a");
    percorso = cartella.scrivi(L"nascosto.xml", "del suo padrone");
    SetFileAttributesW(percorso.c_str(), FILE_ATTRIBUTE_HIDDEN);
    {
        // Another program reads it, and would let it be deleted.
        const ManigliaFile altrui(CreateFileW(percorso.c_str(), GENERIC_READ,
                                              FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                              OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(altrui);
        EXPECT_NE(d.provaScrivi(percorso).numero, 0);
    }
    EXPECT_EQ(leggiTutto(percorso), "del suo padrone");
}
