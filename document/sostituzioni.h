#pragma once

#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

// The entities that a document declares for itself, and how long the text is that references to
// them stand for. Lengths are in bytes and stop growing at `massima`.
class Sostituzioni {
public:
    static constexpr std::size_t massima = std::size_t{1} << 40U;

    // Reads the declarations of a DOCTYPE; the text must live as long as this object.
    void dichiara(std::string_view interno);

    [[nodiscard]] bool vuote() const noexcept { return entita_.empty(); }

    // What the references in a text stand for, entities within entities included.
    [[nodiscard]] std::size_t lunghezza(std::string_view testo);

private:
    struct Entita {
        std::string_view valore;
        std::size_t lunghezza = 0;
        bool nota = false;
        // A reference to itself, by whatever way, counts nothing: no parser accepts it.
        bool inCorso = false;
    };

    std::size_t lunghezzaDi(Entita& entita, int profondita);
    std::size_t lunghezza(std::string_view testo, int profondita);

    std::map<std::string_view, Entita> entita_;
};
