#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

// The clipboard: while one lives, no other program has it.
class Appunti {
public:
    // `finestra` owns what is put there. Raises error 70 when another program does not let the
    // clipboard go, after a tenth of a second.
    explicit Appunti(HWND finestra);
    Appunti(const Appunti&) = delete;
    Appunti& operator=(const Appunti&) = delete;
    ~Appunti() { CloseClipboard(); }

    // What lay there is gone; before the first `metti`.
    void svuota();

    // The same thing in one more format, the most telling first. Raises the failure.
    void metti(UINT formato, std::string_view byte);
    // CF_UNICODETEXT.
    void metti(std::wstring_view testo);

    // What lies there in a format; it may be longer than what was put there.
    [[nodiscard]] std::optional<std::string> leggi(UINT formato) const;
};

// A format by its name, the same number for all programs.
[[nodiscard]] UINT formatoAppunti(const wchar_t* nome);
