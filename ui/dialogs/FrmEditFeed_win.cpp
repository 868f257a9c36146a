#include "ui/dialogs/FrmEditFeed_win.h"

#include "datetime/ClsUTC.h"
#include "document/caratteriXml.h"
#include "res/risorse.h"
#include "support/errori/guardia.h"
#include "support/errori/trappola.h"
#include "support/servizi/messaggi.h"
#include "support/servizi/orologio.h"
#include "support/testi/testo.h"
#include "support/utilita/guida_win.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/guardia_win.h"
#include "support/windows/proprietaria_win.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

static_assert(IDC_CMDSALVA == IDOK && IDC_CMDANNULLA == IDCANCEL);

namespace {

constexpr std::array<ControlloAncorato, 11> ancorati{{
    {IDC_FRAMEEDIT, Ancoraggio::SiAllargaESiAllunga},
    {IDC_EDITTITOLO, Ancoraggio::SiAllarga},
    {IDC_EDITLINK, Ancoraggio::SiAllarga},
    {IDC_EDITAUTORE, Ancoraggio::SiAllarga},
    {IDC_EDITDESCRIZIONE, Ancoraggio::SiAllargaESiAllunga},
    {IDC_LBLDATA, Ancoraggio::Scende},
    {IDC_EDITDATA, Ancoraggio::Scende},
    {IDC_LBLORA, Ancoraggio::Scende},
    {IDC_EDITORARIO, Ancoraggio::Scende},
    {IDC_CMDSALVA, Ancoraggio::ScendeESiSposta},
    {IDC_CMDANNULLA, Ancoraggio::ScendeESiSposta},
}};

constexpr std::array<ACCEL, 3> tasti{{{FVIRTKEY | FCONTROL, 'S', IDC_CMDSALVA},
                                      {FVIRTKEY | FCONTROL, VK_RETURN, IDC_CMDSALVA},
                                      {FVIRTKEY, VK_F1, IDC_GUIDA}}};

// A size in pixels of one resolution, in those of another.
SIZE portata(SIZE misura, Dpi da, Dpi a) noexcept {
    return {MulDiv(misura.cx, a.x.dpi, da.x.dpi), MulDiv(misura.cy, a.y.dpi, da.y.dpi)};
}

} // namespace

void FrmEditFeed::mostra(HWND proprietaria) {
    mostraModale(IDD_FRMEDITFEED, proprietaria);
}

// The fields are filled while Windows makes the dialog, which is still hidden then: a message about
// the date comes before the dialog is seen, and the modal loop stays Windows' own. A window made
// hidden beforehand would need a second loop, with its own care for the owner, the focus and
// WM_QUIT.
bool FrmEditFeed::inizializza() {
    annullato_ = true;
    iniziali_.clear();
    voluta_ = {{}, false, dpiDi(hwnd())};
    ancoraggi_ = Ancoraggi(hwnd(), ancorati);
    tasti_ = TastiDialogo(hwnd(), tasti);
    txtTitolo_ = CampoTesto(controllo(IDC_EDITTITOLO));
    txtLink_ = CampoTesto(controllo(IDC_EDITLINK));
    txtAutore_ = CampoTesto(controllo(IDC_EDITAUTORE));
    txtDescrizione_ = CampoTesto(controllo(IDC_EDITDESCRIZIONE));
    txtData_ = SelettoreData(controllo(IDC_EDITDATA), SelettoreData::Parte::Data);
    txtOrario_ = SelettoreData(controllo(IDC_EDITORARIO), SelettoreData::Parte::Ora);
    CaricaDati();
    iniziali_ = testi();
    toccato_ = false;
    mostraBozza();
    applicaMisura();
    return true;
}

// What the user added to the size grows with the rest.
void FrmEditFeed::adattato() {
    const Alzata adattando(adattando_);
    ancoraggi_ = Ancoraggi(hwnd(), ancorati);
    const SIZE inPiu = portata(voluta_.inPiu, voluta_.dpi, dpiDi(hwnd()));
    RECT r{};
    GetWindowRect(hwnd(), &r);
    SetWindowPos(hwnd(), nullptr, r.left - inPiu.cx / 2, r.top - inPiu.cy / 2,
                 r.right - r.left + inPiu.cx, r.bottom - r.top + inPiu.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// The dialog keeps its middle, as far as that leaves it on the screen.
void FrmEditFeed::applicaMisura() noexcept {
    if (!misura_) {
        return;
    }
    const Alzata adattando(adattando_);
    voluta_ = *misura_;
    MONITORINFO schermo{};
    schermo.cbSize = sizeof schermo;
    GetMonitorInfoW(MonitorFromWindow(hwnd(), MONITOR_DEFAULTTONEAREST), &schermo);
    const RECT& area = schermo.rcWork;
    const POINT minima = ancoraggi_.misuraMinima();
    const SIZE inPiu = portata(voluta_.inPiu, voluta_.dpi, dpiDi(hwnd()));
    RECT r{};
    GetWindowRect(hwnd(), &r);
    const LONG larghezza =
        std::max(minima.x, std::min(minima.x + inPiu.cx, area.right - area.left));
    const LONG altezza = std::max(minima.y, std::min(minima.y + inPiu.cy, area.bottom - area.top));
    const LONG sinistra = (r.left + r.right - larghezza) / 2;
    const LONG alto = (r.top + r.bottom - altezza) / 2;
    SetWindowPos(hwnd(), nullptr, std::max(area.left, std::min(sinistra, area.right - larghezza)),
                 std::max(area.top, std::min(alto, area.bottom - altezza)), larghezza, altezza,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (misura_->tutta) {
        ShowWindow(hwnd(), SW_MAXIMIZE);
    }
}

void FrmEditFeed::ricordaMisura() noexcept {
    misura_ = voluta_;
    misura_->tutta = IsZoomed(hwnd()) != FALSE;
}

INT_PTR FrmEditFeed::messaggio(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_SIZE:
        ancoraggi_.disponi();
        if (wParam == SIZE_RESTORED && !adattando_) {
            voluta_ = {ancoraggi_.inPiu(), false, dpiDi(hwnd())};
        }
        return TRUE;
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = ancoraggi_.misuraMinima();
        return TRUE;
    case WM_DESTROY:
        ricordaMisura();
        return FALSE;
    case WM_COMMAND:
        return comando(LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
    default:
        return FALSE;
    }
}

bool FrmEditFeed::comando(int id, int notifica) {
    // A button that was pressed, or a key.
    if (notifica != BN_CLICKED && notifica != 1) {
        return false;
    }
    switch (id) {
    case IDC_CMDSALVA:
        cmdSalva_Click();
        return true;
    case IDC_CMDANNULLA: // the close box too
        cmdAnnulla_Click();
        return true;
    case IDC_GUIDA:
        apriGuida(messaggi_, hwnd());
        return true;
    default:
        return false;
    }
}

void FrmEditFeed::onEccezione() noexcept {
    ignorando([this] { koUtilita(messaggi_).PrintErrore(); });
}

void FrmEditFeed::PulisciCampi() noexcept {
    // Each assignment on its own: one that fails does not stop the others.
    for (CampoTesto* const campo : {&txtTitolo_, &txtLink_, &txtAutore_, &txtDescrizione_}) {
        ignorando([&] { campo->testo(L""); });
    }
    for (SelettoreData* const selettore : {&txtData_, &txtOrario_}) {
        ignorando([&] { selettore->valore(ultimaData_); });
    }
}

void FrmEditFeed::CaricaDati() {
    PulisciCampi();
    txtTitolo_.testo(elemento_.sTitle());
    txtLink_.testo(elemento_.sLink());
    txtDescrizione_.testo(elemento_.sDescription());
    txtAutore_.testo(elemento_.sAuthor());
    try {
        if (!elemento_.sPubDate().empty()) {
            const auto data =
                ClsUTC(orologio_.adesso(), formatoUtente()).ToDate(elemento_.sPubDate());
            txtData_.valore(data);
            txtOrario_.valore(data);
        }
    } catch (const std::exception&) {
        messaggi_.avvisa(L"Valore data/orario non valido. E' stata impostato come data/orario "
                         L"quella di sistema.",
                         titoli::attenzione, Icona::Informazione);
        txtData_.valore(orologio_.adesso().locale);
        txtOrario_.valore(orologio_.adesso().locale);
    }
}

TestiCampi FrmEditFeed::testi() const {
    return {txtTitolo_.testo(), txtLink_.testo(), txtAutore_.testo(), txtDescrizione_.testo(),
            comeTesto(combina(txtData_, txtOrario_))};
}

std::optional<TestiCampi> FrmEditFeed::scritti() {
    // Filled already, unless it is being made.
    if (hwnd() == nullptr || iniziali_.empty()) {
        return std::nullopt;
    }
    TestiCampi adesso = testi();
    toccato_ = toccato_ || adesso != iniziali_;
    return toccato_ ? std::optional(std::move(adesso)) : std::nullopt;
}

void FrmEditFeed::mostraBozza() {
    // A draft of another shape is none of this dialog's.
    if (!bozza_ || bozza_->size() != testi().size()) {
        return;
    }
    const TestiCampi& testi = *bozza_;
    txtTitolo_.testo(testi[0]);
    txtLink_.testo(testi[1]);
    txtAutore_.testo(testi[2]);
    txtDescrizione_.testo(testi[3]);
    if (const auto data = dataDaTesto(testi[4])) {
        txtData_.valore(*data);
        txtOrario_.valore(*data);
    }
}

bool FrmEditFeed::SalvaDati() {
    return protetto(
        [&] {
            const std::wstring titolo(rifila(txtTitolo_.testo()));
            const std::wstring link(rifila(txtLink_.testo()));
            const std::wstring descrizione(rifila(txtDescrizione_.testo()));
            // Stored as typed, blanks and all.
            const std::wstring autore = txtAutore_.testo();
            // Here the user can mend what no feed could hold.
            const auto esamina = [](const CampoTesto& controllo, CampoElemento campo,
                                    std::wstring_view testo) {
                try {
                    verificaCampo(campo, testo);
                } catch (const TestoRifiutato&) {
                    SetFocus(controllo.hwnd());
                    throw;
                }
            };
            esamina(txtTitolo_, CampoElemento::Titolo, titolo);
            esamina(txtLink_, CampoElemento::Link, link);
            esamina(txtAutore_, CampoElemento::Autore, autore);
            esamina(txtDescrizione_, CampoElemento::Descrizione, descrizione);
            elemento_.sTitle(titolo);
            elemento_.sLink(link);
            elemento_.sDescription(descrizione);
            elemento_.sAuthor(autore);
            txtData_.conferma();
            txtOrario_.conferma();
            dataOra_ = combina(txtData_, txtOrario_);
            const ClsUTC utc(orologio_.adesso(), formatoUtente());
            elemento_.sPubDate(utc.GetDataUtc(dataOra_, true));
        },
        [&] { koUtilita(messaggi_).PrintErrore(); });
}

void FrmEditFeed::cmdSalva_Click() {
    if (rifila(txtTitolo_.testo()).empty()) {
        rifiuta(L"E' obbligatorio indicare il Titolo. Impossibile salvare.");
    } else if (rifila(txtLink_.testo()).empty()) {
        rifiuta(L"E' obbligatorio indicare il link. Impossibile salvare.");
    } else if (SalvaDati()) {
        annullato_ = false;
        chiudi(IDC_CMDSALVA);
    }
}

void FrmEditFeed::cmdAnnulla_Click() {
    chiudi(IDC_CMDANNULLA);
}

void FrmEditFeed::rifiuta(const wchar_t* testo) {
    messaggi_.avvisa(testo, titoli::attenzione, Icona::Critica);
}

std::optional<DataOra> EditorElementiWindows::modifica(clsItemRss& elemento, DataOra ultimaData,
                                                       const TestiCampi* bozza) {
    FrmEditFeed editor(messaggi_, orologio_, ultimaData);
    editor.Elemento() = elemento;
    if (bozza != nullptr) {
        editor.Bozza(*bozza);
    }
    editor.Misura(misura_);
    {
        const Prestito<FrmEditFeed*> aperto(aperto_, &editor);
        editor.mostra(proprietariaDiModali());
    }
    misura_ = editor.Misura();
    if (editor.Annullato()) {
        return std::nullopt;
    }
    elemento = std::move(editor.Elemento());
    return editor.DataOra();
}

std::optional<TestiCampi> EditorElementiWindows::testi() {
    return aperto_ != nullptr ? aperto_->scritti() : std::nullopt;
}
