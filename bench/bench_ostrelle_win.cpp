// What the program itself takes, driven through its main window on the screen:
//   bench_ostrelle apri FILE [TIMES]     until the grid has painted the items; the median
//   bench_ostrelle esame FILE            the look at its bytes before they are parsed, the median
//                                        of a few
//   bench_ostrelle salva FILE            the open feed onto its own file, the median of a few
//   bench_ostrelle modifica FILE [TIMES] medians of an edit, an add, a delete and a move, and of
//                                        undoing a delete and doing it again, at the size of that
//                                        feed, each until the window is painted, and of painting
//                                        the whole list once
//   bench_ostrelle diario FILE [TIMES]   an edit with a diary and one without, in turns
//   bench_ostrelle copia FILE [TIMES]    a save that keeps a copy of the old file and one that
//                                        finds no file, in turns
//   bench_ostrelle cerca FILE [TIMES]    medians of a search for a text that is nowhere, and of one
//                                        folding of the texts that it looks at

#include "bench/misure_win.h"
#include "document/clsItemRss.h"
#include "document/perdite.h"
#include "document/ricerca.h"
#include "support/errori/errore.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/programma/prodotto.h"
#include "support/servizi/cartelleDati_win.h"
#include "support/servizi/dialoghiFile.h"
#include "support/servizi/impostazioni_win.h"
#include "support/servizi/messaggi.h"
#include "support/servizi/orologio.h"
#include "support/windows/com_win.h"
#include "support/windows/heap_win.h"
#include "support/windows/xml_win.h"
#include "ui/dialogs/editorElementi.h"
#include "ui/main/FrmMain_win.h"

#include <commctrl.h>
#include <dlgs.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <functional>
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
    std::optional<DataOra> modifica(clsItemRss& elemento, DataOra ultimaData,
                                    const TestiCampi* /*bozza*/) override {
        elemento.sTitle(L"Titolo scritto " + std::to_wstring(++volte_));
        elemento.sLink(L"https://giornale.example/scritto");
        if (elemento.sPubDate().empty()) {
            elemento.sPubDate(L"Tue, 15 Nov 2005 10:00:00 +0100");
        }
        return ultimaData;
    }

    [[nodiscard]] std::optional<TestiCampi> testi() override { return std::nullopt; }

private:
    int volte_ = 0;
};

// The program as it stands after its start.
class Programma {
public:
    explicit Programma(CartelleDati cartelle = cartelleUtente(L"Ostrelle bench"))
        : cartelle_(std::move(cartelle)) {
        finestra_.apri(SW_SHOW);
        calma();
    }

    FrmMain& finestra() noexcept { return finestra_; }
    // The list view that shows the items.
    [[nodiscard]] HWND lista() const noexcept {
        const HWND griglia = FindWindowExW(finestra_.hwnd(), nullptr, Griglia::classe, nullptr);
        return FindWindowExW(griglia, nullptr, WC_LISTVIEWW, nullptr);
    }
    [[nodiscard]] const TabellaElementi& elementi() const noexcept { return documento_.elementi(); }

    // What closes the notice that is shown.
    [[nodiscard]] HWND avviso() const {
        const HWND striscia = FindWindowExW(finestra_.hwnd(), nullptr, L"OstrelleAvvisi", nullptr);
        return FindWindowExW(striscia, nullptr, L"Button", L"Chiudi avviso");
    }

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
    CartelleDati cartelle_;
    EditorVeloce editor_;
    Documento documento_;
    FrmMain finestra_{
        Servizi{messaggi_, dialoghi_, orologio_, impostazioni_, coda_, editor_, cartelle_},
        documento_};
};

int apri(const std::wstring& percorso, int volte) {
    Programma programma;
    std::vector<double> tempi;
    std::uint64_t memoria = 0;
    for (int i = 0; i < volte; ++i) {
        const Cronometro tempo;
        programma.apri(percorso);
        tempi.push_back(tempo.millisecondi());
        memoria = memoria == 0 ? piccoMemoria() : memoria;
    }
    riporta("ms", mediana(std::move(tempi)));
    riporta("kib", static_cast<double>(memoria));
    return 0;
}

int esame(const std::wstring& percorso) {
    const ContenutoFile contenuto(percorso);
    std::vector<double> tempi;
    for (int i = 0; i < ripetizioni; ++i) {
        const Cronometro tempo;
        if (!contenuto || esaminaFeed(contenuto.byte()).smisurato) {
            abbandona(L"cannot read");
        }
        tempi.push_back(tempo.millisecondi());
    }
    riporta("ms", mediana(std::move(tempi)));
    return 0;
}

int salva(const std::wstring& percorso) {
    Programma programma;
    programma.apri(percorso);
    std::vector<double> tempi;
    for (int i = 0; i < ripetizioni; ++i) {
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
        std::function<void()> azione;
        std::vector<double> tempi;
    };
    const auto comando = [&](int quale) { return [&, quale] { finestra.esegui(quale); }; };
    // A delete makes room for the add: 32,767 items are the most there can be.
    std::vector<Lavoro> lavori{{"edit", comando(mnEditFeed), {}},
                               {"move", comando(spostaGiu), {}},
                               {"delete", comando(mnDelFeed), {}},
                               {"undo", comando(annullaPasso), {}},
                               {"redo", comando(ripetiPasso), {}},
                               {"add", comando(mnaddFeed), {}},
                               {"redraw",
                                [&] {
                                    RedrawWindow(programma.lista(), nullptr, nullptr,
                                                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME |
                                                     RDW_ALLCHILDREN | RDW_UPDATENOW);
                                },
                                {}}};
    for (int i = 0; i < volte; ++i) {
        for (auto& lavoro : lavori) {
            finestra.SelezionaRiga(riga);
            programma.calma();
            segna(lavoro.nome);
            const Cronometro tempo;
            lavoro.azione();
            programma.calma();
            lavoro.tempi.push_back(tempo.millisecondi());
            segna("fine");
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

double modificaUno(Programma& programma, int riga) {
    programma.finestra().SelezionaRiga(riga);
    programma.calma();
    const Cronometro tempo;
    programma.finestra().esegui(mnEditFeed);
    programma.calma();
    return tempo.millisecondi();
}

int diario(const std::wstring& percorso, int volte) {
    Programma con({.copie = percorso + L".copie", .diario = percorso + L".diario"});
    // A folder below a file: no diary can be kept there.
    Programma senza({.copie = percorso + L".copie", .diario = percorso + L"\\diario"});
    std::vector<double> tempiCon;
    std::vector<double> tempiSenza;
    con.apri(percorso);
    senza.apri(percorso);
    const int riga = con.elementi().conteggio() / 2;
    // The first change makes the diary with all that there is, or says that there can be none.
    modificaUno(con, riga);
    modificaUno(senza, riga);
    SendMessageW(senza.avviso(), BM_CLICK, 0, 0);
    senza.calma();
    for (int i = 0; i < volte; ++i) {
        tempiCon.push_back(modificaUno(con, riga));
        tempiSenza.push_back(modificaUno(senza, riga));
    }
    riporta("con", mediana(std::move(tempiCon)));
    riporta("senza", mediana(std::move(tempiSenza)));
    return 0;
}

int salvaConCopia(const std::wstring& percorso, int volte) {
    Programma programma({.copie = percorso + L".copie", .diario = percorso + L".diario"});
    programma.apri(percorso);
    const int riga = programma.elementi().conteggio() / 2;
    const auto salva = [&] {
        // A file equal to its newest copy would not be copied.
        modificaUno(programma, riga);
        const Cronometro tempo;
        if (!programma.finestra().Salva(false)) {
            abbandona(L"cannot save");
        }
        programma.calma();
        return tempo.millisecondi();
    };
    std::vector<double> tempiCon;
    std::vector<double> tempiSenza;
    for (int i = 0; i < volte; ++i) {
        tempiCon.push_back(salva());
        if (!DeleteFileW(percorso.c_str())) {
            abbandona(L"cannot delete");
        }
        tempiSenza.push_back(salva());
    }
    riporta("con", mediana(std::move(tempiCon)));
    riporta("senza", mediana(std::move(tempiSenza)));
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
    const auto volte = [&](int altrimenti) {
        return quanti > 3 ? static_cast<int>(std::wcstol(argomenti[3], nullptr, 10)) : altrimenti;
    };
    if (cosa == L"apri") {
        return apri(argomenti[2], volte(1));
    }
    if (cosa == L"esame") {
        return esame(argomenti[2]);
    }
    if (cosa == L"salva") {
        return salva(argomenti[2]);
    }
    if (cosa == L"modifica") {
        return modifica(argomenti[2], volte(25));
    }
    if (cosa == L"diario") {
        return diario(argomenti[2], volte(15));
    }
    if (cosa == L"copia") {
        return salvaConCopia(argomenti[2], volte(3));
    }
    if (cosa == L"cerca") {
        return cercaInvano(argomenti[2], volte(5));
    }
    return 2;
}
