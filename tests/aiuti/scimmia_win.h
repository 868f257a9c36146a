#pragma once

#include "res/risorse.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/servizi/cartelleDati.h"
#include "support/servizi/dialoghiFile.h"
#include "support/servizi/messaggi.h"
#include "tests/aiuti/campi_prova_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/elementi_prova_win.h"
#include "tests/aiuti/impostazioni_finte.h"
#include "tests/aiuti/orologio_fermo.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/dialogs/editorElementi.h"
#include "ui/main/FrmMain_win.h"

#include <windows.h>

#include <array>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Does random things to the real main window and answers at random what it asks. What the items
// must be afterwards it knows from what it did, what it was asked, what it answered and which row
// it sees marked; it asks the program for nothing but an item's new guid.
class Scimmia : private Messaggi,
                private DialoghiFile,
                private EditorElementi,
                private Impostazioni {
public:
    struct Conti {
        int aggiunti = 0;
        int modificati = 0;
        int cancellati = 0;
        int spostati = 0;
        int salvati = 0;
        int aperti = 0;
        int annullati = 0;
        int incollati = 0;
        int lasciati = 0;
        int trovati = 0;
        int avvisi = 0;
        int monitor = 0;
        // Of all, those of the warm-up and of the way back too.
        int cambiDpi = 0;
    };

    explicit Scimmia(std::uint32_t seme);
    Scimmia(const Scimmia&) = delete;
    Scimmia& operator=(const Scimmia&) = delete;
    ~Scimmia() override;

    // Makes what is made once, when it is first needed: the strip, the find dialog.
    void scalda();
    // One random thing, then the comparison with the model.
    void passo();
    // The window as it was at the start.
    void riposa();

    // What is wrong since the start; empty when nothing is.
    [[nodiscard]] const std::string& guasto() const noexcept { return guasto_; }
    // The last step, in words.
    [[nodiscard]] const std::string& fatto() const noexcept { return fatto_; }
    [[nodiscard]] const Conti& conti() const noexcept { return conti_; }

private:
    using Elemento = std::array<std::wstring, numeroCampi>;
    using Modello = std::vector<Elemento>;

    // What the window asks.
    Risposta mostra(const std::wstring& testo, const std::wstring& titolo, Icona icona,
                    Pulsanti pulsanti) override;
    std::wstring apri(const RichiestaFile& richiesta) override;
    std::wstring salva(const RichiestaFile& richiesta) override;
    std::optional<DataOra> modifica(clsItemRss& elemento, DataOra ultimaData,
                                    const TestiCampi* bozza) override;
    [[nodiscard]] std::optional<TestiCampi> testi() override { return std::nullopt; }
    [[nodiscard]] std::wstring leggi(std::wstring_view sezione, std::wstring_view chiave,
                                     std::wstring_view altrimenti) const override {
        return valori_.leggi(sezione, chiave, altrimenti);
    }
    void scrivi(std::wstring_view sezione, std::wstring_view chiave,
                std::wstring_view valore) override;

    // What it does.
    void tasto();
    void scriveTesto();
    void clicca();
    void trascinaInUnCampo();
    void trascinaInGriglia();
    void menuGriglia();
    void comando();
    void eseguiUno(int comando);
    void nuovo();
    void apre(int comando);
    void ridimensiona();
    void chiudeEAnnulla();
    void annullaORipete();
    void ripercorre(std::size_t posto);
    void usaAppunti();
    void lascia();
    void lascia(std::wstring percorso);
    void cerca();
    void risponde();
    void cambiaMonitor();

    [[nodiscard]] Griglia& griglia() { return grigliaDi(finestra_); }
    // The item whose row is marked, or -1.
    [[nodiscard]] int scelto() const;
    // Where a search must come to.
    [[nodiscard]] std::optional<int> atteso(bool avanti) const;
    void controllaTrovato(std::optional<int> voluto, int prima);
    // The dialog in front, in a while; null when none comes.
    [[nodiscard]] HWND attendiDialogo();

    // What another monitor leaves as it is.
    struct InVista {
        std::vector<std::wstring> canale;
        std::wstring titolo;
        std::wstring avviso;
        HWND fuoco = nullptr;
        std::pair<DWORD, DWORD> scelta;
        int riga = -1;

        bool operator==(const InVista&) const = default;
        [[nodiscard]] std::string detto() const;
    };
    [[nodiscard]] InVista inVista() const;
    void portaA(int dpi, const RECT& posto);

    void confronta();
    void controllaFile(const std::wstring& percorso);
    // New items' guids, which the program makes.
    void impara();
    // The items were changed: undo takes that back. Before the next change begins, and a step may
    // make two.
    void ricorda();
    // Another document: nothing before it can be taken back.
    void ricomincia();
    void segnala(std::string guasto);
    // Moves an item of the model; whether there was one to move elsewhere.
    bool sposta(int da, int a);
    // The texts of the channel's fields.
    [[nodiscard]] std::vector<std::wstring> testiCanale() const;
    // Whether the document, as the window shows it, must not go without a question.
    [[nodiscard]] bool daChiedere() const;
    // After scelto_ was to be opened.
    void aperto();
    // After what throws the document away; `attesa`: a question had to come first.
    void controllaDomanda(bool attesa);
    // Whether the question of this step, if any, let the document go.
    [[nodiscard]] bool lasciato() const;

    [[nodiscard]] int caso(int quanti);
    [[nodiscard]] std::wstring testoCaso(int massimo);
    [[nodiscard]] std::wstring testoLettere(int massimo);
    [[nodiscard]] std::wstring percorsoDaLeggere();
    // Another program writes conPerdite_ anew: a save may have been there.
    const std::wstring& perdite();
    [[nodiscard]] std::wstring percorsoCaso(bool salvataggio);
    // A random point of a random control, where a press starts no loop of the system's own.
    struct Posto {
        HWND finestra;
        POINT punto;
    };
    [[nodiscard]] std::optional<Posto> postoCaso();
    [[nodiscard]] std::optional<POINT> puntoGriglia();
    void portaFuoco();

    static void CALLBACK sorveglia(HWND, UINT, UINT_PTR, DWORD) noexcept;
    void sorveglia();

    std::mt19937 generatore_;
    OrologioFermo orologio_{DataOra::daParti(2005, 11, 15, 10, 0, 0)};
    ImpostazioniFinte valori_;
    ClsCodaEliminazione coda_;
    CartellaProva dati_;
    CartelleDati cartelle_{dati_.file(L"copie"), dati_.file(L"diario")};
    CartellaProva cartella_;
    std::wstring rovinato_;
    // With what a save drops, which the strip tells.
    std::wstring conPerdite_;
    Registratore registratore_;
    Documento documento_;
    FrmMain finestra_{Servizi{*this, *this, orologio_, *this, coda_, *this, cartelle_}, documento_};
    CampiProva campi_{finestra_};
    ConFiltro filtro_{[this](MSG& msg) { return finestra_.anticipa(msg); }};
    UINT_PTR timer_;

    Modello modello_;
    // What undo walks through, and where it stands.
    std::vector<Modello> storia_{1};
    std::size_t posto_ = 0;
    // The items were changed since they were opened or saved; and the fields as they were then.
    bool cambiati_ = false;
    std::vector<std::wstring> canale_;
    // What the grid put on the clipboard, whether it was cut, and the clipboard's number then.
    std::optional<std::pair<Elemento, bool>> appunti_;
    DWORD numeroAppunti_ = 0;
    // What was searched for last.
    std::wstring cercato_;
    bool esatto_ = false;
    // By path in lower case, as the recent files hold it.
    std::map<std::wstring, Modello> salvati_;
    // The resolution of the monitor on which the window is; how high a row is at 96 dpi.
    int dpi_ = 96;
    int altezza96_ = 0;
    Conti conti_;
    std::string guasto_;
    std::string fatto_;

    // Of the current step.
    std::optional<Risposta> domanda_;
    bool salvato_ = false;
    bool chiude_ = false;
    std::wstring scelto_;
    // How many entries down to go in a menu that comes up; -1 leaves it.
    int voceMenu_ = -1;
    int battiti_ = 0;
    bool nellEditor_ = false;
    // The rows were moved with the mouse, which does not count as a change.
    bool trascinato_ = false;
    // The dialog in front is the find dialog, which is being used.
    bool cerca_ = false;
};
