#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/immagini_prova.h"

#include "support/windows/file_win.h"

namespace {

using FrmMainSenzaSfondo = ProvaFrmMain;

// A black background picture beside the program, from before the window until after it.
class SfondoAccanto {
public:
    SfondoAccanto() : percorso_(cartellaProgramma() + L"\\sfondo.bmp") {
        const std::string contenuto = immagini::bmp(12, 900);
        const HANDLE file = CreateFileW(percorso_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD scritti = 0;
        EXPECT_TRUE(WriteFile(file, contenuto.data(), static_cast<DWORD>(contenuto.size()),
                              &scritti, nullptr));
        CloseHandle(file);
    }
    SfondoAccanto(const SfondoAccanto&) = delete;
    SfondoAccanto& operator=(const SfondoAccanto&) = delete;
    ~SfondoAccanto() { DeleteFileW(percorso_.c_str()); }

private:
    const std::wstring percorso_;
};

// Bases are made in their order: the picture is there before the window.
class FrmMainConSfondo : private SfondoAccanto, public ProvaFrmMain {};

// What the window itself shows, left of the channel's frame.
COLORREF margine(HWND finestra) {
    RedrawWindow(finestra, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    const HDC dc = GetDC(finestra);
    const COLORREF colore = GetPixel(dc, 1, 200);
    ReleaseDC(finestra, dc);
    return colore;
}

} // namespace

TEST_F(FrmMainConSfondo, LImmagineAccantoAlProgrammaEDietroAiControlli) {
    EXPECT_EQ(margine(finestra.hwnd()), RGB(0, 0, 0));
}

TEST_F(FrmMainSenzaSfondo, LaFinestraELiscia) {
    EXPECT_EQ(margine(finestra.hwnd()), GetSysColor(COLOR_BTNFACE));
}
