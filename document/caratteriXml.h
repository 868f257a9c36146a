#pragma once

#include "support/errori/errore.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// What an XML file in ISO-8859-1 can hold.

// The first code point that no XML document can hold: control characters other than tab, LF and
// CR, lone surrogates, U+FFFE, U+FFFF.
[[nodiscard]] std::optional<char32_t> primoVietato(std::wstring_view testo) noexcept;

// How messages name a text: "titolo del canale"; for a text of an item, its field and the item's
// position from 1: "titolo", 3.
struct NomeTesto {
    std::wstring_view nome;
    int elemento = 0;
};

// Error 5 for a text that a feed cannot hold.
class TestoRifiutato : public Errore {
public:
    TestoRifiutato(std::wstring descrizione, int elemento)
        : Errore(errori::chiamataNonValida, std::move(descrizione)), elemento_(elemento) {}

    // The position, from 1, of the item that the text is of; 0 when it is no item's.
    [[nodiscard]] int elemento() const noexcept { return elemento_; }

private:
    int elemento_;
};

// A text of so many bytes in UTF-8 could be written, but the parser loads none.
inline constexpr std::size_t byteTroppi = 10'000'000;

// Whether the text takes at least so many bytes in UTF-8.
[[nodiscard]] bool almenoByte(std::wstring_view testo, std::size_t limite) noexcept;

// Raises TestoRifiutato when the text cannot be held. `percorso` is the file to be written; empty
// when there is none yet, and the description then names none.
void verificaTesto(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso);
// The same for the text of a CDATA section, which cannot hold its own end either and counts with
// its references.
void verificaCData(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso);

// The text for a CDATA section, where the serialiser cannot write references: what ISO-8859-1
// lacks, and only that, as decimal HTML references. What it gives lies in `testo` where nothing is
// lacking, else in `appoggio`.
[[nodiscard]] std::wstring_view conRiferimenti(std::wstring_view testo, std::wstring& appoggio);

// The way back: each reference as conRiferimenti writes it (decimal, no leading zero, of a
// character that ISO-8859-1 lacks and XML can hold) as its character, all else as it stands. So a
// text of a file is, read and written again, the same to the byte; a reference that somebody typed
// is the character from then on.
[[nodiscard]] std::wstring_view conCaratteri(std::wstring_view testo, std::wstring& appoggio);
