// What LavoroACaso does to the program.

#include "tests/aiuti/lavoroACaso_win.h"

#include "res/risorse.h"
#include "support/testi/testo.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/lavoroACaso_parti_win.h"
#include "ui/main/comandi.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <utility>

template <class Azione>
void LavoroACaso::tenta(std::vector<StatoLavoro> dopo, Azione azione) {
    possibili_ = {stato_};
    possibili_.insert(possibili_.end(), dopo.begin(), dopo.end());
    azione();
    if (const HWND scatolaImprevista = programma_->dialogo();
        scatolaImprevista != nullptr && !editor_) {
        throw std::runtime_error("a box: " + scatola(*programma_, scatolaImprevista));
    }
    stato_ = std::move(dopo.back());
    possibili_ = {stato_};
}

void LavoroACaso::cambia(TabellaLavoro elementi) {
    storia_.resize(posto_ + 1);
    storia_.push_back(std::move(elementi));
    ++posto_;
}

std::wstring LavoroACaso::parole() {
    static constexpr std::array vocabolario{L"perché",         L"serata",     L"luna & sole",
                                            L"<b>circolo</b>", L"più",        L"lezione",
                                            L"città",          L"\"notizia\""};
    std::wstring testo;
    for (std::uint32_t i = 1 + caso(4); i > 0; --i) {
        testo += vocabolario[caso(vocabolario.size())];
        testo += L' ';
    }
    return testo + std::to_wstring(++parola_);
}

void LavoroACaso::passo() {
    if (editor_) {
        passoNellEditor();
        return;
    }
    sbrigaAvvisi();
    const std::uint32_t sorte = caso(100);
    const bool pieno = !stato_.elementi.empty();
    if (sorte < 35) {
        campo();
    } else if (sorte < 47 || !pieno) {
        apriEditor(true);
    } else if (sorte < 59) {
        apriEditor(false);
    } else if (sorte < 67) {
        cancella();
    } else if (sorte < 79) {
        sposta();
    } else if (sorte < 94) {
        ripercorri(sorte < 88);
    } else {
        salva();
        if (caso(genere_ == Genere::Grande ? 4 : 2) == 0) {
            confrontaFile();
        }
    }
}

void LavoroACaso::passoNellEditor() {
    const std::uint32_t sorte = caso(10);
    if (sorte < 7) {
        scriviNellEditor();
    } else {
        lasciaEditor(sorte < 9);
    }
}

template <class Metti>
void LavoroACaso::scrivi(HWND controllo, Metti metti) {
    const std::wstring ora = programma_->testo(controllo);
    const auto con = [&](std::wstring testo) {
        StatoLavoro dopo = stato_;
        metti(dopo, std::move(testo));
        return dopo;
    };
    const std::uint32_t come = caso(5);
    std::size_t dove = caso(static_cast<std::uint32_t>(ora.size()) + 1);
    // Between CR and LF there is no place.
    dove -= dove > 0 && ora[dove - 1] == L'\r' ? 1 : 0;
    if (come < 2 || (come == 4 && ora.empty())) {
        const std::wstring nuovo = parole();
        annota("paste \"" + inUtf8(nuovo) + '"');
        tenta({con(std::wstring(ora).insert(dove, nuovo))}, [&] {
            programma_->incolla(controllo, dove, 0, nuovo);
            programma_->calma();
        });
    } else if (come < 4) {
        const std::wstring nuovo = parole();
        annota("type \"" + inUtf8(nuovo) + '"');
        std::vector<StatoLavoro> dopo;
        for (std::size_t i = 1; i <= nuovo.size(); ++i) {
            dopo.push_back(con(ora + nuovo.substr(0, i)));
        }
        tenta(std::move(dopo), [&] {
            programma_->digita(controllo, nuovo);
            programma_->calma();
        });
    } else {
        std::size_t fino = std::min(ora.size(), dove + 1 + caso(20));
        fino -= fino > dove && ora[fino - 1] == L'\r' ? 1 : 0;
        annota("take out");
        tenta({con(std::wstring(ora).erase(dove, fino - dove))}, [&] {
            programma_->incolla(controllo, dove, fino - dove, L"");
            programma_->calma();
        });
    }
}

void LavoroACaso::campo() {
    const std::uint32_t quale = caso(static_cast<std::uint32_t>(campiCanale.size()));
    annota("field " + std::to_string(quale));
    scrivi(programma_->campo(campiCanale[quale]),
           [=](StatoLavoro& stato, std::wstring testo) { stato.canale[quale] = std::move(testo); });
}

std::array<std::wstring, 4> LavoroACaso::testiEditor() const {
    std::array<std::wstring, 4> testi;
    for (std::size_t i = 0; i < testi.size(); ++i) {
        testi[i] = programma_->testo(GetDlgItem(finestraEditor_, campiEditor[i]));
    }
    return testi;
}

void LavoroACaso::apriEditor(bool nuovo) {
    int indice = -1;
    if (!nuovo) {
        indice = static_cast<int>(caso(static_cast<std::uint32_t>(stato_.elementi.size())));
        programma_->seleziona(indice);
    }
    annota("editor " + std::to_string(indice));
    programma_->comando(nuovo ? mnaddFeed : mnEditFeed);
    finestraEditor_ = programma_->attendiDialogo();
    editor_ = indice;
    if (caso(3) == 0) {
        programma_->calma();
    } else {
        // Typed ahead of the program.
        scriviNellEditor(0);
    }
}

void LavoroACaso::scriviNellEditor(std::optional<std::size_t> quale) {
    const std::size_t campo = quale.value_or(caso(4));
    annota("editor field " + std::to_string(campo));
    const auto prima = testiEditor();
    scrivi(GetDlgItem(finestraEditor_, campiEditor[campo]),
           [&](StatoLavoro& stato, std::wstring testo) {
               if (!stato.bozza && testo == prima[campo]) {
                   return; // nothing was there to be taken out
               }
               stato.bozza = StatoLavoro::Bozza{*editor_, prima};
               stato.bozza->testi[campo] = std::move(testo);
           });
}

void LavoroACaso::lasciaEditor(bool confermando) {
    if (!confermando) {
        annota("cancel");
        StatoLavoro dopo = stato_;
        dopo.bozza.reset();
        tenta({dopo}, [&] {
            programma_->rispondi(finestraEditor_, IDC_CMDANNULLA);
            editor_.reset();
        });
        return;
    }
    auto testi = testiEditor();
    const auto* const prima =
        *editor_ < 0 ? nullptr : stato_.elementi[static_cast<std::size_t>(*editor_)].get();
    // What the editor asks for; and an edit that changes nothing is no step.
    while (rifila(testi[0]).empty() ||
           (prima != nullptr && normale(testi[0]) == normale(prima->titolo))) {
        scriviNellEditor(0);
        testi = testiEditor();
    }
    while (rifila(testi[1]).empty()) {
        scriviNellEditor(1);
        testi = testiEditor();
    }
    annota("confirm");
    auto voce = std::make_shared<VoceLavoro>();
    voce->titolo = testi[0];
    voce->link = testi[1];
    voce->autore = testi[2];
    voce->descrizione = testi[3];
    StatoLavoro dopo = stato_;
    dopo.bozza.reset();
    if (prima == nullptr) {
        dopo.elementi.push_back(std::move(voce));
    } else {
        voce->guid = prima->guid;
        dopo.elementi[static_cast<std::size_t>(*editor_)] = std::move(voce);
    }
    tenta({dopo}, [&] {
        programma_->rispondi(finestraEditor_, IDC_CMDSALVA);
        editor_.reset();
    });
    cambia(stato_.elementi);
}

void LavoroACaso::cancella() {
    const auto indice = caso(static_cast<std::uint32_t>(stato_.elementi.size()));
    annota("delete " + std::to_string(indice));
    programma_->seleziona(static_cast<int>(indice));
    programma_->comando(mnDelFeed);
    const HWND domanda = programma_->attendiDialogo();
    if (caso(5) == 0) {
        programma_->rispondi(domanda, IDNO);
        return;
    }
    StatoLavoro dopo = stato_;
    dopo.elementi.erase(dopo.elementi.begin() + static_cast<std::ptrdiff_t>(indice));
    tenta({dopo}, [&] { programma_->rispondi(domanda, IDYES); });
    cambia(stato_.elementi);
}

void LavoroACaso::sposta() {
    const auto ultimo = static_cast<int>(stato_.elementi.size()) - 1;
    const auto da = static_cast<int>(caso(static_cast<std::uint32_t>(ultimo) + 1));
    const std::array mosse{std::pair{spostaSu, std::max(da - 1, 0)},
                           std::pair{spostaGiu, std::min(da + 1, ultimo)},
                           std::pair{spostaInCima, 0}, std::pair{spostaInFondo, ultimo}};
    const auto [comando, a] = mosse[caso(mosse.size())];
    annota("move " + std::to_string(da) + " to " + std::to_string(a));
    programma_->seleziona(da);
    StatoLavoro dopo = stato_;
    const auto inizio = dopo.elementi.begin();
    if (a < da) {
        std::rotate(inizio + a, inizio + da, inizio + da + 1);
    } else {
        std::rotate(inizio + da, inizio + da + 1, inizio + a + 1);
    }
    tenta({dopo}, [&, numero = comando] {
        programma_->comando(numero);
        programma_->calma();
    });
    if (a != da) {
        cambia(stato_.elementi);
    }
}

void LavoroACaso::ripercorri(bool annullando) {
    annota(annullando ? "undo" : "redo");
    const bool si = annullando ? posto_ > 0 : posto_ + 1 < storia_.size();
    const std::size_t arrivo = !si ? posto_ : annullando ? posto_ - 1 : posto_ + 1;
    StatoLavoro dopo = stato_;
    dopo.elementi = storia_[arrivo];
    tenta({dopo}, [&] {
        programma_->comando(annullando ? annullaPasso : ripetiPasso);
        programma_->calma();
    });
    posto_ = arrivo;
}

void LavoroACaso::salva() {
    if (stato_.elementi.empty()) {
        return;
    }
    annota("save");
    StatoLavoro dopo = stato_;
    salvando_ = true;
    if (stato_.percorso.empty()) {
        dopo.percorso = cartella_ + L"\\nuovo" + std::to_wstring(++fileSalvati_) + L".xml";
        tenta({dopo}, [&] {
            programma_->comando(mnsalva);
            programma_->scegliFile(programma_->attendiDialogo(), dopo.percorso);
        });
    } else {
        const auto inizio = std::chrono::steady_clock::now();
        tenta({dopo}, [&] {
            programma_->comando(mnsalva);
            programma_->calma();
        });
        durata_ = static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::microseconds>(
                                                 std::chrono::steady_clock::now() - inizio)
                                                 .count());
    }
    salvando_ = false;
    ++conti_["salvataggi finiti"];
    ultimoFile_ = leggiTutto(stato_.percorso);
}

void LavoroACaso::elimina(HWND pulsante) {
    annota("diary dismissed");
    OstrelleGuidata::premi(pulsante);
    programma_->rispondi(programma_->attendiDialogo(), IDYES);
}

void LavoroACaso::sbrigaAvvisi() {
    // The same work twice: the program was ended between a diary and the one it replaces.
    while (const HWND via = programma_->pulsanteAvviso(L"Elimina")) {
        ++conti_["diari doppi"];
        elimina(via);
    }
}
