// The main window goes from monitor to monitor.

#include "tests/aiuti/aspetto_prova_win.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/maniglieGui_win.h"

#include "ui/main/comandi.h"

#include <commctrl.h>

#include <array>
#include <utility>
#include <vector>

namespace {

constexpr SIZE misura{800, 500};
constexpr std::array viaggio{96, 144, 192, 96, 288, 120, 192, 96};

class FrmMainMonitor : public ProvaFrmMain {
protected:
    FrmMainMonitor() { riempi(finestra, documento); }

    static void riempi(FrmMain& quale, Documento& suo) {
        for (const wchar_t* const titolo : {L"uno", L"due", L"tre"}) {
            mettiElemento(quale, suo, titolo);
        }
        const CampiProva campi(quale);
        for (const int id : campiTesto) {
            campi.testo(id, L"Un testo che nel campo si vede");
        }
        const SYSTEMTIME data{2005, 11, 2, 15, 10, 20, 30, 0};
        for (const int id : {IDC_TXTDATA, IDC_TXTORARIO}) {
            DateTime_SetSystemtime(campi.controllo(id), GDT_VALID, &data);
        }
        campi.dimensioni(120, 60);
        quale.avvisi().avvisa(avvisoProva(L"Un avviso", {L"Fai", [] { return true; }}));
    }

    AvvisiProva avvisi{finestra};

    [[nodiscard]] static Aspetto aspetto(FrmMain& quale) {
        portaAvanti(quale.hwnd());
        // A caret would blink.
        SetFocus(grigliaDi(quale).lista());
        return aspettoDi(quale.hwnd());
    }

    // A window made for that resolution, where the other one is.
    [[nodiscard]] Aspetto fattaPer(int dpi) {
        CartellaProva altra;
        Documento suo;
        FrmMain nuova{Servizi{messaggi,
                              dialoghi,
                              orologio,
                              impostazioni,
                              coda,
                              editor,
                              {altra.file(L"copie"), altra.file(L"diario")}},
                      suo};
        nuova.apri(SW_SHOWNORMAL, Dpi{{dpi}, {dpi}});
        riempi(nuova, suo);
        RECT r{};
        GetWindowRect(finestra.hwnd(), &r);
        SetWindowPos(nuova.hwnd(), nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        suo.modificato(false);
        return aspetto(nuova);
    }
};

} // namespace

TEST_F(FrmMainMonitor, SuOgniMonitorECosiComeSarebbeNataLi) {
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    for (const int dpi : viaggio) {
        SCOPED_TRACE(dpi);
        portaSuMonitor(finestra.hwnd(), dpi, misura);
        const Aspetto qui = aspetto(finestra);
        confronta(qui, fattaPer(dpi));
    }
}

// As a maximised window between monitors with as many pixels.
TEST_F(FrmMainMonitor, AncheSeLaFinestraNonCambiaMisura) {
    RECT r{0, 0, 1400, 900};
    SetWindowPos(finestra.hwnd(), nullptr, r.left, r.top, r.right, r.bottom, SWP_NOZORDER);
    for (const int dpi : {144, 96}) {
        SCOPED_TRACE(dpi);
        SendMessageW(finestra.hwnd(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&r));
        const Aspetto qui = aspetto(finestra);
        confronta(qui, fattaPer(dpi));
    }
}

TEST_F(FrmMainMonitor, OgniParteCresceConLaRisoluzione) {
    const HWND lista = griglia().lista();
    const auto stato = [&] { return GetDlgItem(finestra.hwnd(), IDC_STATUSBAR); };
    const auto figura = [&] {
        int lato = 0;
        const auto figure = reinterpret_cast<HIMAGELIST>(
            SendMessageW(GetDlgItem(finestra.hwnd(), IDC_TOOLBAR), TB_GETIMAGELIST, 0, 0));
        ImageList_GetIconSize(figure, &lato, &lato);
        return lato;
    };
    const auto altezzaRiga = [&] {
        RECT r{};
        ListView_GetItemRect(lista, ListView_GetTopIndex(lista), &r, LVIR_BOUNDS);
        return r.bottom - r.top;
    };
    const auto carattere = [](HWND controllo) {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(controllo, WM_GETFONT, 0, 0)),
                   sizeof(font), &font);
        return -font.lfHeight;
    };
    // Of all tooltips together: those of the toolbar, of the fields and of the strip.
    const auto suggerimenti = [&] {
        long somma = 0;
        HWND f = nullptr;
        while ((f = FindWindowExW(nullptr, f, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
            somma += GetWindow(f, GW_OWNER) == finestra.hwnd() ? carattere(f) : 0;
        }
        return somma;
    };
    const auto tendina = [&] {
        RECT r{};
        SendMessageW(campo(IDC_CBOLINGUA), CB_GETDROPPEDCONTROLRECT, 0,
                     reinterpret_cast<LPARAM>(&r));
        return r.bottom - r.top;
    };
    const auto misure = [&] {
        const HWND pulsante = GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), cmdCancella);
        std::vector<long> m{carattere(campo(IDC_TXTTITOLO)),
                            carattere(campo(IDC_TXTDATA)),
                            carattere(txtnumeroDi(campi.txtLarghezza())),
                            carattere(lista),
                            carattere(stato()),
                            carattere(pulsante),
                            carattere(avvisi.testo()),
                            suggerimenti(),
                            altezzaRiga(),
                            ListView_GetColumnWidth(lista, 0),
                            tendina()};
        for (const HWND f : {campo(IDC_TXTTITOLO), UPNumDi(campi.txtLarghezza()), pulsante,
                             avvisi.striscia(), avvisi.chiudi()}) {
            RECT r{};
            GetWindowRect(f, &r);
            m.push_back(r.right - r.left);
            m.push_back(r.bottom - r.top);
        }
        return m;
    };
    portaSuMonitor(finestra.hwnd(), 96, misura);
    const auto prima = misure();
    EXPECT_EQ(figura(), 16);
    for (const auto& [dpi, lato] :
         {std::pair{144, 24}, std::pair{192, 32}, std::pair{288, 48}, std::pair{96, 16}}) {
        portaSuMonitor(finestra.hwnd(), dpi, misura);
        EXPECT_EQ(figura(), lato) << dpi;
        const auto ora = misure();
        for (std::size_t i = 0; i < ora.size(); ++i) {
            // Fonts do not grow quite evenly.
            EXPECT_NEAR(static_cast<double>(ora[i]) / prima[i], dpi / 96.0, dpi / 96.0 * 0.2)
                << dpi << ' ' << i;
        }
    }
}

TEST_F(FrmMainMonitor, LaMisuraMinimaEPoiDellaNuovaRisoluzione) {
    for (const int dpi : {96, 144, 192, 96}) {
        portaSuMonitor(finestra.hwnd(), dpi, misura);
        SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 1, 1, SWP_NOZORDER);
        RECT r{};
        GetWindowRect(finestra.hwnd(), &r);
        EXPECT_EQ(r.right, MulDiv(640, dpi, 96));
        EXPECT_EQ(r.bottom, MulDiv(480, dpi, 96));
    }
}

TEST_F(FrmMainMonitor, LaRigaInCimaEQuellaScelteRestano) {
    for (int i = 0; i < 60; ++i) {
        metti(L"altro");
    }
    portaSuMonitor(finestra.hwnd(), 96, misura);
    griglia().seleziona(30);
    griglia().rigaInCima(28);
    for (const int dpi : {192, 144, 96}) {
        portaSuMonitor(finestra.hwnd(), dpi, misura);
        EXPECT_EQ(griglia().rigaCorrente(), 30) << dpi;
        EXPECT_EQ(griglia().rigaInCima(), 28) << dpi;
    }
}

TEST_F(FrmMainMonitor, IlPuntatoreDelTrascinamentoCresce) {
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    const auto lato = [&] {
        const HWND lista = griglia().lista();
        RECT r{};
        ListView_GetItemRect(lista, 0, &r, LVIR_BOUNDS);
        const int mezzo = (r.bottom - r.top) / 2;
        premiMouse(lista, {200, r.top + mezzo});
        muoviMouse(lista, {200, r.top + 3 * mezzo});
        ICONINFO icona{};
        GetIconInfo(GetCursor(), &icona);
        BITMAP maschera{};
        GetObjectW(icona.hbmMask, sizeof(maschera), &maschera);
        DeleteObject(icona.hbmMask);
        DeleteObject(icona.hbmColor);
        premi(VK_ESCAPE);
        lasciaMouse();
        return maschera.bmWidth;
    };
    for (const int dpi : {96, 192, 96}) {
        portaSuMonitor(finestra.hwnd(), dpi, misura);
        portaAvanti(finestra.hwnd());
        EXPECT_EQ(lato(), MulDiv(32, dpi, 96)) << dpi;
    }
}

TEST_F(FrmMainMonitor, DopoIlCambioTuttoEDipinto) {
    SetWindowPos(finestra.hwnd(), nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    for (const int dpi : viaggio) {
        portaSuMonitor(finestra.hwnd(), dpi, misura);
        SetFocus(griglia().lista());
        EXPECT_EQ(daRidipingere(finestra.hwnd()), 0) << dpi;
    }
}

TEST_F(FrmMainMonitor, DiQuelCheServivaAgliAltriNonRestaNiente) {
    const auto giro = [&] {
        for (const int dpi : viaggio) {
            portaSuMonitor(finestra.hwnd(), dpi, misura);
        }
    };
    giro();
    const DWORD persi = persiPerFigura();
    ManiglieGui attese = ManiglieGui::adesso();
    giro();
    // The cross of the strip is a picture.
    attese.gdi += static_cast<DWORD>(viaggio.size()) * persi;
    EXPECT_EQ(ManiglieGui::adesso(), attese);
}
