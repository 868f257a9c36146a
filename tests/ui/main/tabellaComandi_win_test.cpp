#include "ui/main/comandi.h"

#include <cstdint>
#include <set>
#include <tuple>

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

TEST(TabellaComandi, OgniComandoHaUnaRigaSolaEFaQualcosa) {
    std::set<Comando> visti;
    for (const RigaComando& riga : comandi()) {
        if (riga.comando == nessunComando) {
            EXPECT_NE(riga.menu, Menu::Nessuno);
            continue;
        }
        EXPECT_TRUE(visti.insert(riga.comando).second) << riga.comando;
        EXPECT_EQ(rigaDel(riga.comando), &riga);
        EXPECT_EQ(riga.esegui != nullptr, riga.comando != mnrecenti) << riga.comando;
        // In a menu or by a key: there is a way to it.
        EXPECT_TRUE((riga.menu != Menu::Nessuno && !riga.didascalia.empty()) ||
                    riga.tasto.codice != 0)
            << riga.comando;
    }
    for (const int altro :
         {0, 1, static_cast<int>(mnrec), static_cast<int>(ultimoRecente), 65535}) {
        EXPECT_EQ(rigaDel(altro), nullptr) << altro;
    }
}

TEST(TabellaComandi, UnTastoEsegueUnComandoSolo) {
    std::set<std::tuple<std::uint16_t, int, int>> visti;
    for (const RigaComando& riga : comandi()) {
        for (const Tasto& tasto : {riga.tasto, riga.altroTasto}) {
            EXPECT_TRUE(tasto.codice == 0 ||
                        visti.emplace(tasto.codice, tasto.modificatore, tasto.dove).second)
                << riga.comando;
        }
    }
    EXPECT_EQ(visti.size(), 20U);
}
