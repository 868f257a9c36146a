// What the items must be, and whether they are.

#include "document/elementi.h"
#include "tests/aiuti/scimmia_win.h"
#include "tests/aiuti/secondoLettore_win.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

int Scimmia::scelto() const {
    const int riga = ListView_GetNextItem(grigliaDi(finestra_).lista(), -1, LVNI_SELECTED);
    return riga < static_cast<int>(modello_.size()) ? riga : -1;
}

void Scimmia::impara() {
    const TabellaElementi& tabella = documento_.elementi();
    for (int i = 0; i < std::min<int>(tabella.conteggio(), static_cast<int>(modello_.size()));
         ++i) {
        Elemento& nostro = modello_[static_cast<std::size_t>(i)];
        if (nostro[5].empty()) {
            nostro[5] = tabella(CampoElemento::Guid, i);
            if (!nostro[5].starts_with(nostro[4] + L" ")) {
                segnala("guid: " + inUtf8(nostro[5]));
            }
        }
    }
}

void Scimmia::ricorda() {
    impara();
    if (modello_ != storia_[posto_]) {
        storia_.resize(posto_ + 1);
        storia_.push_back(modello_);
        ++posto_;
        cambiati_ = cambiati_ || !trascinato_;
    }
}

void Scimmia::ricomincia() {
    storia_ = {modello_};
    posto_ = 0;
    cambiati_ = false;
    canale_ = testiCanale();
}

void Scimmia::controllaFile(const std::wstring& percorso) {
    constexpr std::array nomi{"title", "link", "description", "author", "pubDate", "guid"};
    const DocumentoLetto letto = leggiDaSolo(leggiTutto(percorso));
    Modello nelFile;
    for (const NodoLetto& nodo : letto.radice.figli.at(0).figli) {
        if (nodo.nome == "item") {
            Elemento& elemento = nelFile.emplace_back();
            for (std::size_t i = 0; i < nomi.size(); ++i) {
                elemento[i] = nodo.figli.at(i).nome == nomi[i] ? nodo.figli[i].testo : L"?";
            }
        }
    }
    if (nelFile != modello_) {
        segnala("the file holds other items: " + inUtf8(percorso));
    }
}

void Scimmia::confronta() {
    if (IsWindow(finestra_.hwnd()) == FALSE || IsWindowVisible(finestra_.hwnd()) == FALSE ||
        IsWindowEnabled(finestra_.hwnd()) == FALSE) {
        segnala("the window does not answer");
        return;
    }
    const TabellaElementi& tabella = documento_.elementi();
    if (tabella.conteggio() != static_cast<int>(modello_.size())) {
        segnala("items: " + std::to_string(tabella.conteggio()) + ", in the model " +
                std::to_string(modello_.size()));
        return;
    }
    impara();
    for (int i = 0; i < tabella.conteggio(); ++i) {
        const Elemento& atteso = modello_[static_cast<std::size_t>(i)];
        for (int campo = 0; campo < numeroCampi; ++campo) {
            const std::wstring_view vero = tabella(static_cast<CampoElemento>(campo), i);
            if (vero != atteso[static_cast<std::size_t>(campo)]) {
                segnala("item " + std::to_string(i) + ", field " + std::to_string(campo) + ": " +
                        inUtf8(vero) + ", in the model " +
                        inUtf8(atteso[static_cast<std::size_t>(campo)]));
                return;
            }
        }
    }
    if (finestra_.ElementoSelezionato() != scelto() ||
        ListView_GetItemCount(griglia().lista()) !=
            std::max(RigheGriglia::minime - 1, int{tabella.conteggio()})) {
        segnala("the grid shows other rows");
    }
    if (GetCapture() == griglia().lista()) {
        segnala("a drag that has no end");
    }
}
