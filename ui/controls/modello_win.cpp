#include "ui/controls/modello_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/gdi_win.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace {

constexpr int puntiPerPollice = 72;

LOGFONTW descrizione(HWND dialogo) {
    const auto dati =
        datiDi<LOGFONTW>(reinterpret_cast<HGDIOBJ>(SendMessageW(dialogo, WM_GETFONT, 0, 0)));
    if (!dati) {
        sollevaWin32();
    }
    return *dati;
}

} // namespace

// Goes through a template word by word.
class ModelloDialogo::Lettore {
public:
    explicit Lettore(const void* inizio) noexcept
        : prossima_(static_cast<const std::uint16_t*>(inizio)) {}

    std::uint16_t parola() noexcept { return *prossima_++; }
    std::uint32_t doppia() noexcept {
        const std::uint32_t bassa = parola();
        return bassa | std::uint32_t{parola()} << 16;
    }
    void salta(std::ptrdiff_t parole) noexcept { prossima_ += parole; }
    Posto posto() noexcept {
        Posto p{};
        std::memcpy(&p, prossima_, sizeof(p));
        salta(sizeof(p) / sizeof(*prossima_));
        return p;
    }
    // A text, or 0xFFFF and a number.
    void saltaNome() noexcept {
        if (*prossima_ == 0xFFFF) {
            salta(2);
            return;
        }
        while (parola() != 0) {
        }
    }
    void saltaByte(std::uint16_t quanti) noexcept { salta((quanti + 1) / 2); }
    // Controls begin at multiples of four bytes.
    void allinea() noexcept {
        if (reinterpret_cast<std::uintptr_t>(prossima_) % 4 != 0) {
            salta(1);
        }
    }

private:
    const std::uint16_t* prossima_;
};

ModelloDialogo::ModelloDialogo(int risorsa) {
    const HINSTANCE programma = GetModuleHandleW(nullptr);
    const HRSRC trovata = FindResourceW(programma, MAKEINTRESOURCEW(risorsa), RT_DIALOG);
    const void* const dati =
        trovata != nullptr ? LockResource(LoadResource(programma, trovata)) : nullptr;
    if (dati == nullptr) {
        sollevaWin32();
    }
    Lettore lettore(dati);
    // Version, signature, help, extended style, style.
    lettore.salta(8);
    const std::uint16_t quanti = lettore.parola();
    tutto_ = lettore.posto();
    // Menu, class, title.
    for (int i = 0; i < 3; ++i) {
        lettore.saltaNome();
    }
    punti_ = lettore.parola();
    // Weight, slant and character set; the name.
    lettore.salta(2);
    lettore.saltaNome();
    for (std::uint16_t i = 0; i < quanti; ++i) {
        lettore.allinea();
        // Help, extended style, style.
        lettore.salta(6);
        controlli_.push_back(lettore.posto());
        // Number; class and text; what is handed to the control.
        lettore.salta(2);
        lettore.saltaNome();
        lettore.saltaNome();
        lettore.saltaByte(lettore.parola());
    }
}

RECT ModelloDialogo::Misura::pixel(const Posto& posto) const noexcept {
    const auto x = [this](int unita_) { return MulDiv(unita_, unita.cx, 4); };
    const auto y = [this](int unita_) { return MulDiv(unita_, unita.cy, 8); };
    return {x(posto.sinistra), y(posto.alto), x(posto.larghezza), y(posto.altezza)};
}

// As the dialog manager measures: half of what 52 letters take, 26 times, rounded up at the half.
ModelloDialogo::Misura ModelloDialogo::misura(HWND dialogo, Dpi dpi) const {
    LOGFONTW font = descrizione(dialogo);
    font.lfHeight = -MulDiv(punti_, dpi.y.dpi, puntiPerPollice);
    Misura m{Carattere(CreateFontIndirectW(&font)), {}};
    const DcFinestra dc(dialogo);
    const Selezione selezione(dc.get(), m.carattere.get());
    constexpr std::wstring_view lettere = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE estensione{};
    TEXTMETRICW metrica{};
    if (!GetTextExtentPointW(dc.get(), lettere.data(), static_cast<int>(lettere.size()),
                             &estensione) ||
        !GetTextMetricsW(dc.get(), &metrica)) {
        sollevaWin32();
    }
    m.unita = {(estensione.cx / 26 + 1) / 2, metrica.tmHeight};
    return m;
}

bool ModelloDialogo::fattoPer(HWND dialogo, Dpi dpi) const {
    const Misura m = misura(dialogo, dpi);
    RECT carattere{0, 0, 4, 8};
    MapDialogRect(dialogo, &carattere);
    return descrizione(dialogo).lfHeight == -MulDiv(punti_, dpi.y.dpi, puntiPerPollice) &&
           carattere.right == m.unita.cx && carattere.bottom == m.unita.cy;
}

ModelloDialogo::Disposto ModelloDialogo::disponi(HWND dialogo, Dpi dpi) const {
    Misura m = misura(dialogo, dpi);
    // They are made in this order, each below the one before.
    HWND controllo = GetWindow(dialogo, GW_CHILD);
    for (const Posto& posto : controlli_) {
        const RECT r = m.pixel(posto);
        const auto posa = [&] {
            SetWindowPos(controllo, nullptr, r.left, r.top, r.right, r.bottom,
                         SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        };
        posa();
        SendMessageW(controllo, WM_SETFONT, reinterpret_cast<WPARAM>(m.carattere.get()), FALSE);
        // Combo boxes: how long the list is follows from the height given and the font.
        posa();
        controllo = GetWindow(controllo, GW_HWNDNEXT);
    }
    const RECT tutto = m.pixel(tutto_);
    return {std::move(m.carattere), {tutto.right, tutto.bottom}};
}
