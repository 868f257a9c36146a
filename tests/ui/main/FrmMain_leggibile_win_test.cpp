// Whether what the main window says can be read, whatever colours the system has.

#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/leggibili_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/suggerimenti_prova_win.h"

#include <algorithm>

namespace {

class FrmMainLeggibile : public ProvaFrmMain {
protected:
    // The texts of a row: its date, its title, its description.
    [[nodiscard]] std::vector<RECT> testiDellaRiga(int riga) {
        RECT data{};
        RECT tutta{};
        ListView_GetSubItemRect(griglia().lista(), riga, 1, LVIR_BOUNDS, &tutta);
        ListView_GetItemRect(griglia().lista(), riga, &data, LVIR_BOUNDS);
        data.right = tutta.left;
        constexpr int bordo = 4;
        InflateRect(&tutta, -bordo, -bordo);
        InflateRect(&data, -bordo, -bordo);
        const LONG meta = (tutta.top + tutta.bottom) / 2;
        return {{data.left, data.top, data.right, meta},
                {tutta.left, tutta.top, tutta.right, meta},
                {tutta.left, meta, tutta.right, tutta.bottom}};
    }

    AvvisiProva avvisi{finestra};
};

} // namespace

TEST_F(FrmMainLeggibile, OgniTestoInOgniSchema) {
    for (const int id : campiTesto) {
        campi.testo(id, L"Prova");
    }
    finestra.avvisi().avvisa(
        avvisoProva(L"Lavoro non salvato", {L"Recupera", {}}, {L"Elimina", {}}));
    SetFocus(griglia().lista());
    inOgniSchema(finestra.hwnd(), [&] {
        // 12 labels, 11 boxes, 2 pickers, a frame, 4 buttons; 2 headers, 2 panels; the strip's 4.
        EXPECT_EQ(verificaLeggibili(finestra.hwnd()), 38);
        EXPECT_EQ(verificaMenuLeggibile(finestra.hwnd()), 3);
    });
}

TEST_F(FrmMainLeggibile, AncheIlTestoSceltoInUnaCasella) {
    const HWND casella = campo(IDC_TXTTITOLO);
    campi.testo(IDC_TXTTITOLO, L"HHHHHHHHHH");
    SetFocus(casella);
    const COLORREF prima = GetSysColor(COLOR_HIGHLIGHT);
    inOgniSchema(finestra.hwnd(), [&] {
        SendMessageW(casella, EM_SETSEL, 0, -1);
        pompa();
        const auto dove = [&](WPARAM carattere) {
            return static_cast<LONG>(LOWORD(SendMessageW(casella, EM_POSFROMCHAR, carattere, 0)));
        };
        RECT r{};
        GetClientRect(casella, &r);
        const Immagine scelto =
            sulloSchermo(casella).ritaglio({dove(0) + 1, r.top + 3, dove(9), r.bottom - 3});
        // The usual colours of a box are the system's own to choose.
        const bool usuale = GetSysColor(COLOR_HIGHLIGHT) == prima;
        EXPECT_GE(leggibilita(scelto), usuale ? 3 : leggibile);
    });
}

TEST_F(FrmMainLeggibile, LeRigheScelteENo) {
    for (const wchar_t* const titolo : {L"Primo titolo", L"Secondo titolo"}) {
        documento.applica(
            documento.aggiunta(creaElemento({titolo, L"", L"La sua descrizione", L"",
                                             L"Tue, 15 Nov 2005 10:00:00 +0100", L""})),
            Causa::Comando);
    }
    const HWND lista = griglia().lista();
    inOgniSchema(finestra.hwnd(), [&] {
        for (const HWND fuoco : {lista, campo(IDC_TXTTITOLO)}) {
            SetFocus(fuoco);
            finestra.SelezionaRiga(2);
            pompa();
            const Immagine vista = sulloSchermo(lista);
            for (const int riga : {0, 1}) {
                for (const RECT& r : testiDellaRiga(riga)) {
                    EXPECT_GE(leggibilita(vista.ritaglio(r)), leggibile)
                        << "row " << riga << ", focus in the list " << (fuoco == lista);
                }
            }
        }
    });
}

TEST_F(FrmMainLeggibile, ISuggerimenti) {
    const std::wstring lungo(300, L'H');
    metti(lungo);
    RECT r{};
    ListView_GetItemRect(griglia().lista(), 0, &r, LVIR_BOUNDS);
    finestra.avvisi().avvisa(avvisoProva(L"uno"));
    inOgniSchema(finestra.hwnd(), [&] {
        // The tooltip of the rows is made when the pointer first comes over one.
        muoviMouse(griglia().lista(), {250, r.top + 4});
        muoviMouse(campo(IDC_TXTTITOLO), {4, 4});
        EXPECT_TRUE(suggerisce(griglia().lista(), {260, r.top + 4}, lungo));
        verificaSuggerimentoLeggibile();
        EXPECT_TRUE(suggerisce(campo(IDC_LBLURL), {4, 4}, L"URL (Percorso)"));
        verificaSuggerimentoLeggibile();
        EXPECT_TRUE(suggerisce(avvisi.chiudi(), {5, 5}, L"Chiudi avviso"));
        verificaSuggerimentoLeggibile();
        EXPECT_TRUE(suggerisce(GetDlgItem(finestra.hwnd(), IDC_TOOLBAR), {10, 10},
                               L"Crea un nuovo Feed RSS"));
        verificaSuggerimentoLeggibile();
    });
}
