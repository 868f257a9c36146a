// What the program itself takes, driven through its main window on the screen:
//   bench_ostrelle apri FILE             until the grid has painted the items
//   bench_ostrelle salva FILE            the open feed onto its own file, the median of a few
//   bench_ostrelle modifica FILE TIMES   medians of an edit, an add, a delete and a move at the
//                                        size of that feed, each until the window is painted
//   bench_ostrelle cerca FILE TIMES      medians of a search for a text that is nowhere, and of one
//                                        folding of the texts that it looks at

#include "bench/misure_win.h"
#include "document/clsItemRss.h"
#include "document/ricerca.h"
#include "support/errori/errore.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/programma/prodotto.h"
#include "support/servizi/dialoghiFile.h"
#include "support/servizi/impostazioni_win.h"
#include "support/servizi/messaggi.h"
#include "support/servizi/orologio.h"
#include "support/windows/com_win.h"
#include "support/windows/heap_win.h"
#include "ui/dialogs/editorElementi.h"
#include "ui/main/FrmMain_win.h"

#include <dlgs.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <string_view>
#include <vector>

namespace {

[[noreturn]] void abbandona(const std::wstring& perche) {
    std::fwprintf(stderr, L"%ls\n", perche.c_str());
    std::exit(1);
}

// Answers yes to every question; a report of an error ends the measure.
class MessaggiSi final : public Messaggi {
public:
    Risposta mostra(const std::wstring& testo, const std::wstring& /*titolo*/, Icona icona,
                    Pulsanti /*pulsanti*/) override {
        if (icona != Icona::Domanda) {
            abbandona(testo);
        }
        return Risposta::Si;
    }
};

class NessunDialogo final : public DialoghiFile {
public:
    std::wstring apri(const RichiestaFile& /*richiesta*/) override {
        solleva(errori::dialogoAnnullato);
    }
    std::wstring salva(const RichiestaFile& /*richiesta*/) override {
        solleva(errori::dialogoAnnullato);
    }
};

// A user who changes the title and saves, in no time.
class EditorVeloce final : public EditorElementi {
public:
    std::optional<DataOra> modifica(clsItemRss& elemento, DataOra ultimaData) override {
        elemento.sTitle(L"Titolo scritto " + std::to_wstring(++volte_));
        elemento.sLink(L"https://giornale.example/scritto");
        if (elemento.sPubDate().empty()) {
            elemento.sPubDate(L"Tue, 15 Nov 2005 10:00:00 +0100");
        }
        return ultimaData;
    }

private:
    int volte_ = 0;
};

// The program as it stands after its start.
class Programma {
public:
    Programma() {
        finestra_.apri(SW_SHOW);
        calma();
    }

    FrmMain& finestra() noexcept { return finestra_; }
    [[nodiscard]] const TabellaElementi& elementi() const noexcept { return documento_.elementi(); }

    // Until nothing is left to do: every message, every paint.
    void calma() {
        MSG msg{};
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            if (!finestra_.anticipa(msg)) {
                TranslateMessage(&msg);
                DispatchMessageW(&msg);
            }
        }
        RedrawWindow(finestra_.hwnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    void apri(const std::wstring& percorso) {
        if (!finestra_.Apri(percorso)) {
            abbandona(L"cannot open");
        }
        calma();
    }

private:
    MessaggiSi messaggi_;
    NessunDialogo dialoghi_;
    OrologioSistema orologio_;
    ImpostazioniRegistro impostazioni_{prodotto::titolo};
    ClsCodaEliminazione coda_;
    EditorVeloce editor_;
    Documento documento_;
    FrmMain finestra_{Servizi{messaggi_, dialoghi_, orologio_, impostazioni_, coda_, editor_},
                      documento_};
};

int apri(const std::wstring& percorso) {
    Programma programma;
    const Cronometro tempo;
    programma.apri(percorso);
    riporta("ms", tempo.millisecondi());
    riporta("kib", static_cast<double>(piccoMemoria()));
    riporta("items", programma.elementi().conteggio());
    return 0;
}

int salva(const std::wstring& percorso) {
    Programma programma;
    programma.apri(percorso);
    std::vector<double> tempi;
    for (int i = 0; i < salvataggi; ++i) {
        const Cronometro tempo;
        if (!programma.finestra().Salva(false)) {
            abbandona(L"cannot save");
        }
        programma.calma();
        tempi.push_back(tempo.millisecondi());
    }
    riporta("ms", mediana(std::move(tempi)));
    return 0;
}

int modifica(const std::wstring& percorso, int volte) {
    Programma programma;
    programma.apri(percorso);
    FrmMain& finestra = programma.finestra();
    const int elementi = programma.elementi().conteggio();
    const int riga = elementi / 2;
    struct Lavoro {
        const char* nome;
        int comando;
        std::vector<double> tempi;
    };
    // A delete makes room for the add: 32,767 items are the most there can be.
    std::vector<Lavoro> lavori{{"edit", mnEditFeed, {}},
                               {"move", spostaGiu, {}},
                               {"delete", mnDelFeed, {}},
                               {"add", mnaddFeed, {}}};
    for (int i = 0; i < volte; ++i) {
        for (auto& lavoro : lavori) {
            finestra.SelezionaRiga(riga);
            programma.calma();
            const Cronometro tempo;
            finestra.esegui(lavoro.comando);
            programma.calma();
            lavoro.tempi.push_back(tempo.millisecondi());
        }
    }
    if (programma.elementi().conteggio() != elementi) {
        abbandona(L"a command did not do its work");
    }
    for (auto& lavoro : lavori) {
        riporta(lavoro.nome, mediana(std::move(lavoro.tempi)));
    }
    return 0;
}

// Looks for a text, as a user of the find dialog does, who then closes it.
void cerca(FrmMain& finestra, const wchar_t* testo) {
    finestra.esegui(mnTrova);
    const HWND dialogo = GetActiveWindow();
    if (dialogo == finestra.hwnd() || GetDlgItem(dialogo, edt1) == nullptr) {
        abbandona(L"no find dialog");
    }
    SetDlgItemTextW(dialogo, edt1, testo);
    SendMessageW(dialogo, WM_COMMAND, IDOK, 0);
    SendMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
}

void piegaTutti(const TabellaElementi& elementi) {
    std::wstring piegato;
    for (int i = 0; i < elementi.conteggio(); ++i) {
        for (const CampoElemento campo : campiCercati) {
            piega(elementi(campo, i), Maiuscole::Ignora, piegato);
        }
    }
}

int cercaInvano(const std::wstring& percorso, int volte) {
    Programma programma;
    programma.apri(percorso);
    FrmMain& finestra = programma.finestra();
    const int elemento = finestra.ElementoSelezionato();
    cerca(finestra, L"parola introvabile");
    std::vector<double> ricerche;
    std::vector<double> piegature;
    for (int i = 0; i < volte; ++i) {
        const Cronometro ricerca;
        finestra.esegui(trovaAvanti);
        ricerche.push_back(ricerca.millisecondi());
        programma.calma();
        const Cronometro piegatura;
        piegaTutti(programma.elementi());
        piegature.push_back(piegatura.millisecondi());
    }
    if (finestra.ElementoSelezionato() != elemento) {
        abbandona(L"the text is somewhere");
    }
    riporta("search", mediana(std::move(ricerche)));
    riporta("fold", mediana(std::move(piegature)));
    return 0;
}

} // namespace

int wmain(int quanti, wchar_t** argomenti) {
    heapPerPiccoliBlocchi();
    const Apartamento apartamento;
    const std::wstring_view cosa = quanti > 2 ? argomenti[1] : L"";
    if (cosa == L"apri") {
        return apri(argomenti[2]);
    }
    if (cosa == L"salva") {
        return salva(argomenti[2]);
    }
    if (cosa == L"modifica" && quanti > 3) {
        return modifica(argomenti[2], static_cast<int>(std::wcstol(argomenti[3], nullptr, 10)));
    }
    if (cosa == L"cerca" && quanti > 3) {
        return cercaInvano(argomenti[2], static_cast<int>(std::wcstol(argomenti[3], nullptr, 10)));
    }
    return 2;
}
