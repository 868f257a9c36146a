#include "tests/aiuti/griglia_prova_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/main/GUI_win.h"

#include <commctrl.h>

#include <array>

#include <gtest/gtest.h>

void OsservatoreProva::grigliaDoppioClic(int riga) {
    eventi.push_back(L"doppio " + std::to_wstring(riga));
}

void OsservatoreProva::grigliaSposta(int da, int a) {
    eventi.push_back(L"sposta " + std::to_wstring(da) + L" " + std::to_wstring(a));
    if (fallisce) {
        solleva(errori::memoriaEsaurita);
    }
    documento_.applica(documento_.spostamento(da, a), Causa::Trascinamento);
    GUI::RiempiGriglia(*griglia_, false);
}

std::vector<std::wstring> OsservatoreProva::scelti(std::wstring_view inizio) const {
    std::vector<std::wstring> quelli;
    for (const auto& e : eventi) {
        if (e.starts_with(inizio)) {
            quelli.push_back(e);
        }
    }
    return quelli;
}

GrigliaProva::GrigliaProva(int elementi) {
    for (int i = 0; i < elementi; ++i) {
        aggiungi(L"titolo " + std::to_wstring(i), L"descrizione " + std::to_wstring(i));
    }
    WNDCLASSEXW classe{};
    classe.lpszClassName = L"GrigliaProva";
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    registra(classe);
    crea(L"GrigliaProva", L"", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, {40, 40, 700, 480},
         nullptr);
    osservatore.lega(griglia);
    griglia.creaIn(hwnd(), 100, L"Elementi del feed", {20, 20, 600, 420});
    GUI::RiempiGriglia(griglia, false);
    portaAvanti(hwnd());
    SetFocus(griglia.hwnd());
    vai({10, 10});
    pompa();
    osservatore.eventi.clear();
}

GrigliaProva::~GrigliaProva() {
    griglia.distruggi();
    distruggi();
}

LRESULT GrigliaProva::messaggio(UINT codice, WPARAM w, LPARAM l) {
    if (codice == WM_KILLFOCUS && alPerdere_) {
        std::exchange(alPerdere_, nullptr)();
    }
    return predefinito(codice, w, l);
}

void GrigliaProva::aggiungi(const std::wstring& titolo, const std::wstring& descrizione) {
    const auto elemento =
        creaElemento({titolo, L"", descrizione, L"", L"Tue, 15 Nov 2005 10:00:00 +0100", L""});
    documento.applica(documento.aggiunta(elemento), Causa::Trascinamento);
}

std::wstring testoCella(HWND lista, int riga, int colonna) {
    std::array<wchar_t, 4096> testo{};
    LVITEMW voce{};
    voce.iSubItem = colonna;
    voce.pszText = testo.data();
    voce.cchTextMax = static_cast<int>(testo.size());
    SendMessageW(lista, LVM_GETITEMTEXTW, static_cast<WPARAM>(riga - 1),
                 reinterpret_cast<LPARAM>(&voce));
    return voce.pszText;
}

bool rigaVisibile(HWND lista, int riga) {
    RECT posto{};
    RECT interno{};
    RECT testata{};
    GetClientRect(lista, &interno);
    GetWindowRect(ListView_GetHeader(lista), &testata);
    return ListView_GetItemRect(lista, riga - 1, &posto, LVIR_BOUNDS) &&
           posto.top < interno.bottom && posto.bottom > testata.bottom - testata.top;
}

std::wstring GrigliaProva::titolo(int colonna) const {
    std::array<wchar_t, 100> testo{};
    LVCOLUMNW c{};
    c.mask = LVCF_TEXT;
    c.pszText = testo.data();
    c.cchTextMax = static_cast<int>(testo.size());
    SendMessageW(lista(), LVM_GETCOLUMNW, static_cast<WPARAM>(colonna),
                 reinterpret_cast<LPARAM>(&c));
    return testo.data();
}

std::vector<int> GrigliaProva::selezionate() const {
    std::vector<int> righe;
    for (int i = -1; (i = ListView_GetNextItem(lista(), i, LVNI_SELECTED)) >= 0;) {
        righe.push_back(i + 1);
    }
    return righe;
}

std::vector<std::wstring> GrigliaProva::titoli() const {
    std::vector<std::wstring> quelli;
    quelli.reserve(static_cast<std::size_t>(tabella.conteggio()));
    for (int i = 0; i < tabella.conteggio(); ++i) {
        quelli.emplace_back(tabella(CampoElemento::Titolo, i));
    }
    return quelli;
}

POINT GrigliaProva::punto(int riga, int sotto) const {
    RECT r{};
    ListView_GetItemRect(lista(), riga - 1, &r, LVIR_BOUNDS);
    POINT p{250, (r.top + r.bottom) / 2 + sotto};
    ClientToScreen(lista(), &p);
    return p;
}

POINT GrigliaProva::puntoTestata() const {
    RECT r{};
    GetWindowRect(ListView_GetHeader(lista()), &r);
    return {r.left + 250, (r.top + r.bottom) / 2};
}

int GrigliaProva::sinistra() const {
    RECT r{};
    GetWindowRect(lista(), &r);
    return r.left;
}

void GrigliaProva::allarga(int larghezza) {
    SetWindowPos(griglia.hwnd(), nullptr, 0, 0, larghezza, 420, SWP_NOMOVE | SWP_NOZORDER);
}

void GrigliaProva::alta(int altezza) {
    RECT tutta{};
    RECT dentro{};
    GetWindowRect(lista(), &tutta);
    GetClientRect(lista(), &dentro);
    SetWindowPos(griglia.hwnd(), nullptr, 0, 0, 600,
                 altezza + (tutta.bottom - tutta.top - dentro.bottom), SWP_NOMOVE | SWP_NOZORDER);
}

void GrigliaProva::nascondiBarra() {
    ShowScrollBar(lista(), SB_VERT, FALSE);
}

void GrigliaProva::vai(POINT punto) {
    muoviMouse(GetDesktopWindow(), punto);
    POINT ora{};
    GetCursorPos(&ora);
    EXPECT_EQ(ora.x, punto.x);
    EXPECT_EQ(ora.y, punto.y);
}

void GrigliaProva::pulsante(DWORD quale) {
    INPUT i{};
    i.type = INPUT_MOUSE;
    i.mi.dwFlags = quale;
    SendInput(1, &i, sizeof(i));
    pompa();
}

void GrigliaProva::rotella(int scatti) {
    INPUT i{};
    i.type = INPUT_MOUSE;
    i.mi.dwFlags = MOUSEEVENTF_WHEEL;
    i.mi.mouseData = static_cast<DWORD>(scatti) * WHEEL_DELTA;
    SendInput(1, &i, sizeof(i));
    pompa();
}

void GrigliaProva::clic(POINT punto) {
    vai(punto);
    pulsante(MOUSEEVENTF_LEFTDOWN);
    pulsante(MOUSEEVENTF_LEFTUP);
}

void GrigliaProva::doppioClic(POINT punto) {
    nuovoClic();
    clic(punto);
    clic(punto);
}

void GrigliaProva::nuovoClic() {
    clic({45, 45});
}

void GrigliaProva::trascina(POINT da, POINT a, std::optional<POINT> poi) {
    nuovoClic();
    vai(da);
    pulsante(MOUSEEVENTF_LEFTDOWN);
    vai({(da.x + a.x) / 2, (da.y + a.y) / 2});
    vai(a);
    if (poi) {
        vai(*poi);
    }
    pulsante(MOUSEEVENTF_LEFTUP);
}

void GrigliaProva::premiTasto(WORD tasto, WORD con) {
    if (con != 0) {
        premi(tasto, {con});
    } else {
        premi(tasto);
    }
}
