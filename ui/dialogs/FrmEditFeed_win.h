#pragma once

#include "document/clsItemRss.h"
#include "document/diario.h"
#include "support/tempo/dataora.h"
#include "support/windows/dpi_win.h"
#include "ui/controls/ancoraggi_win.h"
#include "ui/controls/campoTesto_win.h"
#include "ui/controls/dialogo_win.h"
#include "ui/controls/selettoreData_win.h"
#include "ui/controls/tastiDialogo_win.h"
#include "ui/dialogs/editorElementi.h"

class Messaggi;
class Orologio;

// By how much the user made the editor larger than it is, in pixels of that resolution; `tutta`
// over it all the screen.
struct MisuraEditor {
    SIZE inPiu{};
    bool tutta = false;
    Dpi dpi;
};

// The modal dialog that edits one item: fill Elemento, then mostra, then read Annullato and, where
// it is false, Elemento and DataOra. The three stay readable after the window is gone.
class FrmEditFeed final : public Dialogo {
public:
    // An item without a date is proposed with `ultimaData`. The services outlive the dialog.
    FrmEditFeed(Messaggi& messaggi, const Orologio& orologio, ::DataOra ultimaData) noexcept
        : messaggi_(messaggi), orologio_(orologio), ultimaData_(ultimaData) {}

    // Texts that were being written, as `testi` gave them: shown instead of what Elemento holds.
    void Bozza(const TestiCampi& testi) { bozza_ = testi; }
    // What the controls show.
    [[nodiscard]] TestiCampi testi() const;
    // The same, once they showed another thing than the item when this was asked; nothing before,
    // and when there is no window.
    [[nodiscard]] std::optional<TestiCampi> scritti();

    // The size to show the dialog with, as far as there is room for it; then the one that it had
    // when it was closed.
    [[nodiscard]] const std::optional<MisuraEditor>& Misura() const noexcept { return misura_; }
    void Misura(const std::optional<MisuraEditor>& valore) noexcept { misura_ = valore; }

    // Shows the dialog over `proprietaria` with what Elemento holds and waits until it was closed.
    // Raises the failure to make it.
    void mostra(HWND proprietaria);

    // True until the item was saved, at each showing anew.
    [[nodiscard]] bool Annullato() const noexcept { return annullato_; }
    [[nodiscard]] clsItemRss& Elemento() noexcept { return elemento_; }
    [[nodiscard]] const clsItemRss& Elemento() const noexcept { return elemento_; }
    // The local date and time chosen.
    [[nodiscard]] ::DataOra DataOra() const noexcept { return dataOra_; }

    // Fills the controls from Elemento. A date that cannot be read, or that the pickers cannot
    // hold, is told and replaced by now.
    void CaricaDati();

    // Writes the controls back into Elemento and DataOra. False after a failure, which was told;
    // for a text that no feed can hold its box then has the focus, and Elemento is as it was.
    [[nodiscard]] bool SalvaDati();

private:
    bool inizializza() override;
    INT_PTR messaggio(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void adattato() override;
    void onEccezione() noexcept override;

    void PulisciCampi() noexcept;
    void mostraBozza();
    void applicaMisura() noexcept;
    void ricordaMisura() noexcept;
    // A command by its number; what sent it, as WM_COMMAND says.
    [[nodiscard]] bool comando(int id, int notifica);
    void cmdSalva_Click();
    void cmdAnnulla_Click();
    // Says that a required field is missing.
    void rifiuta(const wchar_t* testo);

    Messaggi& messaggi_;
    const Orologio& orologio_;
    ::DataOra ultimaData_;

    bool annullato_ = true;
    clsItemRss elemento_;
    ::DataOra dataOra_;
    std::optional<TestiCampi> bozza_;
    TestiCampi iniziali_;
    bool toccato_ = false;
    std::optional<MisuraEditor> misura_;
    // What the user made it, as he made it: from one monitor to the next nothing is rounded twice.
    MisuraEditor voluta_;
    bool adattando_ = false;
    Ancoraggi ancoraggi_;
    TastiDialogo tasti_;

    CampoTesto txtTitolo_;
    CampoTesto txtLink_;
    CampoTesto txtAutore_;
    CampoTesto txtDescrizione_;
    SelettoreData txtData_;
    SelettoreData txtOrario_;
};

// The service on the real dialog, over the active window.
class EditorElementiWindows final : public EditorElementi {
public:
    EditorElementiWindows(Messaggi& messaggi, const Orologio& orologio) noexcept
        : messaggi_(messaggi), orologio_(orologio) {}

    [[nodiscard]] std::optional<DataOra> modifica(clsItemRss& elemento, DataOra ultimaData,
                                                  const TestiCampi* bozza) override;
    [[nodiscard]] std::optional<TestiCampi> testi() override;

private:
    Messaggi& messaggi_;
    const Orologio& orologio_;
    // While it is shown.
    FrmEditFeed* aperto_ = nullptr;
    // The last one's.
    std::optional<MisuraEditor> misura_;
};
