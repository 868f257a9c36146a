#pragma once

class FinestraPrincipale;
class Messaggi;

// The commands of the "?" menu: the help file, the maker's pages, the mail to the author, the about
// box. Failures are reported.
class ComandiAiuto {
public:
    // Both outlive the commands; the window owns what is shown.
    ComandiAiuto(Messaggi& messaggi, FinestraPrincipale& finestra) noexcept
        : messaggi_(messaggi), finestra_(finestra) {}

    void mnGuida_Click();
    void mniaco_Click();
    void mnguidaonline_Click();
    void mnautore_Click();
    void mnVerificaUpgrade_Click();
    void mnBug_Click();
    void mninfo_Click();

private:
    Messaggi& messaggi_;
    FinestraPrincipale& finestra_;
};
