#include "tests/aiuti/pixel_win.h"

#include "tests/aiuti/schermo_win.h"
#include "ui/controls/contrasto.h"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <vector>

namespace {

// What a window's device context shows, from its upper left corner on.
Immagine fotografa(HWND finestra, HDC da, SIZE misura) {
    Immagine immagine = dipinta(misura.cx, misura.cy, [&](HDC dc) {
        BitBlt(dc, 0, 0, misura.cx, misura.cy, da, 0, 0, SRCCOPY);
    });
    ReleaseDC(finestra, da);
    return immagine;
}

} // namespace

int Immagine::inchiostro(const RECT& r, COLORREF sfondo) const {
    int n = 0;
    for (int y = r.top; y < r.bottom; ++y) {
        for (int x = r.left; x < r.right; ++x) {
            n += colore(x, y) != sfondo ? 1 : 0;
        }
    }
    return n;
}

Immagine Immagine::ritaglio(const RECT& r) const {
    Immagine parte{r.right - r.left, {}};
    for (std::ptrdiff_t y = r.top; y < r.bottom; ++y) {
        const auto riga = punti.begin() + y * larghezza;
        parte.punti.insert(parte.punti.end(), riga + r.left, riga + r.right);
    }
    return parte;
}

int Immagine::diversi(const Immagine& altra) const {
    if (altra.larghezza != larghezza || altra.punti.size() != punti.size()) {
        return static_cast<int>(punti.size());
    }
    return std::transform_reduce(punti.begin(), punti.end(), altra.punti.begin(), 0, std::plus<>(),
                                 [](auto a, auto b) { return a == b ? 0 : 1; });
}

RECT Immagine::doveDiversi(const Immagine& altra) const {
    RECT dove{};
    for (std::size_t i = 0; i < std::min(punti.size(), altra.punti.size()); ++i) {
        if (punti[i] != altra.punti[i]) {
            const auto x = static_cast<LONG>(static_cast<std::ptrdiff_t>(i) % larghezza);
            const auto y = static_cast<LONG>(static_cast<std::ptrdiff_t>(i) / larghezza);
            const RECT punto{x, y, x + 1, y + 1};
            UnionRect(&dove, &dove, &punto);
        }
    }
    return dove;
}

Immagine dipinta(int larghezza, int altezza, const std::function<void(HDC)>& pittore) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = larghezza;
    info.bmiHeader.biHeight = -altezza;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* punti = nullptr;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &punti, nullptr, 0);
    const HGDIOBJ prima = SelectObject(dc, bitmap);
    pittore(dc);
    GdiFlush();
    const auto* const primo = static_cast<const std::uint32_t*>(punti);
    Immagine immagine{larghezza, {primo, primo + std::ptrdiff_t{larghezza} * altezza}};
    for (std::uint32_t& p : immagine.punti) {
        p &= 0xFFFFFF;
    }
    SelectObject(dc, prima);
    DeleteObject(bitmap);
    DeleteDC(dc);
    return immagine;
}

Immagine puntatore(COLORREF sfondo) {
    const int lato = GetSystemMetrics(SM_CXCURSOR);
    return dipinta(lato, lato, [&](HDC dc) {
        const RECT tutto{0, 0, lato, lato};
        const HBRUSH pennello = CreateSolidBrush(sfondo);
        FillRect(dc, &tutto, pennello);
        DeleteObject(pennello);
        DrawIconEx(dc, 0, 0, GetCursor(), lato, lato, 0, nullptr, DI_NORMAL);
    });
}

Immagine sulloSchermo(HWND finestra) {
    UpdateWindow(finestra);
    RECT r{};
    GetClientRect(finestra, &r);
    return fotografa(finestra, GetDC(finestra), {r.right, r.bottom});
}

Immagine tuttaSulloSchermo(HWND finestra) {
    RECT r{};
    GetWindowRect(finestra, &r);
    return fotografa(finestra, GetWindowDC(finestra), {r.right - r.left, r.bottom - r.top});
}

int daRidipingere(HWND finestra) {
    pompa();
    const Immagine prima = tuttaSulloSchermo(finestra);
    RedrawWindow(finestra, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    pompa();
    return prima.diversi(tuttaSulloSchermo(finestra));
}

ColoriSistema::ColoriSistema(const std::vector<Coppia>& colori) {
    std::vector<COLORREF> nuovi;
    for (const auto& [indice, colore] : colori) {
        indici_.push_back(indice);
        prima_.push_back(GetSysColor(indice));
        nuovi.push_back(colore);
    }
    SetSysColors(static_cast<int>(nuovi.size()), indici_.data(), nuovi.data());
}

ColoriSistema::~ColoriSistema() {
    SetSysColors(static_cast<int>(prima_.size()), indici_.data(), prima_.data());
}

const std::vector<std::vector<ColoriSistema::Coppia>>& schemi() {
    constexpr COLORREF nero = RGB(0, 0, 0);
    constexpr COLORREF bianco = RGB(255, 255, 255);
    const auto schema = [](COLORREF fondo, COLORREF testo, COLORREF scelta, COLORREF testoScelta,
                           COLORREF collegamento) {
        return std::vector<ColoriSistema::Coppia>{
            {COLOR_WINDOW, fondo},     {COLOR_WINDOWTEXT, testo},
            {COLOR_BTNFACE, fondo},    {COLOR_BTNTEXT, testo},
            {COLOR_MENU, fondo},       {COLOR_MENUTEXT, testo},
            {COLOR_MENUBAR, fondo},    {COLOR_HOTLIGHT, collegamento},
            {COLOR_HIGHLIGHT, scelta}, {COLOR_HIGHLIGHTTEXT, testoScelta},
            {COLOR_3DLIGHT, testo},    {COLOR_BTNSHADOW, testo},
            {COLOR_3DDKSHADOW, testo}, {COLOR_BTNHIGHLIGHT, testo},
            {COLOR_INFOBK, fondo},     {COLOR_INFOTEXT, testo},
        };
    };
    static const std::vector<std::vector<ColoriSistema::Coppia>> tutti{
        {},
        schema(nero, bianco, RGB(26, 235, 255), nero, RGB(255, 255, 0)),
        schema(nero, bianco, RGB(128, 0, 128), bianco, RGB(0, 0, 255)),
        schema(bianco, nero, RGB(55, 0, 110), bianco, RGB(0, 0, 159))};
    return tutti;
}

double distacco(const Immagine& riga, COLORREF sfondo) {
    constexpr int banda = 4;
    const std::ptrdiff_t larghezza = riga.larghezza;
    const std::ptrdiff_t altezza = riga.altezza();
    const auto migliore = [&](std::ptrdiff_t x, std::ptrdiff_t y, int dx, int dy) {
        double massimo = 1;
        for (int i = 0; i < banda; ++i, x += dx, y += dy) {
            massimo = std::max(massimo, contrasto(riga.colore(x, y), sfondo));
        }
        return massimo;
    };
    double minimo = 21;
    for (std::ptrdiff_t x = banda; x < larghezza - banda; ++x) {
        // The line that ends a row is that of every row.
        minimo = std::min({minimo, migliore(x, 0, 0, 1), migliore(x, altezza - 2, 0, -1)});
    }
    for (std::ptrdiff_t y = banda; y < altezza - banda; ++y) {
        minimo = std::min({minimo, migliore(0, y, 1, 0), migliore(larghezza - 1, y, -1, 0)});
    }
    return minimo;
}

double leggibilita(const Immagine& immagine) {
    // What a letter leaves at least, however small.
    constexpr int punti = 6;
    std::map<COLORREF, int> quanti;
    for (std::ptrdiff_t y = 0; y < immagine.altezza(); ++y) {
        for (std::ptrdiff_t x = 0; x < immagine.larghezza; ++x) {
            ++quanti[immagine.colore(x, y)];
        }
    }
    const COLORREF fondo =
        std::ranges::max_element(quanti, {}, &std::pair<const COLORREF, int>::second)->first;
    std::vector<double> contrasti;
    for (const auto& [colore, volte] : quanti) {
        contrasti.insert(contrasti.end(), static_cast<std::size_t>(std::min(volte, punti)),
                         contrasto(colore, fondo));
    }
    std::ranges::sort(contrasti, std::greater<>());
    return contrasti.size() < punti ? 1 : contrasti[punti - 1];
}
