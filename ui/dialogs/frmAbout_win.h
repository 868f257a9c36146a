#pragma once

#include "support/servizi/messaggi.h"
#include "support/windows/com_win.h"
#include "support/windows/maniglie_win.h"
#include "ui/controls/dialogo_win.h"

#include <windows.h>

#include <ocidl.h>

#include <string>
#include <string_view>

// The about box: title, version, author and site of the program, and the start of the
// system-information program.
class frmAbout final : public Dialogo {
public:
    // `messaggi` outlives the box.
    explicit frmAbout(Messaggi& messaggi) noexcept : messaggi_(messaggi) {}
    frmAbout(const frmAbout&) = delete;
    frmAbout& operator=(const frmAbout&) = delete;
    ~frmAbout() override = default;

    // Shows the box and waits until it was closed. Raises the failure to make it.
    void mostra(HWND proprietaria);

    // The text of lblVersion for a version in plain decimal ("1.0.5").
    [[nodiscard]] static std::wstring rigaVersione(std::wstring_view versione);

protected:
    bool inizializza() override;
    INT_PTR messaggio(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void adattato() override;
    void onEccezione() noexcept override;

private:
    bool comando(WORD id, WORD notifica);
    void disegna(const DRAWITEMSTRUCT& voce) const;
    void disegnaIcona(const DRAWITEMSTRUCT& voce) const;
    void disegnaLogo(const DRAWITEMSTRUCT& voce) const;
    void disegnaSito(const DRAWITEMSTRUCT& voce) const;
    void misuraIcona();
    void misuraSito() const;
    void misuraLogo() const;
    void cmdOK_Click();
    void cmdSysInfo_Click() const;
    void lblSito_Click() const;

    Messaggi& messaggi_;
    ManigliaIcona icona_;
    Carattere carattereTitolo_;
    Carattere carattereSito_;
    ComPtr<IPicture> logo_;
};
