// What a change of the table does to the grid: no more is painted than changed.

#include "ui/controls/griglia_win.h"

#include "support/windows/guardia_win.h"

#include <commctrl.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

// While it lives the list changes unseen; then all of it is painted once, as it is. In sight it
// would paint its scroll bar at every step and its rows at every scroll.
class Velo {
public:
    Velo(HWND lista, HWND testata) noexcept
        : lista_(lista),
          testata_(GetUpdateRect(testata, nullptr, FALSE) != FALSE ? RDW_ALLCHILDREN
                                                                   : RDW_NOCHILDREN) {
        // Not to the list, which would do its own at the end.
        DefWindowProcW(lista_, WM_SETREDRAW, FALSE, 0);
    }
    Velo(const Velo&) = delete;
    Velo& operator=(const Velo&) = delete;
    ~Velo() {
        DefWindowProcW(lista_, WM_SETREDRAW, TRUE, 0);
        RedrawWindow(lista_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | testata_);
    }

private:
    HWND lista_;
    // What was to be painted of the header before is forgotten with the rest.
    UINT testata_;
};

} // namespace

void Griglia::aggiorna(const Cambiamento& cambiamento, const ClsUTC& utc, FormatoLocale formato) {
    abbandona();
    suggerimento_.nascondi();
    const int righe = righe_.righe();
    const int elementi = righe_.elementi() + cambiamento.elementiInPiu;
    const bool stesseDate = righe_.stesseDate(utc, formato);
    righe_.elenca(utc, std::move(formato));
    righe_.completa();
    const int riga = cambiamento.corrente;
    const int cima = visibile(riga, cambiamento.cima) ? cambiamento.cima : riga;
    // The list scrolls no further than to its end.
    const int ultimaCima = std::max<int>(1, righe_.righe() - ListView_GetCountPerPage(lista_));
    const bool ferme = righe_.righe() == righe && rigaInCima() == std::min(cima, ultimaCima);
    std::optional<Velo> velo;
    if (!ferme && sospensioni_ == 0) {
        velo.emplace(lista_, testata_);
    }
    {
        // Whoever follows the selection hears of it even when it comes back to the same row.
        const Alzata allineando(allineando_);
        deseleziona(LVIS_SELECTED | LVIS_FOCUSED);
    }
    rigaCorrente_ = 0;
    if (righe_.righe() != righe) {
        numeroRighe(LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
    }
    seleziona(riga, cima);
    if (ferme && stesseDate && righe_.elementi() == elementi) {
        ridipingi(cambiamento.da, cambiamento.a);
    } else {
        InvalidateRect(lista_, nullptr, FALSE);
    }
}

void Griglia::ridipingi(int da, int a) const noexcept {
    RECT r{};
    GetClientRect(lista_, &r);
    const int testata = altezzaTestata();
    const int altezza = altezzaRiga();
    const int cima = rigaInCima();
    const int visibili = (r.bottom - testata) / altezza + 1;
    r.top = testata + std::clamp(da - cima, 0, visibili) * altezza;
    r.bottom = std::min<int>(r.bottom, testata + std::clamp(a + 1 - cima, 0, visibili) * altezza);
    if (r.top < r.bottom) {
        InvalidateRect(lista_, &r, FALSE);
    }
}
