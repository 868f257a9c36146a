#pragma once

#include <string>

// What a shortcut holds, read by the shell itself.
struct CollegamentoLetto {
    std::wstring obiettivo;
    std::wstring cartella;
    std::wstring icona;
    int indice = -1;
    int stile = 0;
};

// Raises the component's error when there is no such shortcut.
[[nodiscard]] CollegamentoLetto leggiCollegamento(const std::wstring& file);
