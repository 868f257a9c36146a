#include "support/utilita/koUtilitaTemporanei.h"

#include "support/windows/file_win.h"
#include "tests/aiuti/ambiente_win.h"
#include "tests/aiuti/cartella_win.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

// GetTempPath prefers TMP.
class TemporaneaIn : VariabileAmbiente {
public:
    explicit TemporaneaIn(const std::wstring& cartella) : VariabileAmbiente(L"TMP", cartella) {}
};

} // namespace

TEST(KoUtilitaTemporanei, IlFileTemporaneoENuovoEVuotoNellaCartellaTemporanea) {
    const CartellaProva cartella;
    const TemporaneaIn temporanea(cartella.percorso());
    const std::wstring primo = koUtilitaTemporanei::GetFileTemporaneo();
    const std::wstring secondo = koUtilitaTemporanei::GetFileTemporaneo();
    EXPECT_NE(primo, secondo);
    for (const auto& file : {primo, secondo}) {
        const std::wstring inizio = cartella.percorso() + L"\\ko";
        ASSERT_TRUE(file.starts_with(inizio)) << inUtf8(file);
        ASSERT_TRUE(file.ends_with(L".tmp")) << inUtf8(file);
        const std::wstring numero = file.substr(inizio.size(), file.size() - inizio.size() - 4);
        EXPECT_FALSE(numero.empty());
        EXPECT_EQ(numero.find_first_not_of(L"0123456789abcdefABCDEF"), std::wstring::npos);
        EXPECT_TRUE(fileEsiste(file));
        EXPECT_EQ(leggiTutto(file), "");
    }
}

TEST(KoUtilitaTemporanei, LaCartellaTemporaneaFinisceConLaBarraEAccettaGliAccenti) {
    const CartellaProva cartella;
    const std::wstring accentata = cartella.file(L"così");
    ASSERT_TRUE(CreateDirectoryW(accentata.c_str(), nullptr));
    const TemporaneaIn temporanea(accentata);
    EXPECT_EQ(koUtilitaTemporanei::GetDirectoryTemp(), accentata + L"\\");
    EXPECT_TRUE(fileEsiste(koUtilitaTemporanei::GetFileTemporaneo()));
}

TEST(KoUtilitaTemporanei, SenzaTmpValeTemp) {
    const CartellaProva cartella;
    const VariabileAmbiente temp(L"TEMP", cartella.percorso());
    const VariabileAmbiente tmp(L"TMP", L"");
    EXPECT_EQ(koUtilitaTemporanei::GetDirectoryTemp(), cartella.percorso() + L"\\");
}

TEST(KoUtilitaTemporanei, UnaCartellaTemporaneaCheMancaDaIlNomeFisso) {
    const CartellaProva cartella;
    const TemporaneaIn temporanea(cartella.file(L"manca"));
    const std::wstring file = koUtilitaTemporanei::GetFileTemporaneo();
    EXPECT_EQ(file, cartella.file(L"manca\\ko12345.tmp"));
    EXPECT_FALSE(fileEsiste(file));
}

TEST(KoUtilitaTemporanei, UnaCartellaTemporaneaTroppoLungaValeQuellaDelProgramma) {
    const CartellaProva cartella;
    const std::wstring lunga =
        cartella.percorso() + L'\\' + std::wstring(252 - cartella.percorso().size(), L'x');
    ASSERT_EQ(lunga.size(), 253U);
    {
        const TemporaneaIn temporanea(lunga);
        EXPECT_EQ(koUtilitaTemporanei::GetDirectoryTemp(), lunga + L"\\");
    }
    const TemporaneaIn temporanea(lunga + L"y");
    EXPECT_EQ(koUtilitaTemporanei::GetDirectoryTemp(), cartellaProgramma() + L"\\");
}
