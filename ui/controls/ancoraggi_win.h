#pragma once

#include <windows.h>

#include <span>
#include <vector>

// What a control does when its window grows.
enum class Ancoraggio {
    SiAllarga,           // to the right
    SiAllargaESiAllunga, // to the right and downwards
    Scende,              // with the bottom edge
    ScendeESiSposta,     // with the bottom right corner
};

struct ControlloAncorato {
    int id;
    Ancoraggio ancoraggio;
};

// Where the controls of a dialog stand when it is larger than it was made; all in pixels.
class Ancoraggi {
public:
    Ancoraggi() noexcept = default;
    // Takes the present places as those of the least size; `controlli` outlives it.
    Ancoraggi(HWND dialogo, std::span<const ControlloAncorato> controlli);

    // Puts the controls where they belong at the dialog's present size.
    void disponi() const;

    // By how much the dialog's inside is larger than it was made.
    [[nodiscard]] SIZE inPiu() const noexcept;

    // The least size of the window, frame and all.
    [[nodiscard]] POINT misuraMinima() const noexcept { return {minima_.cx, minima_.cy}; }

private:
    struct Posto {
        HWND controllo;
        Ancoraggio ancoraggio;
        RECT inizio;
    };

    HWND dialogo_ = nullptr;
    SIZE interno_{};
    SIZE minima_{};
    std::vector<Posto> posti_;
};
