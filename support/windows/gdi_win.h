#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <optional>

// The device context of a window's inside (null: of the screen), for a scope. Empty when there is
// none.
class DcFinestra {
public:
    explicit DcFinestra(HWND finestra) noexcept : finestra_(finestra), dc_(GetDC(finestra)) {}
    // As the flags of GetDCEx ask for it.
    DcFinestra(HWND finestra, DWORD opzioni) noexcept
        : finestra_(finestra), dc_(GetDCEx(finestra, nullptr, opzioni)) {}
    DcFinestra(const DcFinestra&) = delete;
    DcFinestra& operator=(const DcFinestra&) = delete;
    ~DcFinestra() {
        if (dc_ != nullptr) {
            ReleaseDC(finestra_, dc_);
        }
    }

    [[nodiscard]] HDC get() const noexcept { return dc_; }
    explicit operator bool() const noexcept { return dc_ != nullptr; }

private:
    HWND finestra_;
    HDC dc_;
};

// An object in use by a device context; the one before comes back at the end.
class Selezione {
public:
    Selezione(HDC dc, HGDIOBJ oggetto) noexcept : dc_(dc), prima_(SelectObject(dc, oggetto)) {}
    Selezione(const Selezione&) = delete;
    Selezione& operator=(const Selezione&) = delete;
    ~Selezione() { SelectObject(dc_, prima_); }

private:
    HDC dc_;
    HGDIOBJ prima_;
};

// A bitmap as what a device context like `come` can copy from. The bitmap stays the caller's.
class DcBitmap {
public:
    DcBitmap(HDC come, HBITMAP bitmap) noexcept
        : dc_(CreateCompatibleDC(come)), selezione_(dc_.get(), bitmap) {}

    [[nodiscard]] HDC get() const noexcept { return dc_.get(); }

private:
    DcMemoria dc_;
    Selezione selezione_;
};

// What GDI tells of an object: LOGFONTW of a font, BITMAP of a bitmap. Nothing when it is none.
template <class Dati>
[[nodiscard]] std::optional<Dati> datiDi(HGDIOBJ oggetto) noexcept {
    Dati dati{};
    return GetObjectW(oggetto, sizeof(dati), &dati) != 0 ? std::optional(dati) : std::nullopt;
}
