#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

// What a user does and sees, for tests with windows. Keys and mouse go through the system's input
// queue to whatever has the focus or lies under the pointer, and each act returns when the windows
// of this thread have taken it.

// What the message loop asks before it translates and dispatches a message; true when it took it.
using Filtro = std::function<bool(MSG&)>;

// Puts a filter (IsDialogMessage, the program's own order) into the loop of these tests.
class ConFiltro {
public:
    explicit ConFiltro(Filtro filtro);
    ConFiltro(const ConFiltro&) = delete;
    ConFiltro& operator=(const ConFiltro&) = delete;
    ~ConFiltro();

private:
    Filtro prima_;
};

// Dispatches what is in the queue until it is empty.
void pompa();

// Dispatches messages until the condition holds; false when it does not within the time given.
[[nodiscard]] bool attendi(const std::function<bool()>& condizione,
                           std::chrono::milliseconds scadenza = std::chrono::seconds(5));

// Brings a top-level window to the front and gives it the keyboard; fails the test if it cannot.
void portaAvanti(HWND finestra);

// One key by its virtual code, with the modifiers (VK_CONTROL, VK_SHIFT, VK_MENU) held.
void premi(WORD tasto, std::initializer_list<WORD> modificatori = {});

// A key goes down and stays so, repeats, and goes up again.
void premiGiu(WORD tasto);
void ripeti(WORD tasto);
void lascia(WORD tasto);

// Types a text, character by character.
void scrivi(std::wstring_view testo);

// Left button at a point in pixels of the window's client area, by default its middle.
void clic(HWND finestra);
void clic(HWND finestra, POINT punto);
void doppioClic(HWND finestra, POINT punto);
void clicDestro(HWND finestra, POINT punto);
// Presses at one point and releases at the other, moving in `passi` steps.
void trascina(HWND finestra, POINT da, POINT a, int passi = 8);
// The parts of a drag.
void premiMouse(HWND finestra, POINT punto);
void muoviMouse(HWND finestra, POINT punto);
void lasciaMouse();
// Turns the wheel over the window by this many notches, away from the user when positive.
void rotella(HWND finestra, int scatti);

// The text that a window or control shows.
[[nodiscard]] std::wstring testoDi(HWND finestra);
[[nodiscard]] std::wstring classeDi(HWND finestra);
// The first character selected in an edit box and the one after the last.
[[nodiscard]] std::pair<DWORD, DWORD> selezioneDi(HWND casella);
// The text on the clipboard; empty when there is none.
[[nodiscard]] std::wstring testoAppunti();
void testoAppunti(std::wstring_view testo);

// While it lives, waits inside any modal message loop of this thread for a top-level window of this
// class (and title, unless empty) to be shown, and then acts on it once. Fails the test when it
// never appears.
class QuandoAppare {
public:
    QuandoAppare(std::wstring classe, std::wstring titolo, std::function<void(HWND)> azione);
    QuandoAppare(const QuandoAppare&) = delete;
    QuandoAppare& operator=(const QuandoAppare&) = delete;
    ~QuandoAppare();

    [[nodiscard]] bool apparsa() const noexcept { return apparsa_; }

private:
    static void CALLBACK scatto(HWND, UINT, UINT_PTR, DWORD) noexcept;
    void cerca();

    std::wstring classe_;
    std::wstring titolo_;
    std::function<void(HWND)> azione_;
    bool apparsa_ = false;
    UINT_PTR timer_ = 0;
};
