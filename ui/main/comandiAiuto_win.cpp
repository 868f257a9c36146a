#include "ui/main/comandiAiuto_win.h"

#include "support/programma/prodotto.h"
#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/file_win.h"
#include "support/windows/guardia_win.h"
#include "ui/dialogs/frmAbout_win.h"

std::wstring fileGuida() {
    std::wstring cartella = cartellaProgramma();
    std::wstring nome = nomeProgramma();
    nome.resize(std::min(nome.rfind(L'.'), nome.size()));
    const std::wstring base = koUtilita::AggiungiSepDir(cartella) + nome;
    return fileEsiste(base + L".hlp") ? base + L".hlp" : base + L".htm";
}

void ComandiAiuto::mnGuida_Click(HWND finestra) {
    const koUtilita utilita(messaggi_);
    protetto([&] { utilita.EseguiEx(finestra, fileGuida()); }, [&] { utilita.PrintErrore(); });
}

bool ComandiAiuto::esegui(Comando comando, HWND finestra) {
    const std::wstring sito(prodotto::sito);
    switch (comando) {
    case mnGuida:
        mnGuida_Click(finestra);
        return true;
    case mniaco:
        koUtilita::Homepage(finestra);
        return true;
    case mnguidaonline:
        koUtilita::GoWeb(finestra, sito + L"/home/guide.htm");
        return true;
    case mnautore:
        koUtilita::EMail(finestra);
        return true;
    case mnVerificaUpgrade:
        koUtilita::GoWeb(finestra, sito + L"/ostrelle.asp?ver=" + prodotto::versione(L'+'));
        return true;
    case mnBug:
        koUtilita::GoWeb(finestra, sito + L"/bug.asp?prg=" + std::wstring(prodotto::titolo) +
                                       L"%20v" + prodotto::versione());
        return true;
    case mninfo:
        frmAbout(messaggi_).mostra(finestra);
        return true;
    default:
        return false;
    }
}
