#include "document/caratteriXml.h"

#include "support/caratteri/codifica.h"
#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

namespace {

// The text as the CDATA section gets it.
std::wstring riferito(std::wstring_view testo) {
    std::wstring appoggio;
    return std::wstring(conRiferimenti(testo, appoggio));
}

std::wstring testoDi(char32_t c) {
    std::wstring testo;
    aggiungiCarattere(testo, c);
    return testo;
}

Sollevato errore(std::wstring_view testo, const NomeTesto& nome = {L"titolo", 3}) {
    return sollevatoDa([&] { return verificaCData(testo, nome, L"c:\\città.xml"), 0; });
}

// The same of a text that stands in an element, and before there is a file.
Sollevato erroreSenzaFile(std::wstring_view testo) {
    return sollevatoDa([&] { return verificaTesto(testo, {L"link"}, {}), 0; });
}

std::wstring ripetuto(std::wstring_view pezzo, std::size_t volte, std::wstring_view coda = L"") {
    std::wstring testo;
    testo.reserve(pezzo.size() * volte + coda.size());
    while (volte > 0) {
        testo += pezzo;
        --volte;
    }
    return testo.append(coda);
}

} // namespace

TEST(CaratteriXml, OgniPuntoDelCodice) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        const bool controllo = c < 0x20 && c != 9 && c != 10 && c != 13;
        const bool surrogato = c >= 0xD800 && c <= 0xDFFF;
        const bool vietato = controllo || surrogato || c == 0xFFFE || c == 0xFFFF;
        const auto trovato = primoVietato(L"a" + testoDi(c) + L"b");
        ASSERT_EQ(trovato, vietato ? std::optional(c) : std::nullopt) << std::uint32_t{c};
    }
}

TEST(CaratteriXml, ISurrogatiInCoppiaPassanoDaSoliNo) {
    const auto alto = static_cast<wchar_t>(0xD83D);
    const auto basso = static_cast<wchar_t>(0xDE00);
    EXPECT_FALSE(primoVietato(std::wstring{alto, basso}));
    EXPECT_EQ(primoVietato(std::wstring{L'a', alto}), char32_t{0xD83D});
    EXPECT_EQ(primoVietato(std::wstring{basso, alto}), char32_t{0xDE00});
    EXPECT_EQ(primoVietato(std::wstring{alto, alto, basso}), char32_t{0xD83D});
}

TEST(CaratteriXml, OvunqueStiaInUnTestoLungo) {
    const std::wstring coppia{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    for (std::size_t prima = 0; prima < 100; ++prima) {
        for (const std::size_t dopo : {0U, 1U, 70U}) {
            const auto vietatoCon = [=](std::wstring_view mezzo) {
                std::wstring testo(prima, L'x');
                testo.append(mezzo).append(dopo, L'y');
                return primoVietato(testo);
            };
            EXPECT_EQ(vietatoCon(L"\v"), U'\v') << prima;
            EXPECT_FALSE(vietatoCon(L"\n")) << prima;
            EXPECT_FALSE(vietatoCon(coppia)) << prima;
            EXPECT_EQ(vietatoCon(coppia.substr(0, 1)), char32_t{0xD83D}) << prima;
            EXPECT_EQ(vietatoCon(coppia.substr(1)), char32_t{0xDE00}) << prima;
        }
    }
}

TEST(CaratteriXml, IlMessaggioNominaFileCampoECarattere) {
    auto e = errore(L"a\vb", {L"descrizione", 3});
    EXPECT_EQ(e.numero, 5);
    EXPECT_EQ(e.descrizione,
              L"C:\\CITTÀ.XML: carattere non ammesso in descrizione dell'elemento 3 (U+000B).");
    EXPECT_EQ(errore(std::wstring(1, L'\0'), {L"titolo del canale"}).descrizione,
              L"C:\\CITTÀ.XML: carattere non ammesso in titolo del canale (U+0000).");
    EXPECT_EQ(errore(L"\xFFFE").descrizione,
              L"C:\\CITTÀ.XML: carattere non ammesso in titolo dell'elemento 3 (U+FFFE).");
}

TEST(CaratteriXml, LaFineDelCDataSoloNelCData) {
    const auto e = errore(L"a]]>b", {L"descrizione", 3});
    EXPECT_EQ(e.numero, 5);
    EXPECT_EQ(e.descrizione,
              L"C:\\CITTÀ.XML: sequenza ]]> non ammessa in descrizione dell'elemento 3.");
    EXPECT_EQ(errore(L"]] > ]>").numero, 0);
    EXPECT_EQ(sollevatoDa([] { return verificaTesto(L"]]>", {L"titolo"}, L""), 0; }).numero, 0);
    // Whichever stands first, the character wins.
    EXPECT_NE(errore(L"]]>\v").descrizione.find(L"carattere"), std::wstring::npos);
}

TEST(CaratteriXml, SoloCioCheMancaAlLatin1DiventaRiferimento) {
    EXPECT_EQ(riferito(L"<p>€ ’“”–… àÿ&amp;\t\r\n</p>"),
              L"<p>&#8364; &#8217;&#8220;&#8221;&#8211;&#8230; àÿ&amp;\t\r\n</p>");
    EXPECT_EQ(riferito(testoDi(0x1F600) + testoDi(0xFF) + testoDi(0x100) + testoDi(0x85)),
              L"&#128512;" + testoDi(0xFF) + L"&#256;" + testoDi(0x85));
    EXPECT_EQ(riferito(L""), L"");
}

TEST(CaratteriXml, OgniRiferimentoScrittoTornaIlSuoCarattere) {
    std::wstring appoggio;
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        const std::wstring riferimento = L"&#" + std::to_wstring(std::uint32_t{c}) + L';';
        const bool nostro = c > 0xFF && !primoVietato(testoDi(c));
        ASSERT_EQ(conCaratteri(riferimento, appoggio), nostro ? testoDi(c) : riferimento)
            << std::uint32_t{c};
    }
}

TEST(CaratteriXml, SenzaFileIlMessaggioNonLoNomina) {
    EXPECT_EQ(erroreSenzaFile(L"\v").descrizione, L"Carattere non ammesso in link (U+000B).");
    EXPECT_EQ(
        sollevatoDa([] { return verificaCData(L"]]>", {L"descrizione"}, {}), 0; }).descrizione,
        L"Sequenza ]]> non ammessa in descrizione.");
}

TEST(CaratteriXml, IlRifiutoSaDiCheElementoE) {
    const auto elemento = [](const NomeTesto& nome) {
        try {
            verificaTesto(L"\v", nome, L"a.xml");
        } catch (const TestoRifiutato& e) {
            return e.elemento();
        }
        return -1;
    };
    EXPECT_EQ(elemento({L"titolo", 3}), 3);
    EXPECT_EQ(elemento({L"titolo del canale"}), 0);
}

TEST(CaratteriXml, DieciMilioniDiByteSonoTroppi) {
    const std::wstring limite = ripetuto(L"x", 9'999'999);
    EXPECT_EQ(erroreSenzaFile(limite).numero, 0);
    const auto e = erroreSenzaFile(limite + L'x');
    EXPECT_EQ(e.numero, 5);
    EXPECT_EQ(e.descrizione, L"Testo troppo lungo in link.");
    EXPECT_EQ(errore(limite).numero, 0);
    EXPECT_EQ(errore(limite + L'x').descrizione,
              L"C:\\CITTÀ.XML: testo troppo lungo in titolo dell'elemento 3.");
}

// As many bytes as UTF-8 has; a CDATA section counts its references.
TEST(CaratteriXml, IlLimiteContaIByte) {
    std::wstring testo = ripetuto(testoDi(0x1F600), 2'499'999, L"xxx");
    EXPECT_EQ(erroreSenzaFile(testo).numero, 0);
    EXPECT_EQ(erroreSenzaFile(testo += L'x').numero, 5);
    testo = ripetuto(L"€", 3'333'333);
    EXPECT_EQ(erroreSenzaFile(testo).numero, 0);
    EXPECT_EQ(erroreSenzaFile(testo += L'x').numero, 5);
    testo = ripetuto(L"&#8364;", 1'000'000).append(ripetuto(L"€", 428'571, L"xx"));
    EXPECT_EQ(errore(testo).numero, 0);
    EXPECT_EQ(errore(testo += L'x').numero, 5);
    // The same without what it lacks: the bytes are those that are written.
    testo = ripetuto(L"è", 4'999'999, L"x");
    EXPECT_EQ(errore(testo).numero, 0);
    EXPECT_EQ(errore(testo += L'x').numero, 5);
}
