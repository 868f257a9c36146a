#include "tests/aiuti/accessibile_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/suggerimenti_prova_win.h"
#include "tests/aiuti/testi.h"

#include <commctrl.h>

#include <array>
#include <span>

namespace {

class FrmMainMenu : public ProvaFrmMain {
protected:
    // A right click, and that entry of the context menu counted from 1; with 0 the menu goes.
    void scegliDalMenu(HWND dove, int posto) {
        const QuandoAppare menu(L"#32768", L"", [&](HWND) {
            for (int i = 0; i < posto; ++i) {
                PostMessageW(finestra.hwnd(), WM_KEYDOWN, VK_DOWN, 0);
            }
            PostMessageW(finestra.hwnd(), WM_KEYDOWN, posto == 0 ? VK_ESCAPE : VK_RETURN, 0);
        });
        clicDestro(dove, {60, 5});
    }
};

// An entry as a menu has to show it; "-" is a separator, a submenu has no command.
struct Attesa {
    const wchar_t* didascalia;
    UINT comando = 0;
};

constexpr std::array file{
    Attesa{L"&Nuovo", mnNuovo},
    Attesa{L"&Apri", mnApri},
    Attesa{L"-"},
    Attesa{L"&Salva", mnsalva},
    Attesa{L"Sa&lva con nome...", mnSalvaCon},
    Attesa{L"-"},
    Attesa{L"&Esporta come pagina Web...", mnsalvahtm},
    Attesa{L"-"},
    Attesa{L"&File recenti"},
    Attesa{L"-"},
    Attesa{L"&Chiudi", mnChiudi},
};

constexpr std::array contenuto{
    Attesa{L"&Aggiungi Feed", mnaddFeed},
    Attesa{L"&Modifica Feed", mnEditFeed},
    Attesa{L"&Cancella Feed", mnDelFeed},
    Attesa{L"-"},
    Attesa{L"Visualizza come pagina web", mnvisualhtml},
    Attesa{L"-"},
    Attesa{L"&Aggiorna Lista", mnAggiorna},
};

constexpr std::array aiuto{
    Attesa{L"&Guida", mnGuida},
    Attesa{L"-"},
    Attesa{L"Q&uorvex sul Web", mniaco},
    Attesa{L"G&uide on-line", mnguidaonline},
    Attesa{L"&Scrivi all'autore", mnautore},
    Attesa{L"-"},
    Attesa{L"&Aggiornamento", mnVerificaUpgrade},
    Attesa{L"-"},
    Attesa{L"S&egnala Bug", mnBug},
    Attesa{L"-"},
    Attesa{L"&Informazione sul prodotto...", mninfo},
};

std::wstring didascalia(HMENU menu, UINT posizione) {
    std::array<wchar_t, 100> testo{};
    GetMenuStringW(menu, posizione, testo.data(), static_cast<int>(testo.size()), MF_BYPOSITION);
    return testo.data();
}

void confronta(HMENU menu, std::span<const Attesa> attese) {
    ASSERT_EQ(GetMenuItemCount(menu), static_cast<int>(attese.size()));
    for (UINT i = 0; i < attese.size(); ++i) {
        const Attesa& attesa = attese[i];
        const UINT stato = GetMenuState(menu, i, MF_BYPOSITION);
        if (std::wstring_view(attesa.didascalia) == L"-") {
            EXPECT_NE(stato & MF_SEPARATOR, 0U) << i;
            continue;
        }
        EXPECT_EQ(didascalia(menu, i), attesa.didascalia);
        EXPECT_EQ(stato & (MF_GRAYED | MF_DISABLED), 0U) << i;
        if (attesa.comando == 0) {
            EXPECT_NE(GetSubMenu(menu, static_cast<int>(i)), nullptr) << i;
        } else {
            EXPECT_EQ(GetMenuItemID(menu, static_cast<int>(i)), attesa.comando);
        }
    }
}

// The menu that a popup window shows.
HMENU menuDi(HWND popup) {
    constexpr UINT mnGetHMenu = 0x01E1;
    return reinterpret_cast<HMENU>(SendMessageW(popup, mnGetHMenu, 0, 0));
}

POINT meta(const RECT& r) {
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

} // namespace

TEST_F(FrmMainMenu, LaBarraHaOgniVoceNelSuoOrdineENessunaMorta) {
    const HMENU barra = GetMenu(finestra.hwnd());
    ASSERT_EQ(GetMenuItemCount(barra), 3);
    EXPECT_EQ(didascalia(barra, 0), L"&File");
    EXPECT_EQ(didascalia(barra, 1), L"&Contenuto");
    EXPECT_EQ(didascalia(barra, 2), L"?");
    confronta(GetSubMenu(barra, 0), file);
    confronta(GetSubMenu(barra, 1), contenuto);
    confronta(GetSubMenu(barra, 2), aiuto);
}

TEST_F(FrmMainMenu, IlMenuDellaGrigliaEQuelloDelContenuto) {
    const QuandoAppare menu(L"#32768", L"", [](HWND popup) {
        confronta(menuDi(popup), contenuto);
        EndMenu();
    });
    clicDestro(griglia().lista(), {40, 60});
    EXPECT_TRUE(menu.apparsa());
}

TEST_F(FrmMainMenu, IlPulsanteDestroParlaDellaRigaCliccata) {
    for (const wchar_t* const t : {L"a", L"b", L"c"}) {
        metti(t);
    }
    ASSERT_EQ(griglia().rigaCorrente(), 1);
    RECT r{};
    ListView_GetItemRect(griglia().lista(), 2, &r, LVIR_BOUNDS);
    messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                     Risposta::Si);
    const QuandoAppare menu(L"#32768", L"", [&](HWND) {
        EXPECT_EQ(griglia().rigaCorrente(), 3);
        PostMessageW(finestra.hwnd(), WM_CHAR, L'c', 0);
    });
    clicDestro(griglia().lista(), {40, meta(r).y});
    EXPECT_TRUE(attendi([&] { return titoliElementi() == L"a;b;"; }));
}

TEST_F(FrmMainMenu, DallIntestazioneSiAggiungeMaNonSiToccaLaRigaCorrente) {
    metti(L"a");
    metti(L"b");
    const HWND testata = ListView_GetHeader(griglia().lista());
    // Modify, delete, preview: their places in the menu, from the top.
    for (const int posto : {2, 3, 4}) {
        attendiNessunaSelezione();
        scegliDalMenu(testata, posto);
    }
    EXPECT_EQ(titoliElementi(), L"a;b;");
    editor.attendi([](clsItemRss& elemento, DataOra data) {
        elemento.sTitle(L"c");
        return std::optional(data);
    });
    scegliDalMenu(testata, 1);
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    // Nothing chosen is nothing done.
    scegliDalMenu(testata, 0);
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
}

TEST_F(FrmMainMenu, IlTastoMenuApreAllaRigaCorrente) {
    for (const wchar_t* const t : {L"a", L"b", L"c"}) {
        metti(t);
    }
    finestra.SelezionaRiga(3);
    SetFocus(griglia().lista());
    RECT riga{};
    ListView_GetItemRect(griglia().lista(), 2, &riga, LVIR_BOUNDS);
    MapWindowPoints(griglia().lista(), nullptr, reinterpret_cast<POINT*>(&riga), 2);
    const QuandoAppare menu(L"#32768", L"", [&](HWND popup) {
        RECT r{};
        GetWindowRect(popup, &r);
        // Below the point, or above it near the screen's bottom.
        EXPECT_TRUE((r.top >= riga.top && r.top <= riga.bottom) ||
                    (r.bottom >= riga.top && r.bottom <= riga.bottom))
            << r.top << ' ' << r.bottom << " for " << riga.top << ' ' << riga.bottom;
        EndMenu();
    });
    premi(VK_APPS);
    EXPECT_TRUE(menu.apparsa());
    EXPECT_EQ(griglia().rigaCorrente(), 3);
}

TEST_F(FrmMainMenu, OgniPulsanteDellaBarraDiceCheCosaFa) {
    const HWND barra = GetDlgItem(finestra.hwnd(), IDC_TOOLBAR);
    const std::array attesi{
        Attesa{L"Crea un nuovo Feed RSS", mnNuovo},
        Attesa{L"Apre il Feed RSS per la modifica", mnApri},
        Attesa{L"Salva il Feed RSS", mnsalva},
        Attesa{L"Invia un email all'autore...", mnautore},
        Attesa{L"Informazioni sul prodotto...", mninfo},
    };
    ASSERT_EQ(SendMessageW(barra, TB_BUTTONCOUNT, 0, 0), static_cast<LRESULT>(attesi.size()));
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        TBBUTTON pulsante{};
        SendMessageW(barra, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&pulsante));
        EXPECT_EQ(pulsante.idCommand, static_cast<int>(attesi[i].comando));
        RECT r{};
        SendMessageW(barra, TB_GETITEMRECT, i, reinterpret_cast<LPARAM>(&r));
        EXPECT_TRUE(suggerisce(barra, meta(r), attesi[i].didascalia)) << i;
    }
}

TEST_F(FrmMainMenu, LaBarraEsegueQuelCheDice) {
    const HWND barra = GetDlgItem(finestra.hwnd(), IDC_TOOLBAR);
    const auto preme = [&](WPARAM posizione) {
        RECT r{};
        SendMessageW(barra, TB_GETITEMRECT, posizione, reinterpret_cast<LPARAM>(&r));
        clic(barra, meta(r));
    };
    metti(L"uno");
    // A new document asks for its name, as the menu's entry does.
    const std::wstring percorso = cartella.file(L"barra.xml");
    dialoghi.attendiSalva(richiestaSalva, percorso);
    preme(2);
    EXPECT_EQ(documento.percorso(), percorso);
    preme(0);
    EXPECT_EQ(titolo(), L"Ostrelle  [Nuovo Documento]");
    dialoghi.attendiApri(richiestaApri, percorso);
    preme(1);
    EXPECT_EQ(titoliElementi(), L"uno;");
}

TEST_F(FrmMainMenu, LeEtichetteSpieganoIndirizzoEMisure) {
    const std::array attesi{
        Attesa{L"URL (Percorso)", IDC_LBLURL},
        Attesa{L"Larghezza in pixels", IDC_LBLLARGHEZZA},
        Attesa{L"Altezza in pixels", IDC_LBLALTEZZA},
    };
    for (const Attesa& attesa : attesi) {
        EXPECT_TRUE(suggerisce(campo(static_cast<int>(attesa.comando)), {4, 4}, attesa.didascalia))
            << attesa.comando;
    }
}

TEST_F(FrmMainMenu, OgniCampoHaUnNomePerChiLoLegge) {
    const std::array<std::pair<HWND, const wchar_t*>, 15> attesi{{
        {campo(IDC_TXTTITOLO), L"Titolo:"},
        {campo(IDC_TXTLINKHOME), L"Link Home:"},
        {campo(IDC_TXTDESCRIZIONE), L"Descrizione:"},
        {campo(IDC_TXTCOPYRIGHT), L"Copyright:"},
        {campo(IDC_TXTWEBMASTER), L"WebMaster:"},
        {campo(IDC_TXTLOGO), L"Titolo Logo:"},
        {campo(IDC_TXTURL), L"Url:"},
        {campo(IDC_TXTLINKIMG), L"Click Link:"},
        {txtnumeroDi(campi.txtLarghezza()), L"Larghezza:"},
        {txtnumeroDi(campi.txtAltezza()), L"Altezza:"},
        {campo(IDC_CMDGETSIZE), L"Determina dimensioni"},
        {griglia().lista(), L"Elementi"},
        {finestra.hwnd(), L"Ostrelle  [Nuovo Documento]"},
        {GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), cmdAggiungi), L"Aggiungi Feed"},
        {GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), cmdCancella), L"Cancella Feed"},
    }};
    for (const auto& [controllo, nome] : attesi) {
        EXPECT_EQ(nomeAccessibile(controllo), nome) << GetDlgCtrlID(controllo);
    }
    // Here the object's name is the label where Windows provides the object, and not under Wine.
    for (const auto& [id, nome] : {std::pair{IDC_CBOLINGUA, L"Linguaggio:"},
                                   {IDC_TXTDATA, L"Data:"},
                                   {IDC_TXTORARIO, L"Ora:"}}) {
        const HWND etichetta = GetWindow(campo(id), GW_HWNDPREV);
        EXPECT_NE(SendMessageW(etichetta, WM_GETDLGCODE, 0, 0) & DLGC_STATIC, 0) << id;
        EXPECT_EQ(testoDi(etichetta), nome);
    }
}

TEST_F(FrmMainMenu, AggiornaListaRileggeLaTabellaETornaAllaPrimaRiga) {
    metti(L"a");
    metti(L"b");
    finestra.SelezionaRiga(2);
    finestra.RiempiGriglia(true);
    finestra.SelezionaRiga(2);
    EXPECT_EQ(griglia().elemento(2), -1);
    finestra.esegui(mnAggiorna);
    EXPECT_EQ(griglia().elemento(2), 1);
    EXPECT_EQ(griglia().rigaCorrente(), 1);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainMenu, SenzaRecentiTornaLaVoceCheLoDice) {
    const HMENU recenti = GetSubMenu(GetSubMenu(GetMenu(finestra.hwnd()), 0), 8);
    for (const wchar_t* const salvato : {L"c:\\feed.xml", L""}) {
        impostazioni.scrivi(L"url", L"murl1", salvato);
        finestra.CaricaRecenti();
        ASSERT_EQ(GetMenuItemCount(recenti), 1);
        const bool vuoto = *salvato == L'\0';
        EXPECT_EQ(didascalia(recenti, 0), vuoto ? L"nessuna voce in elenco" : salvato);
        EXPECT_EQ(GetMenuItemID(recenti, 0) == mnrec, vuoto);
        EXPECT_EQ((GetMenuState(recenti, 0, MF_BYPOSITION) & MF_GRAYED) != 0, vuoto);
    }
}

TEST_F(FrmMainMenu, IRecentiCiSonoDallAvvio) {
    impostazioni.scrivi(L"url", L"murl1", L"c:\\feed.xml");
    Documento altro;
    FrmMain nata{Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle},
                 altro};
    nata.apri(SW_SHOWNORMAL);
    EXPECT_EQ(didascalia(GetSubMenu(GetSubMenu(GetMenu(nata.hwnd()), 0), 8), 0), L"c:\\feed.xml");
}

// What bears a submenu, and what nobody knows.
TEST_F(FrmMainMenu, UnComandoCheNonFaNienteNonFaNiente) {
    metti(L"a");
    for (const int comando : {static_cast<int>(mnrecenti), 65535}) {
        finestra.esegui(comando);
        EXPECT_EQ(titoliElementi(), L"a;") << comando;
        EXPECT_FALSE(documento.modificato()) << comando;
    }
}
