// The main window's events that run a command.

#include "ui/main/FrmMain_win.h"

#include "support/immagini/ClsSizerImg.h"
#include "support/immagini/immagine_win.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/guardia_win.h"
#include "ui/main/comandi.h"

void FrmMain::mnChiudi_Click() {
    if (Form_QueryUnload()) {
        custodeLavoro_.dimentica();
        distruggi();
    }
}

void FrmMain::apriDaFuori(const std::wstring& percorso) {
    if (percorso.empty()) {
        return;
    }
    esecutore_.daSolo([&] {
        SetForegroundWindow(hwnd());
        parti_.documento.Apri(percorso);
    });
}

void FrmMain::cmdGetSize_Click() {
    esecutore_.daSolo([&] {
        protetto(
            [&] {
                // A picture tells its size by the screen's resolution, wherever the window is.
                const UnitaDiFinestra unita(dpiDi(nullptr));
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
    esecutore_.esegui(mnEditFeed, riga);
}

void FrmMain::grigliaSposta(int da, int a) {
    // A command at work knows its item by the index: nothing moves meanwhile.
    esecutore_.daSolo([&] { parti_.elementi.SpostaElemento(da, a, Causa::Trascinamento); });
}

void FrmMain::grigliaMenu(POINT punto, int riga) {
    const ManigliaMenu menu = creaMenu(Menu::mnContenuto);
    const int scelto = TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON | TPM_RETURNCMD, punto.x, punto.y,
                                      0, hwnd(), nullptr);
    if (scelto != 0) {
        esecutore_.esegui(scelto, riga);
    }
}
