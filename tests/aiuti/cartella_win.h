#pragma once

#include <string>
#include <string_view>

// A new, empty folder for one test, deleted with all it holds.
class CartellaProva {
public:
    CartellaProva();
    CartellaProva(const CartellaProva&) = delete;
    CartellaProva& operator=(const CartellaProva&) = delete;
    ~CartellaProva();

    // Ends without "\".
    [[nodiscard]] const std::wstring& percorso() const noexcept { return percorso_; }
    // The path of a file in the folder.
    [[nodiscard]] std::wstring file(std::wstring_view nome) const;
    // Writes a file of the folder with these bytes and gives its path.
    [[nodiscard]] std::wstring scrivi(std::wstring_view nome, std::string_view contenuto) const;

private:
    std::wstring percorso_;
};

// All the bytes of a file; fails the test when it cannot be read.
[[nodiscard]] std::string leggiTutto(const std::wstring& percorso);

// The path of a file of tests/campioni.
[[nodiscard]] std::wstring campione(std::wstring_view nome);

// A text as UTF-8, for messages and comparisons.
[[nodiscard]] std::string inUtf8(std::wstring_view testo);
[[nodiscard]] std::wstring daUtf8(std::string_view testo);
