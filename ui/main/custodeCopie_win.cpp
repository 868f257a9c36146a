#include "ui/main/custodeCopie_win.h"

#include "document/documento.h"
#include "support/errori/trappola.h"
#include "support/servizi/cartelleDati.h"
#include "support/servizi/orologio.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/errori_win.h"
#include "support/windows/file_win.h"
#include "ui/controls/avvisi.h"
#include "ui/main/finestraPrincipale_win.h"
#include "ui/main/servizi.h"

namespace {

constexpr const wchar_t* argomentoPerdite = L"perdite";
constexpr const wchar_t* argomentoCambiato = L"cambiato";
constexpr const wchar_t* argomentoCopia = L"copia";

} // namespace

CustodeCopie::CustodeCopie(const Servizi& servizi, const FinestraPrincipale& finestra,
                           const Documento& documento, Avvisi& avvisi)
    : copie_(servizi.cartelle.copie), finestra_(finestra), documento_(documento),
      messaggi_(servizi.messaggi), orologio_(servizi.orologio), avvisi_(avvisi) {}

bool CustodeCopie::conserva(const std::wstring& percorso) noexcept {
    bool andato = false;
    ignorando([&] {
        trattenuto_.reset();
        try {
            const bool cambiato =
                file_ && stessoFile(percorso, documento_.percorso()) && !ancora(*file_, percorso);
            andato = copie_.conserva(percorso, orologio_.adesso().locale,
                                     CopieFile::Originale::PuoAndare) == CopieFile::Esito::Spostata;
            if (cambiato) {
                avvisi_.avvisa({.argomento = argomentoCambiato,
                                .testo = L"Il file era stato cambiato da un altro programma: la "
                                         L"versione che c'era è nelle copie.",
                                .pulsanti = {apriCopie(percorso)},
                                .chiuso = {}});
            }
        } catch (...) {
            trattenuto_ = contenutoDi(percorso);
            avvisi_.avvisa({.argomento = argomentoCopia,
                            .testo = L"Della versione precedente di «" +
                                     koUtilita::DeterminaSoloFileName(percorso) +
                                     L"» non è rimasta una copia: " +
                                     erroreCorrente().descrizione(),
                            .pulsanti = {},
                            .chiuso = {}});
        }
    });
    return andato;
}

void CustodeCopie::nonSostituito(const std::wstring& percorso) noexcept {
    // The room that the file took may be enough for its copy.
    if (const auto contenuto = std::exchange(trattenuto_, std::nullopt)) {
        ignorando([&] {
            copie_.conserva(percorso, orologio_.adesso().locale, *contenuto);
            avvisi_.ritira(argomentoCopia);
        });
    }
}

void CustodeCopie::nuovoDocumento() {
    file_.reset();
    avvisi_.ritira(argomentoPerdite);
    avvisi_.ritira(argomentoCambiato);
    avvisi_.ritira(argomentoCopia);
}

void CustodeCopie::aperto(std::optional<StatoFile> file, std::span<const Perdita> perdite) {
    file_ = file;
    if (std::wstring testo = avvisoPerdite(perdite); !testo.empty()) {
        avvisi_.avvisa({.argomento = argomentoPerdite,
                        .testo = std::move(testo),
                        .pulsanti = {apriCopie(documento_.percorso())},
                        .chiuso = {}});
    }
}

void CustodeCopie::salvato() {
    file_ = statoFile(documento_.percorso());
    trattenuto_.reset();
    avvisi_.ritira(argomentoPerdite);
}

PulsanteAvviso CustodeCopie::apriCopie(const std::wstring& percorso) const {
    return {.didascalia = L"Apri le copie", .azione = [this, percorso] {
                // There may be none yet.
                const std::wstring cartella = copie_.cartella(percorso);
                koUtilita::CreaPercorsoDirectory(cartella);
                koUtilita(messaggi_).EseguiEx(finestra_.proprietaria(), cartella);
                return false;
            }};
}
