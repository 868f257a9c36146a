#include "tests/aiuti/schermo_win.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

Filtro& filtro() {
    static Filtro f;
    return f;
}

std::vector<QuandoAppare*>& attese() {
    static std::vector<QuandoAppare*> a;
    return a;
}

void consegna(MSG& messaggio) {
    if (filtro() && filtro()(messaggio)) {
        return;
    }
    TranslateMessage(&messaggio);
    DispatchMessageW(&messaggio);
}

INPUT tastiera(WORD tasto, WORD carattere, DWORD opzioni) {
    INPUT evento{};
    evento.type = INPUT_KEYBOARD;
    evento.ki.wVk = tasto;
    evento.ki.wScan = carattere;
    evento.ki.dwFlags = opzioni;
    return evento;
}

INPUT mouse(DWORD opzioni, DWORD dati = 0) {
    INPUT evento{};
    evento.type = INPUT_MOUSE;
    evento.mi.dwFlags = opzioni;
    evento.mi.mouseData = dati;
    return evento;
}

// Sends the events and dispatches until each has come out of the queue.
void invia(std::vector<INPUT> eventi) {
    const auto quanti = static_cast<UINT>(eventi.size());
    EXPECT_EQ(SendInput(quanti, eventi.data(), sizeof(INPUT)), quanti);
    pompa();
}

// Asks the display and the window's thread for an answer each: what the display had to tell that
// thread before is taken by then.
void attendiRisposte(HWND finestra) {
    const HDC schermo = GetDC(nullptr);
    static_cast<void>(GetPixel(schermo, 0, 0));
    ReleaseDC(nullptr, schermo);
    if (GetWindowThreadProcessId(finestra, nullptr) == GetCurrentThreadId()) {
        pompa();
        return;
    }
    // A thread takes what the display tells between one answer and the next.
    for (int i = 0; i < 2; ++i) {
        DWORD_PTR esito = 0;
        SendMessageTimeoutW(finestra, WM_NULL, 0, 0, SMTO_NORMAL, 30000, &esito);
    }
}

POINT meta(HWND finestra) {
    RECT r{};
    GetClientRect(finestra, &r);
    return {r.right / 2, r.bottom / 2};
}

DWORD tastoEsteso(WORD tasto) {
    switch (tasto) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_INSERT:
    case VK_DELETE:
        return KEYEVENTF_EXTENDEDKEY;
    default:
        return 0;
    }
}

} // namespace

ConFiltro::ConFiltro(Filtro f) : prima_(std::exchange(filtro(), std::move(f))) {}

ConFiltro::~ConFiltro() {
    filtro() = std::move(prima_);
}

void pompa() {
    MSG messaggio{};
    while (PeekMessageW(&messaggio, nullptr, 0, 0, PM_REMOVE)) {
        consegna(messaggio);
    }
}

bool attendi(const std::function<bool()>& condizione, std::chrono::milliseconds scadenza) {
    const auto fine = std::chrono::steady_clock::now() + scadenza;
    for (;;) {
        pompa();
        if (condizione()) {
            return true;
        }
        if (std::chrono::steady_clock::now() >= fine) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

void portaAvanti(HWND finestra) {
    ShowWindow(finestra, SW_SHOW);
    EXPECT_TRUE(attendi([&] {
        return GetForegroundWindow() == finestra || (SetForegroundWindow(finestra) && false);
    })) << "the window does not come to the front";
    UpdateWindow(finestra);
    pompa();
}

void premi(WORD tasto, std::initializer_list<WORD> modificatori) {
    std::vector<INPUT> eventi;
    for (const WORD m : modificatori) {
        eventi.push_back(tastiera(m, 0, 0));
    }
    eventi.push_back(tastiera(tasto, 0, tastoEsteso(tasto)));
    eventi.push_back(tastiera(tasto, 0, tastoEsteso(tasto) | KEYEVENTF_KEYUP));
    for (const WORD m : modificatori) {
        eventi.push_back(tastiera(m, 0, KEYEVENTF_KEYUP));
    }
    invia(std::move(eventi));
}

void premiGiu(WORD tasto) {
    invia({tastiera(tasto, 0, tastoEsteso(tasto))});
}

void ripeti(WORD tasto) {
    // Under Wine a window that gets the keyboard asks the display which keys are down, and the
    // display knows nothing of these. What it took for up goes down again, seen by nobody.
    const HHOOK gancio = SetWindowsHookExW(
        WH_KEYBOARD, [](int, WPARAM, LPARAM) noexcept -> LRESULT { return 1; }, nullptr,
        GetCurrentThreadId());
    const auto fine = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (GetAsyncKeyState(tasto) >= 0 && std::chrono::steady_clock::now() < fine) {
        premiGiu(tasto);
    }
    UnhookWindowsHookEx(gancio);
    premiGiu(tasto);
}

void lascia(WORD tasto) {
    invia({tastiera(tasto, 0, tastoEsteso(tasto) | KEYEVENTF_KEYUP)});
}

void scrivi(std::wstring_view testo) {
    for (const wchar_t c : testo) {
        invia({tastiera(0, static_cast<WORD>(c), KEYEVENTF_UNICODE),
               tastiera(0, static_cast<WORD>(c), KEYEVENTF_UNICODE | KEYEVENTF_KEYUP)});
    }
}

void muoviMouse(HWND finestra, POINT punto) {
    ClientToScreen(finestra, &punto);
    // A pointer never leaves the screen.
    punto.x = std::clamp<LONG>(punto.x, 0, GetSystemMetrics(SM_CXSCREEN) - 1);
    punto.y = std::clamp<LONG>(punto.y, 0, GetSystemMetrics(SM_CYSCREEN) - 1);
    // The system's measure is 65536 to the screen, rounded down: round up to land on the pixel.
    const auto scala = [](LONG p, int schermo) {
        return static_cast<LONG>((p * 65536LL + schermo - 1) / schermo);
    };
    INPUT evento = mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    evento.mi.dx = scala(punto.x, GetSystemMetrics(SM_CXSCREEN));
    evento.mi.dy = scala(punto.y, GetSystemMetrics(SM_CYSCREEN));
    // Under Wine the display tells the window beneath the pointer where it is too, a little later,
    // as if the user had moved it there: late news of the place before would take the press with
    // it.
    constexpr int risposteConcordi = 3;
    const auto fine = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    for (int concordi = 0; concordi < risposteConcordi;) {
        if (concordi == 0) {
            invia({evento});
        }
        attendiRisposte(finestra);
        POINT dove{};
        GetCursorPos(&dove);
        concordi = dove.x == punto.x && dove.y == punto.y ? concordi + 1 : 0;
        if (std::chrono::steady_clock::now() > fine) {
            ADD_FAILURE() << "the pointer does not stay at " << punto.x << ", " << punto.y;
            return;
        }
    }
}

void premiMouse(HWND finestra, POINT punto) {
    muoviMouse(finestra, punto);
    invia({mouse(MOUSEEVENTF_LEFTDOWN)});
}

void lasciaMouse() {
    invia({mouse(MOUSEEVENTF_LEFTUP)});
}

void clic(HWND finestra) {
    clic(finestra, meta(finestra));
}

void clic(HWND finestra, POINT punto) {
    muoviMouse(finestra, punto);
    invia({mouse(MOUSEEVENTF_LEFTDOWN), mouse(MOUSEEVENTF_LEFTUP)});
}

void doppioClic(HWND finestra, POINT punto) {
    muoviMouse(finestra, punto);
    invia({mouse(MOUSEEVENTF_LEFTDOWN), mouse(MOUSEEVENTF_LEFTUP), mouse(MOUSEEVENTF_LEFTDOWN),
           mouse(MOUSEEVENTF_LEFTUP)});
}

void clicDestro(HWND finestra, POINT punto) {
    muoviMouse(finestra, punto);
    invia({mouse(MOUSEEVENTF_RIGHTDOWN), mouse(MOUSEEVENTF_RIGHTUP)});
}

void trascina(HWND finestra, POINT da, POINT a, int passi) {
    premiMouse(finestra, da);
    for (int i = 1; i <= passi; ++i) {
        muoviMouse(finestra, {da.x + (a.x - da.x) * i / passi, da.y + (a.y - da.y) * i / passi});
    }
    lasciaMouse();
}

void rotella(HWND finestra, int scatti) {
    muoviMouse(finestra, meta(finestra));
    invia({mouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(scatti) * WHEEL_DELTA)});
}

std::wstring testoDi(HWND finestra) {
    std::wstring testo(static_cast<std::size_t>(GetWindowTextLengthW(finestra)) + 1, L'\0');
    testo.resize(static_cast<std::size_t>(
        GetWindowTextW(finestra, testo.data(), static_cast<int>(testo.size()))));
    return testo;
}

std::wstring classeDi(HWND finestra) {
    std::array<wchar_t, 64> nome{};
    GetClassNameW(finestra, nome.data(), static_cast<int>(nome.size()));
    return nome.data();
}

std::pair<DWORD, DWORD> selezioneDi(HWND casella) {
    DWORD inizio = 0;
    DWORD fine = 0;
    SendMessageW(casella, EM_GETSEL, reinterpret_cast<WPARAM>(&inizio),
                 reinterpret_cast<LPARAM>(&fine));
    return {inizio, fine};
}

std::wstring testoAppunti() {
    std::wstring testo;
    if (attendi([] { return OpenClipboard(nullptr) != FALSE; })) {
        if (const HANDLE dati = GetClipboardData(CF_UNICODETEXT)) {
            if (const auto* const lettere = static_cast<const wchar_t*>(GlobalLock(dati))) {
                testo = lettere;
                GlobalUnlock(dati);
            }
        }
        CloseClipboard();
    }
    return testo;
}

void testoAppunti(std::wstring_view testo) {
    ASSERT_TRUE(attendi([] { return OpenClipboard(nullptr) != FALSE; }));
    EmptyClipboard();
    const HGLOBAL dati = GlobalAlloc(GMEM_MOVEABLE, (testo.size() + 1) * sizeof(wchar_t));
    auto* const lettere = static_cast<wchar_t*>(GlobalLock(dati));
    std::copy(testo.begin(), testo.end(), lettere);
    lettere[testo.size()] = L'\0';
    GlobalUnlock(dati);
    // The clipboard owns the memory from here on.
    EXPECT_NE(SetClipboardData(CF_UNICODETEXT, dati), nullptr);
    CloseClipboard();
}

QuandoAppare::QuandoAppare(std::wstring classe, std::wstring titolo,
                           std::function<void(HWND)> azione)
    : classe_(std::move(classe)), titolo_(std::move(titolo)), azione_(std::move(azione)),
      timer_(SetTimer(nullptr, 0, 10, &scatto)) {
    attese().push_back(this);
}

QuandoAppare::~QuandoAppare() {
    KillTimer(nullptr, timer_);
    std::erase(attese(), this);
    if (!apparsa_) {
        ADD_FAILURE() << "never shown: " << testing::PrintToString(classe_) << " titled "
                      << testing::PrintToString(titolo_);
    }
}

void CALLBACK QuandoAppare::scatto(HWND, UINT, UINT_PTR, DWORD) noexcept {
    const auto copia = attese();
    for (auto* const attesa : copia) {
        attesa->cerca();
    }
}

void QuandoAppare::cerca() {
    if (apparsa_) {
        return;
    }
    const HWND trovata = FindWindowW(classe_.c_str(), titolo_.empty() ? nullptr : titolo_.c_str());
    if (trovata != nullptr && IsWindowVisible(trovata) &&
        GetWindowThreadProcessId(trovata, nullptr) == GetCurrentThreadId()) {
        apparsa_ = true;
        azione_(trovata);
    }
}
