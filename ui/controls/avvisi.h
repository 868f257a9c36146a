#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

struct PulsanteAvviso {
    // Empty: there is no such button.
    std::wstring didascalia;
    // Runs as a command does. Gives whether the notice has had its answer and goes; a failure,
    // which is reported, leaves it there. It may say and withdraw notices, its own too.
    std::function<bool()> azione;
};

// What the program says without asking.
struct Avviso {
    // What it is about: one that is said takes the place of an earlier one about the same.
    std::wstring argomento;
    // One line, all of which is told to assistive programs; what does not fit is in a tooltip.
    std::wstring testo;
    std::array<PulsanteAvviso, 2> pulsanti;
    // When the user closed it without an answer, after it is gone. May be empty.
    std::function<void()> chiuso;
};

// Where notices are said. They wait for each other and never for the user: saying one neither
// blocks nor moves the focus.
class Avvisi {
public:
    Avvisi() = default;
    Avvisi(const Avvisi&) = delete;
    Avvisi& operator=(const Avvisi&) = delete;

    virtual void avvisa(Avviso avviso) = 0;
    // The one about that is no longer true; nothing when there is none.
    virtual void ritira(std::wstring_view argomento) = 0;

protected:
    ~Avvisi() = default;
};
