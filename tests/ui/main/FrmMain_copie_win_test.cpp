#include "document/copie_win.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/registratore_win.h"

#include <filesystem>

// The copies that a save leaves, and what the strip says of them.

namespace {

class FrmMainCopie : public ProvaFrmMain {
protected:
    [[nodiscard]] std::vector<std::string> copieDi(const std::wstring& percorso) const {
        std::vector<std::string> contenuti;
        const std::wstring dove = CopieFile(cartelle.copie).cartella(percorso);
        if (std::filesystem::exists(dove)) {
            for (const auto& voce : std::filesystem::directory_iterator(dove)) {
                contenuti.push_back(leggiTutto(voce.path().wstring()));
            }
        }
        return contenuti;
    }
    std::wstring apriFeed(std::string_view resto = "") {
        std::wstring feed =
            cartella.scrivi(L"notizie.xml", rssCon("<title>C</title>" + std::string(resto) +
                                                   "<item><title>uno</title></item>"));
        EXPECT_TRUE(finestra.Apri(feed));
        return feed;
    }

    AvvisiProva avvisi{finestra};
};

constexpr const wchar_t* cambiato =
    L"Il file era stato cambiato da un altro programma: la versione che c'era è nelle copie.";

} // namespace

TEST_F(FrmMainCopie, IlFileDiPrimaRestaTraLeCopie) {
    const std::wstring feed = apriFeed();
    const std::string prima = leggiTutto(feed);
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_EQ(copieDi(feed), std::vector<std::string>{prima});
    EXPECT_NE(leggiTutto(feed), prima);
    EXPECT_EQ(avvisi.detto(), L"");
}

TEST_F(FrmMainCopie, UnFileNuovoNonNeHa) {
    metti(L"uno");
    const std::wstring feed = cartella.file(L"nuovo.xml");
    dialoghi.attendiSalva(richiestaSalva, feed);
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_FALSE(std::filesystem::exists(cartelle.copie));
    // The second save has.
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_EQ(copieDi(feed).size(), 1U);
}

TEST_F(FrmMainCopie, CioCheUnAltroProgrammaHaScrittoSiSalvaESiDice) {
    const std::wstring feed = apriFeed();
    const std::string altrui = rssCon("<title>di un altro</title>");
    static_cast<void>(cartella.scrivi(L"notizie.xml", altrui));
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_EQ(avvisi.detto(), cambiato);
    EXPECT_EQ(copieDi(feed), std::vector<std::string>{altrui});
    EXPECT_NE(avvisi.pulsante(L"Apri le copie"), nullptr);
}

TEST_F(FrmMainCopie, DopoIlProprioSalvataggioIlFileEQuelloNoto) {
    apriFeed();
    ASSERT_TRUE(finestra.Salva(false));
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_EQ(avvisi.detto(), L"");
}

TEST_F(FrmMainCopie, LaPaginaSostituitaRestaTraLeCopie) {
    metti(L"uno");
    const std::wstring pagina = cartella.scrivi(L"p.htm", "vecchia pagina");
    const RichiestaFile richiestaPagina{
        L"Pagina Web (*.htm; *.html)|*.htm; *.html|Tutti i File (*.*)|*.*", opzioniSalva, L".htm"};
    dialoghi.attendiSalva(richiestaPagina, pagina);
    messaggi.attendi(testi::domandaApri, testi::salvaPagina, Icona::Domanda, Pulsanti::SiNo,
                     Risposta::No);
    finestra.esegui(mnsalvahtm);
    EXPECT_EQ(copieDi(pagina), std::vector<std::string>{"vecchia pagina"});
}

TEST_F(FrmMainCopie, SenzaPostoPerLaCopiaSiSalvaESiDice) {
    const std::wstring feed = apriFeed();
    // A file stands where the folder should.
    static_cast<void>(cartella.scrivi(L"dati", ""));
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_TRUE(avvisi.detto().starts_with(
        L"Della versione precedente di «notizie.xml» non è rimasta una copia: "))
        << inUtf8(avvisi.detto());
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainCopie, CioCheUnSalvataggioPerdeSiDiceAprendo) {
    apriFeed("<ttl>5</ttl><ttl>6</ttl><category>x</category>");
    EXPECT_EQ(avvisi.detto(), L"Salvando, di questo feed non restano: ttl (2), category (1).");
    // No longer, once it is saved or gone.
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_EQ(avvisi.detto(), L"");
    apriFeed("<ttl>5</ttl>");
    EXPECT_NE(avvisi.detto(), L"");
    finestra.esegui(mnNuovo);
    EXPECT_EQ(avvisi.detto(), L"");
}

TEST_F(FrmMainCopie, ApriLeCopieMostraLaCartella) {
    Registratore registratore;
    registratore.protocollo(L"Folder");
    const std::wstring feed = apriFeed("<ttl>5</ttl>");
    SendMessageW(avvisi.pulsante(L"Apri le copie"), BM_CLICK, 0, 0);
    // Made for whoever looks before the first save.
    const std::wstring dove = CopieFile(cartelle.copie).cartella(feed);
    EXPECT_TRUE(std::filesystem::is_directory(dove));
    EXPECT_EQ(registratore.attendi().obiettivo, dove);
}
