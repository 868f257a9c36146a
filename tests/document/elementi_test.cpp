#include "document/elementi.h"

#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/tabella_prova.h"
#include "tests/aiuti/testi.h"

#include <gtest/gtest.h>

TEST(ElementiDeiComandi, UnaTabellaPienaEErrore6) {
    TabellaElementi tabella;
    dimensiona(tabella, 32766);
    EXPECT_EQ(erroreDi([&] { richiediPosto(tabella); }), 0);
    dimensiona(tabella, 32767);
    EXPECT_EQ(erroreDi([&] { richiediPosto(tabella); }), 6);
}

TEST(ElementiDeiComandi, UnaTabellaVuotaNonSiScrive) {
    TabellaElementi tabella;
    const Sollevato vuota = sollevatoDa([&] {
        richiediElementi(tabella);
        return 0;
    });
    EXPECT_EQ(vuota.numero, 12883);
    EXPECT_EQ(vuota.descrizione, testi::diErrore(12883));
    dimensiona(tabella, 1);
    EXPECT_EQ(erroreDi([&] { richiediElementi(tabella); }), 0);
}

TEST(ElementiDeiComandi, UnGuidPresenteEQuelloDiUnElemento) {
    TabellaElementi tabella;
    EXPECT_FALSE(guidPresente(tabella, L""));
    dimensiona(tabella, 3);
    metti(tabella, CampoElemento::Guid, 2, L"{A}");
    metti(tabella, CampoElemento::Titolo, 1, L"{B}");
    EXPECT_TRUE(guidPresente(tabella, L"{A}"));
    for (const wchar_t* const altro : {L"{B}", L"{a}", L"{A} ", L"{"}) {
        EXPECT_FALSE(guidPresente(tabella, altro)) << altro;
    }
}

TEST(ElementiDeiComandi, UnGuidNuovoHaDavantiLaDataEOgniVoltaEUnAltro) {
    const std::wstring uno = guidNuovo(L"data");
    EXPECT_TRUE(uno.starts_with(L"data {"));
    EXPECT_EQ(uno.size(), 5U + 41U);
    EXPECT_NE(guidNuovo(L"data"), uno);
}

TEST(ElementiDeiComandi, DopoUnaModificaSiSceglieLElementoODopoUnaCancellazioneQuelloSopra) {
    using enum Modifica::Tipo;
    const auto riga = [](Modifica::Tipo tipo, int indice, int indiceDopo) {
        return rigaDopo({tipo, indice, indiceDopo, nullptr, nullptr});
    };
    EXPECT_EQ(riga(Aggiunta, 5, 5), 6);
    EXPECT_EQ(riga(Cambio, 0, 0), 1);
    EXPECT_EQ(riga(Spostamento, 0, 2), 3);
    EXPECT_EQ(riga(Spostamento, 3, 1), 2);
    EXPECT_EQ(riga(Rimozione, 0, 0), 1);
    EXPECT_EQ(riga(Rimozione, 1, 1), 1);
    EXPECT_EQ(riga(Rimozione, 3, 3), 3);
}
