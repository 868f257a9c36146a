#include "ui/dialogs/FrmEditFeed_win.h"

#include "support/servizi/messaggi_win.h"
#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include <gtest/gtest.h>

namespace {

class FrmEditFeedDate : public ProvaEditor {
protected:
    // What cannot be missing.
    void compila() const {
        imposta(IDC_EDITTITOLO, L"titolo");
        imposta(IDC_EDITLINK, L"link");
    }
};

} // namespace

TEST_F(FrmEditFeedDate, DopoIlMessaggioSullaDataLaProprietariaAspettaAncora) {
    MessaggiWindows veri;
    FrmEditFeed conMessaggio(veri, orologio, ultima);
    conMessaggio.Elemento().sPubDate(L"ieri");
    const QuandoAppare messaggio(L"#32770", testi::attenzione, [&](HWND riquadro) {
        // Told before the dialog is seen.
        EXPECT_EQ(finestra, nullptr);
        EXPECT_FALSE(IsWindowEnabled(proprietaria));
        SendMessageW(riquadro, WM_COMMAND, IDOK, 0);
    });
    usa([&] { conMessaggio.mostra(proprietaria); },
        [&] {
            EXPECT_FALSE(IsWindowEnabled(proprietaria));
            EXPECT_EQ(GetActiveWindow(), finestra);
            premi(VK_ESCAPE);
        });
    EXPECT_TRUE(IsWindowEnabled(proprietaria));
    EXPECT_TRUE(attendi([&] { return GetActiveWindow() == proprietaria; }));
}

TEST_F(FrmEditFeedDate, DataEOrarioVengonoOgnunoDalSuoSelettore) {
    usa([&] {
        compila();
        selettore(IDC_EDITDATA, DataOra::daParti(2005, 6, 11, 1, 2, 3));
        selettore(IDC_EDITORARIO, DataOra::daParti(1999, 1, 31, 23, 59, 58));
        premi(VK_RETURN);
    });
    EXPECT_EQ(editor.DataOra(), DataOra::daParti(2005, 6, 11, 23, 59, 58));
    // June is written as July: see ClsUTC.
    EXPECT_EQ(editor.Elemento().sPubDate(), L"Sat, 11 Jul 2005 23:59:58 +0200");
}

TEST_F(FrmEditFeedDate, ISelettoriSiCambianoConLaTastiera) {
    usa([&] {
        compila();
        // A click on the first part, hours or days, and one more of it.
        for (const int id : {IDC_EDITORARIO, IDC_EDITDATA}) {
            clic(controllo(id), POINT{8, 8});
            premi(VK_UP);
        }
        premi(VK_RETURN);
    });
    EXPECT_EQ(editor.DataOra(), DataOra::daParti(2005, 11, 16, 11, 0, 0));
}

TEST_F(FrmEditFeedDate, LeCifreScritteValgonoAncheSenzaUscireDalSelettore) {
    for (const auto& [id, atteso] :
         {std::pair{IDC_EDITDATA, DataOra::daParti(2005, 11, 1, 10, 0, 0)},
          {IDC_EDITORARIO, DataOra::daParti(2005, 11, 15, 1, 0, 0)}}) {
        usa([&] {
            compila();
            clic(controllo(id), POINT{8, 8});
            scrivi(L"1");
            premi(VK_RETURN);
        });
        EXPECT_EQ(editor.DataOra(), atteso);
        editor.Elemento() = clsItemRss();
    }
}

TEST_F(FrmEditFeedDate, IlSelettoreDellOraMostraLeVentiquattro) {
    editor.Elemento().sPubDate(L"Tue, 15 Nov 2005 23:04:05 +0100");
    usa([&] {
        // The control gives as its text what it draws.
        EXPECT_EQ(testo(IDC_EDITORARIO), L"23:04:05");
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedDate, UnaDataCheNonSiLeggeDiventaAdesso) {
    for (const wchar_t* data :
         {L"ieri", L"Sat, 11 Xyz 2005 15:00:00 +0100", L"Sat, 11 Jun 2005 15:00:00 EST",
          L"Sat, 11 Jun 2005", L"Sat, 11 Jun 2005 1500 GMT", L"\t",
          // Too early for a picker.
          L"Sat, 11 Jan 1500 15:00:00 +0100", L"Sat, 13 Sep 1752 15:00:00 +0100"}) {
        SCOPED_TRACE(testing::PrintToString(data));
        editor.Elemento().sPubDate(data);
        messaggi.attendi(testi::dataReimpostata, testi::attenzione, Icona::Informazione);
        usa([&] {
            EXPECT_EQ(selettore(IDC_EDITDATA), adesso);
            EXPECT_EQ(selettore(IDC_EDITORARIO), adesso);
            premi(VK_ESCAPE);
        });
        // Cancelled: the item keeps even a date like that.
        EXPECT_EQ(editor.Elemento().sPubDate(), data);
    }
}

TEST_F(FrmEditFeedDate, AdessoEQuandoIlMessaggioEStatoLetto) {
    const auto dopo = DataOra::daParti(2005, 12, 2, 0, 0, 1);
    editor.Elemento().sPubDate(L"ieri");
    messaggi.attendi(testi::dataReimpostata, testi::attenzione, Icona::Informazione, Pulsanti::Ok,
                     Risposta::Ok, [&] { orologio.locale(dopo); });
    usa([&] {
        EXPECT_EQ(selettore(IDC_EDITDATA), dopo);
        EXPECT_EQ(selettore(IDC_EDITORARIO), dopo);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedDate, UnaDataUniversaleSiVedeNellOraLocale) {
    editor.Elemento().sPubDate(L"Tue, 15 Nov 2005 23:30:00 GMT");
    usa([&] {
        const auto locale = DataOra::daParti(2005, 11, 16, 1, 30, 0);
        EXPECT_EQ(selettore(IDC_EDITDATA), locale);
        EXPECT_EQ(selettore(IDC_EDITORARIO), locale);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedDate, SoliSpaziSonoLaDataZero) {
    editor.Elemento().sPubDate(L"  ");
    usa([&] {
        EXPECT_EQ(selettore(IDC_EDITDATA), DataOra());
        EXPECT_EQ(selettore(IDC_EDITORARIO), DataOra());
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedDate, UnUltimaDataCheIlSelettoreNonTieneSiIgnora) {
    FrmEditFeed antico(messaggi, orologio, DataOra::daParti(1500, 1, 1));
    usa([&] { antico.mostra(proprietaria); },
        [&] {
            EXPECT_GT(selettore(IDC_EDITDATA), DataOra::daParti(2020, 1, 1));
            premi(VK_ESCAPE);
        });
}
