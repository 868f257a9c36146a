#include "ui/main/comandiRicerca_win.h"

#include "document/elementi.h"
#include "support/errori/errore.h"
#include "support/windows/comdlg32_win.h"
#include "ui/main/finestraPrincipale_win.h"

#include <utility>

namespace {

// What the dialog sends its owner.
UINT messaggioDialogo() noexcept {
    static const UINT codice = RegisterWindowMessageW(FINDMSGSTRINGW);
    return codice;
}

} // namespace

void ComandiRicerca::mnTrova() {
    if (dialogo_ != nullptr) {
        SetActiveWindow(dialogo_);
        return;
    }
    const auto trovaTesto = comdlg32<decltype(&FindTextW)>("FindTextW");
    // The direction is the one chosen last, like the text.
    const DWORD scelte = dati_.lStructSize == 0 ? DWORD{FR_DOWN} : dati_.Flags;
    dati_ = {};
    dati_.lStructSize = sizeof(dati_);
    dati_.hwndOwner = finestra_.proprietaria();
    dati_.Flags = (scelte & (FR_DOWN | FR_MATCHCASE)) | FR_HIDEWHOLEWORD;
    dati_.lpstrFindWhat = testo_.data();
    dati_.wFindWhatLen = static_cast<WORD>(testo_.size());
    dialogo_ = trovaTesto(&dati_);
    if (dialogo_ == nullptr) {
        solleva(errori::memoriaEsaurita);
    }
}

void ComandiRicerca::prosegui(int elemento, Direzione verso) {
    if (criterio_.testo.empty()) {
        mnTrova();
        return;
    }
    const auto trovato = cerca(documento_.elementi(), criterio_, elemento, verso);
    if (!trovato) {
        di(L"«" + criterio_.testo + L"»: non trovato.");
        return;
    }
    finestra_.SelezionaRiga(rigaDi(trovato->indice));
    if (!trovato->ripresa) {
        di(L"");
    } else {
        di(verso == Direzione::Avanti ? L"Ricerca ripresa dall'inizio."
                                      : L"Ricerca ripresa dalla fine.");
    }
}

void ComandiRicerca::di(std::wstring testo) {
    if (!testo.empty() || finestra_.stato() == detto_) {
        finestra_.ImpostaStato(testo);
    }
    detto_ = std::move(testo);
}

bool ComandiRicerca::anticipa(MSG& messaggio) noexcept {
    return dialogo_ != nullptr && IsDialogMessageW(dialogo_, &messaggio) != FALSE;
}

std::optional<Comando> ComandiRicerca::richiesta(UINT codice, LPARAM l) {
    if (codice != messaggioDialogo() || l != reinterpret_cast<LPARAM>(&dati_)) {
        return std::nullopt;
    }
    if ((dati_.Flags & FR_DIALOGTERM) != 0) {
        dialogo_ = nullptr;
        return nessunComando;
    }
    if ((dati_.Flags & FR_FINDNEXT) == 0) {
        return nessunComando;
    }
    criterio_ = {testo_.data(),
                 (dati_.Flags & FR_MATCHCASE) != 0 ? Maiuscole::Distingui : Maiuscole::Ignora};
    return (dati_.Flags & FR_DOWN) != 0 ? trovaAvanti : trovaIndietro;
}

void ComandiRicerca::abilita(bool abilitato) const noexcept {
    if (dialogo_ != nullptr) {
        EnableWindow(dialogo_, abilitato ? TRUE : FALSE);
    }
}
