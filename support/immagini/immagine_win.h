#pragma once

#include "support/immagini/ClsSizerImg.h"
#include "support/windows/com_win.h"

#include <windows.h>

#include <ocidl.h>

// A picture as Windows' own loader reads it: BMP, GIF, JPEG, icons, metafiles; of an animation the
// first frame. Raises as ControlloImmagine::carica tells.
[[nodiscard]] ComPtr<IPicture> caricaImmagine(const std::wstring& percorso);

// Twips per pixel of a window (none: of the screen).
class UnitaDiFinestra final : public UnitaFinestra {
public:
    explicit UnitaDiFinestra(HWND finestra) noexcept : finestra_(finestra) {}

    [[nodiscard]] double pixelOrizzontali(double twips) const override;
    [[nodiscard]] double pixelVerticali(double twips) const override;

private:
    HWND finestra_;
};

// The hidden picture control: it only ever measures, so it has no window to show or to fill.
class ImmagineNascosta final : public ControlloImmagine {
public:
    void Visible(bool /*valore*/) override {}
    void Stretch(bool /*valore*/) override {}
    void carica(const std::wstring& percorso) override { immagine_ = caricaImmagine(percorso); }
    void svuota() noexcept override { immagine_ = ComPtr<IPicture>(); }
    [[nodiscard]] double Width() const override;
    [[nodiscard]] double Height() const override;

private:
    ComPtr<IPicture> immagine_;
};
