#include "support/servizi/impostazioni_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "ui/main/recenti.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

constexpr const wchar_t* applicazione = L"Ostrelle prove";

// The store of an application of the tests' own, empty at first.
class ImpostazioniVere : public testing::Test {
protected:
    ChiaveSalvata sezione{HKEY_CURRENT_USER,
                          L"Software\\VB and VBA Program Settings\\Ostrelle prove\\url"};
    ImpostazioniRegistro impostazioni{applicazione};

    [[nodiscard]] std::wstring leggi(const wchar_t* chiave) const {
        return impostazioni.leggi(L"url", chiave, L"manca");
    }
};

} // namespace

TEST_F(ImpostazioniVere, CioCheMancaValeIlPredefinito) {
    EXPECT_EQ(leggi(L"murl1"), L"manca");
    sezione.testo(L"murl2", L"c:\\a.xml");
    EXPECT_EQ(leggi(L"murl1"), L"manca");
    EXPECT_EQ(impostazioni.leggi(L"altra", L"murl2", L"manca"), L"manca");
}

TEST_F(ImpostazioniVere, SiLeggeNelPostoDettoCioCheSiScrive) {
    const std::wstring lungo = L"c:\\città\\" + std::wstring(300, L'è') + L".xml";
    for (const std::wstring& valore : {std::wstring(L"c:\\a&b%20.xml"), lungo, std::wstring()}) {
        impostazioni.scrivi(L"url", L"murl1", valore);
        EXPECT_EQ(leggi(L"murl1"), valore);
        std::wstring letto(400, L'\0');
        DWORD byte = 800;
        ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, sezione.nome().c_str(), L"murl1", RRF_RT_REG_SZ,
                               nullptr, letto.data(), &byte),
                  ERROR_SUCCESS);
        letto.resize(byte / sizeof(wchar_t) - 1);
        EXPECT_EQ(letto, valore);
    }
}

TEST_F(ImpostazioniVere, UnValoreDiAltroTipoValeIlPredefinitoEUnoTroncoSiLegge) {
    sezione.grezzo(L"murl1", REG_DWORD, std::string_view("\1\2\3\4", 4));
    sezione.grezzo(L"murl2", REG_BINARY, std::string_view("\xff\xfe\x00", 3));
    // Without the character 0 at its end.
    sezione.grezzo(L"murl3", REG_SZ, std::string_view("a\0b\0", 4));
    EXPECT_EQ(leggi(L"murl1"), L"manca");
    EXPECT_EQ(leggi(L"murl2"), L"manca");
    EXPECT_EQ(leggi(L"murl3"), L"ab");
}

TEST_F(ImpostazioniVere, LElencoDeiRecentiPassaOltreIRifiuti) {
    sezione.grezzo(L"murl1", REG_DWORD, std::string_view("\1\2\3\4", 4));
    sezione.testo(L"murl2", L"   ");
    sezione.testo(L"murl3", L"  C:\\Città\\A.XML ");
    sezione.testo(L"murl11", L"c:\\undicesimo.xml");
    ElencoRecenti recenti(impostazioni);
    recenti.CaricaRecenti();
    ASSERT_EQ(recenti.voci().size(), 1U);
    EXPECT_EQ(recenti.voci()[0], L"c:\\città\\a.xml");
    // Meanwhile another copy of the program stores one of its own.
    sezione.testo(L"murl4", L"c:\\altro.xml");
    recenti.AggiungiRecente(L"C:\\B.xml");
    EXPECT_EQ(leggi(L"murl1"), L"c:\\b.xml");
    EXPECT_EQ(leggi(L"murl2"), L"c:\\città\\a.xml");
    // It would stand there twice.
    EXPECT_EQ(leggi(L"murl3"), L"");
    EXPECT_EQ(leggi(L"murl4"), L"c:\\altro.xml");
    EXPECT_EQ(leggi(L"murl11"), L"c:\\undicesimo.xml");
}

TEST_F(ImpostazioniVere, DoveNonSiPuoScrivereSiDice) {
    // A key name that is longer than the registry allows.
    EXPECT_THROW(impostazioni.scrivi(std::wstring(300, L'x'), L"murl1", L"c:\\a.xml"), Errore);
}
