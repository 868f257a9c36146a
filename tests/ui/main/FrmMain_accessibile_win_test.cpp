// What a person who does not see the main window is told of it.

#include "tests/aiuti/accessibile_win.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMain_win.h"

#include <oleacc.h>

namespace {

class FrmMainAccessibile : public ProvaFrmMain {
protected:
    void avvisa() {
        finestra.avvisi().avvisa(
            avvisoProva(L"Lavoro non salvato", {L"Recupera", {}}, {L"Elimina", {}}));
    }
    [[nodiscard]] std::wstring cella(int riga, int colonna) {
        std::array<wchar_t, 256> testo{};
        LVITEMW voce{};
        voce.iSubItem = colonna;
        voce.pszText = testo.data();
        voce.cchTextMax = static_cast<int>(testo.size());
        SendMessageW(griglia().lista(), LVM_GETITEMTEXTW, static_cast<WPARAM>(riga),
                     reinterpret_cast<LPARAM>(&voce));
        return testo.data();
    }
    // The text boxes, those that numbers are typed into among them.
    [[nodiscard]] std::array<std::pair<HWND, const wchar_t*>, 10> caselle() {
        return {{{campo(IDC_TXTTITOLO), L"Titolo:"},
                 {campo(IDC_TXTLINKHOME), L"Link Home:"},
                 {campo(IDC_TXTDESCRIZIONE), L"Descrizione:"},
                 {campo(IDC_TXTCOPYRIGHT), L"Copyright:"},
                 {campo(IDC_TXTWEBMASTER), L"WebMaster:"},
                 {campo(IDC_TXTLOGO), L"Titolo Logo:"},
                 {campo(IDC_TXTURL), L"Url:"},
                 {campo(IDC_TXTLINKIMG), L"Click Link:"},
                 {txtnumeroDi(campi.txtLarghezza()), L"Larghezza:"},
                 {txtnumeroDi(campi.txtAltezza()), L"Altezza:"}}};
    }

    AvvisiProva avvisi{finestra};
};

} // namespace

TEST_F(FrmMainAccessibile, NullaDiCioCheSiVedeESenzaNome) {
    avvisa();
    for (const HWND controllo : tuttiIVisibili(finestra.hwnd())) {
        // What a picker is made of is its own.
        if (classeDi(GetParent(controllo)) != DATETIMEPICK_CLASSW) {
            EXPECT_FALSE(nomeOEtichetta(controllo).empty()) << inUtf8(classeDi(controllo));
            EXPECT_FALSE(nomeOEtichetta(controllo).starts_with(L'('))
                << inUtf8(classeDi(controllo));
        }
    }
}

TEST_F(FrmMainAccessibile, OgniParteHaIlSuoNome) {
    const HWND larghezza = campo(IDC_TXTLARGHEZZA);
    const std::array<std::pair<HWND, const wchar_t*>, 15> attesi{{
        {finestra.hwnd(), L"Ostrelle  [Nuovo Documento]"},
        {GetDlgItem(finestra.hwnd(), IDC_TOOLBAR), L"Barra degli strumenti"},
        {GetDlgItem(finestra.hwnd(), IDC_PICCMD), L"Comandi"},
        {GetDlgItem(finestra.hwnd(), IDC_GRIGLIA), L"Elementi"},
        {campi.hwnd(), L"Dati documento"},
        {campo(IDC_CBOLINGUA), L"Linguaggio:"},
        {campo(IDC_TXTDATA), L"Data:"},
        {campo(IDC_TXTORARIO), L"Ora:"},
        {larghezza, L"Larghezza:"},
        {UPNumDi(campi.txtLarghezza()), L"Larghezza:"},
        {UPNumDi(campi.txtAltezza()), L"Altezza:"},
        {campo(IDC_CMDGETSIZE), L"Determina dimensioni"},
        {griglia().lista(), L"Elementi"},
        {ListView_GetHeader(griglia().lista()), L"Intestazioni"},
        {GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), cmdModifica), L"Modifica Feed"},
    }};
    for (const auto& [controllo, nome] : attesi) {
        EXPECT_EQ(nomeOEtichetta(controllo), nome) << inUtf8(classeDi(controllo));
    }
    EXPECT_EQ(nomeAccessibile(GetDlgItem(finestra.hwnd(), IDC_STATUSBAR)), pannello(0));
}

TEST_F(FrmMainAccessibile, LeCaselleDiconoNomeValoreRuoloEStato) {
    int numero = 7;
    for (const auto& [casella, nome] : caselle()) {
        SCOPED_TRACE(inUtf8(nome));
        SetFocus(casella);
        premi('A', {VK_CONTROL});
        const std::wstring testo = std::to_wstring(++numero);
        scrivi(testo);
        const Accessibile detto = accessibile(casella);
        EXPECT_EQ(detto.nome, nome);
        EXPECT_EQ(detto.valore, testo);
        EXPECT_EQ(detto.ruolo, long{ROLE_SYSTEM_TEXT});
        EXPECT_EQ(detto.stato, long{STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED});
        EnableWindow(casella, FALSE);
        EXPECT_NE(accessibile(casella).stato & STATE_SYSTEM_UNAVAILABLE, 0);
        EnableWindow(casella, TRUE);
    }
}

TEST_F(FrmMainAccessibile, OgniPassoDelTabulatoreSiSente) {
    avvisa();
    SetFocus(campo(IDC_TXTTITOLO));
    std::vector<HWND> giro;
    do {
        const AscoltoEventi ascolto(EVENT_OBJECT_FOCUS);
        premi(VK_TAB);
        const HWND fuoco = GetFocus();
        giro.push_back(fuoco);
        EXPECT_TRUE(attendi([&] { return ascolto.udito(fuoco); })) << inUtf8(classeDi(fuoco));
    } while (GetFocus() != campo(IDC_TXTTITOLO) && giro.size() < 30);
    // 15 up to the grid, the three buttons and the strip's three.
    EXPECT_EQ(giro.size(), 21U);
}

TEST_F(FrmMainAccessibile, ConUnComandoIlFuocoSiSenteETornaDovEra) {
    metti(L"uno");
    SetFocus(griglia().lista());
    editor.attendi([&](clsItemRss&, DataOra ultima) { return std::optional(ultima); });
    premi(VK_RETURN);
    EXPECT_EQ(GetFocus(), griglia().lista());
    avvisa();
    const AscoltoEventi ascolto(EVENT_OBJECT_FOCUS);
    premi(VK_F6);
    EXPECT_TRUE(attendi([&] { return ascolto.udito(avvisi.pulsante(L"Recupera")); }));
    premi(VK_ESCAPE);
    EXPECT_TRUE(attendi([&] { return ascolto.udito(griglia().lista()); }));
}

TEST_F(FrmMainAccessibile, LeRigheDellaGrigliaDiconoDataETitolo) {
    metti(L"uno");
    metti(L"due");
    EXPECT_EQ(cella(0, 0), L"15/11/2005 10:00:00");
    EXPECT_EQ(cella(0, 1).substr(0, 3), L"uno");
    EXPECT_EQ(cella(1, 1).substr(0, 3), L"due");
    EXPECT_EQ(cella(2, 1), L" ");
}

TEST_F(FrmMainAccessibile, UnAvvisoSiFaSentire) {
    const AscoltoEventi ascolto(EVENT_SYSTEM_ALERT);
    avvisa();
    EXPECT_TRUE(attendi([&] { return ascolto.udito(avvisi.striscia()); }));
    EXPECT_EQ(nomeAccessibile(avvisi.striscia()), L"Lavoro non salvato");
}
