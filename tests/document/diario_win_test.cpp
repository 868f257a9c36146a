#include "document/diario_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/sollevato.h"

#include <filesystem>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace {

const DataOra allora = DataOra::daParti(2026, 11, 21, 13, 5, 0);

std::ptrdiff_t fileIn(const std::wstring& cartella) {
    return std::distance(std::filesystem::directory_iterator(cartella), {});
}

std::string contenuto(FileDiario& diario) {
    std::string testo;
    for (const std::byte b : diario.leggi()) {
        testo += static_cast<char>(b);
    }
    return testo;
}

} // namespace

TEST(FileDelDiario, RiscriverloNeLasciaUnoSolo) {
    const CartellaProva cartella;
    FileDiario diario = FileDiario::crea(cartella.percorso(), allora);
    diario.aggiungi("prima");
    const std::wstring percorso = diario.percorso();
    diario.riscrivi(allora, [](FileDiario& nuovo) { nuovo.aggiungi("dopo"); });
    EXPECT_EQ(diario.percorso(), percorso);
    EXPECT_EQ(contenuto(diario), "dopo");
    EXPECT_EQ(fileIn(cartella.percorso()), 1);
}

TEST(FileDelDiario, SeNonSiRiscriveRestaCioCheCera) {
    const CartellaProva cartella;
    FileDiario diario = FileDiario::crea(cartella.percorso(), allora);
    diario.aggiungi("prima");
    const auto fallisce = [](FileDiario& nuovo) {
        nuovo.aggiungi("do");
        solleva(errori::discoPieno);
    };
    EXPECT_EQ(erroreDi([&] { diario.riscrivi(allora, fallisce); }), errori::discoPieno);
    EXPECT_EQ(contenuto(diario), "prima");
    EXPECT_EQ(fileIn(cartella.percorso()), 1) << "the one that was begun is there";
}
