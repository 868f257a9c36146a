// What the monkey does: keys, mouse, menus, commands.

#include "document/elementi.h"
#include "res/risorse.h"
#include "support/testi/testo.h"
#include "tests/aiuti/puntatore_win.h"
#include "tests/aiuti/scimmia_win.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace {

constexpr std::array campiTesto{IDC_TXTTITOLO, IDC_TXTLINKHOME,  IDC_TXTDESCRIZIONE,
                                IDC_CBOLINGUA, IDC_TXTCOPYRIGHT, IDC_TXTWEBMASTER,
                                IDC_TXTLOGO,   IDC_TXTURL,       IDC_TXTLINKIMG};

// The window whose inside is at a point of the screen; none where a press would start a loop of the
// system's own, which no other message ends: on a frame, a scroll bar, the status bar's size grip.
HWND internoA(POINT schermo) {
    const HWND sotto = WindowFromPoint(schermo);
    if (sotto == nullptr || GetDlgCtrlID(sotto) == IDC_STATUSBAR ||
        SendMessageW(sotto, WM_NCHITTEST, 0, MAKELPARAM(schermo.x, schermo.y)) != HTCLIENT) {
        return nullptr;
    }
    return sotto;
}

} // namespace

bool Scimmia::sposta(int da, int a) {
    if (da < 0 || a < 0 || da == a || std::max(da, a) >= static_cast<int>(modello_.size())) {
        return false;
    }
    Elemento mosso = std::move(modello_[static_cast<std::size_t>(da)]);
    modello_.erase(modello_.begin() + da);
    modello_.insert(modello_.begin() + a, std::move(mosso));
    ++conti_.spostati;
    return true;
}

void Scimmia::tasto() {
    fatto_ = "key";
    if (caso(3) == 0) {
        SetFocus(griglia().lista());
        if (caso(2) == 0) {
            const int da = scelto();
            const int fondo = static_cast<int>(modello_.size()) - 1;
            const std::array<std::pair<WORD, int>, 4> mosse{
                {{VK_UP, da - 1}, {VK_DOWN, da + 1}, {VK_HOME, 0}, {VK_END, fondo}}};
            const auto& [tasto, a] = mosse[static_cast<std::size_t>(caso(4))];
            fatto_ = "Alt+key " + std::to_string(tasto);
            premi(tasto, {VK_MENU});
            if (sposta(da, a) && !documento_.modificato()) {
                segnala("a move by a key that is no modification");
            }
            return;
        }
    }
    constexpr std::array<WORD, 20> tasti{VK_TAB,    VK_UP,    VK_DOWN,   VK_LEFT,   VK_RIGHT,
                                         VK_HOME,   VK_END,   VK_PRIOR,  VK_NEXT,   VK_BACK,
                                         VK_DELETE, VK_SPACE, VK_RETURN, VK_ESCAPE, VK_INSERT,
                                         VK_F4,     VK_F10,   'A',       '7',       VK_ADD};
    const WORD tasto = tasti[static_cast<std::size_t>(caso(static_cast<int>(tasti.size())))];
    fatto_ += " " + std::to_string(tasto);
    if (caso(5) == 0 && tasto != VK_ESCAPE) {
        premi(tasto, {VK_SHIFT});
    } else {
        premi(tasto);
    }
}

void Scimmia::scriveTesto() {
    fatto_ = "text";
    constexpr std::array campi{IDC_TXTTITOLO,    IDC_TXTLINKHOME,  IDC_TXTDESCRIZIONE,
                               IDC_CBOLINGUA,    IDC_TXTCOPYRIGHT, IDC_TXTWEBMASTER,
                               IDC_TXTLOGO,      IDC_TXTURL,       IDC_TXTLINKIMG,
                               IDC_TXTLARGHEZZA, IDC_TXTALTEZZA,   IDC_TXTDATA};
    SetFocus(GetDlgItem(campi_.hwnd(),
                        campi[static_cast<std::size_t>(caso(static_cast<int>(campi.size())))]));
    if (caso(2) == 0) {
        premi('A', {VK_CONTROL});
    }
    ::scrivi(testoCaso(6));
}

std::optional<Scimmia::Posto> Scimmia::postoCaso() {
    std::vector<HWND> figli;
    EnumChildWindows(
        finestra_.hwnd(),
        [](HWND figlio, LPARAM l) -> BOOL {
            if (IsWindowVisible(figlio) != FALSE && IsWindowEnabled(figlio) != FALSE) {
                reinterpret_cast<std::vector<HWND>*>(l)->push_back(figlio);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&figli));
    const HWND figlio = figli[static_cast<std::size_t>(caso(static_cast<int>(figli.size())))];
    RECT r{};
    GetClientRect(figlio, &r);
    if (r.right < 1 || r.bottom < 1) {
        return std::nullopt;
    }
    POINT schermo{caso(r.right), caso(r.bottom)};
    ClientToScreen(figlio, &schermo);
    const HWND sotto = internoA(schermo);
    // The toolbar has its own step, for it sends mail.
    if (sotto == nullptr || IsChild(finestra_.hwnd(), sotto) == FALSE ||
        GetDlgCtrlID(sotto) == IDC_TOOLBAR) {
        return std::nullopt;
    }
    ScreenToClient(sotto, &schermo);
    return Posto{sotto, schermo};
}

void Scimmia::clicca() {
    const auto posto = postoCaso();
    if (!posto) {
        return;
    }
    fatto_ = "click on control " + std::to_string(GetDlgCtrlID(posto->finestra));
    if (caso(4) == 0) {
        doppioClic(posto->finestra, posto->punto);
    } else {
        clic(posto->finestra, posto->punto);
    }
}

void Scimmia::trascinaInUnCampo() {
    const auto posto = postoCaso();
    if (!posto || posto->finestra == griglia().lista()) {
        return;
    }
    fatto_ = "drag in control " + std::to_string(GetDlgCtrlID(posto->finestra));
    trascina(posto->finestra, posto->punto, {posto->punto.x + caso(200) - 100, posto->punto.y}, 3);
}

std::optional<POINT> Scimmia::puntoGriglia() {
    const HWND lista = griglia().lista();
    RECT r{};
    GetClientRect(lista, &r);
    if (r.right < 1 || r.bottom < 1) {
        return std::nullopt;
    }
    const POINT punto{caso(r.right), caso(r.bottom)};
    POINT schermo = punto;
    ClientToScreen(lista, &schermo);
    const HWND sotto = internoA(schermo);
    return sotto == lista || IsChild(lista, sotto) != FALSE ? std::optional(punto) : std::nullopt;
}

void Scimmia::trascinaInGriglia() {
    fatto_ = "drag in the grid";
    const HWND lista = griglia().lista();
    const auto inizio = puntoGriglia();
    if (!inizio) {
        return;
    }
    // Between the pages of a pair of clicks a double click would open the editor.
    clic(campi_.hwnd(), {1, 1});
    premiMouse(lista, *inizio);
    const int preso = puntatoreVisto() == Puntatore::Trascina ? scelto() : -1;
    for (int i = caso(6); i > 0; --i) {
        muoviMouse(lista, puntoGriglia().value_or(*inizio));
    }
    if (caso(6) == 0) {
        constexpr std::array<WORD, 4> tasti{VK_ESCAPE, VK_DELETE, VK_DOWN, VK_INSERT};
        premi(tasti[static_cast<std::size_t>(caso(4))]);
    }
    const int da = GetCapture() == lista ? preso : -1;
    const int a = scelto();
    lasciaMouse();
    trascinato_ = sposta(da, a);
}

void Scimmia::menuGriglia() {
    fatto_ = "menu of the grid";
    SetFocus(griglia().lista());
    voceMenu_ = caso(4) - 1;
    const auto punto = puntoGriglia();
    if (!punto || caso(2) == 0) {
        premi(VK_APPS);
    } else {
        const LPARAM dove = MAKELPARAM(punto->x, punto->y);
        PostMessageW(griglia().lista(), WM_RBUTTONDOWN, MK_RBUTTON, dove);
        PostMessageW(griglia().lista(), WM_RBUTTONUP, 0, dove);
        pompa();
    }
}

void Scimmia::eseguiUno(int comando) {
    fatto_ = "command " + std::to_string(comando);
    SendMessageW(finestra_.hwnd(), WM_COMMAND, static_cast<WPARAM>(comando), 0);
    pompa();
}

std::vector<std::wstring> Scimmia::testiCanale() const {
    std::vector<std::wstring> testi;
    testi.reserve(std::size(campiTesto));
    for (const int id : campiTesto) {
        testi.push_back(testoDi(GetDlgItem(campi_.hwnd(), id)));
    }
    return testi;
}

bool Scimmia::daChiedere() const {
    const auto testi = testiCanale();
    if (!cambiati_ && testi == canale_) {
        return false;
    }
    return !modello_.empty() || testoDi(finestra_.hwnd()) != L"Ostrelle  [Nuovo Documento]" ||
           std::ranges::any_of(testi, [](const std::wstring& testo) {
               return testo.find_first_not_of(L' ') != std::wstring::npos;
           });
}

void Scimmia::controllaDomanda(bool attesa) {
    if (attesa && !domanda_) {
        segnala("a document went without a question");
    }
}

bool Scimmia::lasciato() const {
    return !domanda_ || *domanda_ == Risposta::No || (*domanda_ == Risposta::Si && salvato_);
}

void Scimmia::nuovo() {
    const bool attesa = daChiedere();
    if (caso(2) == 0) {
        eseguiUno(mnNuovo);
    } else {
        fatto_ = "Ctrl+N";
        premi('N', {VK_CONTROL});
    }
    controllaDomanda(attesa);
    if (lasciato()) {
        modello_.clear();
        ricomincia();
    }
}

void Scimmia::apre(int comando) {
    if (comando != mnApri) {
        std::array<wchar_t, MAX_PATH> voce{};
        GetMenuStringW(GetMenu(finestra_.hwnd()), static_cast<UINT>(comando), voce.data(),
                       static_cast<int>(voce.size()), MF_BYCOMMAND);
        if (voce[0] == L'\0') {
            return;
        }
        scelto_ = voce.data();
    }
    const bool attesa = daChiedere();
    eseguiUno(comando);
    controllaDomanda(attesa);
    aperto();
}

void Scimmia::aperto() {
    if (!lasciato() || scelto_.empty()) {
        return;
    }
    const auto salvato = salvati_.find(minuscolo(scelto_));
    if (salvato == salvati_.end()) {
        modello_.clear(); // unreadable: the window stays emptied
    } else {
        modello_ = salvato->second;
        ++conti_.aperti;
    }
    ricomincia();
}

void Scimmia::comando() {
    switch (caso(14)) {
    case 0:
        if (caso(3) == 0) {
            nuovo();
        }
        return;
    case 1:
        apre(mnApri);
        return;
    case 2:
        apre(mnrec + 1 + caso(5));
        return;
    case 3:
        eseguiUno(mnsalva);
        return;
    case 4:
        eseguiUno(mnSalvaCon);
        return;
    case 5:
        fatto_ = "Ctrl+S";
        premi('S', {VK_CONTROL});
        return;
    case 6:
        eseguiUno(mnsalvahtm);
        return;
    case 7:
        eseguiUno(caso(2) == 0 ? mninfo : mnAggiorna);
        return;
    case 8:
        eseguiUno(mnEditFeed);
        return;
    case 9:
        eseguiUno(mnDelFeed);
        return;
    default:
        eseguiUno(mnaddFeed);
        return;
    }
}

void Scimmia::ridimensiona() {
    fatto_ = "size";
    const int come = caso(6);
    if (come < 4) {
        SetWindowPos(finestra_.hwnd(), nullptr, caso(200), caso(200), 150 + caso(1400),
                     100 + caso(800), SWP_NOZORDER);
    } else {
        ShowWindow(finestra_.hwnd(), come == 4 ? SW_MAXIMIZE : SW_MINIMIZE);
        pompa();
        ShowWindow(finestra_.hwnd(), SW_RESTORE);
    }
    pompa();
}

void Scimmia::chiudeEAnnulla() {
    fatto_ = "close, taken back";
    // Only where the question comes: a closed window is the end of the test.
    if (daChiedere()) {
        chiude_ = true;
        SendMessageW(finestra_.hwnd(), WM_CLOSE, 0, 0);
        pompa();
        chiude_ = false;
        if (!domanda_) {
            segnala("closes without a question");
        }
    }
}

void Scimmia::portaFuoco() {
    if (GetForegroundWindow() != finestra_.hwnd()) {
        portaAvanti(finestra_.hwnd());
    }
    if (GetFocus() == nullptr) {
        SetFocus(griglia().lista());
    }
}
