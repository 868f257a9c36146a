#pragma once

#include <set>
#include <string>
#include <vector>

// What the program can say, read where it says it: the sources themselves, so that what is written
// about it elsewhere can be held to them.

// A text that a box shows, or how it begins.
struct Messaggio {
    std::wstring testo;
    int numero = 0; // of the error that carries it; 0 when none of the program's own does
};

[[nodiscard]] std::vector<Messaggio> messaggiDelProgramma();

// The numbers of the run-time errors that the program raises by name, those that a person can meet.
[[nodiscard]] std::set<int> erroriSollevati();
