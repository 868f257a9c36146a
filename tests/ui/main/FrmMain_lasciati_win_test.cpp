// Files dropped on the main window.

#include "tests/aiuti/cartellaLunga_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/lascito_win.h"
#include "tests/aiuti/testi.h"

#include "support/testi/testo.h"

#include <vector>

namespace {

class FrmMainLasciati : public ProvaFrmMain {
protected:
    // The content of a feed of one item.
    static std::string contenuto(std::string_view titolo) {
        return rssCon("<title>c</title><item><title>" + std::string(titolo) + "</title></item>");
    }
    std::wstring feed(std::wstring_view nome, std::string_view titolo) {
        return cartella.scrivi(nome, contenuto(titolo));
    }
    // The window has done with the drop.
    void lasciaEAttendi(const std::vector<std::wstring>& percorsi) {
        const HGLOBAL blocco = lasciaFile(finestra.hwnd(), percorsi);
        pompa();
        EXPECT_EQ(GlobalFlags(blocco), UINT{GMEM_INVALID_HANDLE});
    }
    void attendiMancante(const std::wstring& percorso) {
        attendiErrore(8292, maiuscolo(percorso) + testi::diErrore(8292));
    }
};

} // namespace

TEST_F(FrmMainLasciati, UnFileLasciatoSiApreDopoLaDomanda) {
    const std::wstring percorso = feed(L"Città 100% #1.rss", "lasciato");
    metti(L"uno");
    finestra.ImpostaModificato();
    attendiDomanda(Risposta::Annulla);
    lasciaEAttendi({percorso});
    EXPECT_EQ(titoliElementi(), L"uno;");
    attendiDomanda(Risposta::No);
    lasciaEAttendi({percorso});
    EXPECT_EQ(titoliElementi(), L"lasciato;");
    EXPECT_EQ(titolo(), L"Ostrelle  [" + percorso + L"]");
    EXPECT_EQ(documento.percorso(), percorso);
    EXPECT_FALSE(documento.modificato());
    // Only a save adds to the recent files.
    EXPECT_TRUE(impostazioni.valori.empty());
}

TEST_F(FrmMainLasciati, DiPiuFileSiApreIlPrimo) {
    const std::wstring primo = feed(L"b.xml", "primo");
    const std::wstring secondo = feed(L"a.xml", "secondo");
    lasciaEAttendi({primo, secondo});
    EXPECT_EQ(titoliElementi(), L"primo;");
    EXPECT_EQ(documento.percorso(), primo);
    lasciaEAttendi({});
    EXPECT_EQ(documento.percorso(), primo);
}

TEST_F(FrmMainLasciati, UnaCartellaOUnFileSparitoDannoLErroreDiApertura) {
    metti(L"uno");
    attendiMancante(cartella.percorso());
    lasciaEAttendi({cartella.percorso()});
    const std::wstring sparito = cartella.file(L"sparito.xml");
    attendiMancante(sparito);
    lasciaEAttendi({sparito, feed(L"a.xml", "secondo")});
    EXPECT_EQ(titoliElementi(), L"uno;");
    const std::wstring altro = cartella.scrivi(L"a.txt", "niente");
    attendiErrore(18343, maiuscolo(altro) + testi::diErrore(18343));
    lasciaEAttendi({altro});
}

TEST_F(FrmMainLasciati, UnPercorsoPiuLungoDi260SiApre) {
    CartellaLunga lunga;
    const std::wstring percorso = lunga.scrivi(L"lontano.xml", contenuto("lontano"));
    lasciaEAttendi({percorso});
    EXPECT_EQ(titoliElementi(), L"lontano;");
    EXPECT_EQ(documento.percorso(), percorso);
}

TEST_F(FrmMainLasciati, MentreUnComandoLavoraNonSiApreNulla) {
    const std::wstring percorso = feed(L"a.xml", "lasciato");
    editor.attendi([&](clsItemRss&, DataOra) -> std::optional<DataOra> {
        lasciaEAttendi({percorso});
        return std::nullopt;
    });
    finestra.esegui(mnaddFeed);
    finestra.ImpostaModificato();
    metti(L"uno");
    messaggi.attendi(testi::domandaSalvataggio, testi::salvataggio, Icona::Domanda,
                     Pulsanti::SiNoAnnulla, Risposta::Annulla, [&] { lasciaEAttendi({percorso}); });
    finestra.esegui(mnNuovo);
    EXPECT_EQ(titoliElementi(), L"uno;");
    // Nor afterwards.
    pompa();
    EXPECT_EQ(titoliElementi(), L"uno;");
}

TEST_F(FrmMainLasciati, UnTrascinamentoDiRigheSiAbbandona) {
    metti(L"a");
    metti(L"b");
    const HWND lista = griglia().lista();
    RECT r{};
    ListView_GetItemRect(lista, 0, &r, LVIR_BOUNDS);
    premiMouse(lista, {60, (r.top + r.bottom) / 2});
    muoviMouse(lista, {60, r.bottom + 5});
    lasciaEAttendi({feed(L"a.xml", "lasciato")});
    lasciaMouse();
    EXPECT_EQ(titoliElementi(), L"lasciato;");
}

// The system asks the window under the pointer, then those around it, for the first that takes
// files; a drop target of a control's own would come before.
TEST_F(FrmMainLasciati, OgniParteDellaFinestraAccettaFile) {
    const auto accetta = [](HWND w) {
        return (GetWindowLongPtrW(w, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0;
    };
    std::vector<HWND> parti{finestra.hwnd()};
    EnumChildWindows(
        finestra.hwnd(),
        [](HWND parte, LPARAM l) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(l)->push_back(parte);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&parti));
    EXPECT_GT(parti.size(), 30U);
    for (const HWND parte : parti) {
        SCOPED_TRACE(GetDlgCtrlID(parte));
        EXPECT_EQ(GetPropW(parte, L"OleDropTargetInterface"), nullptr);
        HWND prende = parte;
        while (prende != nullptr && !accetta(prende)) {
            prende = GetAncestor(prende, GA_PARENT);
        }
        EXPECT_EQ(prende, finestra.hwnd());
    }
}
