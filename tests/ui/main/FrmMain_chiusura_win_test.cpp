#include "tests/aiuti/frmMainVera_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/puntatore_win.h"
#include "tests/aiuti/testi.h"

#include <commctrl.h>

#include <semaphore>
#include <thread>

namespace {

using FrmMainChiusura = ProvaFrmMain;

class FrmMainVera : public ProvaFrmMainVera {
protected:
    void modifica() {
        campi.testo(IDC_TXTTITOLO, L"scritto");
        ASSERT_TRUE(documento.modificato());
    }
    [[nodiscard]] std::wstring scritto() { return campi.testo(IDC_TXTTITOLO); }
    // Neither a close nor the end of the session gets past the box that is up.
    void insisti() {
        SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
        ASSERT_NE(finestra.hwnd(), nullptr);
        EXPECT_FALSE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
        SendMessageW(finestra.hwnd(), WM_COMMAND, mnChiudi, 0);
        ASSERT_NE(finestra.hwnd(), nullptr);
        EXPECT_FALSE(IsWindowEnabled(finestra.hwnd()));
    }
};

// A window of another thread, in front as another program's would be, for the life of the object.
class AltroInPrimoPiano {
public:
    AltroInPrimoPiano() { pronta_.acquire(); }
    AltroInPrimoPiano(const AltroInPrimoPiano&) = delete;
    AltroInPrimoPiano& operator=(const AltroInPrimoPiano&) = delete;
    ~AltroInPrimoPiano() {
        PostThreadMessageW(numero_, WM_QUIT, 0, 0);
        filo_.join();
    }

private:
    void vivi() {
        numero_ = GetCurrentThreadId();
        const HWND altra = CreateWindowExW(0, L"Static", L"altro", WS_POPUP | WS_VISIBLE, 0, 0, 50,
                                           50, nullptr, nullptr, nullptr, nullptr);
        SetForegroundWindow(altra);
        pronta_.release();
        MSG msg{};
        while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
            DispatchMessageW(&msg);
        }
        DestroyWindow(altra);
    }

    DWORD numero_ = 0;
    std::binary_semaphore pronta_{0};
    std::thread filo_{[this] { vivi(); }};
};

} // namespace

TEST_F(FrmMainVera, MentreLaDomandaEApertaNonSiChiude) {
    modifica();
    const QuandoAppare domanda(boxWindows, testi::salvataggio, [&](HWND box) {
        insisti();
        PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    });
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    ASSERT_NE(finestra.hwnd(), nullptr);
    EXPECT_EQ(scritto(), L"scritto");
    EXPECT_TRUE(documento.modificato());
}

TEST_F(FrmMainVera, MentreLEditorEApertoNonSiChiudeEIlTestoResta) {
    modifica();
    const QuandoAppare dialogo(boxWindows, L"Edit", [&](HWND box) {
        SetWindowTextW(GetDlgItem(box, IDC_EDITTITOLO), L"elemento");
        SetWindowTextW(GetDlgItem(box, IDC_EDITLINK), L"https://e.example/");
        insisti();
        EXPECT_EQ(testoDi(GetDlgItem(box, IDC_EDITTITOLO)), L"elemento");
        PostMessageW(box, WM_COMMAND, IDC_CMDSALVA, 0);
    });
    finestra.esegui(mnaddFeed);
    ASSERT_EQ(documento.elementi().conteggio(), 1);
    EXPECT_EQ(documento.elementi()(CampoElemento::Titolo, 0), L"elemento");
    EXPECT_EQ(scritto(), L"scritto");
}

TEST_F(FrmMainVera, ChiusoLEditorIlFuocoTornaAllaGriglia) {
    const HWND lista = Finestra::da<Griglia>(GetDlgItem(finestra.hwnd(), IDC_GRIGLIA))->lista();
    SetFocus(lista);
    for (const int come : {IDC_CMDSALVA, IDC_CMDANNULLA}) {
        const QuandoAppare dialogo(boxWindows, L"Edit", [&](HWND box) {
            SetWindowTextW(GetDlgItem(box, IDC_EDITTITOLO), L"elemento");
            SetWindowTextW(GetDlgItem(box, IDC_EDITLINK), L"https://e.example/");
            PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(come), 0);
        });
        premi(VK_INSERT);
        EXPECT_TRUE(attendi([&] { return GetFocus() == lista; })) << come;
    }
    EXPECT_EQ(documento.elementi().conteggio(), 1);
}

TEST_F(FrmMainVera, DopoUnaDomandaAnnullataLaProssimaSiFaAncora) {
    modifica();
    for (int i = 0; i < 2; ++i) {
        const QuandoAppare domanda(boxWindows, testi::salvataggio,
                                   [](HWND box) { PostMessageW(box, WM_COMMAND, IDCANCEL, 0); });
        EXPECT_FALSE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
    }
    const QuandoAppare domanda(boxWindows, testi::salvataggio,
                               [](HWND box) { PostMessageW(box, WM_COMMAND, IDNO, 0); });
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(finestra.hwnd(), nullptr);
}

TEST_F(FrmMainVera, AncheDaSfondoLaDomandaTieneFermaLaFinestra) {
    modifica();
    // None of this thread's windows is the active one then.
    const AltroInPrimoPiano altro;
    ASSERT_TRUE(attendi([] { return GetActiveWindow() == nullptr; }));
    const QuandoAppare domanda(boxWindows, testi::salvataggio, [&](HWND box) {
        EXPECT_EQ(GetWindow(box, GW_OWNER), finestra.hwnd());
        EXPECT_FALSE(IsWindowEnabled(finestra.hwnd()));
        PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_FALSE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
}

TEST_F(FrmMainChiusura, ConUnMessaggioApertoNullaSiComandaENullaSiPerde) {
    metti(L"uno");
    campi.testo(IDC_TXTTITOLO, L"resta");
    messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda, Pulsanti::SiNo,
                     Risposta::No, [&] {
                         SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
                         EXPECT_FALSE(SendMessageW(finestra.hwnd(), WM_QUERYENDSESSION, 0, 0));
                         for (const int comando : {mnNuovo, mnsalva, mnaddFeed, mnDelFeed}) {
                             SendMessageW(finestra.hwnd(), WM_COMMAND, static_cast<WPARAM>(comando),
                                          0);
                         }
                     });
    finestra.esegui(mnDelFeed);
    ASSERT_NE(finestra.hwnd(), nullptr);
    EXPECT_EQ(titoliElementi(), L"uno;");
    EXPECT_EQ(campi.testo(IDC_TXTTITOLO), L"resta");
    EXPECT_TRUE(documento.modificato());
}

TEST_F(FrmMainChiusura, ConLEditorApertoUnSecondoComandoLasciaLaTabellaComEra) {
    for (const wchar_t* const t : {L"a", L"b", L"c"}) {
        metti(t);
    }
    finestra.SelezionaRiga(2);
    const HWND lista = griglia().lista();
    const auto centro = [&](int riga) {
        RECT r{};
        ListView_GetItemRect(lista, riga - 1, &r, LVIR_BOUNDS);
        return POINT{60, (r.top + r.bottom) / 2};
    };
    int aperture = 0;
    const auto insisti = [&](clsItemRss& elemento, DataOra ultima) {
        ++aperture;
        for (const int comando : {mnaddFeed, mnEditFeed, mnDelFeed, mnNuovo, mnvisualhtml, spostaSu,
                                  spostaGiu, mnAggiorna}) {
            SendMessageW(finestra.hwnd(), WM_COMMAND, static_cast<WPARAM>(comando), 0);
        }
        // This editor leaves the window enabled, so that even hands reach it.
        SetFocus(lista);
        for (const WORD tasto : {WORD{VK_INSERT}, WORD{VK_RETURN}, WORD{VK_DELETE}}) {
            premi(tasto);
        }
        trascina(lista, centro(1), centro(3));
        doppioClic(lista, centro(3));
        doppioClic(ListView_GetHeader(lista), {60, 5});
        EXPECT_EQ(titoliElementi(), L"a;b;c;");
        elemento.sTitle(L"x");
        return std::optional(ultima);
    };
    editor.attendi(insisti);
    finestra.esegui(mnEditFeed);
    EXPECT_EQ(aperture, 1);
    EXPECT_EQ(titoliElementi(), L"a;x;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 2);
}

TEST_F(FrmMainChiusura, UnComandoOUnaChiusuraAbbandonanoIlTrascinamento) {
    for (const wchar_t* const t : {L"a", L"b", L"c"}) {
        metti(t);
    }
    const HWND lista = griglia().lista();
    const auto centro = [&](int riga) {
        RECT r{};
        ListView_GetItemRect(lista, riga - 1, &r, LVIR_BOUNDS);
        return POINT{60, (r.top + r.bottom) / 2};
    };
    finestra.ImpostaModificato();
    for (const bool chiusura : {false, true}) {
        SCOPED_TRACE(chiusura);
        // Elsewhere first, so that the press is not the second of a pair.
        clic(campo(IDC_TXTTITOLO));
        premiMouse(lista, centro(1));
        muoviMouse(lista, centro(3));
        ASSERT_EQ(puntatoreVisto(), Puntatore::Trascina);
        // The box is up, and the button goes up over another row.
        const auto intanto = [&] {
            EXPECT_EQ(puntatoreVisto(), Puntatore::Predefinito);
            EXPECT_EQ(GetCapture(), nullptr);
            lasciaMouse();
        };
        if (chiusura) {
            messaggi.attendi(testi::domandaSalvataggio, testi::salvataggio, Icona::Domanda,
                             Pulsanti::SiNoAnnulla, Risposta::Annulla, intanto);
            SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
        } else {
            editor.attendi([&](clsItemRss&, DataOra) -> std::optional<DataOra> {
                intanto();
                return std::nullopt;
            });
            finestra.esegui(mnaddFeed);
        }
        EXPECT_EQ(titoliElementi(), L"a;b;c;");
    }
}

TEST_F(FrmMainChiusura, ChiudendoSeNeVannoLeAltreFinestreDelProgramma) {
    const HWND altra = CreateWindowExW(0, WC_STATICW, L"altra", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                       finestra.hwnd(), nullptr, nullptr, nullptr);
    ASSERT_NE(altra, nullptr);
    SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(altra));
    MSG messaggio{};
    EXPECT_TRUE(PeekMessageW(&messaggio, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(FrmMainChiusura, AllaFineDellaSessioneLAnteprimaSiCancella) {
    const std::wstring anteprima = cartella.scrivi(L"anteprima.htm", "x");
    coda.Push(anteprima);
    SendMessageW(finestra.hwnd(), WM_ENDSESSION, FALSE, 0);
    EXPECT_NE(GetFileAttributesW(anteprima.c_str()), INVALID_FILE_ATTRIBUTES);
    SendMessageW(finestra.hwnd(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(GetFileAttributesW(anteprima.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FrmMainChiusura, UnCambioDelleImpostazioniRinnovaIlCarattereDellaGriglia) {
    const HWND lista = griglia().lista();
    const auto prima = reinterpret_cast<HFONT>(SendMessageW(lista, WM_GETFONT, 0, 0));
    SendMessageW(finestra.hwnd(), WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0);
    const auto dopo = reinterpret_cast<HFONT>(SendMessageW(lista, WM_GETFONT, 0, 0));
    EXPECT_NE(dopo, nullptr);
    EXPECT_NE(dopo, prima);
    EXPECT_EQ(ListView_GetItemCount(griglia().lista()), 49);
}
