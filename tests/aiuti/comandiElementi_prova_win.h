#pragma once

#include "support/errore.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/messaggi_finti.h"
#include "ui/main/GUI_win.h"
#include "ui/main/comandiElementi_win.h"

#include <string>

// The window of the commands: a real grid and the modified flag.
class FinestraProva final : public FinestraElementi {
public:
    explicit FinestraProva(Griglia& griglia) noexcept : griglia_(griglia) {}

    void RiempiGriglia(bool soloIntestazioni) override {
        if (fallisce) {
            solleva(errori::memoriaEsaurita);
        }
        GUI::RiempiGriglia(griglia_, soloIntestazioni);
    }
    void SelezionaRiga(int riga) override { GUI::SelezionaRiga(griglia_, riga); }
    [[nodiscard]] int ElementoSelezionato() const override {
        return griglia_.ElementoSelezionato();
    }
    void ImpostaModificato() override { modificato = true; }

    bool modificato = false;
    bool fallisce = false;

private:
    Griglia& griglia_;
};

inline const DataOra inizio = DataOra::daParti(2005, 12, 1, 9, 8, 7);

// The commands on a grid of `elementi` items.
struct Banco {
    Banco(int elementi, EditorElementi& editor)
        : griglia(elementi), comandi(messaggi, editor, finestra, griglia.tabella, ultima) {}

    void attendiSelezione() {
        messaggi.attendi(L"E' necessario selezionare un elemento dalla griglia.", L"Attenzione",
                         Icona::Informazione);
    }
    void attendiDomanda(Risposta risposta) {
        messaggi.attendi(L"Si desidera cancellare realmente il contenuto selezionato?",
                         L"Attenzione", Icona::Domanda, Pulsanti::SiNo, risposta);
    }
    [[nodiscard]] std::wstring campo(CampoElemento campo, int indice) const {
        return griglia.tabella(campo, indice);
    }

    MessaggiFinti messaggi;
    GrigliaProva griglia;
    FinestraProva finestra{griglia.griglia};
    DataOra ultima = inizio;
    ComandiElementi comandi;
};
