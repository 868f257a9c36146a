// Records that stand whole in a diary and yet tell of nothing that can be.

#include "document/diario.h"

#include "document/byteDiario.h"
#include "tests/aiuti/tabella_prova.h"

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr std::string_view inizioDelFile = "OSTRELLE DIARIO 1";
// The most items there can be.
constexpr std::uint64_t troppi = std::uint64_t{std::numeric_limits<std::int16_t>::max()} + 1;

using Numeri = std::initializer_list<std::uint64_t>;

ContenutoRecord numeri(Numeri valori) {
    ContenutoRecord contenuto;
    for (const std::uint64_t valore : valori) {
        contenuto.numero(valore);
    }
    return contenuto;
}

ContenutoRecord inizio(std::int64_t secondi = 0, std::uint64_t campi = 1) {
    ContenutoRecord contenuto;
    contenuto.conSegno(secondi);
    contenuto.testo(L"C:\\feed.xml");
    contenuto.conSegno(0);
    contenuto.numero(2);
    contenuto.numero(0);
    contenuto.numero(campi);
    contenuto.testo(L"Titolo");
    return contenuto;
}

// A diary record by record, each with the checksum that it must have.
class DiarioScritto {
public:
    DiarioScritto& poi(TipoRecord tipo, const ContenutoRecord& contenuto) {
        byte_ += record(tipo, contenuto, catena_);
        return *this;
    }
    // A base of one item.
    DiarioScritto& base() {
        ContenutoRecord elemento;
        elemento.elemento(*elementoVuoto());
        return poi(TipoRecord::Inizio, inizio())
            .poi(TipoRecord::Elementi, elemento)
            .poi(TipoRecord::BaseCompleta, numeri({1}));
    }
    [[nodiscard]] LetturaDiario letto() const {
        return leggiDiario(std::as_bytes(std::span(byte_)));
    }

private:
    std::string byte_{inizioDelFile};
    std::uint64_t catena_ = 0;
};

// What stands behind the base is refused, and the base is what is left.
void rifiutato(TipoRecord tipo, const ContenutoRecord& contenuto) {
    const auto lettura = DiarioScritto().base().poi(tipo, contenuto).letto();
    EXPECT_FALSE(lettura.intero);
    ASSERT_TRUE(lettura.lavoro);
    EXPECT_EQ(lettura.lavoro->elementi.conteggio(), 1);
    EXPECT_EQ(lettura.lavoro->canale, TestiCampi{L"Titolo"});
    EXPECT_EQ(lettura.lavoro->modifiche, 2);
    EXPECT_FALSE(lettura.lavoro->bozza);
}

// No work is known.
void illeggibile(const DiarioScritto& diario) {
    const auto lettura = diario.letto();
    EXPECT_FALSE(lettura.intero);
    EXPECT_FALSE(lettura.lavoro);
}

} // namespace

TEST(DiarioRecord, LaBaseDaSolaSiLegge) {
    const auto lettura = DiarioScritto().base().letto();
    EXPECT_TRUE(lettura.intero);
    ASSERT_TRUE(lettura.lavoro);
    EXPECT_EQ(lettura.lavoro->percorso, L"C:\\feed.xml");
    EXPECT_EQ(lettura.lavoro->elementi.conteggio(), 1);
}

TEST(DiarioRecord, UnaBaseImpossibileNonVale) {
    // Before any time there is, and with fewer texts than it says.
    illeggibile(
        DiarioScritto().poi(TipoRecord::Inizio, inizio(std::numeric_limits<std::int64_t>::min())));
    illeggibile(DiarioScritto().poi(TipoRecord::Inizio, inizio(0, 2)));
    illeggibile(DiarioScritto().poi(TipoRecord::Inizio, {}));
    illeggibile(DiarioScritto().poi(TipoRecord::Modifica, {}));
    illeggibile(
        DiarioScritto().poi(TipoRecord::Inizio, inizio()).poi(TipoRecord::Elementi, numeri({5})));
    for (const std::uint64_t quanti : {std::uint64_t{1}, troppi}) {
        illeggibile(DiarioScritto()
                        .poi(TipoRecord::Inizio, inizio())
                        .poi(TipoRecord::BaseCompleta, numeri({quanti})));
    }
}

TEST(DiarioRecord, UnaModificaImpossibileNonVale) {
    // Kind, index, index after, date: of no kind, without its item, of an item that is not there.
    for (const Numeri& valori :
         {Numeri{}, Numeri{9, 0, 0, 0}, Numeri{0, troppi, 0, 0}, Numeri{0, 0, 0, 0}}) {
        rifiutato(TipoRecord::Modifica, numeri(valori));
    }
    for (std::uint64_t tipo = 0; tipo < 4; ++tipo) {
        SCOPED_TRACE(tipo);
        ContenutoRecord modifica = numeri({tipo, 7, 8, 0});
        modifica.elemento(*elementoVuoto());
        rifiutato(TipoRecord::Modifica, modifica);
        rifiutato(TipoRecord::Modifica, numeri({tipo, 7, 8, 0}));
    }
}

TEST(DiarioRecord, UnTestoImpossibileNonVale) {
    // Which text, what stays of its beginning and of its end, what stands between.
    for (const Numeri& valori :
         {Numeri{}, Numeri{0, 0, 0}, Numeri{1, 0, 0, 0}, Numeri{0, 7, 0, 0}, Numeri{0, 3, 4, 0}}) {
        rifiutato(TipoRecord::TestoCanale, numeri(valori));
    }
    rifiutato(TipoRecord::TestoBozza, numeri({0, 0, 0, 0}));
}

TEST(DiarioRecord, UnaBozzaImpossibileNonVale) {
    for (const Numeri& valori : {Numeri{}, Numeri{2, 0}, Numeri{0, 1}}) {
        rifiutato(TipoRecord::BozzaAperta, numeri(valori));
    }
}

TEST(DiarioRecord, UnRecordDAltroTipoNonVale) {
    for (const TipoRecord tipo : {TipoRecord::Inizio, TipoRecord::Elementi,
                                  TipoRecord::BaseCompleta, TipoRecord::Appunti}) {
        rifiutato(tipo, {});
    }
}

TEST(DiarioRecord, SenzaLavoroNonCENullaDaDire) {
    EXPECT_EQ(descriviLavoro({}, FormatoLocale{}), L"");
}
