#pragma once

#include "support/tempo/dataora.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

// What a file holds; nothing where it cannot be read.
[[nodiscard]] std::optional<std::string> contenutoDi(const std::wstring& percorso);

// The copies of old files on disk: a folder for each file, below `radice`, made at the first need.
class CopieFile {
public:
    // `radice` without a trailing "\".
    explicit CopieFile(std::wstring radice) noexcept : radice_(std::move(radice)) {}

    enum class Esito { NessunFile, GiaTenuta, Fatta, Spostata };
    // What becomes of the file itself: it stays, or may become the copy.
    enum class Originale { Resta, PuoAndare };

    // Keeps the file as it stands, unless there is none or the newest copy is equal; then lets the
    // oldest copies go that are too many. `adesso` is the local time. Raises the run-time error of
    // the failure: no copy is kept then, and the file is as it was.
    Esito conserva(const std::wstring& percorso, DataOra adesso,
                   Originale originale = Originale::Resta) const;
    // The same of what such a file held.
    void conserva(const std::wstring& percorso, DataOra adesso, std::string_view contenuto) const;

    // The folder with the copies of a file, whether it exists or not.
    [[nodiscard]] std::wstring cartella(const std::wstring& percorso) const;

private:
    template <class Crea>
    void aggiungi(const std::wstring& percorso, DataOra adesso, Crea crea) const;
    void sfoltisci() const;

    std::wstring radice_;
};
