#include "ui/dialogs/FrmEditFeed_win.h"

#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"
#include "ui/controls/sottoclasse_win.h"

#include <commctrl.h>

#include <optional>
#include <vector>

#include <gtest/gtest.h>

namespace {

class FrmEditFeedModale : public ProvaEditor {
protected:
    void compila(const std::wstring& titolo, const std::wstring& link) const {
        imposta(IDC_EDITTITOLO, titolo);
        imposta(IDC_EDITLINK, link);
    }
};

} // namespace

TEST_F(FrmEditFeedModale, UnElementoVuotoProponeLUltimaData) {
    usa([&] {
        for (const int id : {IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE, IDC_EDITDESCRIZIONE}) {
            EXPECT_EQ(testo(id), L"") << id;
        }
        EXPECT_EQ(selettore(IDC_EDITDATA), ultima);
        EXPECT_EQ(selettore(IDC_EDITORARIO), ultima);
        EXPECT_EQ(testo(IDC_CMDSALVA), L"Salva");
        EXPECT_EQ(testo(IDC_CMDANNULLA), L"Annulla");
        premi(VK_ESCAPE);
    });
    EXPECT_TRUE(editor.Annullato());
}

TEST_F(FrmEditFeedModale, MostraITestiComeStanno) {
    editor.Elemento().sTitle(L"  titolo ");
    editor.Elemento().sLink(L" link\t");
    editor.Elemento().sDescription(L"  riga\r\n\tseconda  \r\n");
    editor.Elemento().sAuthor(L" autore  ");
    editor.Elemento().sPubDate(L"Tue, 15 Nov 2005 10:11:12 +0100");
    usa([&] {
        EXPECT_EQ(testo(IDC_EDITTITOLO), L"  titolo ");
        EXPECT_EQ(testo(IDC_EDITLINK), L" link\t");
        EXPECT_EQ(testo(IDC_EDITDESCRIZIONE), L"  riga\r\n\tseconda  \r\n");
        EXPECT_EQ(testo(IDC_EDITAUTORE), L" autore  ");
        const auto data = DataOra::daParti(2005, 11, 15, 10, 11, 12);
        EXPECT_EQ(selettore(IDC_EDITDATA), data);
        EXPECT_EQ(selettore(IDC_EDITORARIO), data);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedModale, SalvaRifilaTuttoMenoLAutore) {
    usa([&] {
        clic(controllo(IDC_EDITTITOLO));
        scrivi(L"  un titolo  ");
        premi(VK_TAB);
        scrivi(L" http://a.b/c ");
        premi(VK_TAB);
        scrivi(L" autore  ");
        premi(VK_TAB);
        scrivi(L"  descrizione è lunga ");
        clic(controllo(IDC_CMDSALVA));
        EXPECT_FALSE(aperta());
    });
    EXPECT_FALSE(editor.Annullato());
    EXPECT_EQ(editor.Elemento().sTitle(), L"un titolo");
    EXPECT_EQ(editor.Elemento().sLink(), L"http://a.b/c");
    EXPECT_EQ(editor.Elemento().sAuthor(), L" autore  ");
    EXPECT_EQ(editor.Elemento().sDescription(), L"descrizione è lunga");
    EXPECT_EQ(editor.DataOra(), ultima);
    EXPECT_EQ(editor.Elemento().sPubDate(), L"Tue, 15 Nov 2005 10:00:00 +0200");
}

TEST_F(FrmEditFeedModale, SenzaTitoloRestaApertaCoiTesti) {
    usa([&] {
        compila(L"   ", L"   ");
        imposta(IDC_EDITAUTORE, L"autore");
        messaggi.attendi(testi::titoloMancante, testi::attenzione, Icona::Critica);
        clic(controllo(IDC_CMDSALVA));
        EXPECT_TRUE(aperta());
        EXPECT_EQ(testo(IDC_EDITTITOLO), L"   ");
        EXPECT_EQ(testo(IDC_EDITAUTORE), L"autore");
        premi(VK_ESCAPE);
    });
    EXPECT_TRUE(editor.Annullato());
}

TEST_F(FrmEditFeedModale, SenzaLinkRestaAperta) {
    usa([&] {
        compila(L"titolo", L"  ");
        messaggi.attendi(testi::linkMancante, testi::attenzione, Icona::Critica);
        clic(controllo(IDC_CMDSALVA));
        EXPECT_TRUE(aperta());
        imposta(IDC_EDITLINK, L"link");
        clic(controllo(IDC_CMDSALVA));
        EXPECT_FALSE(aperta());
    });
    EXPECT_FALSE(editor.Annullato());
}

TEST_F(FrmEditFeedModale, UnaTabulazioneNonEVuotaESoliSpaziVannoDoveSiPuo) {
    usa([&] {
        compila(L"\t", L"\u00A0");
        imposta(IDC_EDITDESCRIZIONE, L"    ");
        imposta(IDC_EDITAUTORE, L"   ");
        clic(controllo(IDC_CMDSALVA));
    });
    EXPECT_FALSE(editor.Annullato());
    EXPECT_EQ(editor.Elemento().sTitle(), L"\t");
    EXPECT_EQ(editor.Elemento().sLink(), L"\u00A0");
    EXPECT_EQ(editor.Elemento().sDescription(), L"");
    EXPECT_EQ(editor.Elemento().sAuthor(), L"   ");
}

TEST_F(FrmEditFeedModale, InvioSalvaDaOgniCampoMenoLaDescrizione) {
    for (const int id :
         {IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE, IDC_EDITDATA, IDC_EDITORARIO}) {
        usa([&] {
            compila(L"titolo", L"link");
            SetFocus(controllo(id));
            // The button is seen to be the one that Enter presses.
            EXPECT_NE(
                SendMessageW(controllo(IDC_CMDSALVA), WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON, 0);
            premi(VK_RETURN);
            EXPECT_FALSE(aperta()) << id;
        });
        EXPECT_FALSE(editor.Annullato()) << id;
    }
}

TEST_F(FrmEditFeedModale, InvioNellaDescrizioneVaACapo) {
    usa([&] {
        compila(L"titolo", L"link");
        clic(controllo(IDC_EDITDESCRIZIONE));
        scrivi(L"a");
        premi(VK_RETURN);
        EXPECT_TRUE(aperta());
        scrivi(L"b");
        clic(controllo(IDC_CMDSALVA));
    });
    EXPECT_EQ(editor.Elemento().sDescription(), L"a\r\nb");
}

TEST_F(FrmEditFeedModale, EscAnnullaDaOgniControllo) {
    for (const int id : {IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE, IDC_EDITDESCRIZIONE,
                         IDC_EDITDATA, IDC_EDITORARIO, IDC_CMDSALVA, IDC_CMDANNULLA}) {
        usa([&] {
            compila(L"titolo", L"link");
            SetFocus(controllo(id));
            premi(VK_ESCAPE);
            EXPECT_FALSE(aperta()) << id;
        });
        EXPECT_TRUE(editor.Annullato()) << id;
        EXPECT_EQ(editor.Elemento().sTitle(), L"") << id;
    }
}

TEST_F(FrmEditFeedModale, AnnullaEIlRiquadroDiChiusuraSonoUguali) {
    usa([&] {
        compila(L"titolo", L"link");
        clic(controllo(IDC_CMDANNULLA));
        EXPECT_FALSE(aperta());
    });
    EXPECT_TRUE(editor.Annullato());
    usa([&] {
        compila(L"titolo", L"link");
        SendMessageW(finestra, WM_SYSCOMMAND, SC_CLOSE, 0);
        EXPECT_TRUE(attendi([&] { return !aperta(); }));
    });
    EXPECT_TRUE(editor.Annullato());
    EXPECT_EQ(editor.Elemento().sTitle(), L"");
}

TEST_F(FrmEditFeedModale, OgniAperturaCominciaAnnullata) {
    usa([&] {
        compila(L"titolo", L"link");
        premi(VK_RETURN);
    });
    EXPECT_FALSE(editor.Annullato());
    usa([&] {
        EXPECT_TRUE(editor.Annullato());
        EXPECT_EQ(testo(IDC_EDITTITOLO), L"titolo");
        premi(VK_ESCAPE);
    });
    EXPECT_TRUE(editor.Annullato());
    EXPECT_EQ(editor.hwnd(), nullptr);
    EXPECT_EQ(editor.Elemento().sTitle(), L"titolo");
    EXPECT_EQ(editor.DataOra(), ultima);
}

TEST_F(FrmEditFeedModale, TabSegueLOcchio) {
    usa([&] {
        std::vector<int> giro;
        for (int i = 0; i < 8; ++i) {
            giro.push_back(GetDlgCtrlID(GetFocus()));
            premi(VK_TAB);
        }
        EXPECT_EQ(giro, (std::vector<int>{IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE,
                                          IDC_EDITDESCRIZIONE, IDC_EDITDATA, IDC_EDITORARIO,
                                          IDC_CMDSALVA, IDC_CMDANNULLA}));
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_EDITTITOLO);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedModale, OgniCampoHaLaSuaEtichettaAppenaPrima) {
    usa([&] {
        const auto etichetta = [&](int id) {
            return testoDi(GetWindow(controllo(id), GW_HWNDPREV));
        };
        EXPECT_EQ(testoDi(finestra), L"Edit");
        EXPECT_EQ(etichetta(IDC_EDITTITOLO), L"Titolo:");
        EXPECT_EQ(etichetta(IDC_EDITLINK), L"Url articolo:");
        EXPECT_EQ(etichetta(IDC_EDITAUTORE), L"Autore:");
        EXPECT_EQ(etichetta(IDC_EDITDESCRIZIONE), L"Descrizione:");
        EXPECT_EQ(etichetta(IDC_EDITDATA), L"Data:");
        EXPECT_EQ(etichetta(IDC_EDITORARIO), L"Ora:");
        EXPECT_FALSE(IsWindowVisible(GetWindow(controllo(IDC_EDITORARIO), GW_HWNDPREV)));
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedModale, LaProprietariaAspettaETornaAttiva) {
    usa([&] {
        EXPECT_FALSE(IsWindowEnabled(proprietaria));
        EXPECT_EQ(GetWindow(finestra, GW_OWNER), proprietaria);
        premi(VK_ESCAPE);
    });
    EXPECT_TRUE(IsWindowEnabled(proprietaria));
    EXPECT_TRUE(attendi([&] { return GetActiveWindow() == proprietaria; }));
}

TEST_F(FrmEditFeedModale, UnErroreNelSalvareSiDiceELasciaAperto) {
    // A picker that gives no date.
    class Muto final : public GestoreSottoclasse {
    public:
        LRESULT messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) override {
            return codice == DTM_GETSYSTEMTIME ? GDT_ERROR : DefSubclassProc(hwnd, codice, w, l);
        }
        void onEccezione() noexcept override { ADD_FAILURE(); }
    } muto;
    usa([&] {
        compila(L"titolo", L"link");
        {
            const Sottoclasse guasto(controllo(IDC_EDITORARIO), muto);
            messaggi.attendi(testi::diErrore(380), testi::erroreDetto(380), Icona::Informazione);
            premi(VK_RETURN);
            EXPECT_TRUE(aperta());
            EXPECT_TRUE(editor.Annullato());
            EXPECT_EQ(testo(IDC_EDITTITOLO), L"titolo");
        }
        premi(VK_RETURN);
        EXPECT_FALSE(aperta());
    });
    EXPECT_FALSE(editor.Annullato());
}

TEST_F(FrmEditFeedModale, TestiDiOgniTipoPassanoInteri) {
    const std::wstring strano = L"È ’“€” Ωж漢 \xD83D\xDE00 \u200F\u0301 & && <b>\ttab]] >";
    clsItemRss& elemento = editor.Elemento();
    elemento.sTitle(strano);
    elemento.sLink(L"http://è/?a=1&b=" + strano);
    elemento.sAuthor(strano);
    elemento.sDescription(strano + L"\r\n\r\n\t" + strano + L"\nsolo LF\rsolo CR");
    const clsItemRss prima = elemento;
    usa([&] { premi(VK_RETURN); });
    ASSERT_FALSE(editor.Annullato());
    EXPECT_EQ(elemento.sTitle(), prima.sTitle());
    EXPECT_EQ(elemento.sLink(), prima.sLink());
    EXPECT_EQ(elemento.sAuthor(), prima.sAuthor());
    EXPECT_EQ(elemento.sDescription(), prima.sDescription());
}

TEST_F(FrmEditFeedModale, UnaDescrizioneDiUnMegabyteDiecimilaRighePassaIntera) {
    std::wstring lunga;
    for (int i = 0; i < 10000; ++i) {
        lunga += std::wstring(100, static_cast<wchar_t>(L'a' + i % 26)) + L"\r\n";
    }
    lunga += L"fine";
    editor.Elemento().sTitle(std::wstring(40000, L't'));
    editor.Elemento().sLink(L"link");
    editor.Elemento().sDescription(lunga);
    usa([&] {
        // More can be typed: no box has a limit of its own.
        for (const int id : {IDC_EDITTITOLO, IDC_EDITDESCRIZIONE}) {
            SetFocus(controllo(id));
            premi(VK_END, {VK_CONTROL});
            scrivi(L"!");
        }
        clic(controllo(IDC_CMDSALVA));
    });
    ASSERT_FALSE(editor.Annullato());
    EXPECT_EQ(editor.Elemento().sTitle(), std::wstring(40000, L't') + L'!');
    EXPECT_TRUE(editor.Elemento().sDescription() == lunga + L'!');
}

TEST_F(FrmEditFeedModale, UnTitoloDiUnMegabyteEUnoDiSoliSpazi) {
    const std::wstring lungo(1 << 20, L'\u65E5');
    editor.Elemento().sTitle(lungo);
    editor.Elemento().sLink(std::wstring(1 << 20, L' '));
    usa([&] {
        messaggi.attendi(testi::linkMancante, testi::attenzione, Icona::Critica);
        premi(VK_RETURN);
        EXPECT_TRUE(aperta());
        imposta(IDC_EDITLINK, L"  " + lungo + L" ");
        premi(VK_RETURN);
    });
    ASSERT_FALSE(editor.Annullato());
    EXPECT_TRUE(editor.Elemento().sTitle() == lungo);
    EXPECT_TRUE(editor.Elemento().sLink() == lungo);
}

TEST_F(FrmEditFeedModale, NienteEPerdutoSeSiSalvaSenzaToccare) {
    clsItemRss& elemento = editor.Elemento();
    elemento.sTitle(L"titolo su\r\ndue righe");
    elemento.sLink(L"link\n");
    elemento.sPubDate(L"Sat, 11 Jul 2005 15:00:00 +0200");
    elemento.sGuid(L"guid");
    usa([&] { premi(VK_RETURN); });
    ASSERT_FALSE(editor.Annullato());
    EXPECT_EQ(elemento.sTitle(), L"titolo su\r\ndue righe");
    EXPECT_EQ(elemento.sLink(), L"link\n");
    EXPECT_EQ(elemento.sPubDate(), L"Sat, 11 Jul 2005 15:00:00 +0200");
    EXPECT_EQ(elemento.sGuid(), L"guid");
}

TEST_F(FrmEditFeedModale, IlServizioDaLaDataSceltaELElemento) {
    EditorElementiWindows servizio(messaggi, orologio);
    clsItemRss elemento;
    elemento.sAuthor(L"autore");
    std::optional<DataOra> scelta;
    usa([&] { scelta = servizio.modifica(elemento, ultima, nullptr); },
        [&] {
            EXPECT_EQ(GetWindow(finestra, GW_OWNER), proprietaria);
            EXPECT_EQ(selettore(IDC_EDITDATA), ultima);
            compila(L"titolo", L"link");
            premi(VK_RETURN);
        });
    EXPECT_EQ(scelta, ultima);
    EXPECT_EQ(elemento.sTitle(), L"titolo");
    EXPECT_EQ(elemento.sAuthor(), L"autore");

    usa([&] { scelta = servizio.modifica(elemento, ultima, nullptr); },
        [&] {
            compila(L"altro", L"altro");
            premi(VK_ESCAPE);
        });
    EXPECT_EQ(scelta, std::nullopt);
    EXPECT_EQ(elemento.sTitle(), L"titolo");
}
