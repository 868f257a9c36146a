#pragma once

#include "document/canale.h"
#include "document/diario.h"
#include "document/documento.h"
#include "res/risorse.h"
#include "support/tempo/dataora.h"
#include "support/windows/dpi_win.h"
#include "ui/controls/KOInputNumerico_win.h"
#include "ui/controls/campoTesto_win.h"
#include "ui/controls/dialogo_win.h"
#include "ui/controls/selettoreData_win.h"
#include "ui/controls/suggerimenti_win.h"
#include "ui/main/disposizione.h"
#include "ui/main/finestraPrincipale_win.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

// A control of the frame and the value that it carries: of the channel, or of its image.
struct ControlloCanale {
    int id;
    std::wstring Canale::*membro = nullptr;
    const std::wstring& (clsImgRss::*immagine)() const noexcept = nullptr;

    // txtData stands for both pickers; all the others are texts.
    [[nodiscard]] constexpr bool testo() const noexcept { return id != IDC_TXTDATA; }
};

// In the order of the form, in which they are filled and read. Width and height are apart.
inline constexpr std::array controlliCanale{
    ControlloCanale{IDC_TXTTITOLO, &Canale::title},
    ControlloCanale{IDC_TXTLINKHOME, &Canale::link},
    ControlloCanale{IDC_TXTDESCRIZIONE, &Canale::description},
    ControlloCanale{IDC_CBOLINGUA, &Canale::language},
    ControlloCanale{IDC_TXTCOPYRIGHT, &Canale::copyright},
    ControlloCanale{IDC_TXTDATA, &Canale::lastBuildDate},
    ControlloCanale{IDC_TXTWEBMASTER, &Canale::webMaster},
    ControlloCanale{IDC_TXTLOGO, nullptr, &clsImgRss::sTitle},
    ControlloCanale{IDC_TXTURL, nullptr, &clsImgRss::sUrl},
    ControlloCanale{IDC_TXTLINKIMG, nullptr, &clsImgRss::sLink},
};

// The frame fraDati with the channel's fields. The values live in the controls.
class CampiCanale final : public Dialogo, private EventiNumerico {
public:
    // A value that really changed, by the user or by code, makes the document modified.
    CampiCanale(FinestraPrincipale& finestra, Documento& documento) noexcept
        : finestra_(finestra), documento_(documento) {}

    // The text of a control of the table.
    [[nodiscard]] std::wstring testo(int id) const;
    void testo(int id, std::wstring_view valore);

    // The date of txtData with the time of txtOrario.
    [[nodiscard]] DataOra dataOra() const;
    // Gives both pickers the same date and time; raises 380 for what they cannot hold.
    void dataOra(DataOra valore);

    // All that the fields show, and back; what a field refuses is passed over.
    [[nodiscard]] TestiCampi testi() const;
    void testi(const TestiCampi& valori) noexcept;

    // What leaving the field that has the focus would do, for a command, which leaves it there.
    void conferma();

    // Pixels, 0 to 10000. Assigning beyond that raises 380 and changes nothing.
    [[nodiscard]] KOInputNumerico& txtLarghezza() const;
    [[nodiscard]] KOInputNumerico& txtAltezza() const;

    // Gives both boxes a size in pixels, or raises 380 and leaves both as they were.
    void dimensioni(std::int32_t larghezza, std::int32_t altezza);

    // Path of the document's file; empty for a new document.
    [[nodiscard]] const std::wstring& Tag() const noexcept { return documento_.percorso(); }
    void Tag(std::wstring valore) noexcept { documento_.percorso(std::move(valore)); }

    // All nine texts are blank.
    [[nodiscard]] bool vuoti() const;

    // The empty state of every kind of control; what a control refuses is passed over.
    void Svuota(DataOra adesso) noexcept;

    // Fills in what the layout needs to know of the frame.
    void misura(MisureFinestra& misure, Dpi dpi) const;
    // Places the frame and the fields that follow its width.
    void disponi(const Disposizione& disposizione, Dpi dpi);

private:
    bool inizializza() override;
    INT_PTR messaggio(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void adattato() override { suggerimenti_.adatta(); }
    void onEccezione() noexcept override { finestra_.onEccezione(); }

    void CambioValore(KOInputNumerico& controllo, double valore) override;

    // Makes the labels' tooltips when the pointer first comes over the fields: many a start does
    // without.
    void suggerisci();

    // In pixels of the frame.
    [[nodiscard]] RECT rettangolo(HWND campo) const noexcept;

    // Which of the controls it is.
    [[nodiscard]] static std::size_t posto(int id) noexcept;

    FinestraPrincipale& finestra_;
    Documento& documento_;
    // Empty for the pickers.
    std::array<CampoTesto, controlliCanale.size()> testi_;
    SelettoreData txtData_;
    SelettoreData txtOrario_;
    Suggerimenti suggerimenti_;
    bool suggeriti_ = false;
};
