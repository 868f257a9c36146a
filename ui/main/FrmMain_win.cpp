#include "ui/main/FrmMain_win.h"

#include "datetime/ClsUTC.h"
#include "res/risorse.h"
#include "support/errori/trappola.h"
#include "support/programma/ClsCodaEliminazione.h"
#include "support/programma/prodotto.h"
#include "support/servizi/cartelleDati.h"
#include "support/servizi/messaggi.h"
#include "support/servizi/orologio.h"
#include "support/testi/testo.h"
#include "support/utilita/koUtilitaPercorsi.h"
#include "support/windows/dpi_win.h"
#include "support/windows/errori_win.h"
#include "support/windows/file_win.h"
#include "support/windows/xml_win.h"
#include "ui/main/apertura_win.h"

#include <commctrl.h>
#include <shellapi.h>

namespace {

constexpr const wchar_t* classe = L"OstrelleFrmMain";

// Enter presses the button that has the focus; a window that is no dialog has to see to it.
bool premeConInvio(const MSG& msg) noexcept {
    if (msg.message != WM_KEYDOWN || msg.wParam != VK_RETURN ||
        (SendMessageW(msg.hwnd, WM_GETDLGCODE, 0, 0) &
         (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) == 0) {
        return false;
    }
    // A key held down presses once.
    if ((HIWORD(msg.lParam) & KF_REPEAT) == 0) {
        SendMessageW(GetParent(msg.hwnd), WM_COMMAND,
                     MAKEWPARAM(GetDlgCtrlID(msg.hwnd), BN_CLICKED),
                     reinterpret_cast<LPARAM>(msg.hwnd));
    }
    return true;
}

} // namespace

bool FrmMain::Form_Initialize(Messaggi& messaggi) {
    if (ParserXmlPresente()) {
        return true;
    }
    messaggi.avvisa(L"Per poter utilizzare il programma è necessario che sul sistema sia presente "
                    L"il Parser Microsoft XML 3.0 o versione successiva (msxml3.dll). E' possibile "
                    L"scaricare liberamente tale componente dal sito della Microsoft (" +
                        std::wstring(prodotto::sitoParser) + L")",
                    titoli::attenzione, Icona::Informazione);
    return false;
}

FrmMain::FrmMain(const Servizi& servizi, Documento& documento)
    : servizi_(servizi), documento_(documento), recenti_(servizi.impostazioni),
      campi_(*this, documento), griglia_(documento.elementi(), *this), avvisi_(*this),
      storia_(documento), testi_(campi_, servizi.editor),
      custodeLavoro_(documento, testi_, servizi.orologio, servizi.cartelle.diario,
                     [this] { avvisaSenzaDiario(); }),
      vista_(documento, griglia_), custodeCopie_(servizi, *this, documento, avvisi_),
      parti_{*this,
             storia_,
             {servizi, *this, documento, campi_, recenti_, custodeCopie_, custodeLavoro_},
             {servizi.messaggi, servizi.editor, documento, custodeLavoro_},
             {servizi, *this, documento, campi_, custodeCopie_},
             {servizi.messaggi, *this},
             {servizi.messaggi, *this, documento},
             {*this, documento}},
      esecutore_(servizi.messaggi, *this, campi_, griglia_, parti_),
      recupero_(servizi, *this, documento, campi_, parti_.documento, parti_.elementi,
                custodeLavoro_, avvisi_),
      acceleratori_(creaAcceleratori(Tasto::Ovunque)),
      acceleratoriGriglia_(creaAcceleratori(Tasto::Griglia)) {
    documento.ultimaData(servizi.orologio.adesso().locale);
}

void FrmMain::apri(int comeMostrare, std::optional<Dpi> dpi) {
    dpiIniziale_ = dpi;
    WNDCLASSEXW descrizione{};
    descrizione.lpszClassName = classe;
    descrizione.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_OSTRELLE));
    descrizione.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    registra(descrizione);

    ManigliaMenu menu = creaBarraMenu();
    crea(classe, std::wstring(prodotto::titolo).c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
         WS_EX_CONTROLPARENT, RECT{}, nullptr, menu.get());
    static_cast<void>(menu.cedi()); // the window's from here on
    ShowWindow(hwnd(), comeMostrare);
    UpdateWindow(hwnd());
    // An assistive program hears of it from a window that it has seen.
    protetto([this] { recupero_.proponi(); }, [this] { MostraErrore(); });
}

int FrmMain::cicloMessaggi() {
    MSG msg{};
    for (;;) {
        if (PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE) == FALSE) {
            codaVuota();
        }
        if (GetMessageW(&msg, nullptr, 0, 0) <= 0) {
            return static_cast<int>(msg.wParam);
        }
        if (!anticipa(msg)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
    }
}

bool FrmMain::anticipa(MSG& msg) {
    if (hwnd() == nullptr || (msg.hwnd != hwnd() && !IsChild(hwnd(), msg.hwnd))) {
        return hwnd() != nullptr && parti_.ricerca.anticipa(msg);
    }
    if (GetCapture() == griglia_.lista()) {
        // While a row is dragged the keys are the grid's.
        return false;
    }
    return avvisi_.anticipa(msg) || premeConInvio(msg) || acceleraGriglia(msg) ||
           TranslateAcceleratorW(hwnd(), acceleratori_.get(), &msg) != 0 ||
           IsDialogMessageW(hwnd(), &msg) != FALSE;
}

bool FrmMain::acceleraGriglia(MSG& msg) {
    if (GetFocus() != griglia_.lista() ||
        TranslateAcceleratorW(hwnd(), acceleratoriGriglia_.get(), &msg) == 0) {
        return false;
    }
    if (msg.message == WM_SYSKEYDOWN) {
        // Windows opens the menu when Alt goes up after no other key, as far as it has seen.
        DefWindowProcW(msg.hwnd, msg.message, msg.wParam, msg.lParam);
    }
    return true;
}

LRESULT FrmMain::messaggio(UINT codice, WPARAM w, LPARAM l) {
    switch (codice) {
    case WM_CREATE:
        tieniDpi(hwnd(), dpiIniziale_ ? *dpiIniziale_ : dpiDi(hwnd()));
        posa();
        creaControlli();
        // Everything in its place before it is filled and seen: moved later, it would all be worked
        // out and painted twice.
        Form_Resize();
        Form_Load();
        return 0;
    case WM_SIZE:
        // Before there is anything in it, it gets its place; shown, it hears of the size it has.
        if (StatusBar1_ != nullptr && misure() != disposta_) {
            SendMessageW(StatusBar1_, WM_SIZE, w, l);
            Form_Resize();
        }
        return 0;
    case WM_DPICHANGED:
        cambiaDpi({{LOWORD(w)}, {HIWORD(w)}}, *reinterpret_cast<const RECT*>(l));
        return 0;
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(l)->ptMinTrackSize = misuraMinima();
        return 0;
    case WM_COMMAND:
        // Enter and Esc in a field come as a dialog's answers; this window has no such commands.
        if (LOWORD(w) != IDOK && LOWORD(w) != IDCANCEL) {
            esegui(LOWORD(w));
        }
        return 0;
    case WM_NOTIFY:
        if (auto* const avviso = reinterpret_cast<NMHDR*>(l); avviso->code == TTN_GETDISPINFOW) {
            BarraStrumenti::suggerimento(*reinterpret_cast<NMTTDISPINFOW*>(avviso));
            return 0;
        }
        break;
    case WM_DROPFILES:
        apriDaFuori(primoLasciato(reinterpret_cast<HDROP>(w)));
        return 0;
    case WM_CLOSE:
        esegui(mnChiudi);
        return 0;
    case WM_ENTERIDLE:
        // A box or the item editor waits for the user.
        codaVuota();
        return 0;
    case WM_QUERYENDSESSION:
        // While a dialog is up over an unfinished command the answer stays no.
        congedata_ = false;
        esecutore_.daSolo([this] { congedata_ = Form_QueryUnload(); });
        return congedata_ ? TRUE : FALSE;
    case WM_ENDSESSION:
        if (w != FALSE) {
            if (congedata_) {
                custodeLavoro_.dimentica();
            }
            // The process does not come back from here: what goes at its end goes now.
            parti_.documento.codaVuota();
            servizi_.coda.CancellaFile();
        }
        return 0;
    case WM_SETTINGCHANGE:
        caratteriDiSistema();
        griglia_.aggiornaAspetto();
        avvisi_.aggiornaAspetto();
        break;
    case WM_SYSCOLORCHANGE:
        // The common controls hear of it from their parent only.
        EnumChildWindows(
            hwnd(),
            [](HWND controllo, LPARAM) noexcept -> BOOL {
                SendMessageW(controllo, WM_SYSCOLORCHANGE, 0, 0);
                return TRUE;
            },
            0);
        griglia_.aggiornaAspetto();
        break;
    case WM_ACTIVATE:
        if (LOWORD(w) == WA_INACTIVE) {
            fuoco_ = GetFocus();
            return 0;
        }
        break;
    case WM_SETFOCUS:
        SetFocus(IsChild(hwnd(), fuoco_) && IsWindowVisible(fuoco_)
                     ? fuoco_
                     : GetDlgItem(campi_.hwnd(), IDC_TXTTITOLO));
        return 0;
    case WM_ERASEBKGND: {
        const LRESULT esito = predefinito(codice, w, l);
        sfondo_.disegna(reinterpret_cast<HDC>(w));
        return esito;
    }
    case WM_DESTROY:
        Form_Unload();
        scordaDpi(hwnd());
        PostQuitMessage(0);
        return 0;
    case WM_ENABLE:
        parti_.ricerca.abilita(w != FALSE);
        break;
    default:
        if (const auto comando = parti_.ricerca.richiesta(codice, l)) {
            if (*comando != nessunComando) {
                esegui(*comando);
            }
            return 0;
        }
        break;
    }
    return predefinito(codice, w, l);
}

void FrmMain::Form_Load() {
    const ClsUTC utc(servizi_.orologio.adesso(), formatoUtente());
    ImpostaStato(utc.GetDataUtc(utc.adessoLocale(), true));
    NuovoDocumento();
    std::wstring cartella = cartellaProgramma();
    sfondo_ = GUI::ApplicaSfondo(koUtilitaPercorsi::AggiungiSepDir(cartella));
    CaricaRecenti();
}

void FrmMain::Form_Unload() noexcept {
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND altra, LPARAM questa) noexcept -> BOOL {
            if (GetWindow(altra, GW_OWNER) == reinterpret_cast<HWND>(questa)) {
                DestroyWindow(altra);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(hwnd()));
}

void FrmMain::ImpostaTitolo(std::wstring_view nome) {
    SetWindowTextW(hwnd(), documento_.ImpostaTitolo(nome).c_str());
}

void FrmMain::ImpostaStato(std::wstring_view testo) {
    stato_ = rifila(testo);
    SendMessageW(StatusBar1_, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(stato_.c_str()));
}

void FrmMain::avvisaSenzaDiario() noexcept {
    ignorando([this] {
        avvisi_.avvisa({.argomento = L"diario",
                        .testo = L"Il lavoro non salvato non si può annotare: " +
                                 erroreCorrente().descrizione(),
                        .pulsanti = {},
                        .chiuso = {}});
    });
}

void FrmMain::NuovoDocumento() {
    custodeCopie_.nuovoDocumento();
    campi_.Svuota(servizi_.orologio.adesso().locale);
    ImpostaTitolo(Documento::nuovoDocumento);
    documento_.sostituisci({});
    // Last: the changes made above are not the user's.
    documento_.modificato(false);
}

void FrmMain::RiempiGriglia(bool soloIntestazioni) {
    GUI::RiempiGriglia(griglia_, soloIntestazioni);
}

void FrmMain::CaricaRecenti() {
    recenti_.CaricaRecenti();
    mostraRecenti(GetMenu(hwnd()), recenti_.voci());
}

void FrmMain::MostraErrore() {
    const Errore errore = erroreCorrente();
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    servizi_.messaggi.avvisa(errore.descrizione(), titoli::erroreNumero(errore.numero()),
                             Icona::Critica);
}

void FrmMain::onEccezione() noexcept {
    ignorando([this] { MostraErrore(); });
}
