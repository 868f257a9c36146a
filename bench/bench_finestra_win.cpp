// The yardstick of the start: a window with a menu and the same kinds and number of controls as the
// program's, and one XML DOM; nothing else.

#include "res/risorse.h"
#include "support/windows/heap_win.h"

#include <windows.h>

#include <commctrl.h>
#include <msxml2.h>
#include <ole2.h>

#include <array>

namespace {

// The program's own size: what a start paints goes by it.
constexpr int larghezza = 1000;
constexpr int altezza = 700;

struct Controllo {
    const wchar_t* classe;
    const wchar_t* testo;
    DWORD stile;
    RECT posto; // left, top, width, height in pixels
};

constexpr DWORD casella = WS_TABSTOP | ES_AUTOHSCROLL;
constexpr DWORD selettore = WS_TABSTOP;

constexpr std::array controlli{
    Controllo{L"Button", L"Dati", BS_GROUPBOX, {4, 40, 980, 190}},
    Controllo{L"Static", L"Titolo:", 0, {12, 60, 80, 16}},
    Controllo{L"Edit", L"", casella, {95, 58, 380, 22}},
    Controllo{L"Static", L"Link Home:", 0, {12, 86, 80, 16}},
    Controllo{L"Edit", L"", casella, {95, 84, 380, 22}},
    Controllo{L"Static", L"Descrizione:", 0, {12, 112, 80, 16}},
    Controllo{L"Edit", L"", WS_TABSTOP | WS_VSCROLL | ES_MULTILINE, {95, 110, 380, 48}},
    Controllo{L"Static", L"Linguaggio:", 0, {12, 164, 80, 16}},
    Controllo{L"ComboBox", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN, {95, 162, 80, 100}},
    Controllo{L"Static", L"Copyright:", 0, {190, 164, 60, 16}},
    Controllo{L"Edit", L"", casella, {255, 162, 220, 22}},
    Controllo{L"Static", L"Data:", 0, {12, 192, 80, 16}},
    Controllo{DATETIMEPICK_CLASSW, L"", selettore, {95, 190, 110, 22}},
    Controllo{DATETIMEPICK_CLASSW, L"", selettore | DTS_TIMEFORMAT, {215, 190, 90, 22}},
    Controllo{L"Static", L"WebMaster:", 0, {490, 60, 70, 16}},
    Controllo{L"Edit", L"", casella, {565, 58, 260, 22}},
    Controllo{L"Static", L"Titolo Logo:", 0, {490, 86, 70, 16}},
    Controllo{L"Edit", L"", casella, {565, 84, 260, 22}},
    Controllo{L"Static", L"Url:", SS_NOTIFY, {490, 112, 70, 16}},
    Controllo{L"Edit", L"", casella, {565, 110, 260, 22}},
    Controllo{L"Static", L"Click Link:", 0, {490, 138, 70, 16}},
    Controllo{L"Edit", L"", casella, {565, 136, 260, 22}},
    Controllo{L"Static", L"Larghezza:", SS_NOTIFY, {490, 164, 70, 16}},
    Controllo{L"Edit", L"0", casella, {565, 162, 50, 22}},
    Controllo{UPDOWN_CLASSW, L"", 0, {615, 162, 16, 22}},
    Controllo{L"Static", L"Altezza:", SS_NOTIFY, {640, 164, 50, 16}},
    Controllo{L"Edit", L"0", casella, {695, 162, 50, 22}},
    Controllo{UPDOWN_CLASSW, L"", 0, {745, 162, 16, 22}},
    Controllo{L"Button", L"Determina dimensioni", WS_TABSTOP, {830, 160, 140, 24}},
    Controllo{L"Button", L"Aggiungi Feed", WS_TABSTOP, {860, 240, 124, 26}},
    Controllo{L"Button", L"Modifica Feed", WS_TABSTOP, {860, 266, 124, 26}},
    Controllo{L"Button", L"Cancella Feed", WS_TABSTOP, {860, 292, 124, 26}},
};

HWND crea(HWND padre, const Controllo& c, HFONT carattere) {
    const DWORD bordo = lstrcmpW(c.classe, L"Edit") == 0 ? WS_EX_CLIENTEDGE : 0;
    const HWND figlio = CreateWindowExW(bordo, c.classe, c.testo, WS_CHILD | WS_VISIBLE | c.stile,
                                        c.posto.left, c.posto.top, c.posto.right, c.posto.bottom,
                                        padre, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(figlio, WM_SETFONT, reinterpret_cast<WPARAM>(carattere), FALSE);
    return figlio;
}

void creaElenco(HWND padre) {
    const HWND lista = CreateWindowExW(
        WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL, 4, 240,
        850, 380, padre, nullptr, GetModuleHandleW(nullptr), nullptr);
    for (int c = 0; c < 3; ++c) {
        LVCOLUMNW colonna{};
        colonna.mask = LVCF_WIDTH;
        colonna.cx = c == 0 ? 133 : 600;
        SendMessageW(lista, LVM_INSERTCOLUMNW, static_cast<WPARAM>(c),
                     reinterpret_cast<LPARAM>(&colonna));
    }
    ListView_SetItemCountEx(lista, 49, 0);
}

void creaBarre(HWND padre) {
    const HINSTANCE modulo = GetModuleHandleW(nullptr);
    const HWND barra = CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr,
                                       WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS, 0,
                                       0, 0, 0, padre, nullptr, modulo, nullptr);
    SendMessageW(barra, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    const HIMAGELIST immagini = ImageList_LoadImageW(modulo, MAKEINTRESOURCEW(IDB_BARRA16), 16, 0,
                                                     CLR_NONE, IMAGE_BITMAP, LR_CREATEDIBSECTION);
    SendMessageW(barra, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(immagini));
    for (int i = 0; i < 5; ++i) {
        TBBUTTON pulsante{};
        pulsante.iBitmap = i;
        pulsante.idCommand = 100 + i;
        pulsante.fsState = TBSTATE_ENABLED;
        pulsante.fsStyle = BTNS_BUTTON;
        SendMessageW(barra, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&pulsante));
    }
    SendMessageW(barra, TB_AUTOSIZE, 0, 0);
    CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0,
                    padre, nullptr, modulo, nullptr);
    CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, padre,
                    nullptr, modulo, nullptr);
}

HMENU creaMenu() {
    const HMENU menu = CreateMenu();
    for (const wchar_t* titolo : {L"&File", L"&Contenuto", L"?"}) {
        const HMENU tendina = CreatePopupMenu();
        for (UINT_PTR i = 1; i <= 10; ++i) {
            AppendMenuW(tendina, MF_STRING, i, L"Voce del menu");
        }
        AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(tendina), titolo);
    }
    return menu;
}

LRESULT CALLBACK procedura(HWND finestra, UINT codice, WPARAM w, LPARAM l) noexcept {
    if (codice == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(finestra, codice, w, l);
}

bool creaDocumento() {
    CLSID classe{};
    void* oggetto = nullptr;
    if (FAILED(CLSIDFromProgID(L"MSXML2.DomDocument", &classe)) ||
        FAILED(CoCreateInstance(classe, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument,
                                &oggetto))) {
        return false;
    }
    static_cast<IXMLDOMDocument*>(oggetto)->Release();
    return true;
}

} // namespace

int WINAPI wWinMain(HINSTANCE modulo, HINSTANCE, LPWSTR, int comeMostrare) {
    heapPerPiccoliBlocchi();
    if (FAILED(OleInitialize(nullptr)) || !creaDocumento()) {
        return 1;
    }
    InitCommonControls();
    WNDCLASSEXW classe{};
    classe.cbSize = sizeof(classe);
    classe.lpszClassName = L"BenchFinestra";
    classe.lpfnWndProc = procedura;
    classe.hInstance = modulo;
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.hIcon = LoadIconW(modulo, MAKEINTRESOURCEW(IDI_OSTRELLE));
    classe.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    RegisterClassExW(&classe);
    const HWND finestra =
        CreateWindowExW(0, classe.lpszClassName, L"Finestra", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                        10, 10, larghezza, altezza, nullptr, creaMenu(), modulo, nullptr);
    const HFONT carattere =
        CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Shell Dlg");
    for (const auto& controllo : controlli) {
        crea(finestra, controllo, carattere);
    }
    creaElenco(finestra);
    creaBarre(finestra);
    ShowWindow(finestra, comeMostrare);
    UpdateWindow(finestra);
    MSG msg{};
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    OleUninitialize();
    return 0;
}
