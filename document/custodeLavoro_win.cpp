#include "document/custodeLavoro_win.h"

#include "support/servizi/orologio.h"

#include <utility>

namespace {

// What may follow the base before the diary is written anew.
constexpr std::uint64_t massimoRecord = std::uint64_t{64} * 1024 * 1024;

} // namespace

template <class Azione>
void CustodeLavoro::annotando(Azione azione) noexcept {
    if (guasta_) {
        return;
    }
    try {
        azione();
    } catch (...) {
        // What stands in the diary is true as far as it goes: it stays, and nothing follows.
        guasta_ = true;
        guasto_();
    }
}

LavoroNonSalvato CustodeLavoro::lavoro() const {
    LavoroNonSalvato lavoro;
    lavoro.ora = ora_;
    lavoro.percorso = documento_.percorso();
    lavoro.ultimaData = documento_.ultimaData();
    lavoro.modifiche = modifiche_;
    lavoro.canaleModificato = canaleModificato_;
    lavoro.elementi = documento_.elementi();
    lavoro.canale = testi_.canale();
    return lavoro;
}

void CustodeLavoro::scriviTutto(FileDiario& file) {
    destinazione_ = &file;
    scrittore_.inizia(lavoro());
    lunghezzaBase_ = file.lunghezza();
}

void CustodeLavoro::comincia() {
    if (file_) {
        return;
    }
    ora_ = orologio_.adesso().locale;
    file_ = FileDiario::crea(cartella_, ora_);
    canaleModificato_ = canaleModificato_ || campiCambiati_;
    try {
        scriviTutto(*file_);
    } catch (...) {
        // Without its base it tells nothing.
        file_->elimina();
        file_.reset();
        throw;
    }
    campiCambiati_ = false;
}

void CustodeLavoro::elementiModificati(const Modifica& modifica, Causa /*causa*/) {
    annotando([&] {
        ++modifiche_;
        daScaricare_ = true;
        if (!file_) {
            comincia();
        } else {
            scrittore_.modifica(modifica, documento_.ultimaData());
        }
        // The editor's texts are the item's now.
        editor_.reset();
        compatta();
    });
}

void CustodeLavoro::annotaCampi() {
    // The fields are filled by code too: an opened document is no work of the user's.
    if (!campiCambiati_ || !documento_.modificato()) {
        return;
    }
    canaleModificato_ = true;
    if (!file_) {
        comincia();
    } else {
        scrittore_.canale(testi_.canale());
    }
    campiCambiati_ = false;
}

void CustodeLavoro::annotaEditor() {
    const std::optional<int> aperto = editor_;
    auto testi = aperto ? testi_.editor() : std::nullopt;
    if (!aperto || !testi) {
        return;
    }
    comincia();
    inScrittura_ = true;
    scrittore_.bozza({.indice = *aperto, .testi = std::move(*testi)});
}

void CustodeLavoro::codaVuota() noexcept {
    annotando([&] {
        annotaCampi();
        annotaEditor();
        compatta();
        if (std::exchange(daScaricare_, false) && file_) {
            file_->scarica();
        }
    });
}

void CustodeLavoro::editorAperto(int indice) noexcept {
    if (!editor_) {
        editor_ = indice;
        inScrittura_ = false;
    }
}

void CustodeLavoro::editorChiuso() noexcept {
    if (!editor_) {
        return;
    }
    editor_.reset();
    if (!std::exchange(inScrittura_, false)) {
        return;
    }
    if (modifiche_ == 0 && !canaleModificato_) {
        // There was nothing else that is not saved.
        dimentica();
        return;
    }
    annotando([&] { scrittore_.bozzaChiusa(); });
}

void CustodeLavoro::dimentica() noexcept {
    if (file_) {
        file_->elimina();
        file_.reset();
    }
    modifiche_ = 0;
    campiCambiati_ = false;
    canaleModificato_ = false;
    daScaricare_ = false;
    guasta_ = false;
}

void CustodeLavoro::riprendi(const LavoroNonSalvato& lavoro) {
    dimentica();
    ora_ = lavoro.ora;
    modifiche_ = lavoro.modifiche;
    canaleModificato_ = lavoro.canaleModificato;
    auto nuovo = FileDiario::crea(cartella_, orologio_.adesso().locale);
    try {
        destinazione_ = &nuovo;
        scrittore_.inizia(lavoro);
        nuovo.scarica();
    } catch (...) {
        nuovo.elimina();
        throw;
    }
    lunghezzaBase_ = nuovo.lunghezza();
    file_ = std::move(nuovo);
    destinazione_ = &*file_;
    if (lavoro.bozza) {
        editor_ = lavoro.bozza->indice;
        inScrittura_ = true;
    }
}

void CustodeLavoro::compatta() {
    if (!file_ || file_->lunghezza() - lunghezzaBase_ <= massimoRecord) {
        return;
    }
    file_->riscrivi(orologio_.adesso().locale, [this](FileDiario& nuovo) {
        scriviTutto(nuovo);
        if (editor_ && inScrittura_) {
            if (auto testi = testi_.editor()) {
                scrittore_.bozza({.indice = *editor_, .testi = std::move(*testi)});
            }
        }
    });
    destinazione_ = &*file_;
}
