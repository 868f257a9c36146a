#include "ui/controls/griglia_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/guardia_win.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace {

constexpr DWORD stileLista = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | LVS_REPORT |
                             LVS_OWNERDATA | LVS_OWNERDRAWFIXED | LVS_SINGLESEL |
                             LVS_SHOWSELALWAYS | LVS_NOSORTHEADER;
constexpr DWORD stileEsteso = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

} // namespace

Griglia::Griglia(const TabellaElementi& tabella, OsservatoreGriglia& osservatore)
    : righe_(tabella), osservatore_(osservatore) {}

Griglia::~Griglia() {
    distruggi();
}

void Griglia::creaIn(HWND padre, int id, const wchar_t* nome, const RECT& posto) {
    WNDCLASSEXW descrizione{};
    descrizione.lpszClassName = classe;
    registra(descrizione);
    nome_ = nome;
    // The window text is its accessible name and the list's: it shows nowhere.
    crea(classe, nome, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
         WS_EX_CONTROLPARENT, posto, padre, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)));
}

void Griglia::creaLista() {
    RECT r{};
    GetClientRect(hwnd(), &r);
    lista_ =
        CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, nome_.c_str(), stileLista, 0, 0, r.right,
                        r.bottom, hwnd(), nullptr, GetModuleHandleW(nullptr), nullptr);
    if (lista_ == nullptr) {
        sollevaWin32();
    }
    ListView_SetExtendedListViewStyle(lista_, stileEsteso);
    SendMessageW(lista_, WM_SETFONT, reinterpret_cast<WPARAM>(aspetto_.carattere()), FALSE);
    testata_ = ListView_GetHeader(lista_);
    SetWindowTextW(testata_, L"Intestazioni");
    SetWindowLongPtrW(testata_, GWL_STYLE, GetWindowLongPtrW(testata_, GWL_STYLE) | HDS_NOSIZING);
}

LRESULT Griglia::messaggio(UINT codice, WPARAM w, LPARAM l) {
    switch (codice) {
    case WM_CREATE:
        misura();
        creaLista();
        return 0;
    case WM_DESTROY:
        sottoclasseLista_ = Sottoclasse();
        sottoclasseTestata_ = Sottoclasse();
        lista_ = nullptr;
        testata_ = nullptr;
        return 0;
    case WM_SIZE:
        disponi();
        return 0;
    case WM_SETFOCUS:
        SetFocus(lista_);
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_NOTIFY:
        return notifica(*reinterpret_cast<NMHDR*>(l));
    case WM_MEASUREITEM:
        reinterpret_cast<MEASUREITEMSTRUCT*>(l)->itemHeight =
            static_cast<UINT>(aspetto_.altezzaRiga());
        return TRUE;
    case WM_DRAWITEM:
        disegna(*reinterpret_cast<const DRAWITEMSTRUCT*>(l));
        return TRUE;
    default:
        return predefinito(codice, w, l);
    }
}

void Griglia::disponi() {
    RECT r{};
    GetClientRect(hwnd(), &r);
    SetWindowPos(lista_, nullptr, 0, 0, r.right, r.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
    if (std::exchange(larghezza_, r.right) != r.right) {
        applicaLarghezze();
    }
    RedrawWindow(lista_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

LRESULT Griglia::notifica(NMHDR& avviso) {
    if (avviso.hwndFrom != lista_ || lista_ == nullptr) {
        return 0;
    }
    switch (avviso.code) {
    case LVN_GETDISPINFOW: {
        auto& voce = reinterpret_cast<NMLVDISPINFOW&>(avviso).item;
        if ((voce.mask & LVIF_TEXT) != 0 && voce.pszText != nullptr && voce.cchTextMax > 0) {
            const std::wstring testo = righe_.cella(voce.iItem + 1, voce.iSubItem);
            const auto n = std::min(testo.size(), static_cast<std::size_t>(voce.cchTextMax) - 1);
            std::copy_n(testo.begin(), n, voce.pszText);
            voce.pszText[n] = L'\0';
        }
        return 0;
    }
    case LVN_ITEMCHANGED:
        if (!allineando_) {
            allinea();
        }
        return 0;
    case LVN_ODFINDITEMW: {
        const auto& cercata = reinterpret_cast<const NMLVFINDITEMW&>(avviso);
        return (cercata.lvfi.flags & LVFI_PARTIAL) == 0 || cercata.lvfi.psz == nullptr
                   ? -1
                   : righe_.cheIniziaCon(cercata.lvfi.psz, cercata.iStart + 1) - 1;
    }
    default:
        return 0;
    }
}

void Griglia::disegna(const DRAWITEMSTRUCT& disegno) const {
    AspettoGriglia::Posto dove = posto(disegno.rcItem);
    dove.selezionata = (disegno.itemState & ODS_SELECTED) != 0;
    dove.fuoco = GetFocus() == lista_;
    aspetto_.disegna(disegno.hDC, righe_, static_cast<int>(disegno.itemID) + 1, dove);
}

AspettoGriglia::Posto Griglia::posto(const RECT& riga) const noexcept {
    RECT client{};
    GetClientRect(lista_, &client);
    AspettoGriglia::Posto posto{};
    posto.data = riga;
    posto.data.right = posto.data.left + larghezzaData_;
    posto.contenuto = riga;
    posto.contenuto.left = posto.data.right;
    // The index column is never painted: what is to be seen of it belongs to the contents.
    posto.contenuto.right = client.right;
    return posto;
}

void Griglia::intesta(std::vector<std::wstring> titoli, int colonne,
                      std::optional<double> primaLarghezza) {
    abbandona();
    primaLarghezza_ = primaLarghezza;
    const int prima = Header_GetItemCount(testata_);
    const bool stessa = prima == colonne && righe_.intestate(titoli, colonne);
    righe_.intesta(std::move(titoli), colonne);
    numeroRighe();
    rigaCorrente_ = 0;
    if (stessa) {
        applicaLarghezze();
        return;
    }
    for (int c = prima; c > righe_.colonne(); --c) {
        ListView_DeleteColumn(lista_, c - 1);
    }
    const std::vector<int> larghe = larghezze();
    for (int c = 0; c < righe_.colonne(); ++c) {
        std::wstring titolo = righe_.cella(0, c);
        LVCOLUMNW colonna{};
        colonna.mask = LVCF_TEXT | LVCF_FMT | (larghe.empty() ? 0U : LVCF_WIDTH);
        colonna.cx = larghe.empty() ? 0 : larghe[static_cast<std::size_t>(c)];
        colonna.fmt = LVCFMT_LEFT;
        colonna.pszText = titolo.data();
        if (c < prima) {
            SendMessageW(lista_, LVM_SETCOLUMNW, static_cast<WPARAM>(c),
                         reinterpret_cast<LPARAM>(&colonna));
        } else {
            SendMessageW(lista_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(c),
                         reinterpret_cast<LPARAM>(&colonna));
        }
    }
    if (!larghe.empty()) {
        larghezzaData_ = larghe.front();
    }
}

std::vector<int> Griglia::larghezze() const {
    if (righe_.colonne() < (primaLarghezza_ ? 3 : 2)) {
        return {};
    }
    RECT r{};
    GetClientRect(hwnd(), &r);
    std::vector<int> pixel;
    for (const double twips :
         larghezzeColonne(dpi_.x.twips(r.right), righe_.colonne(), primaLarghezza_)) {
        pixel.push_back(dpi_.x.pixelVicini(twips));
    }
    return pixel;
}

void Griglia::applicaLarghezze() {
    if (lista_ == nullptr || Header_GetItemCount(testata_) != righe_.colonne()) {
        return;
    }
    int c = 0;
    for (const int pixel : larghezze()) {
        if (ListView_GetColumnWidth(lista_, c) != pixel) {
            ListView_SetColumnWidth(lista_, c, pixel);
        }
        if (c == 0) {
            larghezzaData_ = pixel;
        }
        ++c;
    }
}

void Griglia::elenca(const ClsUTC& utc, FormatoLocale formato) {
    righe_.elenca(utc, std::move(formato));
    numeroRighe();
}

void Griglia::completa() {
    righe_.completa();
    numeroRighe();
}

void Griglia::numeroRighe(DWORD modo) noexcept {
    suggerimento_.nascondi();
    const Alzata allineando(allineando_);
    ListView_SetItemCountEx(lista_, righe_.righe() - 1, modo);
}

void Griglia::seleziona(int riga) {
    const int cima = rigaInCima();
    seleziona(riga, visibile(riga, cima) ? cima : riga);
}

void Griglia::seleziona(int riga, int cima) {
    if (riga < 1 || riga >= righe_.righe()) {
        return;
    }
    // Some list views scroll a row that gets the focus into full sight: undone, a row that a press
    // selects must stay under the pointer.
    {
        const Alzata allineando(allineando_);
        if (riga != rigaCorrente_) {
            deseleziona(LVIS_SELECTED);
        }
        ListView_SetItemState(lista_, riga - 1, LVIS_SELECTED | LVIS_FOCUSED,
                              LVIS_SELECTED | LVIS_FOCUSED);
    }
    rigaInCima(cima);
    rigaCorrente_ = riga;
}

void Griglia::deseleziona(UINT stati) noexcept {
    if (rigaCorrente_ >= 1) {
        ListView_SetItemState(lista_, rigaCorrente_ - 1, 0, stati);
    }
}

void Griglia::allinea() {
    const int fuoco = ListView_GetNextItem(lista_, -1, LVNI_FOCUSED) + 1;
    const int riga = fuoco >= 1 ? fuoco : rigaCorrente_;
    if (riga >= 1 &&
        (riga != rigaCorrente_ || ListView_GetItemState(lista_, riga - 1, LVIS_SELECTED) == 0)) {
        seleziona(riga);
    }
}

int Griglia::altezzaRiga() const noexcept {
    RECT r{};
    if (righe_.righe() > 1 && ListView_GetItemRect(lista_, 0, &r, LVIR_BOUNDS) &&
        r.bottom > r.top) {
        return r.bottom - r.top;
    }
    return aspetto_.altezzaRiga();
}

int Griglia::altezzaTestata() const noexcept {
    RECT r{};
    GetWindowRect(testata_, &r);
    return r.bottom - r.top;
}

int Griglia::rigaInCima() const noexcept {
    return ListView_GetTopIndex(lista_) + 1;
}

void Griglia::rigaInCima(int riga) noexcept {
    if (const int righe = riga - rigaInCima()) {
        suggerimento_.nascondi();
        ListView_Scroll(lista_, 0, righe * altezzaRiga());
    }
}

bool Griglia::visibile(int riga, int cima) const noexcept {
    RECT r{};
    GetClientRect(lista_, &r);
    return riga >= cima && (riga - cima) * altezzaRiga() < r.bottom - altezzaTestata();
}

int Griglia::rigaA(int y) const noexcept {
    const int sotto = y - altezzaTestata();
    if (sotto < 0) {
        return 0;
    }
    const int riga = rigaInCima() + sotto / altezzaRiga();
    return riga < righe_.righe() ? riga : -1;
}

int Griglia::rigaVicina(int y) const noexcept {
    RECT r{};
    GetClientRect(lista_, &r);
    const int cima = altezzaTestata();
    const int riga = rigaA(std::clamp(y, cima, std::max<int>(cima, r.bottom - 1)));
    return riga < 1 ? righe_.righe() - 1 : riga;
}

AreaRighe Griglia::area() const noexcept {
    RECT tutta{};
    RECT testata{};
    GetWindowRect(hwnd(), &tutta);
    GetWindowRect(testata_, &testata);
    return {.larghezza = tutta.right - tutta.left,
            .cima = testata.bottom - tutta.top,
            .fondo = tutta.bottom - tutta.top,
            .margineX = dpi_.x.pixelPerEccesso(100),
            .margineY = dpi_.y.pixelPerEccesso(100)};
}

void Griglia::misura() {
    dpi_ = dpiDi(hwnd());
    aspetto_ = AspettoGriglia(dpi_.y);
    puntatori_ = Puntatori(dpi_);
    suggerimento_.carattere(aspetto_.carattere());
}

void Griglia::aggiornaAspetto() {
    abbandona();
    suggerimento_.nascondi();
    misura();
    SendMessageW(lista_, WM_SETFONT, reinterpret_cast<WPARAM>(aspetto_.carattere()), TRUE);
    ListView_SetBkColor(lista_, GetSysColor(COLOR_WINDOW));
    // A list view measures its rows when its size changes, or so it believes.
    RECT r{};
    GetWindowRect(lista_, &r);
    WINDOWPOS posto{};
    posto.hwnd = lista_;
    posto.cx = r.right - r.left;
    posto.cy = r.bottom - r.top;
    posto.flags = SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOZORDER;
    SendMessageW(lista_, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&posto));
    applicaLarghezze();
    InvalidateRect(lista_, nullptr, FALSE);
}

Griglia::Sospensione::Sospensione(Griglia& griglia) noexcept : griglia_(griglia) {
    if (griglia_.sospensioni_++ == 0) {
        SendMessageW(griglia_.lista_, WM_SETREDRAW, FALSE, 0);
    }
}

void Griglia::riprendi() {
    SendMessageW(lista_, WM_SETREDRAW, TRUE, 0);
    if (!sottoclasseLista_) {
        sottoclasseLista_ = Sottoclasse(lista_, *this);
        // The scroll bar that it has given itself goes.
        SetWindowPos(lista_, nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        sottoclasseTestata_ = Sottoclasse(testata_, *this);
    }
    InvalidateRect(lista_, nullptr, FALSE);
}

Griglia::Sospensione::~Sospensione() {
    if (--griglia_.sospensioni_ == 0) {
        protetto([this] { griglia_.riprendi(); }, [this] { griglia_.onEccezione(); });
    }
}
