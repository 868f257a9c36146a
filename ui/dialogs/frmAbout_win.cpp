#include "ui/dialogs/frmAbout_win.h"

#include "res/risorse.h"
#include "support/errori/trappola.h"
#include "support/immagini/immagine_win.h"
#include "support/programma/prodotto.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/dpi_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"
#include "ui/controls/campoTesto_win.h"
#include "ui/controls/contrasto.h"
#include "ui/dialogs/infoSistema_win.h"

#include <algorithm>

namespace {

// The font of a window, changed by `cambia`.
template <class Cambia>
Carattere derivato(HWND finestra, Cambia cambia) {
    auto descrizione =
        datiDi<LOGFONTW>(reinterpret_cast<HGDIOBJ>(SendMessageW(finestra, WM_GETFONT, 0, 0)));
    if (!descrizione) {
        sollevaWin32();
    }
    cambia(*descrizione);
    return Carattere(CreateFontIndirectW(&*descrizione));
}

// The system's colour of links, or that of text where a theme makes it hard to read.
COLORREF coloreCollegamento() noexcept {
    const COLORREF collegamento = GetSysColor(COLOR_HOTLIGHT);
    return siLegge(collegamento, GetSysColor(COLOR_3DFACE)) ? collegamento
                                                            : GetSysColor(COLOR_BTNTEXT);
}

void ridimensiona(HWND finestra, SIZE misura) noexcept {
    SetWindowPos(finestra, nullptr, 0, 0, misura.cx, misura.cy,
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

    logo_ = caricaImmagine(IDR_LOGO, L"GIF");
    adattato();

    // The link comes first in the order of Tab; Enter is to close the box at once.
    SetFocus(controllo(IDC_CMDOK));
    return false;
}

void frmAbout::adattato() {
    carattereTitolo_ = derivato(hwnd(), [](LOGFONTW& font) {
        font.lfWeight = FW_BOLD;
        font.lfHeight = MulDiv(font.lfHeight, 3, 2);
    });
    SendMessageW(controllo(IDC_LBLTITLE), WM_SETFONT,
                 reinterpret_cast<WPARAM>(carattereTitolo_.get()), FALSE);
    carattereSito_ = derivato(hwnd(), [](LOGFONTW& font) { font.lfUnderline = TRUE; });
    misuraSito();
    misuraIcona();
    misuraLogo();
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

void frmAbout::onEccezione() noexcept {
    ignorando([this] { koUtilita(messaggi_).PrintErrore(); });
}

bool frmAbout::comando(WORD id, WORD notifica) {
    if (id == IDC_CMDOK || id == IDCANCEL) {
        cmdOK_Click();
        return true;
    }
    if (id == IDC_CMDSYSINFO && notifica == BN_CLICKED) {
        cmdSysInfo_Click();
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
            SendMessageW(hwnd(), DM_SETDEFID, IDC_CMDOK, 0);
            break;
        default:
            break;
        }
        return true;
    }
    return false;
}

void frmAbout::cmdOK_Click() {
    chiudi(IDC_CMDOK);
}

void frmAbout::cmdSysInfo_Click() const {
    StartSysInfo(messaggi_);
}

void frmAbout::lblSito_Click() const {
    koUtilita(messaggi_).EseguiEx(hwnd(), testoFinestra(controllo(IDC_LBLSITO)));
}

void frmAbout::disegna(const DRAWITEMSTRUCT& voce) const {
    if (voce.CtlID == IDC_LBLSITO) {
        disegnaSito(voce);
    } else if (voce.CtlID == IDC_IMAGE1 && logo_) {
        disegnaLogo(voce);
    } else if (voce.CtlID == IDC_PICICON) {
        disegnaIcona(voce);
    }
}

// Drawn here, because a static control of the icon kind has no name for those who cannot see it.
void frmAbout::disegnaIcona(const DRAWITEMSTRUCT& voce) const {
    const RECT& r = voce.rcItem;
    FillRect(voce.hDC, &r, GetSysColorBrush(COLOR_3DFACE));
    DrawIconEx(voce.hDC, r.left, r.top, icona_.get(), r.right - r.left, r.bottom - r.top, 0,
               nullptr, DI_NORMAL);
}

// Not by IPicture::Render, which works in hundredths of a millimetre and can miss the last pixels.
void frmAbout::disegnaLogo(const DRAWITEMSTRUCT& voce) const {
    const HBITMAP bitmap = bitmapDi(*logo_.get());
    const SIZE da = misuraDi(bitmap);
    const RECT& a = voce.rcItem;
    const DcBitmap memoria(voce.hDC, bitmap);
    SetStretchBltMode(voce.hDC, HALFTONE);
    SetBrushOrgEx(voce.hDC, 0, 0, nullptr);
    StretchBlt(voce.hDC, a.left, a.top, a.right - a.left, a.bottom - a.top, memoria.get(), 0, 0,
               da.cx, da.cy, SRCCOPY);
}

void frmAbout::disegnaSito(const DRAWITEMSTRUCT& voce) const {
    const HDC dc = voce.hDC;
    FillRect(dc, &voce.rcItem, GetSysColorBrush(COLOR_3DFACE));
    const Selezione selezione(dc, carattereSito_.get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, coloreCollegamento());
    RECT riga = voce.rcItem;
    DrawTextW(dc, testoFinestra(voce.hwndItem).c_str(), -1, &riga,
              DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
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
    const Selezione selezione(dc.get(), carattereSito_.get());
    RECT scritta{};
    DrawTextW(dc.get(), testo.c_str(), -1, &scritta, DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    RECT posto{};
    GetClientRect(sito, &posto);
    // A line, half of it on either side: some fonts draw their texts wider than they say.
    const LONG margine = scritta.bottom;
    const LONG orlo = 2 * metrica(SM_CYFOCUSBORDER, dpiDi(hwnd()).y);
    ridimensiona(sito, {std::min(scritta.right + margine, posto.right),
                        std::min(scritta.bottom + orlo, posto.bottom)});
}

void frmAbout::misuraIcona() {
    const Dpi dpi = dpiDi(hwnd());
    const SIZE misura{metrica(SM_CXICON, dpi.x), metrica(SM_CYICON, dpi.y)};
    icona_ = ManigliaIcona(
        static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_OSTRELLE),
                                      IMAGE_ICON, misura.cx, misura.cy, LR_DEFAULTCOLOR)));
    ridimensiona(controllo(IDC_PICICON), misura);
}

// The picture is drawn for 96 dpi.
void frmAbout::misuraLogo() const {
    const Dpi dpi = dpiDi(hwnd());
    const SIZE pixel = misuraDi(bitmapDi(*logo_.get()));
    ridimensiona(controllo(IDC_IMAGE1), {dpi.x.daProgetto(pixel.cx), dpi.y.daProgetto(pixel.cy)});
}
