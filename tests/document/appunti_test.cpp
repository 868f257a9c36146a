#include "document/appunti.h"

#include "document/byteDiario.h"
#include "tests/aiuti/tabella_prova.h"

#include <cstdint>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

std::span<const std::byte> byteDi(std::string_view testo) {
    return std::as_bytes(std::span(testo));
}

ElementoCondiviso elemento() {
    std::wstring strano = L"è € \r\n\tfine ";
    // A pair, as Windows holds it.
    strano += {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    return creaElemento({L"Serata sulla Luna", L"https://e.example/luna?a=1&b=2", strano, L"",
                         L"Tue, 15 Nov 2005 10:00:00 +0100", L"il guid"});
}

ElementoCondiviso conTitoloELink(std::wstring_view titolo, std::wstring_view link) {
    return creaElemento({titolo, link, L"descrizione", L"autore", L"data", L"guid"});
}

// What the header says stands at one of its positions, up to another.
std::size_t posizione(std::string_view html, std::string_view nome) {
    const std::string voce = std::string(nome) + ':';
    const auto dove = html.find(voce);
    EXPECT_NE(dove, html.npos) << nome;
    return std::stoul(std::string(html.substr(dove + voce.size(), 10)));
}
std::string_view tra(std::string_view html, std::string_view da, std::string_view a) {
    const std::size_t inizio = posizione(html, da);
    const std::size_t fine = posizione(html, a);
    EXPECT_LE(inizio, fine);
    EXPECT_LE(fine, html.size());
    return html.substr(inizio, fine - inizio);
}

} // namespace

TEST(Appunti, UnElementoSiRileggeComEra) {
    for (const bool tagliato : {false, true}) {
        const auto letto = leggiAppunti(byteDi(byteAppunti({elemento(), tagliato})));
        ASSERT_TRUE(letto.has_value());
        EXPECT_EQ(*letto->elemento, *elemento());
        EXPECT_EQ(letto->tagliato, tagliato);
    }
    const auto vuoto = leggiAppunti(byteDi(byteAppunti({elementoVuoto(), false})));
    ASSERT_TRUE(vuoto.has_value());
    EXPECT_EQ(*vuoto->elemento, *elementoVuoto());
}

TEST(Appunti, CioCheSegueLElementoNonConta) {
    const auto letto = leggiAppunti(byteDi(byteAppunti({elemento(), true}) + std::string(5, '\0')));
    ASSERT_TRUE(letto.has_value());
    EXPECT_EQ(*letto->elemento, *elemento());
}

TEST(Appunti, ByteMancantiOCambiatiNonSonoUnElemento) {
    const std::string interi = byteAppunti({elemento(), false});
    for (std::size_t i = 0; i < interi.size(); ++i) {
        EXPECT_FALSE(leggiAppunti(byteDi(interi).first(i))) << i;
        for (const int bit : {0, 7}) {
            std::string rovinati = interi;
            rovinati[i] = static_cast<char>(rovinati[i] ^ (1 << bit));
            EXPECT_FALSE(leggiAppunti(byteDi(rovinati))) << i;
        }
    }
    EXPECT_FALSE(leggiAppunti({}));
}

TEST(Appunti, UnAltraFormaNonSiLegge) {
    const std::string marca = "OSTRELLE APPUNTI 1";
    ContenutoRecord uno;
    uno.numero(0);
    uno.elemento(*elemento());
    const auto appunti = [&](const std::string& davanti, TipoRecord tipo,
                             const ContenutoRecord& contenuto) {
        std::uint64_t catena = 0;
        return leggiAppunti(byteDi(davanti + record(tipo, contenuto, catena)));
    };
    EXPECT_TRUE(appunti(marca, TipoRecord::Appunti, uno));
    EXPECT_FALSE(appunti("OSTRELLE APPUNTI 2", TipoRecord::Appunti, uno));
    EXPECT_FALSE(appunti("OSTRELLE DIARIO 1", TipoRecord::Appunti, uno));
    EXPECT_FALSE(appunti(marca, TipoRecord::Elementi, uno));
    ContenutoRecord due = uno;
    due.numero(0);
    EXPECT_FALSE(appunti(marca, TipoRecord::Appunti, due)) << "more than an item";
    ContenutoRecord senza;
    senza.elemento(*elemento());
    EXPECT_FALSE(appunti(marca, TipoRecord::Appunti, senza)) << "no mark of a cut";
    ContenutoRecord mezzo;
    mezzo.numero(1);
    mezzo.testo(L"titolo");
    EXPECT_FALSE(appunti(marca, TipoRecord::Appunti, mezzo)) << "one text";
}

TEST(Appunti, ComeTestoSonoTitoloELinkUnoPerRiga) {
    EXPECT_EQ(testoAppunti(*elemento()), L"Serata sulla Luna\r\nhttps://e.example/luna?a=1&b=2");
    EXPECT_EQ(testoAppunti(*conTitoloELink(L" a ", L" b ")), L"a\r\nb");
    EXPECT_EQ(testoAppunti(*conTitoloELink(L"a", L" ")), L"a");
    EXPECT_EQ(testoAppunti(*conTitoloELink(L" ", L"b")), L"b");
    EXPECT_EQ(testoAppunti(*elementoVuoto()), L"");
}

TEST(Appunti, ComeHtmlIlTitoloEUnRimando) {
    const auto frammento = [](std::wstring_view titolo, std::wstring_view link) {
        const std::string html = htmlAppunti(*conTitoloELink(titolo, link));
        return std::string(tra(html, "StartFragment", "EndFragment"));
    };
    EXPECT_EQ(frammento(L" a ", L" https://e.example/ "), "<a href=\"https://e.example/\">a</a>");
    EXPECT_EQ(frammento(L"<b> & \"c\"", L"x?a=1&b=\"<>"),
              "<a href=\"x?a=1&amp;b=&quot;&lt;&gt;\">&lt;b&gt; &amp; &quot;c&quot;</a>");
    EXPECT_EQ(frammento(L"più €", L""), "pi\xC3\xB9 \xE2\x82\xAC");
    EXPECT_EQ(frammento(L"", L"b"), "<a href=\"b\">b</a>");
    EXPECT_EQ(frammento(L"", L""), "");
}

TEST(Appunti, LaTestataHtmlContaIByte) {
    for (const wchar_t* const titolo : {L"", L"a", L"più € è"}) {
        const std::string html = htmlAppunti(*conTitoloELink(titolo, L"https://e.example/è"));
        SCOPED_TRACE(html);
        EXPECT_TRUE(html.starts_with("Version:0.9\r\nStartHTML:0000000105\r\n"));
        EXPECT_EQ(posizione(html, "EndHTML"), html.size());
        const auto pagina = tra(html, "StartHTML", "EndHTML");
        EXPECT_TRUE(pagina.starts_with("<html>"));
        EXPECT_TRUE(pagina.ends_with("</html>"));
        EXPECT_TRUE(
            html.substr(0, posizione(html, "StartFragment")).ends_with("<!--StartFragment-->"));
        EXPECT_TRUE(html.substr(posizione(html, "EndFragment")).starts_with("<!--EndFragment-->"));
    }
}
