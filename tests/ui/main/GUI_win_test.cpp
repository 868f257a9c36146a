#include "ui/main/GUI_win.h"

#include "support/errori/errore.h"
#include "support/immagini/immagine_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/immagini_prova.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

using immagini::bmp;

// A grey picture of 4 by 3 pixels.
std::string jpg() {
    using namespace std::string_view_literals;
    std::string file;
    file += "\xff\xd8\xff\xe0\x00\x10JFIF\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00"
            "\xff\xdb\x00\x43\x00\x50\x37\x3c\x46\x3c\x32\x50\x46\x41\x46\x5a\x55\x50"
            "\x5f\x78\xc8\x82\x78\x6e\x6e\x78\xf5\xaf\xb9\x91\xc8"sv;
    file.append(38, '\xff');
    file += "\xff\xc0\x00\x0b\x08\x00\x03\x00\x04\x01\x01\x11\x00\xff\xc4\x00\x14\x00\x01"sv;
    file.append(16, '\0');
    file += "\xff\xc4\x00\x14\x10\x01"sv;
    file.append(16, '\0');
    file += "\xff\xda\x00\x08\x01\x01\x00\x00\x3f\x00\x3f\xff\xd9"sv;
    return file;
}

constexpr COLORREF bianco = RGB(255, 255, 255);

// The colour of a pixel after the picture was painted on white, 10 by 10 pixels.
COLORREF dipinto(const Sfondo& sfondo, int x, int y) {
    const HDC schermo = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(schermo);
    const HBITMAP bitmap = CreateCompatibleBitmap(schermo, 10, 10);
    const HGDIOBJ prima = SelectObject(dc, bitmap);
    PatBlt(dc, 0, 0, 10, 10, WHITENESS);
    sfondo.disegna(dc);
    const COLORREF colore = GetPixel(dc, x, y);
    SelectObject(dc, prima);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, schermo);
    return colore;
}

} // namespace

TEST(GuiSfondo, IlBmpPrimaDelJpg) {
    const CartellaProva cartella;
    EXPECT_EQ(dipinto(GUI::ApplicaSfondo(cartella.percorso()), 0, 0), bianco);
    static_cast<void>(cartella.scrivi(L"sfondo.jpg", jpg()));
    const Sfondo grigio = GUI::ApplicaSfondo(cartella.percorso());
    EXPECT_NEAR(GetRValue(dipinto(grigio, 3, 2)), 127, 8);
    EXPECT_EQ(dipinto(grigio, 4, 2), bianco);
    EXPECT_EQ(dipinto(grigio, 3, 3), bianco);
    static_cast<void>(cartella.scrivi(L"sfondo.bmp", bmp(5, 2, RGB(200, 100, 50))));
    // With and without the backslash at the end.
    for (const std::wstring& percorso : {cartella.percorso(), cartella.percorso() + L"\\"}) {
        const Sfondo sfondo = GUI::ApplicaSfondo(percorso);
        EXPECT_EQ(dipinto(sfondo, 4, 1), RGB(200, 100, 50));
        EXPECT_EQ(dipinto(sfondo, 0, 2), bianco);
        EXPECT_EQ(dipinto(sfondo, 0, 0), RGB(200, 100, 50));
        EXPECT_EQ(dipinto(sfondo, 5, 0), bianco);
    }
}

TEST(GuiSfondo, UnImmagineGuastaLasciaLoSfondoLiscio) {
    const std::string intera = bmp(8, 8, RGB(1, 2, 3));
    for (const std::string& contenuto : {std::string(), std::string("BM"), std::string(500, 'x'),
                                         intera.substr(0, 30), jpg().substr(0, 60)}) {
        const CartellaProva cartella;
        const auto percorso = cartella.scrivi(L"sfondo.bmp", contenuto);
        // The other one is for a folder without this one.
        static_cast<void>(cartella.scrivi(L"sfondo.jpg", jpg()));
        EXPECT_EQ(dipinto(GUI::ApplicaSfondo(cartella.percorso()), 0, 0), bianco)
            << contenuto.size();
        try {
            static_cast<void>(caricaImmagine(percorso));
            ADD_FAILURE() << "no error for " << contenuto.size() << " bytes";
        } catch (const Errore& e) {
            EXPECT_EQ(e.numero(), 481);
        }
    }
    const CartellaProva cartella;
    try {
        static_cast<void>(caricaImmagine(cartella.file(L"manca.bmp")));
        ADD_FAILURE() << "no error for a missing file";
    } catch (const Errore& e) {
        EXPECT_EQ(e.numero(), 53);
    }
}

TEST(GuiSfondo, UnaCartellaConQuelNomeNonConta) {
    const CartellaProva cartella;
    ASSERT_TRUE(CreateDirectoryW(cartella.file(L"sfondo.bmp").c_str(), nullptr));
    static_cast<void>(cartella.scrivi(L"sfondo.jpg", jpg()));
    EXPECT_NE(dipinto(GUI::ApplicaSfondo(cartella.percorso()), 0, 0), bianco);
}

TEST(GuiGriglia, ImpostaColonneLasciaSoloLIntestazione) {
    GrigliaProva p(5);
    GUI::ImpostaColonne(p.griglia, {L"Uno", L"Due", L"Tre"}, 4, std::nullopt);
    EXPECT_EQ(ListView_GetItemCount(p.lista()), 0);
    EXPECT_EQ(p.griglia.rigaCorrente(), 0);
    EXPECT_EQ(p.griglia.ElementoSelezionato(), -1);
    EXPECT_EQ(Header_GetItemCount(ListView_GetHeader(p.lista())), 4);
    for (int c = 0; c < 4; ++c) {
        EXPECT_NEAR(ListView_GetColumnWidth(p.lista(), c), 580 / 3.0, 1);
    }
    EXPECT_EQ(p.titolo(2), L"Tre");
    EXPECT_EQ(p.titolo(3), L"");
    GUI::CompletaRighe(p.griglia);
    EXPECT_EQ(ListView_GetItemCount(p.lista()), 49);
    EXPECT_EQ(p.testo(49, 0), L" ");
    EXPECT_EQ(p.testo(49, 3), L"-1");
    // Fewer columns than widths can be shared among: the widths stay, nothing fails.
    GUI::ImpostaColonne(p.griglia, {L"Uno"}, 1, std::nullopt);
    GUI::ImpostaColonne(p.griglia, {L"Uno"}, 2, 2000.0);
    GUI::RiempiGriglia(p.griglia, false);
    EXPECT_EQ(Header_GetItemCount(ListView_GetHeader(p.lista())), 3);
    EXPECT_EQ(p.titolo(0), L"Data/Orario");
    EXPECT_EQ(ListView_GetColumnWidth(p.lista(), 0), 133);
    EXPECT_EQ(p.testo(5, 1), L"titolo 4\r\ndescrizione 4");
}
