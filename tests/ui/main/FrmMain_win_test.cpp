#include "tests/aiuti/frmMain_win.h"

#include "tests/aiuti/testi.h"

#include <commctrl.h>

#include <array>
#include <cstring>
#include <string_view>

using namespace std::string_view_literals;

namespace {

using FrmMainAperta = ProvaFrmMain;

const RichiestaFile richiestaImmagine{
    L"File immagine (*.jpg;*.gif;*.jpeg)|*.jpg;*.gif;*.jpeg|Tutti i file (*.*)|*.*", opzioniApri,
    L""};

// A black picture in the bytes of a file.
std::string bmp(SIZE misura) {
    const auto riga = static_cast<DWORD>((misura.cx + 31) / 32 * 4);
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) + 2 * sizeof(RGBQUAD);
    file.bfSize = file.bfOffBits + riga * static_cast<DWORD>(misura.cy);
    BITMAPINFOHEADER info{};
    info.biSize = sizeof(info);
    info.biWidth = misura.cx;
    info.biHeight = misura.cy;
    info.biPlanes = 1;
    info.biBitCount = 1;
    std::string byte(file.bfSize, '\0');
    std::memcpy(byte.data(), &file, sizeof(file));
    std::memcpy(byte.data() + sizeof(file), &info, sizeof(info));
    return byte;
}

} // namespace

TEST_F(FrmMainAperta, AllAvvioMostraUnDocumentoNuovoEPulito) {
    EXPECT_EQ(titolo(), L"Ostrelle  [Nuovo Documento]");
    EXPECT_FALSE(documento.modificato());
    EXPECT_TRUE(documento.nuovo());
    EXPECT_EQ(documento.elementi().conteggio(), 0);
    EXPECT_EQ(ListView_GetItemCount(griglia().lista()), 49);
    for (const int id : campiTesto) {
        EXPECT_EQ(testoDi(campo(id)), L"") << id;
    }
    EXPECT_EQ(campi.dataOra(), orologio.locale());
    EXPECT_EQ(campi.txtLarghezza().Valore(), 0);
    EXPECT_EQ(documento.ultimaData(), orologio.locale());
}

TEST_F(FrmMainAperta, SiApreInMezzoAlloSchermoTutta) {
    RECT area{};
    RECT posto{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    GetWindowRect(finestra.hwnd(), &posto);
    EXPECT_NEAR(posto.left - area.left, area.right - posto.right, 1);
    EXPECT_NEAR(posto.top - area.top, area.bottom - posto.bottom, 1);
    EXPECT_LE(posto.right, area.right);
    EXPECT_LE(posto.bottom, area.bottom);
}

TEST_F(FrmMainAperta, LaBarraDiStatoMostraLaDataDiAvvioELaMisuraEsterna) {
    EXPECT_EQ(pannello(0), L"Tue, 15 Nov 2005 10:00:00 +0200");
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 640, 480, SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_EQ(pannello(1), L"(640,480)");
    finestra.ImpostaStato(L"  in mezzo  ");
    EXPECT_EQ(pannello(0), L"in mezzo");
}

TEST_F(FrmMainAperta, UnCarattereInOgniCampoSegnaLaModificaENonIlTitolo) {
    for (const int id : campiTesto) {
        finestra.NuovoDocumento();
        ASSERT_FALSE(documento.modificato());
        SetFocus(campo(id));
        scrivi(L"x");
        EXPECT_TRUE(documento.modificato()) << id;
        EXPECT_EQ(testoDi(campo(id)), L"x") << id;
        EXPECT_EQ(titolo(), L"Ostrelle  [Nuovo Documento]");
    }
}

TEST_F(FrmMainAperta, CambiareDataOraOMisureSegnaLaModifica) {
    for (const int id : {IDC_TXTDATA, IDC_TXTORARIO, IDC_TXTLARGHEZZA, IDC_TXTALTEZZA}) {
        finestra.NuovoDocumento();
        ASSERT_FALSE(documento.modificato());
        SetFocus(campo(id));
        // The pickers change the part of the date that was chosen.
        premi(VK_RIGHT);
        EXPECT_FALSE(documento.modificato()) << id;
        premi(VK_UP);
        EXPECT_TRUE(documento.modificato()) << id;
    }
}

TEST_F(FrmMainAperta, PassareDaUnCampoAllAltroNonSegnaNulla) {
    SetFocus(campo(IDC_TXTTITOLO));
    for (int i = 0; i < 20; ++i) {
        premi(VK_TAB);
    }
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainAperta, AssegnareLoStessoTestoNonSegnaNulla) {
    campi.testo(IDC_TXTDESCRIZIONE, L"a\r\nb");
    EXPECT_TRUE(documento.modificato());
    campi.testo(IDC_TXTDESCRIZIONE, L"a\r\nb");
    finestra.NuovoDocumento();
    campi.testo(IDC_TXTTITOLO, L"");
    campi.testo(IDC_TXTDESCRIZIONE, L"");
    campi.dataOra(orologio.locale());
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainAperta, LeLingueSonoItELoScrittoDallUtente) {
    const HWND lingua = campo(IDC_CBOLINGUA);
    ASSERT_EQ(SendMessageW(lingua, CB_GETCOUNT, 0, 0), 1);
    std::array<wchar_t, 8> voce{};
    SendMessageW(lingua, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(voce.data()));
    EXPECT_STREQ(voce.data(), L"it");
    SetFocus(lingua);
    premi(VK_DOWN);
    EXPECT_EQ(testoDi(lingua), L"it");
    EXPECT_TRUE(documento.modificato());
    finestra.NuovoDocumento();
    scrivi(L"de-AT");
    EXPECT_EQ(campi.testo(IDC_CBOLINGUA), L"de-AT");
}

TEST_F(FrmMainAperta, IlNuovoDocumentoRiportaTuttoAlVuoto) {
    for (const int id : campiTesto) {
        SetWindowTextW(campo(id), L"qualcosa");
    }
    documento.percorso(L"C:\\f.xml");
    campi.txtLarghezza().Valore(100);
    campi.dataOra(DataOra::daParti(2000, 1, 1));
    metti(L"uno");
    orologio.locale(DataOra::daParti(2006, 2, 3, 4, 5, 6));
    finestra.NuovoDocumento();
    for (const int id : campiTesto) {
        EXPECT_EQ(testoDi(campo(id)), L"") << id;
    }
    EXPECT_EQ(documento.percorso(), L"");
    EXPECT_EQ(campi.dataOra(), orologio.locale());
    EXPECT_EQ(campi.txtLarghezza().Valore(), 0);
    EXPECT_EQ(documento.elementi().conteggio(), 0);
    EXPECT_EQ(griglia().elemento(1), -1);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(FrmMainAperta, LaDataPropostaRestaQuellaDellUltimoAggiuntoAncheInUnNuovoDocumento) {
    const auto ieri = DataOra::daParti(2005, 11, 14, 10, 0, 0);
    editor.attendi([&](clsItemRss& elemento, DataOra proposta) {
        EXPECT_EQ(proposta, orologio.locale());
        elemento.sTitle(L"uno");
        return std::optional(ieri);
    });
    finestra.esegui(mnaddFeed);
    orologio.locale(DataOra::daParti(2006, 2, 3, 4, 5, 6));
    finestra.NuovoDocumento();
    editor.attendi([&](clsItemRss&, DataOra proposta) -> std::optional<DataOra> {
        EXPECT_EQ(proposta, ieri);
        return std::nullopt;
    });
    finestra.esegui(mnaddFeed);
}

TEST_F(FrmMainAperta, LeMisureSonoPixelInteriFinoADiecimila) {
    KOInputNumerico& larghezza = campi.txtLarghezza();
    EXPECT_EQ(larghezza.CifreDecimali(), 0);
    EXPECT_EQ(larghezza.Massimo(), 10000);
    EXPECT_EQ(larghezza.Minimo(), 0);
    EXPECT_EQ(larghezza.Incremento(), 1);
    EXPECT_EQ(testoDi(txtnumeroDi(larghezza)), L"0");
}

TEST_F(FrmMainAperta, LOrarioSiLeggeSulleVentiquattroOre) {
    campi.dataOra(DataOra::daParti(2005, 6, 7, 21, 8, 9));
    EXPECT_EQ(testoDi(campo(IDC_TXTORARIO)), L"21:08:09");
}

TEST_F(FrmMainAperta, OgniCampoHaLaSuaEtichettaSubitoPrima) {
    const std::array<std::pair<int, const wchar_t*>, 13> attese{{
        {IDC_TXTTITOLO, L"Titolo:"},
        {IDC_TXTLINKHOME, L"Link Home:"},
        {IDC_TXTDESCRIZIONE, L"Descrizione:"},
        {IDC_CBOLINGUA, L"Linguaggio:"},
        {IDC_TXTCOPYRIGHT, L"Copyright:"},
        {IDC_TXTDATA, L"Data:"},
        {IDC_TXTWEBMASTER, L"WebMaster:"},
        {IDC_TXTLOGO, L"Titolo Logo:"},
        {IDC_TXTURL, L"Url:"},
        {IDC_TXTLINKIMG, L"Click Link:"},
        {IDC_TXTLARGHEZZA, L"Larghezza:"},
        {IDC_TXTALTEZZA, L"Altezza:"},
        {IDC_FRADATI, nullptr},
    }};
    for (const auto& [id, etichetta] : attese) {
        if (etichetta == nullptr) {
            EXPECT_EQ(testoDi(campo(id)), L"Dati documento ");
            continue;
        }
        const HWND prima = GetWindow(campo(id), GW_HWNDPREV);
        EXPECT_EQ(classeDi(prima), L"Static") << id;
        EXPECT_EQ(testoDi(prima), etichetta);
    }
}

TEST_F(FrmMainAperta, IlTabulatoreSegueLOcchio) {
    const std::array ordine{campo(IDC_TXTTITOLO),
                            campo(IDC_TXTLINKHOME),
                            campo(IDC_TXTDESCRIZIONE),
                            campo(IDC_CBOLINGUA),
                            campo(IDC_TXTCOPYRIGHT),
                            campo(IDC_TXTDATA),
                            campo(IDC_TXTORARIO),
                            campo(IDC_TXTWEBMASTER),
                            campo(IDC_TXTLOGO),
                            campo(IDC_TXTURL),
                            campo(IDC_TXTLINKIMG),
                            txtnumeroDi(campi.txtLarghezza()),
                            txtnumeroDi(campi.txtAltezza()),
                            campo(IDC_CMDGETSIZE),
                            griglia().lista()};
    SetFocus(ordine.front());
    for (std::size_t i = 0; i < ordine.size(); ++i) {
        const HWND fuoco = GetFocus();
        EXPECT_TRUE(fuoco == ordine[i] || IsChild(ordine[i], fuoco))
            << "step " << i << ": " << inUtf8(classeDi(fuoco));
        premi(VK_TAB);
    }
    for (const wchar_t* const pulsante : {L"Aggiungi Feed", L"Modifica Feed", L"Cancella Feed"}) {
        EXPECT_EQ(testoDi(GetFocus()), pulsante);
        premi(VK_TAB);
    }
    EXPECT_EQ(GetFocus(), ordine.front());
    premi(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(testoDi(GetFocus()), L"Cancella Feed");
}

TEST_F(FrmMainAperta, OgniMisuraDellaFinestraVaBene) {
    for (const SIZE misura : {SIZE{1, 1}, SIZE{200, 150}, SIZE{5760, 1080}, SIZE{800, 600}}) {
        // Below the least size as well, which nobody asks about so.
        SetWindowPos(finestra.hwnd(), nullptr, 0, 0, misura.cx, misura.cy,
                     SWP_NOZORDER | SWP_NOMOVE | SWP_NOSENDCHANGING);
        pompa();
    }
    ShowWindow(finestra.hwnd(), SW_MINIMIZE);
    ShowWindow(finestra.hwnd(), SW_RESTORE);
    RECT interno{};
    RECT griglia{};
    GetClientRect(finestra.hwnd(), &interno);
    GetWindowRect(GetDlgItem(finestra.hwnd(), IDC_GRIGLIA), &griglia);
    MapWindowPoints(nullptr, finestra.hwnd(), reinterpret_cast<POINT*>(&griglia), 2);
    EXPECT_GT(griglia.right, interno.right / 2);
    EXPECT_LT(griglia.right, interno.right);
    EXPECT_LT(griglia.bottom, interno.bottom);
}

TEST_F(FrmMainAperta, UnaFinestraTroppoStrettaLasciaICampiComErano) {
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 1000, 700, SWP_NOZORDER | SWP_NOMOVE);
    RECT prima{};
    GetWindowRect(campo(IDC_TXTLOGO), &prima);
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 300, 700,
                 SWP_NOZORDER | SWP_NOMOVE | SWP_NOSENDCHANGING);
    RECT dopo{};
    GetWindowRect(campo(IDC_TXTLOGO), &dopo);
    EXPECT_EQ(dopo.right - dopo.left, prima.right - prima.left);
}

TEST_F(FrmMainAperta, ITreCampiDellImmagineHannoLaStessaLarghezzaFinoAQuellaDelTitolo) {
    const auto larghezza = [&](int id) {
        RECT r{};
        GetWindowRect(campo(id), &r);
        return r.right - r.left;
    };
    for (const int misura : {700, 850, 1800}) {
        SetWindowPos(finestra.hwnd(), nullptr, 0, 0, misura, 700, SWP_NOZORDER | SWP_NOMOVE);
        EXPECT_EQ(larghezza(IDC_TXTLOGO), larghezza(IDC_TXTURL));
        EXPECT_EQ(larghezza(IDC_TXTLOGO), larghezza(IDC_TXTLINKIMG));
        EXPECT_LE(larghezza(IDC_TXTLOGO), larghezza(IDC_TXTTITOLO));
    }
    EXPECT_EQ(larghezza(IDC_TXTLOGO), larghezza(IDC_TXTTITOLO));
}

TEST_F(FrmMainAperta, IPulsantiDegliElementiSonoImpilatiELarghiQuantoLaStriscia) {
    const HWND striscia =
        GetParent(GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), cmdAggiungi));
    RECT interno{};
    GetClientRect(striscia, &interno);
    LONG alto = 0;
    for (const int id : {mnaddFeed, mnEditFeed, mnDelFeed}) {
        RECT r{};
        GetWindowRect(GetDlgItem(striscia, id), &r);
        MapWindowPoints(nullptr, striscia, reinterpret_cast<POINT*>(&r), 2);
        EXPECT_EQ(r.top, alto);
        EXPECT_EQ(r.left, 0);
        EXPECT_EQ(r.right, interno.right);
        alto = r.bottom;
    }
}

TEST_F(FrmMainAperta, ChiudereUnDocumentoPulitoNonChiede) {
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(finestra.hwnd(), nullptr);
}

TEST_F(FrmMainAperta, AnnullaTieneLaFinestraAperta) {
    metti(L"uno");
    finestra.ImpostaModificato();
    attendiDomanda(Risposta::Annulla);
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_NE(finestra.hwnd(), nullptr);
    EXPECT_EQ(titoliElementi(), L"uno;");
}

TEST_F(FrmMainAperta, LaFineDellaSessioneSiChiedeComeUnaChiusura) {
    EXPECT_TRUE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
    metti(L"uno");
    finestra.ImpostaModificato();
    attendiDomanda(Risposta::Annulla);
    EXPECT_FALSE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
    attendiDomanda(Risposta::No);
    EXPECT_TRUE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
}

TEST_F(FrmMainAperta, MentreUnDialogoEApertoNonSiChiudeNeSiComanda) {
    dialoghi.attendiApri(richiestaApri, std::nullopt, [&] {
        SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
        SendMessageW(finestra.hwnd(), WM_COMMAND, mnNuovo, 0);
        EXPECT_FALSE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
    });
    campi.testo(IDC_TXTTITOLO, L"resta");
    attendiDomanda(Risposta::No);
    finestra.esegui(mnApri);
    ASSERT_NE(finestra.hwnd(), nullptr);
    EXPECT_EQ(campi.testo(IDC_TXTTITOLO), L"resta");
}

TEST_F(FrmMainAperta, UnMegabyteDiTestoSiTiene) {
    std::wstring lungo;
    while (lungo.size() < 1000000) {
        lungo += std::wstring(98, L'ā') + L"\r\n";
    }
    campi.testo(IDC_TXTDESCRIZIONE, lungo);
    EXPECT_EQ(campi.testo(IDC_TXTDESCRIZIONE), lungo);
}

TEST_F(FrmMainAperta, LeDimensioniDaUnImmagineSceltaDallUtente) {
    // A GIF's size stands in its first bytes; this one is 3 by 2.
    constexpr std::string_view gif =
        "GIF89a\x03\0\x02\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\x03\0\x02\0\0"
        "\x02\x03\x84\x1d\x05\0;"sv;
    dialoghi.attendiApri(richiestaImmagine, cartella.scrivi(L"i.gif", gif));
    clic(campo(IDC_CMDGETSIZE));
    EXPECT_EQ(campi.txtLarghezza().Valore(), 3);
    EXPECT_EQ(campi.txtAltezza().Valore(), 2);
    EXPECT_TRUE(documento.modificato());

    dialoghi.attendiApri(richiestaImmagine, std::nullopt);
    clic(campo(IDC_CMDGETSIZE));
    dialoghi.attendiApri(richiestaImmagine, cartella.scrivi(L"t.txt", "testo"));
    messaggi.attendi(testi::diErrore(481), testi::erroreDetto(481), Icona::Informazione);
    clic(campo(IDC_CMDGETSIZE));
    dialoghi.attendiApri(richiestaImmagine, cartella.file(L"manca.gif"));
    messaggi.attendi(testi::diErrore(53), testi::erroreDetto(53), Icona::Informazione);
    clic(campo(IDC_CMDGETSIZE));
    EXPECT_EQ(campi.txtLarghezza().Valore(), 3);
    EXPECT_EQ(campi.txtAltezza().Valore(), 2);
}

TEST_F(FrmMainAperta, UnaMisuraOltreIlMassimoLasciaEntrambiICampi) {
    campi.dimensioni(7, 8);
    for (const SIZE misura : {SIZE{1, 10001}, SIZE{10001, 1}}) {
        dialoghi.attendiApri(richiestaImmagine, cartella.scrivi(L"i.bmp", bmp(misura)));
        messaggi.attendi(testi::diErrore(380), testi::erroreDetto(380), Icona::Informazione);
        clic(campo(IDC_CMDGETSIZE));
        EXPECT_EQ(campi.txtLarghezza().Valore(), 7);
        EXPECT_EQ(campi.txtAltezza().Valore(), 8);
    }
}
