#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/griglia_prova_win.h"

#include "tests/aiuti/testi.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// The main window with tables of any size.
class FrmMainElementi : public ProvaFrmMain {
protected:
    void riempi(int quanti) {
        finestra.NuovoDocumento();
        std::vector<ElementoCondiviso> elementi;
        elementi.reserve(static_cast<std::size_t>(quanti));
        for (int i = 0; i < quanti; ++i) {
            elementi.push_back(
                conTesto(*elementoVuoto(), CampoElemento::Titolo, std::to_wstring(i)));
        }
        TabellaElementi tabella;
        tabella.riempi(std::move(elementi));
        documento.sostituisci(std::move(tabella));
        documento.modificato(false);
    }
    [[nodiscard]] int righe() { return ListView_GetItemCount(griglia().lista()); }
    [[nodiscard]] int corrente() { return griglia().rigaCorrente(); }
    // A point of a row in sight.
    [[nodiscard]] POINT punto(int riga) {
        RECT r{};
        ListView_GetItemRect(griglia().lista(), riga - 1, &r, LVIR_BOUNDS);
        return {200, (r.top + r.bottom) / 2};
    }
    void attendiCancellazione() {
        messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                         Risposta::Si);
    }
    void attendiTitolo(const wchar_t* nuovo) {
        editor.attendi([nuovo](clsItemRss& elemento, DataOra ultima) {
            elemento.sTitle(nuovo);
            return std::optional(ultima);
        });
    }
};

} // namespace

TEST_F(FrmMainElementi, UnaTabellaVuotaHaSoloRigheSenzaElemento) {
    riempi(0);
    EXPECT_EQ(righe(), 49);
    for (const int riga : {1, 25, 49}) {
        finestra.SelezionaRiga(riga);
        for (const int comando : {mnEditFeed, mnDelFeed, mnvisualhtml}) {
            attendiNessunaSelezione();
            finestra.esegui(comando);
        }
        for (const int comando : {spostaSu, spostaGiu, spostaInCima, spostaInFondo}) {
            finestra.esegui(comando);
            EXPECT_EQ(corrente(), riga);
        }
    }
    EXPECT_EQ(documento.elementi().conteggio(), 0);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainElementi, ModificareTogliereEAggiungereInFondoATabelleDiOgniMisura) {
    for (const int quanti : {1, 48, 49, 50, 51, 32767}) {
        SCOPED_TRACE(quanti);
        riempi(quanti);
        EXPECT_EQ(righe(), std::max(49, quanti));
        finestra.SelezionaRiga(quanti);
        attendiTitolo(L"x");
        finestra.esegui(mnEditFeed);
        EXPECT_EQ(titoloDi(quanti - 1), L"x");
        EXPECT_EQ(corrente(), quanti);
        EXPECT_TRUE(rigaVisibile(griglia().lista(), quanti));

        documento.modificato(false);
        attendiCancellazione();
        finestra.esegui(mnDelFeed);
        EXPECT_EQ(documento.elementi().conteggio(), quanti - 1);
        EXPECT_EQ(righe(), std::max(49, quanti - 1));
        EXPECT_EQ(corrente(), std::max(1, quanti - 1));
        EXPECT_TRUE(documento.modificato());

        documento.modificato(false);
        attendiTitolo(L"y");
        finestra.esegui(mnaddFeed);
        EXPECT_EQ(documento.elementi().conteggio(), quanti);
        EXPECT_EQ(titoloDi(quanti - 1), L"y");
        EXPECT_EQ(righe(), std::max(49, quanti));
        EXPECT_EQ(corrente(), quanti);
        EXPECT_TRUE(rigaVisibile(griglia().lista(), quanti));
        EXPECT_TRUE(documento.modificato());
        if (quanti < 49) {
            finestra.SelezionaRiga(quanti + 1);
            attendiNessunaSelezione();
            finestra.esegui(mnDelFeed);
        }
    }
    // Full: nothing more, and the table is as it was.
    documento.modificato(false);
    messaggi.attendi(testi::diErrore(6), testi::erroreDetto(6), Icona::Informazione);
    finestra.esegui(mnaddFeed);
    EXPECT_EQ(documento.elementi().conteggio(), 32767);
    EXPECT_EQ(corrente(), 32767);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainElementi, TrascinareInFondoATabelleDiOgniMisura) {
    const HWND lista = griglia().lista();
    for (const int quanti : {2, 49, 50, 32767}) {
        SCOPED_TRACE(quanti);
        riempi(quanti);
        // The last but one on the last, as far down as there are rows.
        griglia().rigaInCima(std::max(1, quanti - 2));
        const int cima = griglia().rigaInCima();
        trascina(lista, punto(quanti - 1), punto(quanti));
        EXPECT_EQ(titoloDi(quanti - 1), std::to_wstring(quanti - 2));
        EXPECT_EQ(titoloDi(quanti - 2), std::to_wstring(quanti - 1));
        EXPECT_EQ(corrente(), quanti);
        EXPECT_EQ(griglia().rigaInCima(), cima);
        EXPECT_FALSE(documento.modificato());
        // Elsewhere, so that the next press is not the second of a pair.
        clic(campo(IDC_TXTTITOLO));
    }
}

TEST_F(FrmMainElementi, SpostareColTastoTieneLaRigaInCimaEControllaIConfini) {
    riempi(200);
    griglia().rigaInCima(100);
    finestra.SelezionaRiga(101);
    finestra.esegui(spostaGiu);
    EXPECT_EQ(titoloDi(101), L"100");
    EXPECT_EQ(corrente(), 102);
    EXPECT_EQ(griglia().rigaInCima(), 100);
    EXPECT_TRUE(documento.modificato());
    documento.modificato(false);
    finestra.SelezionaRiga(1);
    finestra.esegui(spostaSu);
    finestra.esegui(spostaInCima);
    EXPECT_EQ(titoloDi(0), L"0");
    finestra.SelezionaRiga(200);
    finestra.esegui(spostaGiu);
    finestra.esegui(spostaInFondo);
    EXPECT_EQ(titoloDi(199), L"199");
    EXPECT_EQ(corrente(), 200);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainElementi, SpostareInCimaEInFondoPortaLiAncheLaVista) {
    for (const int quanti : {2, 49, 50, 32767}) {
        SCOPED_TRACE(quanti);
        riempi(quanti);
        finestra.SelezionaRiga(1);
        finestra.esegui(spostaInFondo);
        EXPECT_EQ(titoloDi(0), L"1");
        EXPECT_EQ(titoloDi(quanti - 1), L"0");
        EXPECT_EQ(corrente(), quanti);
        EXPECT_TRUE(rigaVisibile(griglia().lista(), quanti));
        finestra.esegui(spostaInCima);
        EXPECT_EQ(titoloDi(0), L"0");
        EXPECT_EQ(titoloDi(quanti - 1), std::to_wstring(quanti - 1));
        EXPECT_EQ(corrente(), 1);
        EXPECT_EQ(griglia().rigaInCima(), 1);
    }
}
