#pragma once

#include "support/immagini/ClsSizerImg.h"
#include "support/windows/com_win.h"
#include "support/windows/dpi_win.h"

#include <windows.h>

#include <ocidl.h>

// A picture as Windows' own loader reads it: BMP, GIF, JPEG, icons, metafiles; of an animation the
// first frame. Raises as ControlloImmagine::carica tells.
[[nodiscard]] ComPtr<IPicture> caricaImmagine(const std::wstring& percorso);
// The same from a resource of the program; 481 when it has none of that number and type.
[[nodiscard]] ComPtr<IPicture> caricaImmagine(int risorsa, const wchar_t* tipo);

// The bitmap of a picture, which keeps owning it; null when it is a picture of another kind.
[[nodiscard]] HBITMAP bitmapDi(IPicture& immagine) noexcept;
// In pixels; nothing of no bitmap.
[[nodiscard]] SIZE misuraDi(HBITMAP bitmap) noexcept;

// A window's twips at a resolution: for a picture's size the screen's, with which the size was
// reckoned.
class UnitaDiFinestra final : public UnitaFinestra {
public:
    explicit UnitaDiFinestra(Dpi dpi) noexcept : dpi_(dpi) {}

    [[nodiscard]] double pixelOrizzontali(double twips) const override {
        return dpi_.x.pixelEsatti(twips);
    }
    [[nodiscard]] double pixelVerticali(double twips) const override {
        return dpi_.y.pixelEsatti(twips);
    }

private:
    Dpi dpi_;
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
