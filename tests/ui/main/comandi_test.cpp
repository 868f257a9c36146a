#include "ui/main/comandi.h"

#include <gtest/gtest.h>

TEST(TabellaComandi, LaChiaveDiUnPulsanteSiConfrontaEsattamente) {
    EXPECT_EQ(comandoDaChiave(L"new"), mnNuovo);
    EXPECT_EQ(comandoDaChiave(L"open"), mnApri);
    EXPECT_EQ(comandoDaChiave(L"save"), mnsalva);
    EXPECT_EQ(comandoDaChiave(L"email"), mnautore);
    EXPECT_EQ(comandoDaChiave(L"info"), mninfo);
    for (const wchar_t* const altra : {L"", L"New", L"SAVE", L" new", L"ne", L"news", L"chiudi"}) {
        EXPECT_EQ(comandoDaChiave(altra), nessunComando) << altra;
    }
}
