#include "document/caratteriXml.h"
#include "support/testi/testo.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedACaso_win.h"
#include "tests/aiuti/giri.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <stdexcept>

#include <gtest/gtest.h>

namespace {

// What is written reads back equal, but for what the DOM and the format do to some texts.

constexpr std::wstring_view spaziXml = L" \t\r\n";

// An element's text: white space at its ends goes.
std::wstring rifilatoDalDom(std::wstring_view testo) {
    const auto inizio = testo.find_first_not_of(spaziXml);
    if (inizio == std::wstring_view::npos) {
        return {};
    }
    return std::wstring(testo.substr(inizio, testo.find_last_not_of(spaziXml) - inizio + 1));
}

std::wstring attesoElemento(std::wstring_view testo) {
    return aCapoCrLf(rifilatoDalDom(testo));
}

// A CDATA section: a lone CR becomes a line break, a reference as the writer would write it becomes
// its character.
std::wstring attesoCData(std::wstring_view testo) {
    const std::wstring lf = sostituisci(sostituisci(testo, L"\r\n", L"\n"), L"\r", L"\n");
    std::wstring appoggio;
    return aCapoCrLf(conCaratteri(lf, appoggio));
}

// A date that read as nothing was stamped.
bool dataUguale(std::wstring_view letta, const std::wstring& attesa) {
    return attesa.empty() ? !letta.empty() : letta == attesa;
}

// What another reader than the program's says of a file.
std::string differenzaNelFile(const std::string& byte, const FeedDiProva& scritto) {
    try {
        return differenza(leggiDaSolo(byte), scritto);
    } catch (const std::runtime_error& errore) {
        return errore.what();
    }
}

// Some byte becomes another one; not a blank another blank, which may say the same.
void cambiaUnByte(std::string& byte, std::minstd_rand& caso) {
    char& cambiato = byte[caso() % byte.size()];
    char nuovo = cambiato;
    while (nuovo == cambiato ||
           (spaziXml.find(static_cast<unsigned char>(nuovo)) != spaziXml.npos &&
            spaziXml.find(static_cast<unsigned char>(cambiato)) != spaziXml.npos)) {
        nuovo = static_cast<char>(caso() >> 8U);
    }
    cambiato = nuovo;
}

void confrontaElementi(const TabellaElementi& letti, const TabellaElementi& scritti) {
    using enum CampoElemento;
    ASSERT_EQ(letti.conteggio(), scritti.limiteSuperiore() + 1);
    for (int i = 0; i <= scritti.limiteSuperiore(); ++i) {
        for (const auto campo : {Titolo, Autore, Guid}) {
            ASSERT_EQ(letti(campo, i), attesoElemento(scritti(campo, i))) << i;
        }
        ASSERT_EQ(letti(Link, i), rifilatoDalDom(scritti(Link, i))) << i;
        ASSERT_EQ(letti(Descrizione, i), attesoCData(scritti(Descrizione, i))) << i;
        ASSERT_TRUE(dataUguale(letti(Data, i), attesoElemento(scritti(Data, i)))) << i;
    }
}

void confronta(FeedDiProva& letto, FeedDiProva& scritto) {
    const auto l = letto.canale();
    const auto s = scritto.canale();
    for (std::size_t i = 0; i < l.size(); ++i) {
        ASSERT_EQ(*l[i], attesoElemento(*s[i])) << i;
    }
    ASSERT_EQ(letto.image.sTitle(), attesoElemento(scritto.image.sTitle()));
    ASSERT_EQ(letto.image.sUrl(), attesoElemento(scritto.image.sUrl()));
    ASSERT_EQ(letto.image.sLink(), attesoElemento(scritto.image.sLink()));
    ASSERT_EQ(letto.image.nWidth(), scritto.image.nWidth());
    ASSERT_EQ(letto.image.nHeight(), scritto.image.nHeight());
    confrontaElementi(letto.items, scritto.items);
}

} // namespace

TEST(Giro, DocumentiCasualiSiRileggonoUguali) {
    const std::uint32_t giri = daAmbiente("OSTRELLE_GIRI", 1000);
    const std::uint32_t seme = daAmbiente("OSTRELLE_SEME", 20041);
    const CartellaProva cartella;
    const auto percorso = cartella.file(L"giro.xml");
    Andamento andamento("documenti scritti e riletti", giri);
    for (std::uint32_t i = 0; i < giri; ++i) {
        FeedDiProva scritto = feedACaso(seme + i);
        scritto.scrivi(percorso);
        ASSERT_EQ(differenzaNelFile(leggiTutto(percorso), scritto), "") << "seed " << seme + i;
        FeedDiProva letto;
        letto.leggi(percorso);
        confronta(letto, scritto);
        if (HasFatalFailure()) {
            FAIL() << "seed " << seme + i;
        }
        andamento.fatto();
    }
}

// What tells a loss must be able to.
TEST(Giro, UnByteCambiatoInUnDocumentoSuDieciSiVede) {
    constexpr std::uint32_t primo = 77;
    const CartellaProva cartella;
    const auto percorso = cartella.file(L"giro.xml");
    std::minstd_rand caso(primo);
    for (std::uint32_t i = 0; i < 300; ++i) {
        const FeedDiProva scritto = feedACaso(primo + i);
        scritto.scrivi(percorso);
        std::string byte = leggiTutto(percorso);
        const bool cambiato = i % 10 == 9;
        if (cambiato) {
            cambiaUnByte(byte, caso);
        }
        ASSERT_EQ(differenzaNelFile(byte, scritto).empty(), !cambiato) << "seed " << primo + i;
    }
}

TEST(Giro, UnaTabellaVuotaEUnElementoVuoto) {
    const CartellaProva cartella;
    FeedDiProva scritto;
    scritto.scrivi(cartella.file(L"a.xml"));
    FeedDiProva letto;
    letto.leggi(cartella.file(L"a.xml"));
    EXPECT_EQ(letto.items.conteggio(), 1);
    EXPECT_EQ(letto.lastBuildDate, L"");
    confronta(letto, scritto);
}

// Feeds of other people: the folder is named by the environment and not part of the project.
TEST(Giro, OgniFeedDelCorpusSiApreOSiRifiuta) {
    const char* const cartellaFeed = std::getenv("OSTRELLE_FEEDS");
    if (cartellaFeed == nullptr || *cartellaFeed == '\0') {
        GTEST_SKIP() << "OSTRELLE_FEEDS names no folder";
    }
    const CartellaProva cartella;
    const auto copia = cartella.file(L"copia.xml");
    int aperti = 0;
    int rifiutati = 0;
    for (const auto& voce :
         std::filesystem::recursive_directory_iterator(L"Z:" + daUtf8(cartellaFeed))) {
        if (!voce.is_regular_file()) {
            continue;
        }
        SCOPED_TRACE(inUtf8(voce.path().wstring()));
        FeedDiProva d;
        const auto e = d.provaLeggi(voce.path().wstring());
        if (e.numero != 0) {
            EXPECT_TRUE(e.numero == 18343 || e.numero == 18344 || e.numero == 18345 ||
                        e.numero == 6)
                << e.numero;
            EXPECT_FALSE(e.descrizione.empty());
            ++rifiutati;
            continue;
        }
        ++aperti;
        if (d.items.conteggio() == 0) {
            continue;
        }
        const auto s = d.provaScrivi(copia);
        // A description may hold "]]>" (as text): then it cannot be saved, and nothing is.
        ASSERT_TRUE(s.numero == 0 || s.numero == 5) << inUtf8(s.descrizione);
        if (s.numero == 0) {
            FeedDiProva ancora;
            ancora.leggi(copia);
            confronta(ancora, d);
        }
    }
    std::printf("%d opened, %d refused\n", aperti, rifiutati);
    EXPECT_GT(aperti, 0);
    EXPECT_GT(rifiutati, 0);
}
