#pragma once

#include "tests/aiuti/cartella_win.h"

#include <string>
#include <string_view>
#include <vector>

// Folders within folders, deeper than a path of 260 characters reaches; deleted with their files.
class CartellaLunga {
public:
    CartellaLunga();
    CartellaLunga(const CartellaLunga&) = delete;
    CartellaLunga& operator=(const CartellaLunga&) = delete;
    ~CartellaLunga();

    // Writes a file in the deepest folder and gives its path, as a user would write it.
    [[nodiscard]] std::wstring scrivi(std::wstring_view nome, std::string_view contenuto);

private:
    CartellaProva base_;
    std::vector<std::wstring> cartelle_;
    std::vector<std::wstring> file_;
};
