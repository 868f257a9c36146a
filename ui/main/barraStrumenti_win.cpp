#include "ui/main/barraStrumenti_win.h"

#include "res/risorse.h"
#include "support/immagini/ingrandimento.h"
#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"
#include "ui/main/comandi.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

struct Striscia {
    int risorsa;
    int lato;
};
constexpr Striscia piuGrande{IDB_BARRA32, 32};

// The pictures nearest to 16 pixels at 96 dpi.
Striscia striscia(int dpi) noexcept {
    if (dpi < 120) {
        return {IDB_BARRA16, 16};
    }
    return dpi < 168 ? Striscia{IDB_BARRA24, 24} : piuGrande;
}

// The strips carry their transparency in an alpha channel.
ListaImmagini caricata(const Striscia& striscia) noexcept {
    return ListaImmagini(ImageList_LoadImageW(GetModuleHandleW(nullptr),
                                              MAKEINTRESOURCEW(striscia.risorsa), striscia.lato, 0,
                                              CLR_NONE, IMAGE_BITMAP, LR_CREATEDIBSECTION));
}

// The largest pictures, made larger still.
ListaImmagini ingrandita(int lato) {
    const ManigliaBitmap bitmap(static_cast<HBITMAP>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(piuGrande.risorsa), IMAGE_BITMAP, 0,
                   0, LR_CREATEDIBSECTION)));
    const auto dati = datiDi<DIBSECTION>(bitmap.get());
    if (!dati || dati->dsBm.bmBits == nullptr || dati->dsBm.bmBitsPixel != 32) {
        return {};
    }
    // From top to bottom or the other way round: the same comes out.
    const int quante = static_cast<int>(dati->dsBm.bmWidth) / piuGrande.lato;
    const auto punti =
        ingrandite({quante,
                    piuGrande.lato,
                    {static_cast<const std::uint32_t*>(dati->dsBm.bmBits),
                     static_cast<std::size_t>(dati->dsBm.bmWidth) * dati->dsBm.bmHeight}},
                   lato);
    BITMAPINFO info{};
    info.bmiHeader = dati->dsBmih;
    info.bmiHeader.biWidth = quante * lato;
    info.bmiHeader.biHeight = dati->dsBmih.biHeight < 0 ? -lato : lato;
    info.bmiHeader.biSizeImage = 0;
    void* nuovi = nullptr;
    const ManigliaBitmap nuova(
        CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &nuovi, nullptr, 0));
    ListaImmagini lista(ImageList_Create(lato, lato, ILC_COLOR32, quante, 0));
    if (!nuova || !lista) {
        return {};
    }
    std::ranges::copy(punti, static_cast<std::uint32_t*>(nuovi));
    return ImageList_Add(lista.get(), nuova.get(), nullptr) == 0 ? std::move(lista)
                                                                 : ListaImmagini();
}

} // namespace

void BarraStrumenti::crea(HWND padre, int id, Risoluzione verticale) {
    // The window text is its accessible name: it shows nowhere.
    barra_ = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"Barra degli strumenti",
                             WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_TOP, 0,
                             0, 0, 0, padre, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                             GetModuleHandleW(nullptr), nullptr);
    if (barra_ == nullptr) {
        sollevaWin32();
    }
    SendMessageW(barra_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    figure(verticale);

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

void BarraStrumenti::figure(Risoluzione verticale) {
    const int lato = verticale.daProgetto(16);
    ListaImmagini lista =
        lato > piuGrande.lato ? ingrandita(lato) : caricata(striscia(verticale.dpi));
    if (!lista) {
        sollevaWin32();
    }
    SendMessageW(barra_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(lista.get()));
    int larghezza = 0;
    int altezza = 0;
    ImageList_GetIconSize(lista.get(), &larghezza, &altezza);
    // Around larger pictures buttons grow by themselves, around smaller ones they stay.
    const auto attorno = static_cast<DWORD>(SendMessageW(barra_, TB_GETPADDING, 0, 0));
    SendMessageW(barra_, TB_SETBUTTONSIZE, 0,
                 MAKELPARAM(larghezza + LOWORD(attorno), altezza + HIWORD(attorno)));
    // The bar uses the new list from here on; the old one may go.
    MiaLista_ = std::move(lista);
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
