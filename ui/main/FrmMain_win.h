#pragma once

#include "document/custodeLavoro_win.h"
#include "document/documento.h"
#include "document/storia.h"
#include "support/windows/dpi_win.h"
#include "support/windows/maniglie_win.h"
#include "ui/controls/finestra_win.h"
#include "ui/controls/griglia_win.h"
#include "ui/controls/strisciaAvvisi_win.h"
#include "ui/dialogs/editorElementi.h"
#include "ui/main/GUI_win.h"
#include "ui/main/barraStrumenti_win.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/custodeCopie_win.h"
#include "ui/main/esecutoreComandi_win.h"
#include "ui/main/finestraPrincipale_win.h"
#include "ui/main/menu_win.h"
#include "ui/main/partiComandi_win.h"
#include "ui/main/recenti.h"
#include "ui/main/recupero_win.h"
#include "ui/main/servizi.h"
#include "ui/main/strisciaComandi_win.h"
#include "ui/main/vistaElementi_win.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// What the diary reads of the windows.
class TestiFinestra final : public TestiInScrittura {
public:
    TestiFinestra(const CampiCanale& campi, EditorElementi& editor) noexcept
        : campi_(campi), editor_(editor) {}

    [[nodiscard]] TestiCampi canale() const override { return campi_.testi(); }
    [[nodiscard]] std::optional<TestiCampi> editor() const override { return editor_.testi(); }

private:
    const CampiCanale& campi_;
    EditorElementi& editor_;
};

// The program's only main window. Composes what the fields, the grid and the commands do; holds no
// rule of theirs.
class FrmMain final : public Finestra,
                      private FinestraPrincipale,
                      private OsservatoreGriglia,
                      private OsservatoreAvvisi {
public:
    // False, after a message, when the system has no XML parser: the program then ends without
    // ever showing a window.
    [[nodiscard]] static bool Form_Initialize(Messaggi& messaggi);

    // All outlive the window. The document's last item date becomes now.
    FrmMain(const Servizi& servizi, Documento& documento);
    FrmMain(const FrmMain&) = delete;
    FrmMain& operator=(const FrmMain&) = delete;
    ~FrmMain() override { distruggi(); }

    // Makes the window (Form_Load runs) and shows it, for its monitor's resolution unless another
    // is given. Raises the failure to make it.
    void apri(int comeMostrare, std::optional<Dpi> dpi = std::nullopt);

    // Runs messages until the window is gone; gives the program's exit code.
    int cicloMessaggi();

    // Nothing is left to do: what waited for that is done.
    void codaVuota() noexcept {
        custodeLavoro_.codaVuota();
        parti_.documento.codaVuota();
    }

    // What a message meets before it is translated and dispatched: the find dialog's keys in that
    // dialog, here accelerators, then the dialog keys. True when one of them took it.
    [[nodiscard]] bool anticipa(MSG& messaggio);

    void ImpostaTitolo(std::wstring_view nome) override;
    void ImpostaStato(std::wstring_view testo) override;
    [[nodiscard]] std::wstring_view stato() const noexcept override { return stato_; }
    void ImpostaModificato() noexcept { documento_.modificato(true); }
    void NuovoDocumento() override;
    void RiempiGriglia(bool soloIntestazioni) override;
    // A row of the grid: row r shows item r - 1.
    void SelezionaRiga(int riga) override { GUI::SelezionaRiga(griglia_, riga); }
    // The item of the grid's current row, -1 when the row shows none.
    [[nodiscard]] int ElementoSelezionato() const noexcept {
        return griglia_.ElementoSelezionato();
    }
    void CaricaRecenti() override;
    void MostraErrore() override;
    // What is said before the window is there shows with it.
    [[nodiscard]] Avvisi& avvisi() noexcept { return avvisi_; }

    // See ComandiDocumento.
    [[nodiscard]] bool ChiediSalvataggio() { return parti_.documento.ChiediSalvataggio(); }
    bool Apri(const std::wstring& percorso) { return parti_.documento.Apri(percorso); }
    bool Salva(bool conNome) { return parti_.documento.Salva(conNome); }

    // Opens a file as the recent files do, for one that came from outside: the window comes to the
    // front, since a question may be asked. Ignored for an empty path and while a command is at
    // work.
    void apriDaFuori(const std::wstring& percorso);

    // Runs a command as menu, toolbar and keys do, on the current row. Ignored while another one is
    // at work.
    void esegui(int comando) { esecutore_.esegui(comando, griglia_.rigaCorrente()); }

private:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override;
    void cmdGetSize_Click() override;
    void mnChiudi_Click() override;
    [[nodiscard]] HWND proprietaria() const noexcept override { return hwnd(); }

    void grigliaDoppioClic(int riga) override;
    void grigliaSposta(int da, int a) override;
    void grigliaMenu(POINT punto, int riga) override;

    void avvisiCambiati() override { Form_Resize(); }
    void avvisoAzione(const std::function<void()>& azione) override { esecutore_.daSolo(azione); }

    void Form_Load();
    void Form_Resize();
    // The inner and the outer size in pixels: what the parts' places go by.
    struct Misure {
        SIZE interne{};
        SIZE esterne{};
        [[nodiscard]] bool operator==(const Misure& altre) const noexcept {
            return interne.cx == altre.interne.cx && interne.cy == altre.interne.cy &&
                   esterne.cx == altre.esterne.cx && esterne.cy == altre.esterne.cy;
        }
    };
    [[nodiscard]] Misure misure() const noexcept;
    // False cancels the close.
    [[nodiscard]] bool Form_QueryUnload() { return ChiediSalvataggio(); }
    void Form_Unload() noexcept;

    // The diary cannot be kept: why is in the exception being handled.
    void avvisaSenzaDiario() noexcept;

    // Gives the window its first place, in the middle of the work area.
    void posa() noexcept;
    [[nodiscard]] POINT misuraMinima() const noexcept;
    void creaControlli();
    // The window's fonts and sizes for its resolution; the fields come first.
    void adattaParti();
    void caratteriDiSistema();
    void cambiaDpi(Dpi dpi, const RECT& posto);
    // Runs the command of a key of the grid, when it is one and the grid has the focus.
    [[nodiscard]] bool acceleraGriglia(MSG& messaggio);

    Servizi servizi_;
    Documento& documento_;
    ElencoRecenti recenti_;
    CampiCanale campi_;
    Griglia griglia_;
    Sfondo sfondo_;
    StrisciaComandi striscia_;
    StrisciaAvvisi avvisi_;
    BarraStrumenti Toolbar1_;
    // In this order they hear of the document's changes.
    Storia storia_;
    TestiFinestra testi_;
    CustodeLavoro custodeLavoro_;
    VistaElementi vista_;
    CustodeCopie custodeCopie_;
    PartiComandi parti_;
    EsecutoreComandi esecutore_;
    Recupero recupero_;
    Acceleratori acceleratori_;
    Acceleratori acceleratoriGriglia_;
    HWND StatusBar1_ = nullptr;
    std::wstring stato_;
    // Of the status bar and of tooltips.
    Carattere carattereStato_;
    std::optional<Dpi> dpiIniziale_;
    // When the parts got their places.
    Misure disposta_;
    HWND fuoco_ = nullptr;
    // The end of the session was agreed to.
    bool congedata_ = false;
};
