#include "support/immagini/ClsSizerImg.h"

#include "support/immagini/immagine_win.h"
#include "support/windows/errori_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dialoghi_finti.h"
#include "tests/aiuti/immagini_prova.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

const RichiestaFile richiesta{
    L"File immagine (*.jpg;*.gif;*.jpeg)|*.jpg;*.gif;*.jpeg|Tutti i file (*.*)|*.*", opzioniApri,
    L""};

using Misura = std::pair<std::int32_t, std::int32_t>;

// A window of another resolution.
class UnitaFinta final : public UnitaFinestra {
public:
    UnitaFinta(int dpiX, int dpiY) : dpiX_(dpiX), dpiY_(dpiY) {}
    [[nodiscard]] double pixelOrizzontali(double twips) const override {
        return twips * dpiX_ / 1440;
    }
    [[nodiscard]] double pixelVerticali(double twips) const override {
        return twips * dpiY_ / 1440;
    }

private:
    int dpiX_;
    int dpiY_;
};

// A picture control whose picture has a given size in twips, or that fails with an error.
class ImmagineFinta final : public ControlloImmagine {
public:
    void Visible(bool valore) override { passi.push_back(valore ? L"visibile" : L"invisibile"); }
    void Stretch(bool valore) override { passi.push_back(valore ? L"adattata" : L"naturale"); }
    void carica(const std::wstring& percorso) override {
        passi.push_back(L"carica " + percorso);
        if (errore != 0) {
            solleva(errore);
        }
    }
    void svuota() noexcept override { svuotata = true; }
    [[nodiscard]] double Width() const override { return larghezza; }
    [[nodiscard]] double Height() const override { return altezza; }

    double larghezza = 0;
    double altezza = 0;
    std::int32_t errore = 0;
    bool svuotata = false;
    std::vector<std::wstring> passi;
};

template <class Azione>
std::pair<std::int32_t, std::wstring> erroreDi(Azione azione) {
    try {
        azione();
        return {0, L""};
    } catch (const Errore& errore) {
        return {errore.numero(), errore.descrizione()};
    }
}

// The real measuring of a file with these bytes, picked in the dialog.
class Misurazione {
public:
    Misura misura(const std::string& dati, std::wstring_view nome = L"prova.jpg") {
        const std::wstring file = cartella_.scrivi(nome, dati);
        DialoghiFinti dialoghi;
        dialoghi.attendiApri(richiesta, file);
        sizer.objForm(unita_);
        sizer.objDlg(dialoghi);
        sizer.objImg(immagine_);
        sizer.LeggiImg(L"");
        return {sizer.nWidth(), sizer.nHeight()};
    }
    std::int32_t errore(const std::string& dati, std::wstring_view nome = L"prova.jpg") {
        return erroreDi([&] { static_cast<void>(misura(dati, nome)); }).first;
    }
    [[nodiscard]] const ImmagineNascosta& immagine() const { return immagine_; }

    ClsSizerImg sizer;

private:
    CartellaProva cartella_;
    UnitaDiFinestra unita_{dpiDi(nullptr)};
    ImmagineNascosta immagine_;
};

constexpr Misura cento{100, 50};

} // namespace

TEST(MisuraImmagine, OgniFormatoDaLaSuaMisura) {
    Misurazione m;
    EXPECT_EQ(m.misura(immagini::byte(immagini::jpegSemplice)), cento);
    EXPECT_EQ(m.misura(immagini::byte(immagini::jpegProgressivo)), cento);
    EXPECT_EQ(m.misura(immagini::byte(immagini::jpegCmyk)), cento);
    EXPECT_EQ(m.misura(immagini::byte(immagini::gifSemplice), L"a.gif"), cento);
    EXPECT_EQ(m.misura(immagini::byte(immagini::gifIntrecciato), L"a.gif"), cento);
    EXPECT_EQ(m.misura(immagini::byte(immagini::gifAnimato), L"a.gif"), cento);
    EXPECT_EQ(m.misura(immagini::bmp(100, 50), L"a.bmp"), cento);
    // The name says nothing.
    EXPECT_EQ(m.misura(immagini::byte(immagini::gifSemplice), L"a.txt"), cento);
}

TEST(MisuraImmagine, LeMisureEstreme) {
    Misurazione m;
    EXPECT_EQ(m.misura(immagini::bmp(1, 1)), (Misura{1, 1}));
    EXPECT_EQ(m.misura(immagini::bmp(20000, 1)), (Misura{20000, 1}));
    EXPECT_EQ(m.misura(immagini::bmp(1, 20000)), (Misura{1, 20000}));
}

TEST(MisuraImmagine, OgniLarghezzaTornaEsatta) {
    Misurazione m;
    for (std::uint32_t lato = 2; lato < 200; lato += 3) {
        const auto atteso = static_cast<std::int32_t>(lato);
        ASSERT_EQ(m.misura(immagini::bmp(lato, 201 - lato)), (Misura{atteso, 201 - atteso}));
    }
}

TEST(MisuraImmagine, CioCheNonEImmagineE481) {
    Misurazione m;
    EXPECT_EQ(m.misura(immagini::bmp(7, 8)), (Misura{7, 8}));
    EXPECT_EQ(m.errore(""), 481);
    EXPECT_EQ(m.errore("non sono una immagine"), 481);
    EXPECT_EQ(m.errore("x"), 481);
    EXPECT_EQ(m.errore(std::string(100000, '\0')), 481);
    EXPECT_EQ(m.errore("GIF89a"), 481);
    EXPECT_EQ(m.errore(immagini::bmp(100, 50).substr(0, 20), L"a.bmp"), 481);
    EXPECT_EQ(m.errore(immagini::byte(immagini::jpegSemplice).substr(0, 40)), 481);
    EXPECT_EQ(m.sizer.nWidth(), 7);
    EXPECT_EQ(m.sizer.nHeight(), 8);
}

// Where the loader still finds its size, a cut picture has one; else it is no picture.
TEST(MisuraImmagine, UnImmagineTroncaEMisurataORifiutata) {
    Misurazione m;
    for (const auto intera : {immagini::jpegSemplice, immagini::jpegProgressivo, immagini::jpegCmyk,
                              immagini::gifSemplice, immagini::gifAnimato}) {
        const std::string dati = immagini::byte(intera);
        for (std::size_t n = 0; n < dati.size(); n += 7) {
            Misura trovata{};
            const auto numero = erroreDi([&] { trovata = m.misura(dati.substr(0, n)); }).first;
            ASSERT_TRUE(numero == 481 || (numero == 0 && trovata == cento)) << numero << " " << n;
        }
    }
}

TEST(MisuraImmagine, SparitoPrimaDelCaricamentoE53) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.jpg", immagini::byte(immagini::jpegSemplice));
    DialoghiFinti dialoghi;
    dialoghi.attendiApri(richiesta, file, [&] { DeleteFileW(file.c_str()); });
    dialoghi.attendiApri(richiesta, cartella.file(L"sottocartella\\a.jpg"));
    const UnitaDiFinestra unita(dpiDi(nullptr));
    ImmagineNascosta immagine;
    ClsSizerImg sizer;
    sizer.objForm(unita);
    sizer.objDlg(dialoghi);
    sizer.objImg(immagine);
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(L""); }).first, 53);
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(L""); }).first, 53);
}

TEST(MisuraImmagine, IlFileRestaLibero) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.bmp", immagini::bmp(3, 4));
    ImmagineNascosta immagine;
    immagine.carica(file);
    EXPECT_TRUE(DeleteFileW(file.c_str()));
    EXPECT_GT(immagine.Width(), 0);
    immagine.svuota();
    EXPECT_EQ(immagine.Width(), 0);
}

TEST(SizerImg, UnPercorsoCheNonEsisteNonChiede) {
    const CartellaProva cartella;
    DialoghiFinti dialoghi;
    ClsSizerImg sizer;
    sizer.objDlg(dialoghi);
    const std::wstring file = cartella.file(L"città.jpg");
    const auto [numero, testo] = erroreDi([&] { sizer.LeggiImg(file); });
    EXPECT_EQ(numero, 8876);
    EXPECT_TRUE(testo.ends_with(L"\\CITTÀ.JPG" + testi::diErrore(8876))) << inUtf8(testo);
    // A folder is no file.
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(cartella.percorso()); }).first, 8876);
}

TEST(SizerImg, SenzaDialogoE8875) {
    ClsSizerImg sizer;
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(L""); }), std::pair(8875, testi::diErrore(8875)));
}

TEST(SizerImg, SenzaImmaginePrimaChiedePoiE8874) {
    DialoghiFinti dialoghi;
    dialoghi.attendiApri(richiesta, L"c:\\a.jpg");
    ClsSizerImg sizer;
    sizer.objDlg(dialoghi);
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(L""); }), std::pair(8874, testi::diErrore(8874)));
}

TEST(SizerImg, AnnullareSolleva32755ENonCaricaNulla) {
    DialoghiFinti dialoghi;
    dialoghi.attendiApri(richiesta, std::nullopt);
    ImmagineFinta immagine;
    ClsSizerImg sizer;
    sizer.objDlg(dialoghi);
    sizer.objImg(immagine);
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(L""); }).first, 32755);
    EXPECT_TRUE(immagine.passi.empty());
}

TEST(SizerImg, LImmagineSiCaricaInvisibileENaturaleEPoiSiSvuota) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.jpg", "x");
    const UnitaFinta unita(96, 96);
    ImmagineFinta immagine;
    immagine.larghezza = 1500;
    immagine.altezza = 750;
    ClsSizerImg sizer;
    sizer.objForm(unita);
    sizer.objImg(immagine);
    sizer.LeggiImg(file);
    EXPECT_EQ(immagine.passi,
              (std::vector<std::wstring>{L"invisibile", L"naturale", L"carica " + file}));
    EXPECT_TRUE(immagine.svuotata);
    EXPECT_EQ(sizer.nWidth(), 100);
    EXPECT_EQ(sizer.nHeight(), 50);
}

// 100 by 50 pixels are 2646 by 1323 HIMETRIC at 96 dpi and 1323 by 661 at 192.
TEST(SizerImg, LaMisuraNonDipendeDallaRisoluzione) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.jpg", "x");
    for (const auto& [dpi, larga, alta] :
         {std::tuple(96, 2646, 1323), std::tuple(192, 1323, 661), std::tuple(144, 1764, 882)}) {
        const UnitaFinta unita(dpi, dpi);
        ImmagineFinta immagine;
        immagine.larghezza = larga * 1440.0 / 2540;
        immagine.altezza = alta * 1440.0 / 2540;
        ClsSizerImg sizer;
        sizer.objForm(unita);
        sizer.objImg(immagine);
        sizer.LeggiImg(file);
        EXPECT_EQ(sizer.nWidth(), 100) << dpi;
        EXPECT_EQ(sizer.nHeight(), 50) << dpi;
    }
}

TEST(SizerImg, ArrotondaUnaVoltaLeMetaAlPari) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.jpg", "x");
    const UnitaFinta unita(96, 192);
    ImmagineFinta immagine;
    immagine.larghezza = 2.5 * 15;
    immagine.altezza = 3.5 * 7.5;
    ClsSizerImg sizer;
    sizer.objForm(unita);
    sizer.objImg(immagine);
    sizer.LeggiImg(file);
    EXPECT_EQ(sizer.nWidth(), 2);
    EXPECT_EQ(sizer.nHeight(), 4);
}

TEST(SizerImg, UnErroreLasciaLeMisureDiPrima) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.jpg", "x");
    const UnitaFinta unita(96, 96);
    ImmagineFinta immagine;
    immagine.larghezza = 150;
    immagine.altezza = 150;
    ClsSizerImg sizer;
    EXPECT_EQ(sizer.nWidth(), 0);
    sizer.objImg(immagine);
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(file); }).first, 91);
    EXPECT_TRUE(immagine.svuotata);
    sizer.objForm(unita);
    sizer.LeggiImg(file);
    EXPECT_EQ(sizer.nWidth(), 10);
    immagine.errore = 481;
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(file); }).first, 481);
    immagine.errore = 0;
    immagine.larghezza = 1e12;
    EXPECT_EQ(erroreDi([&] { sizer.LeggiImg(file); }).first, 6);
    EXPECT_EQ(sizer.nWidth(), 10);
    EXPECT_EQ(sizer.nHeight(), 10);
}
