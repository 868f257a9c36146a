// What those who do not see the dialogs, or see them in other colours, have of them.

#include "res/risorse.h"
#include "support/programma/prodotto.h"
#include "tests/aiuti/accessibile_win.h"
#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/leggibili_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/dialogs/frmAbout_win.h"

#include <commctrl.h>
#include <oleacc.h>

#include <array>
#include <functional>
#include <string>
#include <utility>

namespace {

using FrmEditFeedAccessibile = ProvaEditor;

void tuttiHannoUnNome(HWND finestra) {
    for (const HWND controllo : tuttiIVisibili(finestra)) {
        // A frame without a caption is but a line; what a picker is made of is its own.
        const bool cornice = classeDi(controllo) == WC_BUTTONW &&
                             (GetWindowLongPtrW(controllo, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
        if (!cornice && classeDi(GetParent(controllo)) != DATETIMEPICK_CLASSW) {
            EXPECT_FALSE(nomeOEtichetta(controllo).empty()) << GetDlgCtrlID(controllo);
            EXPECT_NE(nomeOEtichetta(controllo)[0], L'(') << GetDlgCtrlID(controllo);
        }
    }
}

void leggibiliInOgniSchema(HWND finestra, int quanti) {
    inOgniSchema(finestra, [&] { EXPECT_EQ(verificaLeggibili(finestra), quanti); });
}

// The box, shown and used.
void usaInformazioni(std::function<void(HWND)> azioni) {
    MessaggiFinti messaggi;
    const QuandoAppare guardia(L"#32770", L"Informazioni su Ostrelle", [&](HWND box) {
        const ConFiltro tasti([box](MSG& msg) { return IsDialogMessageW(box, &msg) != FALSE; });
        azioni(box);
        SendMessageW(box, WM_COMMAND, IDCANCEL, 0);
    });
    frmAbout(messaggi).mostra(nullptr);
}

// Each step of Tab is heard, until the focus is where it was.
void ogniPassoSiSente(HWND finestra, std::size_t quanti) {
    const HWND primo = GetFocus();
    std::size_t passi = 0;
    do {
        const AscoltoEventi ascolto(EVENT_OBJECT_FOCUS);
        premi(VK_TAB);
        const HWND fuoco = GetFocus();
        EXPECT_TRUE(IsChild(finestra, fuoco));
        EXPECT_TRUE(attendi([&] { return ascolto.udito(fuoco); })) << GetDlgCtrlID(fuoco);
    } while (GetFocus() != primo && ++passi < 20);
    EXPECT_EQ(passi + 1, quanti);
}

} // namespace

TEST_F(FrmEditFeedAccessibile, NullaDiCioCheSiVedeESenzaNome) {
    usa([&] {
        tuttiHannoUnNome(finestra);
        EXPECT_EQ(nomeAccessibile(finestra), L"Edit");
        EXPECT_EQ(nomeOEtichetta(controllo(IDC_EDITDATA)), L"Data:");
        EXPECT_EQ(nomeOEtichetta(controllo(IDC_EDITORARIO)), L"Ora:");
        EXPECT_EQ(nomeAccessibile(controllo(IDC_CMDSALVA)), L"Salva");
        EXPECT_EQ(nomeAccessibile(controllo(IDC_CMDANNULLA)), L"Annulla");
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedAccessibile, LeCaselleDiconoNomeValoreRuoloEStato) {
    usa([&] {
        for (const auto& [id, nome] : {std::pair{IDC_EDITTITOLO, L"Titolo:"},
                                       {IDC_EDITLINK, L"Url articolo:"},
                                       {IDC_EDITAUTORE, L"Autore:"},
                                       {IDC_EDITDESCRIZIONE, L"Descrizione:"}}) {
            SetFocus(controllo(id));
            scrivi(L"perché");
            const Accessibile detto = accessibile(controllo(id));
            EXPECT_EQ(detto.nome, nome);
            EXPECT_EQ(detto.valore, L"perché");
            EXPECT_EQ(detto.ruolo, long{ROLE_SYSTEM_TEXT});
            EXPECT_EQ(detto.stato, long{STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED});
        }
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedAccessibile, OgniPassoDelTabulatoreSiSente) {
    usa([&] {
        ogniPassoSiSente(finestra, 8);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedAccessibile, OgniTestoSiLeggeInOgniSchema) {
    usa([&] {
        for (const int id : {IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE, IDC_EDITDESCRIZIONE}) {
            imposta(id, L"Prova");
        }
        // 5 labels, 4 boxes, 2 pickers, 2 buttons.
        leggibiliInOgniSchema(finestra, 13);
        premi(VK_ESCAPE);
    });
}

TEST(frmAboutAccessibile, NullaDiCioCheSiVedeESenzaNome) {
    usaInformazioni([](HWND box) {
        tuttiHannoUnNome(box);
        EXPECT_EQ(nomeAccessibile(box), L"Informazioni su Ostrelle");
        EXPECT_EQ(nomeAccessibile(GetDlgItem(box, IDC_LBLSITO)), prodotto::sito);
        EXPECT_EQ(nomeAccessibile(GetDlgItem(box, IDC_CMDSYSINFO)), L"System Info...");
    });
}

TEST(frmAboutAccessibile, OgniPassoDelTabulatoreSiSente) {
    usaInformazioni([](HWND box) { ogniPassoSiSente(box, 3); });
}

TEST(frmAboutAccessibile, OgniTestoSiLeggeInOgniSchema) {
    // Title, version, two lines of the author, the link, two buttons.
    usaInformazioni([](HWND box) { leggibiliInOgniSchema(box, 7); });
}
