// The item editor's size, and the keys that work in all of it.

#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include "support/utilita/guida_win.h"

#include <array>

namespace {

class FrmEditFeedMisura : public ProvaEditor {
protected:
    void compila() const {
        imposta(IDC_EDITTITOLO, L"titolo");
        imposta(IDC_EDITLINK, L"link");
    }
    [[nodiscard]] RECT posto(int id) const {
        RECT r{};
        GetWindowRect(controllo(id), &r);
        MapWindowPoints(nullptr, finestra, reinterpret_cast<POINT*>(&r), 2);
        return r;
    }
    [[nodiscard]] SIZE misura() const {
        RECT r{};
        GetWindowRect(finestra, &r);
        return {r.right - r.left, r.bottom - r.top};
    }
    void ingrandisci(LONG x, LONG y) const {
        const SIZE prima = misura();
        SetWindowPos(finestra, nullptr, 0, 0, prima.cx + x, prima.cy + y,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    // By how much each edge of a control moves when the window grows by 200 and by 100.
    [[nodiscard]] std::array<LONG, 4> mosso(int id) const {
        const RECT prima = posto(id);
        ingrandisci(200, 100);
        const RECT dopo = posto(id);
        ingrandisci(-200, -100);
        return {dopo.left - prima.left, dopo.top - prima.top, dopo.right - prima.right,
                dopo.bottom - prima.bottom};
    }
    // The service's editor, shown and closed; `azioni` runs in between.
    void mostra(EditorElementiWindows& servizio, const std::function<void()>& azioni) {
        clsItemRss elemento;
        usa([&] { static_cast<void>(servizio.modifica(elemento, ultima, nullptr)); },
            [&] {
                azioni();
                premi(VK_ESCAPE);
            });
    }
};

using Bordi = std::array<LONG, 4>;

} // namespace

TEST_F(FrmEditFeedMisura, ICampiSiAllarganoELaDescrizioneSiAllunga) {
    usa([&] {
        for (const int id : {IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE}) {
            EXPECT_EQ(mosso(id), (Bordi{0, 0, 200, 0})) << id;
        }
        for (const int id : {IDC_EDITDESCRIZIONE, IDC_FRAMEEDIT}) {
            EXPECT_EQ(mosso(id), (Bordi{0, 0, 200, 100})) << id;
        }
        for (const int id : {IDC_LBLDATA, IDC_EDITDATA, IDC_LBLORA, IDC_EDITORARIO}) {
            EXPECT_EQ(mosso(id), (Bordi{0, 100, 0, 100})) << id;
        }
        for (const int id : {IDC_CMDSALVA, IDC_CMDANNULLA}) {
            EXPECT_EQ(mosso(id), (Bordi{200, 100, 200, 100})) << id;
        }
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, NonSiRimpiccioliscePiuDiComENata) {
    usa([&] {
        const SIZE prima = misura();
        MINMAXINFO limiti{};
        SendMessageW(finestra, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limiti));
        EXPECT_EQ(limiti.ptMinTrackSize.x, prima.cx);
        EXPECT_EQ(limiti.ptMinTrackSize.y, prima.cy);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, LaMisuraRestaFinoAllaFineDelProgramma) {
    EditorElementiWindows servizio(messaggi, orologio);
    SIZE nata{};
    mostra(servizio, [&] {
        nata = misura();
        ingrandisci(150, 90);
    });
    mostra(servizio, [&] {
        EXPECT_EQ(misura().cx, nata.cx + 150);
        EXPECT_EQ(misura().cy, nata.cy + 90);
        ShowWindow(finestra, SW_MAXIMIZE);
    });
    mostra(servizio, [&] {
        EXPECT_TRUE(IsZoomed(finestra));
        ShowWindow(finestra, SW_RESTORE);
        EXPECT_EQ(misura().cx, nata.cx + 150);
    });
    mostra(servizio, [&] { EXPECT_FALSE(IsZoomed(finestra)); });
    EditorElementiWindows altro(messaggi, orologio);
    mostra(altro, [&] {
        EXPECT_EQ(misura().cx, nata.cx);
        EXPECT_EQ(misura().cy, nata.cy);
    });
}

TEST_F(FrmEditFeedMisura, UnaMisuraPiuGrandeDelloSchermoNonNeEsce) {
    editor.Misura(MisuraEditor{{100'000, 100'000}, false, dpiDi(proprietaria)});
    usa([&] {
        MONITORINFO schermo{};
        schermo.cbSize = sizeof schermo;
        GetMonitorInfoW(MonitorFromWindow(finestra, MONITOR_DEFAULTTONEAREST), &schermo);
        RECT r{};
        GetWindowRect(finestra, &r);
        EXPECT_TRUE(EqualRect(&r, &schermo.rcWork));
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, AncheUnaMisuraGrandeRestaInMezzo) {
    POINT mezzo{};
    SIZE nata{};
    const auto mezzoDellaFinestra = [&] {
        RECT r{};
        GetWindowRect(finestra, &r);
        return POINT{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    };
    usa([&] {
        mezzo = mezzoDellaFinestra();
        nata = misura();
        premi(VK_ESCAPE);
    });
    editor.Misura(MisuraEditor{{200, 100}, false, dpiDi(proprietaria)});
    usa([&] {
        EXPECT_EQ(misura().cx, nata.cx + 200);
        EXPECT_EQ(misura().cy, nata.cy + 100);
        EXPECT_NEAR(mezzoDellaFinestra().x, mezzo.x, 1);
        EXPECT_NEAR(mezzoDellaFinestra().y, mezzo.y, 1);
        premi(VK_ESCAPE);
    });
    // On a monitor of half this one's resolution.
    const Dpi qui = dpiDi(proprietaria);
    editor.Misura(MisuraEditor{{70, 30}, false, {{qui.x.dpi / 2}, {qui.y.dpi / 2}}});
    usa([&] {
        EXPECT_EQ(misura().cx, nata.cx + 140);
        EXPECT_EQ(misura().cy, nata.cy + 60);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, ATuttoSchermoSiLeggonoCinquantaRighe) {
    if (GetSystemMetrics(SM_CYSCREEN) < 1080) {
        GTEST_SKIP() << "a smaller screen";
    }
    usa([&] {
        ShowWindow(finestra, SW_MAXIMIZE);
        std::wstring righe;
        for (int i = 1; i <= 200; ++i) {
            righe += std::to_wstring(i) + L"\r\n";
        }
        imposta(IDC_EDITDESCRIZIONE, righe);
        const HWND descrizione = controllo(IDC_EDITDESCRIZIONE);
        RECT interno{};
        SendMessageW(descrizione, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&interno));
        const auto riga = [&](WPARAM quale) {
            const LRESULT inizio = SendMessageW(descrizione, EM_LINEINDEX, quale, 0);
            return static_cast<SHORT>(
                HIWORD(SendMessageW(descrizione, EM_POSFROMCHAR, static_cast<WPARAM>(inizio), 0)));
        };
        // The end of the fiftieth.
        EXPECT_LE(riga(50), interno.bottom);
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, CtrlSECtrlInvioSalvanoDaOgniCampo) {
    for (const WORD tasto : {WORD{'S'}, WORD{VK_RETURN}}) {
        for (const int id : {IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE, IDC_EDITDESCRIZIONE,
                             IDC_EDITDATA, IDC_EDITORARIO, IDC_CMDSALVA, IDC_CMDANNULLA}) {
            usa([&] {
                compila();
                imposta(IDC_EDITDESCRIZIONE, L"due\r\nrighe");
                SetFocus(controllo(id));
                premi(tasto, {VK_CONTROL});
                EXPECT_FALSE(aperta()) << id;
            });
            EXPECT_FALSE(editor.Annullato()) << id;
            EXPECT_EQ(editor.Elemento().sDescription(), L"due\r\nrighe") << id;
        }
    }
}

TEST_F(FrmEditFeedMisura, CtrlSVuoleIlTitoloComeSalva) {
    usa([&] {
        SetFocus(controllo(IDC_EDITDESCRIZIONE));
        messaggi.attendi(testi::titoloMancante, testi::attenzione, Icona::Critica);
        premi('S', {VK_CONTROL});
        EXPECT_TRUE(aperta());
        EXPECT_EQ(testo(IDC_EDITDESCRIZIONE), L"");
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, F1ApreLaGuidaEDiceSeManca) {
    usa([&] {
        for (const int id : {IDC_EDITTITOLO, IDC_EDITDESCRIZIONE, IDC_EDITDATA, IDC_CMDANNULLA}) {
            SetFocus(controllo(id));
            messaggi.attendi(fileGuida() + testi::fileNonTrovato, testi::errore, Icona::Critica);
            premi(VK_F1);
            EXPECT_TRUE(aperta()) << id;
        }
        premi(VK_ESCAPE);
    });
}

TEST_F(FrmEditFeedMisura, UnMessaggioSopraHaITastiPerSe) {
    usa([&] {
        compila();
        const QuandoAppare messaggio(L"#32770", L"sopra", [&](HWND riquadro) {
            MSG tasto{GetDlgItem(riquadro, IDOK), WM_KEYDOWN, VK_F1, 1, 0, {}};
            EXPECT_FALSE(CallMsgFilterW(&tasto, MSGF_DIALOGBOX));
            tasto.hwnd = controllo(IDC_EDITTITOLO);
            messaggi.attendi(fileGuida() + testi::fileNonTrovato, testi::errore, Icona::Critica);
            EnableWindow(finestra, TRUE);
            EXPECT_TRUE(CallMsgFilterW(&tasto, MSGF_DIALOGBOX));
            EnableWindow(finestra, FALSE);
            SendMessageW(riquadro, WM_COMMAND, IDOK, 0);
        });
        MessageBoxW(finestra, L"", L"sopra", MB_OK);
        premi(VK_ESCAPE);
    });
}
