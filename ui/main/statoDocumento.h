#pragma once

#include <string>
#include <string_view>

// What the window knows about its document besides the contents: whether it was modified, whether
// it has a file, and the caption that says so.
class StatoDocumento {
public:
    static constexpr std::wstring_view nuovoDocumento = L"Nuovo Documento";

    // Sets the new-document flag from the name (True exactly for "Nuovo Documento") and gives the
    // window's caption: the title alone for an empty name, else title, two blanks and "[name]".
    [[nodiscard]] std::wstring ImpostaTitolo(std::wstring_view nome);

    [[nodiscard]] bool nuovo() const noexcept { return nuovo_; }
    [[nodiscard]] bool modificato() const noexcept { return modificato_; }
    void modificato(bool valore) noexcept { modificato_ = valore; }

    // Whether the document may go without a question: it is unmodified, or it has no file and
    // nothing in it (`vuoto`: all nine texts blank and no items).
    [[nodiscard]] bool scartabile(bool vuoto) const noexcept;

private:
    bool modificato_ = false;
    bool nuovo_ = true;
};
