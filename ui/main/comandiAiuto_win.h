#pragma once

#include "ui/main/comandi.h"

#include <windows.h>

#include <string>

class Messaggi;

// The help file of the program: its own path with ".hlp" for ".exe", or with ".htm" where there is
// no such file.
[[nodiscard]] std::wstring fileGuida();

// The commands of the "?" menu: the help file, the maker's pages, the mail to the author, the about
// box. Failures are reported.
class ComandiAiuto {
public:
    explicit ComandiAiuto(Messaggi& messaggi) noexcept : messaggi_(messaggi) {}

    // Whether the command was one of these. `finestra` owns what is shown.
    bool esegui(Comando comando, HWND finestra);

private:
    void mnGuida_Click(HWND finestra);

    Messaggi& messaggi_;
};
