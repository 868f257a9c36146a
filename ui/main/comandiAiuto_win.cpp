#include "ui/main/comandiAiuto_win.h"

#include "support/programma/prodotto.h"
#include "support/utilita/guida_win.h"
#include "support/utilita/koUtilita.h"
#include "ui/dialogs/frmAbout_win.h"
#include "ui/main/finestraPrincipale_win.h"

void ComandiAiuto::mnGuida_Click() {
    apriGuida(messaggi_, finestra_.proprietaria());
}

void ComandiAiuto::mniaco_Click() {
    koUtilita::Homepage(finestra_.proprietaria());
}

void ComandiAiuto::mnguidaonline_Click() {
    koUtilita::GoWeb(finestra_.proprietaria(), std::wstring(prodotto::sito) + L"/home/guide.htm");
}

void ComandiAiuto::mnautore_Click() {
    koUtilita::EMail(finestra_.proprietaria());
}

void ComandiAiuto::mnVerificaUpgrade_Click() {
    koUtilita::GoWeb(finestra_.proprietaria(), std::wstring(prodotto::sito) +
                                                   L"/ostrelle.asp?ver=" +
                                                   prodotto::versione(L'+'));
}

void ComandiAiuto::mnBug_Click() {
    koUtilita::GoWeb(finestra_.proprietaria(), std::wstring(prodotto::sito) + L"/bug.asp?prg=" +
                                                   std::wstring(prodotto::titolo) + L"%20v" +
                                                   prodotto::versione());
}

void ComandiAiuto::mninfo_Click() {
    frmAbout(messaggi_).mostra(finestra_.proprietaria());
}
