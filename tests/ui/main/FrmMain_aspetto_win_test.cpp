#include "tests/aiuti/frmMain_win.h"
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
    EXPECT_EQ(griglia().righe().righe(), 50);
}
