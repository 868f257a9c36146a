#include "ui/dialogs/FrmEditFeed_win.h"

#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include <gtest/gtest.h>

namespace {

using FrmEditFeedBozza = ProvaEditor;

} // namespace

TEST_F(FrmEditFeedBozza, CioCheMostraAllInizioNonEScritto) {
    editor.Elemento().sTitle(L"titolo");
    EXPECT_FALSE(editor.scritti());
    usa([&] {
        EXPECT_FALSE(editor.scritti());
        imposta(IDC_EDITAUTORE, L"io");
        ASSERT_TRUE(editor.scritti());
        EXPECT_EQ(editor.scritti()->at(0), L"titolo");
        EXPECT_EQ(editor.scritti()->at(2), L"io");
        // What was written and taken back is to be told too.
        imposta(IDC_EDITAUTORE, L"");
        ASSERT_TRUE(editor.scritti());
        EXPECT_EQ(editor.scritti()->at(2), L"");
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedBozza, UnaDataSceltaEScritta) {
    usa([&] {
        selettore(IDC_EDITDATA, adesso);
        ASSERT_TRUE(editor.scritti());
        EXPECT_NE(editor.scritti()->at(4), comeTesto(ultima));
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedBozza, UnaBozzaRipresaESubitoScritta) {
    editor.Elemento().sTitle(L"titolo");
    editor.Bozza({L"altro", L"l", L"a", L"d", comeTesto(adesso)});
    usa([&] {
        EXPECT_EQ(testo(IDC_EDITTITOLO), L"altro");
        EXPECT_EQ(selettore(IDC_EDITDATA), adesso);
        ASSERT_TRUE(editor.scritti());
        EXPECT_EQ(editor.scritti()->at(0), L"altro");
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedBozza, MentreSiRiempieNienteEScritto) {
    editor.Elemento().sTitle(L"titolo");
    editor.Elemento().sPubDate(L"mai");
    messaggi.attendi(testi::dataReimpostata, testi::attenzione, Icona::Informazione, Pulsanti::Ok,
                     Risposta::Ok, [&] { EXPECT_FALSE(editor.scritti()); });
    usa([&] {
        EXPECT_FALSE(editor.scritti());
        premi(VK_ESCAPE);
    });
}
