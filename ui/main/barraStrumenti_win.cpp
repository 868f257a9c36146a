#include "ui/main/barraStrumenti_win.h"

#include "res/risorse.h"
#include "support/windows/errori_win.h"
#include "ui/main/comandi.h"

#include <vector>

namespace {

struct Striscia {
    int risorsa;
    int lato;
};

// The pictures nearest to 16 pixels at 96 dpi.
Striscia striscia(int dpi) noexcept {
    if (dpi < 120) {
        return {IDB_BARRA16, 16};
    }
    return dpi < 168 ? Striscia{IDB_BARRA24, 24} : Striscia{IDB_BARRA32, 32};
}

} // namespace

void BarraStrumenti::crea(HWND padre, int id, Risoluzione verticale) {
    const HINSTANCE programma = GetModuleHandleW(nullptr);
    // The window text is its accessible name: it shows nowhere.
    barra_ = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"Barra degli strumenti",
                             WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_TOP, 0,
                             0, 0, 0, padre, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                             programma, nullptr);
    if (barra_ == nullptr) {
        sollevaWin32();
    }
    const auto [risorsa, lato] = striscia(verticale.dpi);
    // The strips carry their transparency in an alpha channel.
    MiaLista_ = ListaImmagini(ImageList_LoadImageW(programma, MAKEINTRESOURCEW(risorsa), lato, 0,
                                                   CLR_NONE, IMAGE_BITMAP, LR_CREATEDIBSECTION));
    if (!MiaLista_) {
        sollevaWin32();
    }
    SendMessageW(barra_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(barra_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(MiaLista_.get()));

    std::vector<TBBUTTON> pulsanti;
    for (const RigaComando& riga : comandi()) {
        if (riga.barra.chiave.empty()) {
            continue;
        }
        TBBUTTON pulsante{};
        pulsante.iBitmap = riga.barra.figura;
        pulsante.idCommand = comandoDaChiave(riga.barra.chiave);
        pulsante.fsState = TBSTATE_ENABLED;
        pulsante.fsStyle = BTNS_BUTTON;
        pulsanti.push_back(pulsante);
    }
    SendMessageW(barra_, TB_ADDBUTTONSW, pulsanti.size(),
                 reinterpret_cast<LPARAM>(pulsanti.data()));
    SendMessageW(barra_, TB_AUTOSIZE, 0, 0);
}

int BarraStrumenti::disponi() const noexcept {
    SendMessageW(barra_, TB_AUTOSIZE, 0, 0);
    RECT r{};
    GetWindowRect(barra_, &r);
    return static_cast<int>(r.bottom - r.top);
}

void BarraStrumenti::suggerimento(NMTTDISPINFOW& richiesta) noexcept {
    const RigaComando* const riga = rigaDel(static_cast<int>(richiesta.hdr.idFrom));
    if (riga != nullptr && !riga->barra.chiave.empty()) {
        // The table's texts are literals: they end with a character 0 and outlive the tooltip.
        richiesta.lpszText = const_cast<wchar_t*>(riga->barra.suggerimento.data());
    }
}
