#pragma once

#include <windows.h>

#include <string>
#include <vector>

// What assistive programs are told of a window or control. `nome` is in parentheses why there is
// none; `ruolo` and `stato` are of ROLE_SYSTEM_... and STATE_SYSTEM_..., 0 where there is none.
struct Accessibile {
    std::wstring nome;
    std::wstring valore;
    long ruolo = 0;
    long stato = 0;
};
[[nodiscard]] Accessibile accessibile(HWND finestra);
[[nodiscard]] std::wstring nomeAccessibile(HWND finestra);

// The name of a control whose text is its value: there Windows' objects take the label just before
// it, and Wine's know text boxes only.
[[nodiscard]] std::wstring nomeOEtichetta(HWND controllo);

// A window and everything in it that is to be seen.
[[nodiscard]] std::vector<HWND> tuttiIVisibili(HWND finestra);

// While it lives, hears the events from one to another that windows of this process raise. One at a
// time; messages are to be dispatched for it.
class AscoltoEventi {
public:
    struct Evento {
        DWORD quale;
        HWND finestra;
        LONG oggetto;
        LONG figlio;
    };

    AscoltoEventi(DWORD primo, DWORD ultimo);
    explicit AscoltoEventi(DWORD quale) : AscoltoEventi(quale, quale) {}
    AscoltoEventi(const AscoltoEventi&) = delete;
    AscoltoEventi& operator=(const AscoltoEventi&) = delete;
    ~AscoltoEventi();

    // Those heard since it lives.
    [[nodiscard]] const std::vector<Evento>& uditi() const;
    // Whether one of a window was.
    [[nodiscard]] bool udito(HWND finestra) const;

private:
    HWINEVENTHOOK gancio_;
};
