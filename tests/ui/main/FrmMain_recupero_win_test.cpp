#include "document/diario_win.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMainVera_win.h"
#include "tests/aiuti/frmMain_win.h"

#include <filesystem>
#include <memory>
#include <optional>

// Work that outlives its program, offered to the next one.

namespace {

class FrmMainRecupero : public ProvaFrmMain {
public:
    FrmMainRecupero() = default;
    FrmMainRecupero(const FrmMainRecupero&) = delete;
    FrmMainRecupero& operator=(const FrmMainRecupero&) = delete;

protected:
    ~FrmMainRecupero() override { chiudiSeconda(); }

    // A program that ended without being closed leaves its diary, held by nobody.
    std::wstring lascia(const LavoroNonSalvato& lavoro) {
        FileDiario file = FileDiario::crea(cartelle.diario, lavoro.ora);
        ScrittoreDiario scrittore([&](std::string_view byte) { file.aggiungi(byte); });
        scrittore.inizia(lavoro);
        return file.percorso();
    }
    [[nodiscard]] LavoroNonSalvato lavoro(const std::wstring& titoloElemento) const {
        LavoroNonSalvato l;
        l.ora = DataOra::daParti(2026, 11, 21, 13, 5, 0);
        l.percorso = L"C:\\feed\\notizie.xml";
        l.ultimaData = DataOra::daParti(2026, 1, 2, 3, 4, 5);
        l.modifiche = 3;
        ::metti(l.elementi, CampoElemento::Titolo, 0, titoloElemento);
        l.canale = testiCanale();
        return l;
    }
    // Texts for all the fields, in their order.
    [[nodiscard]] static TestiCampi testiCanale() {
        return {L"titolo",
                L"http://link.example",
                L"descrizione",
                L"it",
                L"diritti",
                comeTesto(DataOra::daParti(2026, 5, 6, 7, 8, 9)),
                L"web",
                L"logo",
                L"http://url.example",
                L"l",
                L"120",
                L"60"};
    }
    // A program that starts now.
    FrmMain& riavvia() {
        seconda = std::make_unique<FrmMain>(
            Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle}, altro);
        seconda->apri(SW_SHOWNORMAL);
        avvisi.emplace(*seconda);
        return *seconda;
    }
    void chiudiSeconda() {
        seconda.reset();
        // The window that went asked the loop to end.
        MSG msg{};
        PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }
    void preme(const wchar_t* didascalia) {
        SendMessageW(avvisi->pulsante(didascalia), BM_CLICK, 0, 0);
    }
    [[nodiscard]] std::size_t diari() const { return diariIn(cartelle.diario).size(); }

    Documento altro;
    std::unique_ptr<FrmMain> seconda;
    std::optional<AvvisiProva> avvisi;
};

constexpr const wchar_t* proposta =
    L"Lavoro non salvato su «notizie.xml», 21/11/2026 13:05: 3 elementi cambiati.";

} // namespace

TEST_F(FrmMainRecupero, SenzaDiariNonSiDiceNulla) {
    riavvia();
    EXPECT_EQ(avvisi->striscia(), nullptr);
}

TEST_F(FrmMainRecupero, IlLavoroSiOffreESiRiprende) {
    const std::wstring diario = lascia(lavoro(L"scritto"));
    FrmMain& nuova = riavvia();
    EXPECT_EQ(avvisi->detto(), proposta);
    preme(L"Recupera");
    EXPECT_EQ(avvisi->detto(), L"");
    EXPECT_EQ(altro.elementi().conteggio(), 1);
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 0), L"scritto");
    EXPECT_EQ(altro.percorso(), L"C:\\feed\\notizie.xml");
    EXPECT_EQ(altro.ultimaData(), DataOra::daParti(2026, 1, 2, 3, 4, 5));
    EXPECT_TRUE(altro.modificato());
    EXPECT_EQ(testoDi(nuova.hwnd()), L"Ostrelle  [C:\\feed\\notizie.xml]");
    CampiProva suoi(nuova);
    EXPECT_EQ(suoi.testo(IDC_TXTDESCRIZIONE), L"descrizione");
    EXPECT_EQ(suoi.dataOra(), DataOra::daParti(2026, 5, 6, 7, 8, 9));
    EXPECT_EQ(suoi.txtLarghezza().Valore(), 120);
    EXPECT_EQ(suoi.txtAltezza().Valore(), 60);
    EXPECT_EQ(grigliaDi(nuova).elemento(1), 0);
    // It has a diary of its own at once; the old one is gone.
    EXPECT_FALSE(std::filesystem::exists(diario));
    EXPECT_EQ(diari(), 1U);
}

TEST_F(FrmMainRecupero, IlLavoroRipresoSopravviveDiNuovo) {
    lascia(lavoro(L"scritto"));
    riavvia();
    preme(L"Recupera");
    altro.applica(altro.aggiunta(elementoVuoto()));
    // Gone without being closed.
    chiudiSeconda();
    const auto restati = diariIn(cartelle.diario);
    ASSERT_EQ(restati.size(), 1U);
    const auto lettura = leggiDiario(FileDiario::prendi(restati.front())->leggi());
    EXPECT_EQ(lettura.lavoro->elementi.conteggio(), 2);
    EXPECT_EQ(lettura.lavoro->modifiche, 4);
    EXPECT_EQ(lettura.lavoro->canale, testiCanale());
}

TEST_F(FrmMainRecupero, PrimaSiChiedeDelDocumentoCheCE) {
    const std::wstring diario = lascia(lavoro(L"scritto"));
    riavvia();
    altro.applica(altro.aggiunta(elementoVuoto()));
    attendiDomanda(Risposta::Annulla);
    preme(L"Recupera");
    EXPECT_EQ(avvisi->detto(), proposta);
    EXPECT_TRUE(std::filesystem::exists(diario));
    attendiDomanda(Risposta::No);
    preme(L"Recupera");
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 0), L"scritto");
}

TEST_F(FrmMainRecupero, EliminareSiChiede) {
    const std::wstring diario = lascia(lavoro(L"scritto"));
    riavvia();
    const auto domanda = [&](Risposta risposta) {
        messaggi.attendi(L"Si desidera eliminare realmente il lavoro non salvato?",
                         testi::attenzione, Icona::Domanda, Pulsanti::SiNo, risposta);
    };
    domanda(Risposta::No);
    preme(L"Elimina");
    EXPECT_EQ(avvisi->detto(), proposta);
    EXPECT_TRUE(std::filesystem::exists(diario));
    domanda(Risposta::Si);
    preme(L"Elimina");
    EXPECT_EQ(avvisi->detto(), L"");
    EXPECT_FALSE(std::filesystem::exists(diario));
}

TEST_F(FrmMainRecupero, PiuDiariSiOffronoUnoDopoLAltro) {
    lascia(lavoro(L"primo"));
    LavoroNonSalvato secondo = lavoro(L"secondo");
    secondo.ora = secondo.ora.piuSecondi(60);
    secondo.percorso.clear();
    lascia(secondo);
    riavvia();
    EXPECT_EQ(avvisi->detto(), proposta);
    // Left for another time.
    SendMessageW(avvisi->chiudi(), BM_CLICK, 0, 0);
    EXPECT_EQ(avvisi->detto(),
              L"Lavoro non salvato su «Nuovo Documento», 21/11/2026 13:06: 3 elementi cambiati.");
    preme(L"Recupera");
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 0), L"secondo");
    EXPECT_EQ(testoDi(seconda->hwnd()), L"Ostrelle  [Nuovo Documento]");
    EXPECT_EQ(avvisi->detto(), L"");
    // The first one is still there, and its own.
    EXPECT_EQ(diari(), 2U);
}

TEST_F(FrmMainRecupero, UnDiarioTenutoNonSiTocca) {
    const std::wstring diario = lascia(lavoro(L"scritto"));
    const auto tenuto = FileDiario::prendi(diario);
    ASSERT_TRUE(tenuto);
    riavvia();
    EXPECT_EQ(avvisi->striscia(), nullptr);
    EXPECT_TRUE(std::filesystem::exists(diario));
}

TEST_F(FrmMainRecupero, DueProgrammiNonOffronoLoStessoDiario) {
    lascia(lavoro(L"scritto"));
    riavvia();
    EXPECT_EQ(avvisi->detto(), proposta);
    Documento terzo;
    FrmMain terza{Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle},
                  terzo};
    terza.apri(SW_SHOWNORMAL);
    EXPECT_EQ(AvvisiProva(terza).detto(), L"");
}

TEST_F(FrmMainRecupero, UnFormatoSuccessivoRestaDovE) {
    FileDiario file = FileDiario::crea(cartelle.diario, DataOra::daParti(2030, 1, 1));
    file.aggiungi("OSTRELLE DIARIO 2 tutto nuovo");
    const std::wstring percorso = file.percorso();
    { const FileDiario chiuso = std::move(file); }
    riavvia();
    EXPECT_EQ(avvisi->detto(), L"Il diario «2030-01-01 00.00.00.diario» è di una versione "
                               L"successiva di Ostrelle: resta dov'è.");
    EXPECT_EQ(avvisi->pulsante(L"Elimina"), nullptr);
    EXPECT_TRUE(std::filesystem::exists(percorso));
}

TEST_F(FrmMainRecupero, UnDiarioIllegibileSiDiceENonSiButta) {
    const std::wstring diario = lascia(lavoro(L"scritto"));
    std::filesystem::resize_file(diario, 30);
    riavvia();
    EXPECT_EQ(avvisi->detto(), L"Il diario «2026-11-21 13.05.00.diario» di un lavoro non salvato "
                               L"non si legge.");
    EXPECT_TRUE(std::filesystem::exists(diario));
    EXPECT_NE(avvisi->pulsante(L"Elimina"), nullptr);
}

TEST_F(FrmMainRecupero, LElementoInScritturaSiRiapreNellEditor) {
    LavoroNonSalvato l = lavoro(L"scritto");
    l.bozza = Bozza{.indice = 0, .testi = {L"in corso", L"a", L"b", L"c", L"0"}};
    lascia(l);
    riavvia();
    editor.attendi([&](clsItemRss& elemento, DataOra data) {
        EXPECT_EQ(elemento.sTitle(), L"scritto");
        elemento.sTitle(L"finito");
        return std::optional(data);
    });
    preme(L"Recupera");
    EXPECT_EQ(editor.bozza(), l.bozza->testi);
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 0), L"finito");
}

TEST_F(FrmMainRecupero, AncheUnElementoNuovoSiRiapreNellEditor) {
    LavoroNonSalvato l = lavoro(L"scritto");
    l.bozza = Bozza{.indice = -1, .testi = {L"in corso", L"a", L"b", L"c", L"0"}};
    lascia(l);
    riavvia();
    editor.attendi([&](clsItemRss& elemento, DataOra data) {
        EXPECT_EQ(elemento.sTitle(), L"");
        elemento.sTitle(L"nuovo");
        return std::optional(data);
    });
    preme(L"Recupera");
    EXPECT_EQ(editor.bozza(), l.bozza->testi);
    ASSERT_EQ(altro.elementi().conteggio(), 2);
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 0), L"scritto");
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 1), L"nuovo");
}

TEST_F(FrmMainRecupero, DoveNonSiPuoAnnotareLoDiceLaStriscia) {
    cartelle.diario = cartella.scrivi(L"file", "") + L"\\diario";
    FrmMain& nuova = riavvia();
    EXPECT_EQ(avvisi->detto(), L"");
    mettiElemento(nuova, altro, L"x");
    constexpr std::wstring_view inizio = L"Il lavoro non salvato non si può annotare: ";
    EXPECT_TRUE(avvisi->detto().starts_with(inizio)) << inUtf8(avvisi->detto());
    EXPECT_GT(avvisi->detto().size(), inizio.size());
    EXPECT_EQ(altro.elementi().conteggio(), 1);
}

TEST_F(FrmMainRecupero, ChiusaRegolarmenteNonLasciaNulla) {
    riavvia();
    altro.applica(altro.aggiunta(elementoVuoto()));
    EXPECT_EQ(diari(), 1U);
    attendiDomanda(Risposta::No);
    SendMessageW(seconda->hwnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(diari(), 0U);
}

TEST_F(FrmMainRecupero, SalvatoNonLasciaNulla) {
    metti(L"uno");
    EXPECT_EQ(diari(), 1U);
    dialoghi.attendiSalva(richiestaSalva, cartella.file(L"a.xml"));
    ASSERT_TRUE(finestra.Salva(false));
    EXPECT_EQ(diari(), 0U);
}

TEST_F(FrmMainRecupero, UnSalvataggioFallitoLasciaIlDiario) {
    metti(L"uno");
    const std::wstring percorso = cartella.file(L"manca\\a.xml");
    dialoghi.attendiSalva(richiestaSalva, percorso);
    attendiErrore(76);
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_EQ(diari(), 1U);
}

TEST_F(FrmMainRecupero, LaFineDellaSessioneSenzaRispostaLascaIlDiario) {
    metti(L"uno");
    SendMessageW(finestra.hwnd(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(diari(), 1U);
    finestra.ImpostaModificato();
    attendiDomanda(Risposta::No);
    EXPECT_TRUE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
    EXPECT_EQ(diari(), 1U);
    SendMessageW(finestra.hwnd(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(diari(), 0U);
}

TEST_F(FrmMainRecupero, ICampiDelCanaleFinisconoNelDiario) {
    SetFocus(campo(IDC_TXTTITOLO));
    scrivi(L"Titolo nuovo");
    finestra.codaVuota();
    const auto trovati = diariIn(cartelle.diario);
    ASSERT_EQ(trovati.size(), 1U);
    EXPECT_FALSE(FileDiario::prendi(trovati.front()));
}

class FrmMainRecuperoVero : public ProvaFrmMainVera {};

// The editor is modal: its texts are written while its own loop waits.
TEST_F(FrmMainRecuperoVero, CioCheSiScriveNellEditorFinisceNelDiario) {
    std::uintmax_t prima = 0;
    const auto lunghezza = [&] {
        const auto trovati = diariIn(cartelle.diario);
        return trovati.size() != 1 ? std::uintmax_t{0}
                                   : std::filesystem::file_size(trovati.front());
    };
    // Each step in a turn of the dialog's own loop, which was idle before.
    std::optional<QuandoAppare> poi;
    std::optional<QuandoAppare> infine;
    const QuandoAppare editore(boxWindows, L"", [&](HWND aperto) {
        SetFocus(GetDlgItem(aperto, IDC_EDITTITOLO));
        scrivi(L"a");
        poi.emplace(boxWindows, L"", [&](HWND) {
            prima = lunghezza();
            scrivi(L"b");
            infine.emplace(boxWindows, L"", [&](HWND dialogo) {
                EXPECT_GT(lunghezza(), prima);
                PostMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
            });
        });
    });
    finestra.esegui(mnaddFeed);
    EXPECT_GT(prima, 0U);
    EXPECT_EQ(lunghezza(), 0U);
}
