#include "ui/dialogs/frmAbout_win.h"

#include "res/risorse.h"
#include "support/errore.h"
#include "support/errori_win.h"
#include "support/koUtilita.h"
#include "support/prodotto.h"
#include "ui/controls/campoTesto_win.h"
#include "ui/dialogs/infoSistema_win.h"

#include <olectl.h>
#include <shlwapi.h>

#include <algorithm>

namespace {

// A picture of the resource type "GIF". Raises 481 when it is missing or cannot be read.
ComPtr<IPicture> caricaGif(int numero) {
    const HMODULE modulo = GetModuleHandleW(nullptr);
    const HRSRC risorsa = FindResourceW(modulo, MAKEINTRESOURCEW(numero), L"GIF");
    if (risorsa == nullptr) {
        solleva(errori::immagineNonValida);
    }
    const DWORD byte = SizeofResource(modulo, risorsa);
    const void* const dati = LockResource(LoadResource(modulo, risorsa));
    const ComPtr<IStream> flusso(SHCreateMemStream(static_cast<const BYTE*>(dati), byte));
    ComPtr<IPicture> immagine;
    if (!flusso || FAILED(OleLoadPicture(flusso.get(), static_cast<LONG>(byte), FALSE, IID_IPicture,
                                         reinterpret_cast<void**>(immagine.riempi())))) {
        solleva(errori::immagineNonValida);
    }
    return immagine;
}

// The font of a window, changed by `cambia`.
template <class Cambia>
Carattere derivato(HWND finestra, Cambia cambia) {
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(finestra, WM_GETFONT, 0, 0));
    LOGFONTW descrizione{};
    if (GetObjectW(font, sizeof(descrizione), &descrizione) == 0) {
        sollevaWin32();
    }
    cambia(descrizione);
    return Carattere(CreateFontIndirectW(&descrizione));
}

class DcFinestra {
public:
    explicit DcFinestra(HWND finestra) noexcept : finestra_(finestra), dc_(GetDC(finestra)) {}
    DcFinestra(const DcFinestra&) = delete;
    DcFinestra& operator=(const DcFinestra&) = delete;
    ~DcFinestra() { ReleaseDC(finestra_, dc_); }
    [[nodiscard]] HDC get() const noexcept { return dc_; }

private:
    HWND finestra_;
    HDC dc_;
};

// How large the picture is to be shown, in pixels. It tells its size in hundredths of a millimetre
// reckoned from its pixels by the screen's density, so a dense screen would show it small.
SIZE daMostrare(IPicture& immagine, HDC dc) {
    OLE_XSIZE_HIMETRIC larghezza = 0;
    OLE_YSIZE_HIMETRIC altezza = 0;
    verifica(immagine.get_Width(&larghezza));
    verifica(immagine.get_Height(&altezza));
    const int dpiX = GetDeviceCaps(dc, LOGPIXELSX);
    const int dpiY = GetDeviceCaps(dc, LOGPIXELSY);
    return {MulDiv(MulDiv(larghezza, dpiX, 2540), dpiX, 96),
            MulDiv(MulDiv(altezza, dpiY, 2540), dpiY, 96)};
}

void ridimensiona(HWND finestra, SIZE lati) noexcept {
    SetWindowPos(finestra, nullptr, 0, 0, lati.cx, lati.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

void frmAbout::mostra(HWND proprietaria) {
    mostraModale(IDD_FRMABOUT, proprietaria);
}

std::wstring frmAbout::rigaVersione(std::wstring_view versione) {
    std::wstring riga(L"Versione ");
    riga += versione;
    riga += L"       Anno: 2005";
    return riga;
}

bool frmAbout::inizializza() {
    const std::wstring titolo(prodotto::titolo);
    SetWindowTextW(hwnd(), (L"Informazioni su " + titolo).c_str());
    SetWindowTextW(controllo(IDC_LBLVERSION), rigaVersione(prodotto::versione()).c_str());
    SetWindowTextW(controllo(IDC_LBLTITLE), titolo.c_str());
    SetWindowTextW(controllo(IDC_LBLPRODOTTO), L"Autore:");
    SetWindowTextW(controllo(IDC_LBLAUTORE), std::wstring(prodotto::autore).c_str());
    SetWindowTextW(controllo(IDC_LBLSITO), std::wstring(prodotto::sito).c_str());

    carattereTitolo_ = derivato(hwnd(), [](LOGFONTW& font) {
        font.lfWeight = FW_BOLD;
        font.lfHeight = MulDiv(font.lfHeight, 3, 2);
    });
    SendMessageW(controllo(IDC_LBLTITLE), WM_SETFONT,
                 reinterpret_cast<WPARAM>(carattereTitolo_.get()), FALSE);
    carattereSito_ = derivato(hwnd(), [](LOGFONTW& font) { font.lfUnderline = TRUE; });
    misuraSito();
    logo_ = caricaGif(IDR_LOGO);
    misuraLogo();

    // The link comes first in the order of Tab; Enter is to close the box at once.
    SetFocus(controllo(IDOK));
    return false;
}

INT_PTR frmAbout::messaggio(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_COMMAND:
        return comando(LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
    case WM_DRAWITEM:
        disegna(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_SETCURSOR:
        if (reinterpret_cast<HWND>(wParam) != controllo(IDC_LBLSITO)) {
            return FALSE;
        }
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        SetWindowLongPtrW(hwnd(), DWLP_MSGRESULT, TRUE);
        return TRUE;
    default:
        return FALSE;
    }
}

void frmAbout::eccezione() noexcept {
    koUtilita(messaggi_).PrintErrore();
}

bool frmAbout::comando(WORD id, WORD notifica) {
    if (id == IDOK || id == IDCANCEL) {
        chiudi(id);
        return true;
    }
    if (id == IDC_CMDSYSINFO && notifica == BN_CLICKED) {
        StartSysInfo(messaggi_);
        return true;
    }
    if (id == IDC_LBLSITO) {
        switch (notifica) {
        case BN_CLICKED:
            lblSito_Click();
            break;
        // A button that its owner draws never becomes the default one by itself: without this,
        // Enter on the link would press OK.
        case BN_SETFOCUS:
            SendMessageW(hwnd(), DM_SETDEFID, IDC_LBLSITO, 0);
            break;
        case BN_KILLFOCUS:
            SendMessageW(hwnd(), DM_SETDEFID, IDOK, 0);
            break;
        default:
            break;
        }
        return true;
    }
    return false;
}

void frmAbout::lblSito_Click() const {
    koUtilita(messaggi_).EseguiEx(hwnd(), testoFinestra(controllo(IDC_LBLSITO)));
}

void frmAbout::disegna(const DRAWITEMSTRUCT& voce) const {
    if (voce.CtlID == IDC_LBLSITO) {
        disegnaSito(voce);
    } else if (voce.CtlID == IDC_IMAGE1 && logo_) {
        OLE_XSIZE_HIMETRIC larghezza = 0;
        OLE_YSIZE_HIMETRIC altezza = 0;
        verifica(logo_->get_Width(&larghezza));
        verifica(logo_->get_Height(&altezza));
        const RECT& r = voce.rcItem;
        // A picture's own coordinates grow upwards.
        verifica(logo_->Render(voce.hDC, r.left, r.top, r.right - r.left, r.bottom - r.top, 0,
                               altezza, larghezza, -altezza, nullptr));
    }
}

void frmAbout::disegnaSito(const DRAWITEMSTRUCT& voce) const {
    const HDC dc = voce.hDC;
    FillRect(dc, &voce.rcItem, GetSysColorBrush(COLOR_3DFACE));
    const HGDIOBJ prima = SelectObject(dc, carattereSito_.get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_HOTLIGHT));
    RECT riga = voce.rcItem;
    DrawTextW(dc, testoFinestra(voce.hwndItem).c_str(), -1, &riga,
              DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(dc, prima);
    if ((voce.itemState & ODS_FOCUS) != 0 && (voce.itemState & ODS_NOFOCUSRECT) == 0) {
        SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
        DrawFocusRect(dc, &voce.rcItem);
    }
}

// The link is as large as its text and a margin for the focus: only what looks like a link is one.
void frmAbout::misuraSito() const {
    const HWND sito = controllo(IDC_LBLSITO);
    const std::wstring testo = testoFinestra(sito);
    const DcFinestra dc(sito);
    const HGDIOBJ prima = SelectObject(dc.get(), carattereSito_.get());
    SIZE lati{};
    GetTextExtentPoint32W(dc.get(), testo.c_str(), static_cast<int>(testo.size()), &lati);
    SelectObject(dc.get(), prima);
    RECT posto{};
    GetClientRect(sito, &posto);
    const int margine = 2 * GetSystemMetrics(SM_CXFOCUSBORDER) + 2;
    ridimensiona(sito, {std::min(lati.cx + margine, posto.right),
                        std::min(lati.cy + margine, posto.bottom)});
}

void frmAbout::misuraLogo() const {
    const DcFinestra dc(hwnd());
    ridimensiona(controllo(IDC_IMAGE1), daMostrare(*logo_.get(), dc.get()));
}
