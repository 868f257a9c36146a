#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/spia_win.h"

#include <algorithm>
#include <map>

namespace {

using FrmMainAspetto = ProvaFrmMain;

} // namespace

TEST_F(FrmMainAspetto, UnCambioDeiColoriArrivaAiControlliERinnovaLaGriglia) {
    const HWND lista = griglia().lista();
    const auto prima = SendMessageW(lista, WM_GETFONT, 0, 0);
    std::map<HWND, int> avvisati;
    {
        const Spia spia([&](const CWPSTRUCT& m) {
            if (m.message == WM_SYSCOLORCHANGE) {
                ++avvisati[m.hwnd];
            }
        });
        SendMessageW(finestra.hwnd(), WM_SYSCOLORCHANGE, 0, 0);
    }
    for (const HWND controllo :
         {lista, GetDlgItem(finestra.hwnd(), IDC_STATUSBAR),
          GetDlgItem(finestra.hwnd(), IDC_TOOLBAR), campo(IDC_TXTDATA), campo(IDC_TXTORARIO)}) {
        EXPECT_EQ(avvisati[controllo], 1);
    }
    EXPECT_NE(SendMessageW(lista, WM_GETFONT, 0, 0), prima);
    EXPECT_EQ(ListView_GetItemCount(griglia().lista()), 49);
}

TEST_F(FrmMainAspetto, LaRigaSceltaSiVedeAncheDaUnPulsanteInOgniSchema) {
    for (const wchar_t* const titolo : {L"uno", L"due", L"tre"}) {
        metti(titolo);
    }
    const HWND lista = griglia().lista();
    const HWND cancella = GetDlgItem(GetDlgItem(finestra.hwnd(), IDC_PICCMD), cmdCancella);
    // The second row as it is seen.
    const auto seconda = [&] {
        pompa();
        RECT interno{};
        RECT r{};
        GetClientRect(lista, &interno);
        ListView_GetItemRect(lista, 1, &r, LVIR_BOUNDS);
        r.right = std::min(r.right, interno.right);
        return sulloSchermo(lista).ritaglio(r);
    };
    for (std::size_t i = 0; i < schemi().size(); ++i) {
        const ColoriSistema schema(schemi()[i]);
        pompa();
        EXPECT_EQ(ListView_GetBkColor(lista), GetSysColor(COLOR_WINDOW)) << "scheme " << i;
        for (const HWND fuoco : {lista, cancella}) {
            finestra.SelezionaRiga(3);
            SetFocus(fuoco);
            EXPECT_LT(distacco(seconda()), 1.01);
            finestra.SelezionaRiga(2);
            // From the list to the button, as one goes there.
            SetFocus(lista);
            pompa();
            SetFocus(fuoco);
            EXPECT_GE(distacco(seconda()), 3)
                << "scheme " << i << ", focus in the list " << (fuoco == lista);
        }
    }
}
