#pragma once

#include "support/errori/trappola.h"

#include <windows.h>

#include <memory>
#include <string_view>

// Base of every window whose class is ours. The object is tied to its window from WM_NCCREATE to
// WM_NCDESTROY; an exception that leaves a message stops here and goes to `onEccezione`.
//
// Two ways of owning:
// - the object owns the window: `crea`; the destructor destroys the window;
// - the window owns the object (classes that a dialog template names): `registraPropria`; the
//   object is made when the window is, and goes when the window is gone and no call of it is left
//   on the stack.
class Finestra : public Trappola {
public:
    Finestra() noexcept = default;
    Finestra(const Finestra&) = delete;
    Finestra& operator=(const Finestra&) = delete;
    // By now the derived part is gone: the window's last messages get the system's answers. A
    // class that wants to see them calls `distruggi` in its own destructor.
    ~Finestra() override;

    // Null before WM_NCCREATE and after WM_NCDESTROY.
    [[nodiscard]] HWND hwnd() const noexcept { return hwnd_; }

    // Makes the window, `posto` being left, top, width and height in pixels; the class must have
    // been registered with `registra`. Raises what a handler raised during creation, else the
    // run-time error of the failure.
    void crea(const wchar_t* classe, const wchar_t* titolo, DWORD stile, DWORD stileEsteso,
              const RECT& posto, HWND padre, HMENU menu = nullptr);
    void distruggi() noexcept;

    // Registers a class for `crea`. The description's procedure, size, instance and pointer are
    // filled in here. Doing it again changes nothing. Raises the run-time error of the failure.
    static void registra(WNDCLASSEXW descrizione);

    // Registers a class whose windows make their own object, a `Classe`, named `Classe::classe`.
    template <class Classe>
    static void registraPropria(WNDCLASSEXW descrizione) {
        descrizione.lpszClassName = Classe::classe;
        registraCon(descrizione, &proceduraPropria<Classe>);
    }

    // The object of a window of class `Classe::classe`; null for any other window, for one of
    // another process, and for a window that is going.
    template <class Classe>
    [[nodiscard]] static Classe* da(HWND hwnd) noexcept {
        return static_cast<Classe*>(trova(hwnd, Classe::classe));
    }

protected:
    // Answers a message; what it does not care for goes to `predefinito`.
    virtual LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) = 0;

    [[nodiscard]] LRESULT predefinito(UINT codice, WPARAM w, LPARAM l) const noexcept {
        return DefWindowProcW(hwnd_, codice, w, l);
    }

    // Keeps an object that its window owns alive while one of its functions runs: what it calls
    // may show a box, and the box's message loop may close the window.
    class Trattenuta {
    public:
        explicit Trattenuta(Finestra& finestra) noexcept : finestra_(finestra) {
            ++finestra_.chiamate_;
        }
        Trattenuta(const Trattenuta&) = delete;
        Trattenuta& operator=(const Trattenuta&) = delete;
        ~Trattenuta() { finestra_.rilascia(); }

    private:
        Finestra& finestra_;
    };

private:
    template <class Classe>
    static LRESULT CALLBACK proceduraPropria(HWND hwnd, UINT codice, WPARAM w, LPARAM l) noexcept {
        if (codice == WM_NCCREATE) {
            if (!ignorando([&] { adotta(hwnd, std::make_unique<Classe>()); })) {
                return FALSE;
            }
        }
        return procedura(hwnd, codice, w, l);
    }

    static LRESULT CALLBACK procedura(HWND hwnd, UINT codice, WPARAM w, LPARAM l) noexcept;
    static void registraCon(WNDCLASSEXW& descrizione, WNDPROC procedura);
    static void adotta(HWND hwnd, std::unique_ptr<Finestra> finestra) noexcept;
    [[nodiscard]] static Finestra* trova(HWND hwnd, std::wstring_view classe) noexcept;

    LRESULT instrada(UINT codice, WPARAM w, LPARAM l) noexcept;
    void rilascia() noexcept;

    HWND hwnd_ = nullptr;
    bool propria_ = false;
    // While `crea` runs errors are its caller's.
    bool inCreazione_ = false;
    Rinvio erroreCreazione_;
    int chiamate_ = 0;
};
