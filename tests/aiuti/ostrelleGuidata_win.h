#pragma once

#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Raised by whatever asks something of the program once its process has ended.
struct Terminata {};

// A run of the shipped executable, driven by messages from another process. It needs neither the
// focus nor the mouse, so it may end at any moment. What fails raises std::runtime_error.
class OstrelleGuidata {
public:
    // Starts it and runs `avviata` with its process before waiting for its window.
    explicit OstrelleGuidata(const std::function<void(HANDLE)>& avviata);
    OstrelleGuidata(const OstrelleGuidata&) = delete;
    OstrelleGuidata& operator=(const OstrelleGuidata&) = delete;
    // Ends it.
    ~OstrelleGuidata();

    [[nodiscard]] HANDLE processo() const noexcept { return processo_.get(); }

    // Until all that was posted is done and the program, its queue empty, waits for more.
    void calma();
    // Until the process has ended.
    void attendiFine() const;
    void attendi(const char* che, const std::function<bool()>& condizione) const;

    // Posts a command of the main window.
    void comando(int numero);
    // The dialog or box in front that awaits its user; null when none does.
    [[nodiscard]] HWND dialogo() const;
    [[nodiscard]] HWND attendiDialogo() const;
    // Presses a button of it and waits until it is gone.
    void rispondi(HWND dialogo, int pulsante);

    // Answers a file dialog with a path.
    void scegliFile(HWND dialogo, const std::wstring& percorso);

    [[nodiscard]] std::wstring titolo() const { return testo(principale_); }
    // A control of the channel; of the combo box the field.
    [[nodiscard]] HWND campo(int id) const;
    [[nodiscard]] std::wstring testo(HWND controllo) const;
    // Puts a text in the place of `quanti` characters from `dove` on, as a paste does, or types at
    // the end.
    void incolla(HWND controllo, std::size_t dove, std::size_t quanti, const std::wstring& nuovo);
    void digita(HWND controllo, std::wstring_view caratteri);

    // The button of the notice that is shown; null where there is none of that caption.
    [[nodiscard]] HWND pulsanteAvviso(std::wstring_view didascalia) const;
    // Posts a press of a button.
    static void premi(HWND pulsante) { PostMessageW(pulsante, BM_CLICK, 0, 0); }

    void seleziona(int riga);
    // What the grid says of each item besides its date.
    [[nodiscard]] std::vector<std::wstring> righe() const;

private:
    [[nodiscard]] LRESULT chiedi(HWND finestra, UINT messaggio, WPARAM w = 0, LPARAM l = 0) const;
    [[nodiscard]] HWND lista() const;
    [[nodiscard]] std::vector<std::wstring> celle(int prima, int quante, int colonna) const;

    ManigliaOggetto processo_;
    DWORD id_ = 0;
    HWND principale_ = nullptr;
    // In the program's own memory.
    void* memoria_ = nullptr;
    int giro_ = 0;
};
