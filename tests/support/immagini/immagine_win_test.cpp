#include "support/immagini/immagine_win.h"

#include "res/risorse.h"
#include "support/errori/errore.h"
#include "support/windows/errori_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/immagini_prova.h"
#include "tests/aiuti/sollevato.h"

#include <olectl.h>

#include <gtest/gtest.h>

TEST(ImmagineWin, DaUnaRisorsaEDaUnFile) {
    const SIZE logo = misuraDi(bitmapDi(*caricaImmagine(IDR_LOGO, L"GIF").get()));
    EXPECT_EQ(logo.cx, 160);
    EXPECT_EQ(logo.cy, 80);
    const CartellaProva cartella;
    const auto file = cartella.scrivi(L"a.bmp", immagini::bmp(9, 4));
    const SIZE letta = misuraDi(bitmapDi(*caricaImmagine(file).get()));
    EXPECT_EQ(letta.cx, 9);
    EXPECT_EQ(letta.cy, 4);
}

TEST(ImmagineWin, UnaRisorsaCheMancaOCheNonEImmagineE481) {
    const auto errore = [](int numero, const wchar_t* tipo) {
        return sollevatoDa([&] { return caricaImmagine(numero, tipo); }).numero;
    };
    EXPECT_EQ(errore(9999, L"GIF"), 481);
    EXPECT_EQ(errore(IDR_LOGO, L"ALTRO"), 481);
    EXPECT_EQ(errore(1, RT_MANIFEST), 481);
}

TEST(ImmagineWin, UnIconaNonHaBitmap) {
    PICTDESC descrizione{};
    descrizione.cbSizeofstruct = sizeof(descrizione);
    descrizione.picType = PICTYPE_ICON;
    descrizione.icon.hicon = LoadIconW(nullptr, IDI_APPLICATION);
    ComPtr<IPicture> icona;
    verifica(OleCreatePictureIndirect(&descrizione, IID_IPicture, FALSE,
                                      reinterpret_cast<void**>(icona.riempi())));
    EXPECT_EQ(bitmapDi(*icona.get()), nullptr);
    EXPECT_EQ(misuraDi(nullptr).cx, 0);
}
