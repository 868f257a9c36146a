#include "ui/main/recupero_win.h"

#include "document/custodeLavoro_win.h"
#include "document/documento.h"
#include "support/servizi/cartelleDati.h"
#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "ui/controls/avvisi.h"
#include "ui/main/campiCanale_win.h"
#include "ui/main/comandiDocumento_win.h"
#include "ui/main/comandiElementi_win.h"
#include "ui/main/finestraPrincipale_win.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const wchar_t* argomentoRecupero = L"recupero";

} // namespace

void Recupero::proponi() {
    for (const std::wstring& percorso : diariIn(servizi_.cartelle.diario)) {
        if (percorso == custode_.diario() || std::ranges::find(visti_, percorso) != visti_.end()) {
            continue;
        }
        if (auto preso = FileDiario::prendi(percorso)) {
            visti_.push_back(percorso);
            lettura_ = leggiDiario(preso->leggi());
            offerto_ = std::move(preso);
            offri(percorso);
            return;
        }
    }
}

void Recupero::offri(const std::wstring& percorso) {
    const std::wstring nome = koUtilitaPercorsi::DeterminaSoloFileName(percorso);
    const PulsanteAvviso recuperare{.didascalia = L"Recupera",
                                    .azione = [this] { return recupera(); }};
    const PulsanteAvviso eliminare{.didascalia = L"Elimina",
                                   .azione = [this] { return elimina(); }};
    Avviso avviso{.argomento = argomentoRecupero,
                  .testo = {},
                  .pulsanti = {},
                  // Left for another time.
                  .chiuso = [this] { prossimo(); }};
    if (lettura_.lavoro) {
        avviso.testo = descriviLavoro(lettura_, formatoUtente());
        avviso.pulsanti = {recuperare, eliminare};
    } else if (lettura_.formatoSuccessivo) {
        avviso.testo =
            L"Il diario «" + nome + L"» è di una versione successiva di Ostrelle: resta dov'è.";
    } else {
        avviso.testo = L"Il diario «" + nome + L"» di un lavoro non salvato non si legge.";
        avviso.pulsanti = {eliminare};
    }
    avvisi_.avvisa(std::move(avviso));
}

void Recupero::prossimo() {
    offerto_.reset();
    lettura_ = {};
    proponi();
}

bool Recupero::elimina() {
    if (!offerto_) {
        return true;
    }
    if (servizi_.messaggi.mostra(L"Si desidera eliminare realmente il lavoro non salvato?",
                                 titoli::attenzione, Icona::Domanda,
                                 Pulsanti::SiNo) != Risposta::Si) {
        return false;
    }
    offerto_->elimina();
    prossimo();
    return true;
}

bool Recupero::recupera() {
    if (!offerto_) {
        // It was, as far as that went.
        return true;
    }
    if (!comandi_.ChiediSalvataggio()) {
        return false;
    }
    auto diario = std::exchange(offerto_, std::nullopt);
    const auto lavoro = std::exchange(lettura_, {}).lavoro;
    if (!diario || !lavoro) {
        return true;
    }
    riempi(*lavoro);
    // From here on the work has a diary of this program.
    custode_.riprendi(*lavoro);
    diario->elimina();
    avvisi_.ritira(argomentoRecupero);
    if (lavoro->bozza) {
        elementi_.riprendi(*lavoro->bozza);
    }
    proponi();
    return true;
}

void Recupero::riempi(const LavoroNonSalvato& lavoro) {
    finestra_.NuovoDocumento();
    campi_.testi(lavoro.canale);
    campi_.Tag(lavoro.percorso);
    finestra_.ImpostaTitolo(lavoro.percorso.empty() ? Documento::nuovoDocumento
                                                    : std::wstring_view(lavoro.percorso));
    documento_.sostituisci(lavoro.elementi);
    documento_.ultimaData(lavoro.ultimaData);
    documento_.modificato(true);
}
