// The main window's events that run a command, one at a time.

#include "ui/main/FrmMain_win.h"

#include "support/immagini/ClsSizerImg.h"
#include "support/immagini/immagine_win.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/guardia_win.h"

template <class Azione>
void FrmMain::occupando(Azione azione) {
    if (occupata_) {
        return;
    }
    const Alzata occupata(occupata_);
    // The boxes of a command belong to the active window. A minimised program, or one behind
    // another that is asked about the end of the session, has none.
    if (GetActiveWindow() == nullptr) {
        SetActiveWindow(hwnd());
    }
    azione();
}

bool FrmMain::Form_QueryUnload() {
    // While a dialog is up over an unfinished command the answer stays no.
    bool chiudere = false;
    occupando([&] {
        protetto(
            [&] {
                campi_.conferma();
                griglia_.abbandona();
                chiudere = ChiediSalvataggio();
            },
            [&] { MostraErrore(); });
    });
    return chiudere;
}

void FrmMain::esegui(int id) {
    if (id == mnChiudi) {
        SendMessageW(hwnd(), WM_CLOSE, 0, 0);
        return;
    }
    comeComando([this, id] { comando(id); });
}

void FrmMain::comeComando(const std::function<void()>& azione) {
    occupando([&] {
        protetto(
            [&] {
                // A command does not move the focus: what it saves is what the fields show,
                // within their limits.
                campi_.conferma();
                griglia_.abbandona();
                azione();
            },
            [&] { MostraErrore(); });
    });
}

void FrmMain::comando(int id) {
    switch (id) {
    case mnNuovo:
        comandiDocumento_.mnNuovo_Click();
        break;
    case mnApri:
        Apri(L"");
        break;
    case mnsalva:
        Salva(false);
        break;
    case mnSalvaCon:
        Salva(true);
        break;
    case mnsalvahtm:
        pagina_.EsportaHTML();
        break;
    case mnaddFeed:
        comandiElementi_.cmdAggiungi_Click();
        break;
    case mnEditFeed:
        comandiElementi_.cmdModifica_Click();
        break;
    case mnDelFeed:
        comandiElementi_.cmdCancella_Click();
        break;
    case mnvisualhtml:
        pagina_.mnvisualhtml_Click();
        break;
    case spostaSu:
        spostaSelezionato(ElementoSelezionato() - 1);
        break;
    case spostaGiu:
        spostaSelezionato(ElementoSelezionato() + 1);
        break;
    case spostaInCima:
        spostaSelezionato(0);
        break;
    case spostaInFondo:
        spostaSelezionato(documento_.elementi().conteggio() - 1);
        break;
    case mnAggiorna:
        RiempiGriglia(false);
        break;
    default:
        if (id > mnrec && id <= ultimoRecente) {
            // A copy: the list is read anew while the file opens.
            const std::wstring percorso =
                recenti_.voci().at(static_cast<std::size_t>(id - mnrec - 1));
            Apri(percorso);
        } else {
            aiuto_.esegui(static_cast<Comando>(id), hwnd());
        }
        break;
    }
}

void FrmMain::cmdGetSize_Click() {
    occupando([&] {
        protetto(
            [&] {
                const UnitaDiFinestra unita(hwnd());
                ImmagineNascosta ImgDim;
                ClsSizerImg misura;
                misura.objForm(unita);
                misura.objDlg(servizi_.dialoghi);
                misura.objImg(ImgDim);
                misura.LeggiImg(L"");
                campi_.dimensioni(misura.nWidth(), misura.nHeight());
            },
            [&] { koUtilita(servizi_.messaggi).PrintErrore(); });
    });
}

void FrmMain::grigliaDoppioClic(int riga) {
    if (riga >= 1) {
        esegui(mnEditFeed);
        return;
    }
    avvisaNessunaRiga();
}

void FrmMain::avvisaNessunaRiga() {
    occupando([&] {
        protetto([&] { avvisaNessunaSelezione(servizi_.messaggi); }, [&] { MostraErrore(); });
    });
}

void FrmMain::grigliaRigaCambiata(int riga) {
    GUI::SelezionaRiga(griglia_, riga);
}

void FrmMain::grigliaSposta(int da, int a) {
    // A command at work knows its item by the index: nothing moves meanwhile.
    occupando([&] {
        protetto([&] { comandiElementi_.SpostaElemento(da, a, Causa::Trascinamento); },
                 [&] { MostraErrore(); });
    });
}

void FrmMain::spostaSelezionato(int a) {
    const int da = ElementoSelezionato();
    if (da >= 0 && a != da && a >= 0 && a < documento_.elementi().conteggio()) {
        comandiElementi_.SpostaElemento(da, a, Causa::Comando);
    }
}

void FrmMain::grigliaMenu(POINT punto, int riga) {
    const ManigliaMenu menu = creaMenuContenuto();
    const int scelto = TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON | TPM_RETURNCMD, punto.x, punto.y,
                                      0, hwnd(), nullptr);
    if (riga < 1 && (scelto == mnEditFeed || scelto == mnDelFeed || scelto == mnvisualhtml)) {
        avvisaNessunaRiga();
    } else if (scelto != 0) {
        esegui(scelto);
    }
}
