#include "document/caratteriXml.h"
#include "support/caratteri/codifica.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/tabella_prova.h"

#include <array>
#include <cstdio>
#include <functional>
#include <random>

#include <gtest/gtest.h>

namespace {

using enum CampoElemento;

// A field of a document of two items.
struct Campo {
    const char* nome;
    std::function<std::wstring(FeedDiProva&)> leggi;
    std::function<void(FeedDiProva&, std::wstring)> assegna;
    bool cdata = false;
};

Campo delCanale(const char* nome, std::wstring Canale::*campo) {
    return {nome, [campo](FeedDiProva& d) { return d.*campo; },
            [campo](FeedDiProva& d, std::wstring testo) { d.*campo = std::move(testo); }};
}

Campo dellElemento(const char* nome, CampoElemento campo, int elemento) {
    return {
        nome, [=](FeedDiProva& d) { return std::wstring(d.items(campo, elemento)); },
        [=](FeedDiProva& d, const std::wstring& testo) { metti(d.items, campo, elemento, testo); },
        campo == Descrizione};
}

const std::array<Campo, 6>& campi() {
    static const std::array<Campo, 6> tutti{
        delCanale("title", &Canale::title),
        delCanale("webMaster", &Canale::webMaster),
        Campo{"image", [](FeedDiProva& d) { return d.image.sTitle(); },
              [](FeedDiProva& d, std::wstring testo) { d.image.sTitle(std::move(testo)); }},
        dellElemento("title of 0", Titolo, 0),
        dellElemento("description of 0", Descrizione, 0),
        dellElemento("guid of 1", Guid, 1),
    };
    return tutti;
}

// A text of that many bytes as the file counts them, of pieces drawn from a few.
std::wstring testoDi(std::size_t byte, bool cdata, std::mt19937& caso) {
    static constexpr std::array<std::wstring_view, 7> pezzi{
        L"x", L"parola ", L"è", L"€", L"\xD83D\xDE00", L"& <b>]", L"riga\r\n"};
    // One piece alone shows most: long runs of it.
    const std::wstring_view solo = pezzi[caso() % pezzi.size()];
    const bool misto = caso() % 2 == 0;
    std::wstring testo;
    std::wstring appoggio;
    std::size_t scritti = 0;
    for (;;) {
        std::wstring pezzo;
        const std::wstring_view uno = misto ? pezzi[caso() % pezzi.size()] : solo;
        for (int i = 0; i < 1000; ++i) {
            pezzo += uno;
        }
        const std::size_t quanti = comeUtf8(cdata ? conRiferimenti(pezzo, appoggio) : pezzo).size();
        if (scritti + quanti >= byte) {
            return testo.append(byte - scritti, L'x');
        }
        scritti += quanti;
        testo += pezzo;
    }
}

class LimiteDeiTesti : public testing::Test {
protected:
    LimiteDeiTesti() { dimensiona(d.items, 2); }

    CartellaProva cartella;
    std::wstring percorso = cartella.file(L"a.xml");
    FeedDiProva d;
};

} // namespace

// What is saved opens again, whichever text is the long one and whatever else the file holds.
TEST_F(LimiteDeiTesti, IlPiuLungoCheSiSalvaSiRiapre) {
    constexpr unsigned seme = 20055;
    std::mt19937 caso(seme);
    for (const Campo& campo : campi()) {
        SCOPED_TRACE(testing::Message() << "seed " << seme << ", " << campo.nome);
        d = FeedDiProva();
        dimensiona(d.items, 2);
        // Half of the times another long text comes first or last.
        const Campo& altro = campi()[caso() % campi().size()];
        const std::size_t quanti = caso() % 3'000'000;
        altro.assegna(d, std::wstring(caso() % 2 == 0 ? 0 : quanti, L'y'));
        const std::wstring testo = testoDi(byteTroppi - 1, campo.cdata, caso);
        campo.assegna(d, testo);
        ASSERT_EQ(d.provaScrivi(percorso).numero, 0);
        FeedDiProva letto;
        ASSERT_EQ(letto.provaLeggi(percorso).numero, 0);
        std::wstring appoggio;
        const std::wstring riletto = campo.leggi(letto);
        // A description may have come back with its references.
        EXPECT_TRUE(riletto == testo || riletto == conRiferimenti(testo, appoggio));

        const std::string prima = leggiTutto(percorso);
        campo.assegna(d, testo + L'x');
        const auto e = d.provaScrivi(percorso);
        EXPECT_EQ(e.numero, 5);
        EXPECT_NE(e.descrizione.find(L": testo troppo lungo in "), std::wstring::npos);
        EXPECT_TRUE(leggiTutto(percorso) == prima);
    }
    std::printf("seed %u\n", seme);
}

// Larger than ten million bytes, a long text right before its end, in every coding.
TEST_F(LimiteDeiTesti, UnFileGrandeColTestoLungoInFondoSiApre) {
    const std::string lungo(5000, 'x');
    for (const std::string codifica : {"UTF-8", "ISO-8859-1", "UTF-16", "UTF-16BE"}) {
        SCOPED_TRACE(codifica);
        std::string file =
            "<?xml version=\"1.0\" encoding=\"" + codifica + "\"?><rss version=\"2.0\"><channel>";
        file += "<description>" + std::string(8'000'000, 'd') + "</description>" + "<title>" +
                std::string(3'000'000, 'y') + "</title><item><title>t</title><author>" + lungo +
                "</author></item></channel></rss>";
        if (codifica.starts_with("UTF-16")) {
            const bool altoPrima = codifica.ends_with("BE");
            std::string largo = altoPrima ? "\xFE\xFF" : "\xFF\xFE";
            for (const char c : file) {
                largo.append(altoPrima ? 1 : 0, '\0').append(1, c).append(altoPrima ? 0 : 1, '\0');
            }
            file = largo;
        }
        const auto e = d.provaLeggi(cartella.scrivi(L"grande.xml", file));
        EXPECT_EQ(e.numero, 0);
        EXPECT_EQ(inUtf8(d.items(Autore, 0)), lungo);
    }
}
