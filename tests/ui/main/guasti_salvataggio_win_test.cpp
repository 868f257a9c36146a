// Saves on which something fails: what the file held is found afterwards.

#include "document/copie_win.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/servizi/cartelleDati.h"
#include "support/servizi/messaggi.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dialoghi_finti.h"
#include "tests/aiuti/dischi_win.h"
#include "tests/aiuti/editor_finto.h"
#include "tests/aiuti/impostazioni_finte.h"
#include "tests/aiuti/orologio_fermo.h"
#include "tests/aiuti/tabella_prova.h"
#include "ui/main/FrmMain_win.h"

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t disco = std::size_t{256} * 1024;

// Boxes that are read and answered as they come.
class MessaggiLetti final : public Messaggi {
public:
    Risposta mostra(const std::wstring& testo, const std::wstring& /*titolo*/, Icona /*icona*/,
                    Pulsanti /*pulsanti*/) override {
        letti.push_back(testo);
        return Risposta::Ok;
    }
    std::vector<std::wstring> letti;
};

// The main window with a document of some 110 KB, whose file holds something else.
class Programma {
public:
    Programma(const std::wstring& dati, std::wstring percorso)
        : cartelle_{dati + L"\\copie", dati + L"\\diario"}, percorso_(std::move(percorso)) {
        finestra_.apri(SW_SHOWNA);
        TabellaElementi elementi;
        dimensiona(elementi, 200);
        for (int i = 0; i < 200; ++i) {
            ::metti(elementi, CampoElemento::Titolo, i, L"elemento " + std::to_wstring(i));
            ::metti(elementi, CampoElemento::Descrizione, i, std::wstring(400, L'x'));
        }
        documento_.sostituisci(std::move(elementi));
        documento_.percorso(percorso_);
    }

    [[nodiscard]] bool salva() {
        documento_.modificato(true);
        return finestra_.Salva(false);
    }
    [[nodiscard]] bool modificato() const { return documento_.modificato(); }
    [[nodiscard]] const std::vector<std::wstring>& errori() const { return messaggi_.letti; }
    [[nodiscard]] std::wstring avviso() const { return AvvisiProva(finestra_).detto(); }

    void chiudiAvvisi() const {
        const AvvisiProva avvisi(finestra_);
        while (avvisi.inVista()) {
            SendMessageW(avvisi.chiudi(), BM_CLICK, 0, 0);
        }
    }

    // Whether the copies hold these bytes.
    [[nodiscard]] bool nelleCopie(const std::string& byte) const {
        std::error_code errore;
        const std::filesystem::directory_iterator voci(
            CopieFile(cartelle_.copie).cartella(percorso_), errore);
        return !errore && std::any_of(begin(voci), end(voci), [&](const auto& voce) {
            return leggiTutto(voce.path().wstring()) == byte;
        });
    }

private:
    MessaggiLetti messaggi_;
    DialoghiFinti dialoghi_;
    OrologioFermo orologio_{DataOra::daParti(2026, 11, 21, 13, 5, 0)};
    ImpostazioniFinte impostazioni_;
    ClsCodaEliminazione coda_;
    EditorFinto editor_;
    CartelleDati cartelle_;
    std::wstring percorso_;
    Documento documento_;
    FrmMain finestra_{
        Servizi{messaggi_, dialoghi_, orologio_, impostazioni_, coda_, editor_, cartelle_},
        documento_};
};

const std::string vecchio = "<rss>" + std::string(50'000, 'v') + "</rss>";

// The file of that many bytes, or as many as there is room for.
void riempi(const std::wstring& percorso, const std::string& byte) {
    const ManigliaFile file(CreateFileW(percorso.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD scritti = 0;
    WriteFile(file.get(), byte.data(), static_cast<DWORD>(byte.size()), &scritti, nullptr);
}

bool esiste(const std::wstring& percorso) {
    return std::filesystem::exists(percorso);
}

// A file of the user's, and where the program keeps its own.
class GuastiSalvataggio : public testing::Test {
protected:
    // Saves with less and less room on the disk of `feed`, of `dati`, or of both.
    static void alDiscoPieno(const std::wstring& piccolo, const std::wstring& feed,
                             const std::wstring& dati) {
        // Every kilobyte takes minutes.
        const bool tutti = std::getenv("OSTRELLE_GUASTI") != nullptr;
        const std::wstring tappo = piccolo + L"\\tappo";
        const bool feedPiccolo = feed.starts_with(piccolo);
        Programma programma(dati, feed);
        int falliti = 0;
        int riusciti = 0;
        for (std::size_t liberi = 0; liberi < 180; liberi += tutti ? 1 : 12) {
            SCOPED_TRACE(liberi);
            std::filesystem::remove(tappo);
            std::filesystem::remove_all(dati);
            riempi(feed, vecchio);
            ASSERT_EQ(leggiTutto(feed), vecchio);
            riempi(tappo,
                   std::string(disco - liberi * 1024 - (feedPiccolo ? vecchio.size() : 0), 't'));
            if (programma.salva()) {
                ++riusciti;
                EXPECT_TRUE(leggiTutto(feed).find("elemento 199") != std::string::npos);
                EXPECT_NE(programma.nelleCopie(vecchio),
                          programma.avviso().find(L"non è rimasta una copia") !=
                              std::wstring::npos);
            } else {
                ++falliti;
                EXPECT_TRUE(programma.nelleCopie(vecchio));
                EXPECT_FALSE(esiste(feed));
                EXPECT_TRUE(programma.modificato());
                EXPECT_EQ(programma.avviso(), L"");
            }
            programma.chiudiAvvisi();
        }
        EXPECT_GT(riusciti, 2);
        EXPECT_EQ(falliti > 2, feedPiccolo);
        std::filesystem::remove(tappo);
        std::filesystem::remove(feed);
        std::filesystem::remove_all(dati);
    }

    [[nodiscard]] std::wstring dati() const { return cartella.file(L"dati"); }

    CartellaProva cartella;
    std::wstring feed = cartella.scrivi(L"feed.xml", vecchio);
};

} // namespace

TEST_F(GuastiSalvataggio, IlDiscoDelFilePieno) {
    if (const auto piccolo = discoPiccolo()) {
        alDiscoPieno(*piccolo, *piccolo + L"\\feed.xml", dati());
    } else {
        GTEST_SKIP() << "no small disk here";
    }
}

TEST_F(GuastiSalvataggio, IlDiscoDelleCopiePieno) {
    if (const auto piccolo = discoPiccolo()) {
        alDiscoPieno(*piccolo, feed, *piccolo + L"\\dati");
    } else {
        GTEST_SKIP() << "no small disk here";
    }
}

// The usual case: all is on one disk.
TEST_F(GuastiSalvataggio, IlDiscoDiTuttiEDuePieno) {
    if (const auto piccolo = discoPiccolo()) {
        alDiscoPieno(*piccolo, *piccolo + L"\\feed.xml", *piccolo + L"\\dati");
    } else {
        GTEST_SKIP() << "no small disk here";
    }
}

TEST_F(GuastiSalvataggio, UnFileDiSolaLettura) {
    Programma programma(dati(), feed);
    ASSERT_TRUE(SetFileAttributesW(feed.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(programma.salva());
    EXPECT_EQ(leggiTutto(feed), vecchio);
    EXPECT_TRUE(programma.modificato());
    ASSERT_TRUE(SetFileAttributesW(feed.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_TRUE(programma.salva());
    EXPECT_TRUE(programma.nelleCopie(vecchio));
}

TEST_F(GuastiSalvataggio, UnaCartellaSparita) {
    const std::wstring qui = cartella.file(L"qui");
    const std::wstring altrove = cartella.file(L"altrove");
    std::filesystem::create_directory(qui);
    std::filesystem::rename(feed, qui + L"\\feed.xml");
    Programma programma(dati(), qui + L"\\feed.xml");
    std::filesystem::rename(qui, altrove);
    EXPECT_FALSE(programma.salva());
    EXPECT_EQ(leggiTutto(altrove + L"\\feed.xml"), vecchio);
    EXPECT_TRUE(programma.modificato());
    std::filesystem::rename(altrove, qui);
    EXPECT_TRUE(programma.salva());
    EXPECT_TRUE(programma.nelleCopie(vecchio));
}

TEST_F(GuastiSalvataggio, UnFileCheUnAltroProgrammaTieneAperto) {
    for (const DWORD condivide :
         {DWORD{0}, DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE},
          DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE}}) {
        SCOPED_TRACE(condivide);
        riempi(feed, vecchio);
        Programma programma(dati(), feed);
        {
            const ManigliaFile altrui(CreateFileW(feed.c_str(), GENERIC_READ, condivide, nullptr,
                                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
            ASSERT_TRUE(altrui);
            EXPECT_FALSE(programma.salva());
        }
        EXPECT_EQ(programma.errori().size(), 1U);
        EXPECT_TRUE(programma.modificato());
        // Who lets it go lets it go for good.
        EXPECT_NE((condivide & FILE_SHARE_DELETE) != 0, esiste(feed));
        EXPECT_TRUE(esiste(feed) ? leggiTutto(feed) == vecchio : programma.nelleCopie(vecchio));
        EXPECT_TRUE(programma.salva());
        EXPECT_TRUE(programma.nelleCopie(vecchio));
    }
}

TEST_F(GuastiSalvataggio, CopieCheUnAltroProgrammaTieneAperte) {
    Programma programma(dati(), feed);
    ASSERT_TRUE(programma.salva());
    ASSERT_TRUE(programma.nelleCopie(vecchio));
    const std::wstring copia =
        std::filesystem::directory_iterator(CopieFile(dati() + L"\\copie").cartella(feed))
            ->path()
            .wstring();
    const std::string altro = "<rss>" + std::string(1000, 'a') + "</rss>";
    riempi(feed, altro);
    {
        const ManigliaFile altrui(CreateFileW(copia.c_str(), GENERIC_READ, 0, nullptr,
                                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(altrui);
        EXPECT_TRUE(programma.salva());
    }
    EXPECT_TRUE(programma.nelleCopie(vecchio));
    EXPECT_TRUE(programma.nelleCopie(altro));
}

TEST_F(GuastiSalvataggio, SenzaCartellaDelleCopieSiSalvaESiDice) {
    Programma programma(cartella.scrivi(L"un file", ""), feed);
    EXPECT_TRUE(programma.salva());
    EXPECT_NE(programma.avviso().find(L"Della versione precedente di «feed.xml»"),
              std::wstring::npos);
    EXPECT_TRUE(programma.errori().empty());
}
