#pragma once

#include "ui/controls/KOInputNumerico_win.h"
#include "ui/controls/campoTesto_win.h"
#include "ui/controls/dialogo_win.h"
#include "ui/controls/selettoreData_win.h"
#include "ui/main/disposizione.h"

#include "support/dataora.h"

#include <array>
#include <string>
#include <string_view>

// Who owns the channel fields.
class ProprietarioCampi {
public:
    ProprietarioCampi() = default;
    ProprietarioCampi(const ProprietarioCampi&) = delete;
    ProprietarioCampi& operator=(const ProprietarioCampi&) = delete;

    // The value of a field really changed, by the user or by code.
    virtual void ImpostaModificato() noexcept = 0;
    virtual void cmdGetSize_Click() = 0;
    // Reports the exception being handled.
    virtual void riportaErrore() noexcept = 0;

protected:
    ~ProprietarioCampi() = default;
};

// The texts of the channel's frame, in the order of the form.
enum class CampoCanale : std::uint8_t {
    Titolo,
    LinkHome,
    Descrizione,
    Lingua,
    Copyright,
    WebMaster,
    Logo,
    Url,
    LinkImg
};

// The frame fraDati with the channel's fields. The values live in the controls.
class CampiCanale final : public Dialogo, private EventiNumerico {
public:
    static constexpr std::size_t numeroTesti = 9;

    explicit CampiCanale(ProprietarioCampi& proprietario) noexcept : proprietario_(proprietario) {}

    [[nodiscard]] std::wstring testo(CampoCanale campo) const;
    void testo(CampoCanale campo, std::wstring_view valore);

    // The date of txtData with the time of txtOrario.
    [[nodiscard]] DataOra dataOra() const;
    // Gives both pickers the same date and time; raises 380 for what they cannot hold.
    void dataOra(DataOra valore);

    // What leaving the field that has the focus would do, for a command, which leaves it there.
    void conferma();

    // Pixels, 0 to 10000. Assigning beyond that raises 380 and changes nothing.
    [[nodiscard]] KOInputNumerico& txtLarghezza() const;
    [[nodiscard]] KOInputNumerico& txtAltezza() const;

    // Gives both boxes a size in pixels, or raises 380 and leaves both as they were.
    void dimensioni(std::int32_t larghezza, std::int32_t altezza);

    // Path of the document's file; empty for a new document.
    [[nodiscard]] const std::wstring& Tag() const noexcept { return tag_; }
    void Tag(std::wstring valore) { tag_ = std::move(valore); }

    // All nine texts are blank.
    [[nodiscard]] bool vuoti() const;

    // The empty state of every kind of control; what a control refuses is passed over.
    void Svuota(DataOra adesso) noexcept;

    // Fills in what the layout needs to know of the frame.
    void misura(MisureFinestra& misure, double twipsX, double twipsY) const;
    // Places the frame and the fields that follow its width.
    void disponi(const Disposizione& disposizione, double twipsX, double twipsY);

private:
    bool inizializza() override;
    INT_PTR messaggio(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void eccezione() noexcept override { proprietario_.riportaErrore(); }

    void CambioValore(KOInputNumerico& controllo, double valore) override;
    void onEccezione(KOInputNumerico& /*controllo*/) noexcept override {
        proprietario_.riportaErrore();
    }

    void suggerimento(int etichetta, const wchar_t* testo);
    [[nodiscard]] RECT rettangolo(int id) const noexcept;

    ProprietarioCampi& proprietario_;
    std::array<CampoTesto, numeroTesti> testi_;
    SelettoreData txtData_;
    SelettoreData txtOrario_;
    std::wstring tag_;
    HWND suggerimenti_ = nullptr;
};
