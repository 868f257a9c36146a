#pragma once

#include "support/errori/trappola.h"

#include <windows.h>

// Who sees the messages of another window before that window does.
class GestoreSottoclasse : public Trappola {
public:
    // Answers a message; what it does not care for goes to DefSubclassProc.
    virtual LRESULT messaggioDi(HWND hwnd, UINT codice, WPARAM w, LPARAM l) = 0;
};

// The subclassing of one window by one handler, for the life of this object or of the window,
// whichever ends first. The handler is not owned and must live as long.
class Sottoclasse {
public:
    Sottoclasse() noexcept = default;
    // Raises error 7 when the window cannot be subclassed (another thread's, or no memory).
    Sottoclasse(HWND hwnd, GestoreSottoclasse& gestore);
    Sottoclasse(const Sottoclasse&) = delete;
    Sottoclasse(Sottoclasse&& altra) noexcept;
    Sottoclasse& operator=(const Sottoclasse&) = delete;
    Sottoclasse& operator=(Sottoclasse&& altra) noexcept;
    ~Sottoclasse();

    [[nodiscard]] explicit operator bool() const noexcept { return hwnd_ != nullptr; }

private:
    HWND hwnd_ = nullptr;
    GestoreSottoclasse* gestore_ = nullptr;
};
