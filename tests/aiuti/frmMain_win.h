#pragma once

#include "support/programma/ClsCodaEliminazione.h"
#include "support/servizi/cartelleDati.h"
#include "tests/aiuti/campi_prova_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/dialoghi_finti.h"
#include "tests/aiuti/editor_finto.h"
#include "tests/aiuti/elementi_prova_win.h"
#include "tests/aiuti/impostazioni_finte.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/orologio_fermo.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/tabella_prova.h"
#include "tests/aiuti/testi.h"
#include "ui/main/FrmMain_win.h"

#include "res/risorse.h"

#include <array>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// The requests of the document commands' file dialogs.
inline const RichiestaFile richiestaApri{
    L"File RSS (*.rss; *.xml)|*.rss; *.xml|Tutti i File (*.*)|*.*", opzioniApri, L""};
inline const RichiestaFile richiestaSalva{
    L"File RSS (*.xml; *.rss)|*.xml; *.rss|Tutti i File (*.*)|*.*", opzioniSalva, L".xml"};

// The nine texts of the channel's frame, in the order of the form.
inline constexpr std::array campiTesto{IDC_TXTTITOLO, IDC_TXTLINKHOME,  IDC_TXTDESCRIZIONE,
                                       IDC_CBOLINGUA, IDC_TXTCOPYRIGHT, IDC_TXTWEBMASTER,
                                       IDC_TXTLOGO,   IDC_TXTURL,       IDC_TXTLINKIMG};

// The real main window, shown, among fakes for what blocks.
class ProvaFrmMain : public testing::Test {
protected:
    ProvaFrmMain() {
        finestra.apri(SW_SHOWNORMAL);
        portaAvanti(finestra.hwnd());
    }

    // The question about unsaved changes comes and gets this answer.
    void attendiDomanda(Risposta risposta) {
        messaggi.attendi(testi::domandaSalvataggio, testi::salvataggio, Icona::Domanda,
                         Pulsanti::SiNoAnnulla, risposta);
    }
    void attendiErrore(std::int32_t numero, std::wstring testo) {
        messaggi.attendi(std::move(testo), testi::erroreNumero(numero), Icona::Critica);
    }
    void attendiErrore(std::int32_t numero) { attendiErrore(numero, testi::diErrore(numero)); }
    void attendiNessunaSelezione() {
        messaggi.attendi(testi::nessunaSelezione, testi::attenzione, Icona::Informazione);
    }

    // A control of the channel's frame.
    [[nodiscard]] HWND campo(int id) { return campi.controllo(id); }
    [[nodiscard]] std::wstring titolo() { return testoDi(finestra.hwnd()); }
    [[nodiscard]] std::wstring pannello(WPARAM numero) {
        const HWND barra = GetDlgItem(finestra.hwnd(), IDC_STATUSBAR);
        std::wstring testo(LOWORD(SendMessageW(barra, SB_GETTEXTLENGTHW, numero, 0)), L'\0');
        SendMessageW(barra, SB_GETTEXTW, numero, reinterpret_cast<LPARAM>(testo.data()));
        return testo;
    }

    [[nodiscard]] Griglia& griglia() { return grigliaDi(finestra); }

    // One more item, without counting as a modification.
    void metti(std::wstring_view titoloElemento) {
        mettiElemento(finestra, documento, titoloElemento);
    }
    [[nodiscard]] std::wstring titoloDi(int indice) const {
        return std::wstring(documento.elementi()(CampoElemento::Titolo, indice));
    }
    [[nodiscard]] std::wstring titoliElementi() const {
        std::wstring tutti;
        for (int i = 0; i < documento.elementi().conteggio(); ++i) {
            tutti += titoloDi(i) + L';';
        }
        return tutti;
    }

    MessaggiFinti messaggi;
    DialoghiFinti dialoghi;
    OrologioFermo orologio{DataOra::daParti(2005, 11, 15, 10, 0, 0)};
    ImpostazioniFinte impostazioni;
    ClsCodaEliminazione coda;
    EditorFinto editor;
    CartellaProva cartella;
    CartelleDati cartelle{cartella.file(L"dati\\copie"), cartella.file(L"dati\\diario")};
    Documento documento;
    FrmMain finestra{Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle},
                     documento};
    CampiProva campi{finestra};
    ConFiltro filtro{[this](MSG& msg) { return finestra.anticipa(msg); }};
};
