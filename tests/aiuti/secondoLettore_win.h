#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// What a save wrote as another reader than the program's sees it: plain XML in ISO-8859-1, strictly
// read, without a DOM.

using AttributiLetti = std::map<std::string, std::wstring>;

struct NodoLetto {
    std::string nome;
    AttributiLetti attributi;
    // The element's own text with that of its sections; line breaks as LF.
    std::wstring testo;
    std::vector<NodoLetto> figli;
};

struct DocumentoLetto {
    AttributiLetti dichiarazione;
    std::vector<std::wstring> commenti;
    NodoLetto radice;
};

// Raises std::runtime_error for what is no such document.
[[nodiscard]] DocumentoLetto leggiDaSolo(std::string_view byte);
