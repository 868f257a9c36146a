#pragma once

#include <cstdint>
#include <string>

class DialoghiFile;

// A window that converts its twips to pixels.
class UnitaFinestra {
public:
    UnitaFinestra() noexcept = default;
    UnitaFinestra(const UnitaFinestra&) = delete;
    UnitaFinestra& operator=(const UnitaFinestra&) = delete;
    virtual ~UnitaFinestra() = default;

    [[nodiscard]] virtual double pixelOrizzontali(double twips) const = 0;
    [[nodiscard]] virtual double pixelVerticali(double twips) const = 0;
};

// A picture control: takes the size of its picture when it does not stretch. Sizes are twips.
class ControlloImmagine {
public:
    ControlloImmagine() noexcept = default;
    ControlloImmagine(const ControlloImmagine&) = delete;
    ControlloImmagine& operator=(const ControlloImmagine&) = delete;
    virtual ~ControlloImmagine() = default;

    virtual void Visible(bool valore) = 0;
    virtual void Stretch(bool valore) = 0;
    // Raises 481 when the file is no picture, 53 when it is not there, else its reading's error;
    // keeps the picture it had then.
    virtual void carica(const std::wstring& percorso) = 0;
    virtual void svuota() noexcept = 0;
    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;
};

// Reads the size in pixels of an image file, with things borrowed from its caller; they outlive it.
class ClsSizerImg {
public:
    void objForm(const UnitaFinestra& finestra) noexcept { objForm_ = &finestra; }
    void objDlg(DialoghiFile& dialoghi) noexcept { objDlg_ = &dialoghi; }
    void objImg(ControlloImmagine& immagine) noexcept { objImg_ = &immagine; }

    // Measures the file, or the one the user picks when no path is given. Raises 8876 when no file
    // has that path, 8875 without a dialog to ask with, 8874 without a picture control (after the
    // dialog), 91 without a window, 32755 when the user cancels, and what loading raises; the last
    // sizes stay then.
    void LeggiImg(const std::wstring& percorso);

    // Pixels of the last image read.
    [[nodiscard]] std::int32_t nWidth() const noexcept { return nWidth_; }
    [[nodiscard]] std::int32_t nHeight() const noexcept { return nHeight_; }

private:
    const UnitaFinestra* objForm_ = nullptr;
    DialoghiFile* objDlg_ = nullptr;
    ControlloImmagine* objImg_ = nullptr;
    std::int32_t nWidth_ = 0;
    std::int32_t nHeight_ = 0;
};
